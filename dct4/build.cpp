// Builds a plan from the top of its tree downwards: drawPlan, buildPlan, the second pass, the first pass, the split
// below, and the same again. A routine named `add` draws a record, fills it in, puts it into the lists of its owner and
// builds it. A routine named `build` is the operation in `init` of the record.
//
// Each record is complete and in its lists before its build can fail, since a failed build is released from the root
// and no step on the way cleans up.
#include "dct4/build.h"

#include "dct4/tree.h"

namespace zulg {

namespace {

// The steps, from the top downwards.
template <class Owner>
Status buildLevel(Owner& owner, std::int32_t length, const PlanType& type);
Status addSecondPass(DctPlan& plan, const Level& level, const PlanType& type);
Status buildOutput(PlanHead& head, const PlanType& type);
Status addFirstPass(DctPlan& plan, const Level& level, const PlanType& type);
template <class Fold>
Status buildFold(PlanHead& head, const PlanType& type);
template <class Fold>
Status addSplit(Fold& parent, const PlanType& type);
Status buildSplit(PlanHead& head, const PlanType& type);
Status addSecondPass(SkewSplit& split, const Level& level, const PlanType& type);
Status buildCombine(PlanHead& head, const PlanType& type);
Status addFirstPass(SkewSplit& split, const Level& level, const PlanType& type);

template <class Record, class Init>
Record* drawWithHead(PlanArena* arena, ReleaseOperation* free, Init* init) {
    const auto record = drawRecord<Record>(arena);
    record->head.free.set(free);
    record->head.size = sizeof(Record);
    record->head.init.set(init);
    record->head.arena = arena;
    return record;
}

template <class Record>
void drawLists(Record& record) {
    for (const auto list : Record::lists) record.*list = drawList(record.head.arena);
}

}  // namespace

DctPlan* drawPlan(PlanArena* arena, std::int32_t length, const PlanType& type) {
    const auto plan = drawWithHead<DctPlan>(arena, type.releasePlan, buildPlan);
    plan->scratch = nullptr;
    plan->kind = PlanKind::None;
    plan->length = length;
    drawLists(*plan);
    return plan;
}

Status buildPlan(PlanHead& head, const PlanType& type) {
    auto& plan = recordOf<DctPlan>(head);
    plan.kind = planKind(plan.length);
    return plan.kind == PlanKind::Composite ? buildLevel(plan, plan.length, type) : StatusOk;
}

namespace {

// The order is fixed: the table of the second pass comes before the tree below, and the scratch vector is last.
template <class Owner>
Status buildLevel(Owner& owner, std::int32_t length, const PlanType& type) {
    Level level;
    Status status = takeApart(length, &level);
    if (status != StatusOk) return status;
    owner.radix = level.radix;
    status = addSecondPass(owner, level, type);
    if (status == StatusOk) status = addFirstPass(owner, level, type);
    if (status == StatusOk) owner.scratch = arenaAlloc(owner.head.arena, scratchBytes(length, type.width));
    return status;
}

Status addSecondPass(DctPlan& plan, const Level& level, const PlanType& type) {
    PlanArena* const arena = plan.head.arena;
    const std::int32_t N = level.length, r = level.radix;
    const auto stage = drawWithHead<OutputStage>(arena, type.releaseOutput, buildOutput);
    const auto source = drawWithHead<AngleSource>(arena, releaseNothing, type.angleEntry);
    source->rowLength = 2 * r;
    source->denominator = wrapProduct(8, N);
    source->rows = level.rows;
    source->radix = r;
    source->rowStride = 2 * r;
    listAppend(plan.owned, &source->head);

    stage->table = nullptr;
    stage->kind = OutputKind::None;
    stage->radix = r;
    stage->length = N;
    stage->rowLength = 2 * r;
    stage->rows = level.rows;
    stage->outputLength = N;
    stage->mirrorBase = wrapDifference(wrapProduct(2, N), 1);
    stage->blockStride = level.below;
    stage->source = source;
    drawLists(*stage);
    listAppend(plan.owned, &stage->head);
    listAppend(plan.post, &stage->head);
    return buildOutput(stage->head, type);
}

Status buildOutput(PlanHead& head, const PlanType& type) {
    auto& stage = recordOf<OutputStage>(head);
    stage.kind = outputKind(stage.radix);
    if (stage.kind == OutputKind::None) return StatusSizeError;
    type.buildOutputTable(stage);
    return StatusOk;
}

Status addFirstPass(DctPlan& plan, const Level& level, const PlanType& type) {
    const std::int32_t N = level.length, r = level.radix;
    const auto stage = drawWithHead<FoldStage>(plan.head.arena, releaseLists<FoldStage>, buildFold<FoldStage>);
    stage->table = nullptr;
    stage->kind = FoldKind::None;
    stage->skewLength = level.below;
    stage->length = N;
    stage->mirrorBase = wrapDifference(wrapProduct(2, N), 1);
    stage->inputStep = 2 * r;
    stage->count = r;
    stage->outputLength = N;
    stage->outputStep = r;
    drawLists(*stage);
    listAppend(plan.owned, &stage->head);
    listAppend(plan.pre, &stage->head);
    return buildFold<FoldStage>(stage->head, type);
}

// Builds a FoldStage or a FoldStep.
template <class Fold>
Status buildFold(PlanHead& head, const PlanType& type) {
    auto& fold = recordOf<Fold>(head);
    fold.kind = foldKind(fold.skewLength);
    return fold.kind == FoldKind::Split ? addSplit(fold, type) : StatusOk;
}

// Sets what a split takes from different fields of the two fold records.
void takeReach(SkewSplit& split, const FoldStage& parent) {
    split.reach = parent.length;
    split.outputLength = parent.outputLength;
}
void takeReach(SkewSplit& split, const FoldStep& parent) {
    split.reach = parent.reach;
    split.outputLength = parent.parentSkewLength;
}

template <class Fold>
Status addSplit(Fold& parent, const PlanType& type) {
    const auto split = drawWithHead<SkewSplit>(parent.head.arena, type.releaseSplit, buildSplit);
    split->active = 0;
    split->skewLength = parent.skewLength;
    split->scratch = nullptr;
    split->length = parent.length;
    split->inputStep = parent.inputStep;
    split->outputStep = parent.outputStep;
    takeReach(*split, parent);
    drawLists(*split);
    listAppend(parent.owned, &split->head);
    listAppend(parent.children, &split->head);
    return buildSplit(split->head, type);
}

Status buildSplit(PlanHead& head, const PlanType& type) {
    auto& split = recordOf<SkewSplit>(head);
    split.active = 1;
    return buildLevel(split, split.skewLength, type);
}

Status addSecondPass(SkewSplit& split, const Level& level, const PlanType& type) {
    PlanArena* const arena = split.head.arena;
    const std::int32_t M = level.length, r = level.radix;
    const auto stage = drawWithHead<CombineStage>(arena, type.releaseCombine, buildCombine);
    const auto source = drawWithHead<RowAngleSource>(arena, releaseNothing, rowAngle);
    source->skewLength = M;
    source->radix = r;
    listAppend(split.owned, &source->head);

    stage->table = nullptr;
    stage->kind = CombineKind::None;
    stage->radix = r;
    stage->skewLength = M;
    stage->rowLength = 2 * r;
    stage->rows = level.rows;
    stage->outputLength = split.outputLength;
    stage->half = M / 2;
    stage->mirrorBase = wrapDifference(M, 1);
    stage->outputStep = split.outputStep;
    stage->blockStride = level.below;
    stage->source = source;
    drawLists(*stage);
    listAppend(split.owned, &stage->head);
    listAppend(split.post, &stage->head);
    return buildCombine(stage->head, type);
}

Status buildCombine(PlanHead& head, const PlanType& type) {
    auto& stage = recordOf<CombineStage>(head);
    stage.kind = combineKind(stage.radix);
    if (stage.kind == CombineKind::None) return StatusSizeError;
    type.buildCombineTable(stage);
    return StatusOk;
}

Status addFirstPass(SkewSplit& split, const Level& level, const PlanType& type) {
    const std::int32_t M = level.length, r = level.radix;
    const auto step = drawWithHead<FoldStep>(split.head.arena, releaseLists<FoldStep>, buildFold<FoldStep>);
    step->table = nullptr;
    step->kind = FoldKind::None;
    step->skewLength = level.below;
    step->length = split.length;
    step->reach = split.reach;
    step->inputStep = wrapProduct(split.inputStep, r);
    step->subStep = split.inputStep;
    step->count = r;
    step->parentSkewLength = M;
    step->outputStep = r;
    drawLists(*step);
    listAppend(split.owned, &step->head);
    listAppend(split.pre, &step->head);
    return buildFold<FoldStep>(step->head, type);
}

}  // namespace

}  // namespace zulg
