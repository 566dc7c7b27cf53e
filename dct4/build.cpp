// The order in which records are drawn is fixed: at each level the table of the second pass comes before the tree
// below, and the scratch vector last. Each record is complete and in its lists before its build can fail, since a
// failed build is released from the root and no step on the way cleans up.
#include "dct4/build.h"

#include "dct4/radix.h"

namespace zulg {

namespace {

template <class Record, class Init>
Record* drawWithHead(PlanArena* arena, ReleaseOperation* free, Init* init) {
    const auto record = drawRecord<Record>(arena);
    record->head.free.set(free);
    record->head.size = sizeof(Record);
    record->head.init.set(init);
    record->head.arena = arena;
    return record;
}

Status buildOutput(PlanHead& head, const PlanType& type) {
    auto& stage = recordOf<OutputStage>(head);
    stage.kind = outputKind(stage.radix);
    if (stage.kind == OutputKind::None) return StatusSizeError;
    type.buildOutputTable(stage);
    return StatusOk;
}

Status buildCombine(PlanHead& head, const PlanType& type) {
    auto& stage = recordOf<CombineStage>(head);
    stage.kind = combineKind(stage.radix);
    if (stage.kind == CombineKind::None) return StatusSizeError;
    type.buildCombineTable(stage);
    return StatusOk;
}

void copySizes(SkewSplit& split, const FoldStage& parent) {
    split.length = parent.length;
    split.reach = parent.length;
    split.inputStep = parent.inputStep;
    split.outputLength = parent.outputLength;
    split.outputStep = parent.outputStep;
}

void copySizes(SkewSplit& split, const FoldStep& parent) {
    split.length = parent.length;
    split.reach = parent.reach;
    split.inputStep = parent.inputStep;
    split.outputLength = parent.parentSkewLength;
    split.outputStep = parent.outputStep;
}

Status buildSplit(PlanHead& head, const PlanType& type);

template <class Parent>
Status makeSplit(Parent& parent, const PlanType& type) {
    PlanArena* const arena = parent.head.arena;
    const auto split = drawWithHead<SkewSplit>(arena, type.releaseSplit, buildSplit);
    split->active = 0;
    split->skewLength = parent.skewLength;
    split->scratch = nullptr;
    copySizes(*split, parent);
    split->post = drawList(arena);
    split->pre = drawList(arena);
    split->owned = drawList(arena);
    listAppend(parent.owned, &split->head);
    listAppend(parent.children, &split->head);
    return buildSplit(split->head, type);
}

// Builds a FoldStage or a FoldStep.
template <class Record>
Status buildFold(PlanHead& head, const PlanType& type) {
    auto& fold = recordOf<Record>(head);
    fold.kind = foldKind(fold.skewLength);
    if (fold.kind == FoldKind::Split) {
        const Status status = makeSplit(fold, type);
        if (status != StatusOk) return status;
    }
    fold.table = nullptr;
    return StatusOk;
}

// Makes the second pass of a plan and the source of its table.
Status makeOutput(DctPlan& plan, const PlanType& type) {
    PlanArena* const arena = plan.head.arena;
    const std::int32_t N = plan.length, r = plan.radix;
    const auto stage = drawWithHead<OutputStage>(arena, type.releaseOutput, buildOutput);
    const auto source = drawWithHead<AngleSource>(arena, releaseNothing, type.angleEntry);
    source->rowLength = 2 * r;
    source->denominator = wrapProduct(8, N);
    source->rows = N / (2 * r);
    source->radix = r;
    source->rowStride = 2 * r;
    listAppend(plan.owned, &source->head);

    stage->table = nullptr;
    stage->kind = OutputKind::None;
    stage->radix = r;
    stage->length = N;
    stage->rowLength = 2 * r;
    stage->rows = N / (2 * r);
    stage->outputLength = N;
    stage->mirrorBase = wrapDifference(wrapProduct(2, N), 1);
    stage->blockStride = N / r;
    stage->source = source;
    stage->owned = drawList(arena);
    listAppend(plan.owned, &stage->head);
    listAppend(plan.post, &stage->head);
    return buildOutput(stage->head, type);
}

Status makeFoldStage(DctPlan& plan, const PlanType& type) {
    PlanArena* const arena = plan.head.arena;
    const std::int32_t N = plan.length, r = plan.radix;
    const auto stage = drawWithHead<FoldStage>(arena, releaseFold<FoldStage>, buildFold<FoldStage>);
    stage->table = nullptr;
    stage->kind = FoldKind::None;
    stage->skewLength = N / r;
    stage->length = N;
    stage->mirrorBase = wrapDifference(wrapProduct(2, N), 1);
    stage->inputStep = 2 * r;
    stage->count = r;
    stage->outputLength = N;
    stage->outputStep = r;
    stage->children = drawList(arena);
    stage->owned = drawList(arena);
    listAppend(plan.owned, &stage->head);
    listAppend(plan.pre, &stage->head);
    return buildFold<FoldStage>(stage->head, type);
}

// Makes the second pass of a split and the source of its table.
Status makeCombine(SkewSplit& split, const PlanType& type) {
    PlanArena* const arena = split.head.arena;
    const std::int32_t M = split.skewLength, r = split.radix;
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
    stage->rows = M / (2 * r);
    stage->outputLength = split.outputLength;
    stage->half = M / 2;
    stage->mirrorBase = wrapDifference(M, 1);
    stage->outputStep = split.outputStep;
    stage->blockStride = M / r;
    stage->source = source;
    stage->owned = drawList(arena);
    listAppend(split.owned, &stage->head);
    listAppend(split.post, &stage->head);
    return buildCombine(stage->head, type);
}

Status makeFoldStep(SkewSplit& split, const PlanType& type) {
    PlanArena* const arena = split.head.arena;
    const std::int32_t M = split.skewLength, r = split.radix;
    const auto step = drawWithHead<FoldStep>(arena, releaseFold<FoldStep>, buildFold<FoldStep>);
    step->table = nullptr;
    step->kind = FoldKind::None;
    step->skewLength = M / r;
    step->length = split.length;
    step->reach = split.reach;
    step->inputStep = wrapProduct(split.inputStep, r);
    step->subStep = split.inputStep;
    step->count = r;
    step->parentSkewLength = M;
    step->outputStep = r;
    step->children = drawList(arena);
    step->owned = drawList(arena);
    listAppend(split.owned, &step->head);
    listAppend(split.pre, &step->head);
    return buildFold<FoldStep>(step->head, type);
}

Status buildSplit(PlanHead& head, const PlanType& type) {
    auto& split = recordOf<SkewSplit>(head);
    split.active = 1;
    Status status = pickRadix(&split.radix, split.skewLength / 2);
    if (status != StatusOk) return status;
    status = makeCombine(split, type);
    if (status != StatusOk) return status;
    status = makeFoldStep(split, type);
    if (status != StatusOk) return status;
    split.scratch = arenaAlloc(head.arena, wrapProduct(split.skewLength, type.width));
    return StatusOk;
}

}  // namespace

DctPlan* drawPlan(PlanArena* arena, std::int32_t length, const PlanType& type) {
    const auto plan = drawWithHead<DctPlan>(arena, type.releasePlan, buildPlan);
    plan->scratch = nullptr;
    plan->kind = PlanKind::None;
    plan->length = length;
    plan->post = drawList(arena);
    plan->pre = drawList(arena);
    plan->owned = drawList(arena);
    return plan;
}

Status buildPlan(PlanHead& head, const PlanType& type) {
    auto& plan = recordOf<DctPlan>(head);
    plan.kind = planKind(plan.length);
    if (plan.kind != PlanKind::Composite) {
        plan.scratch = nullptr;
        return StatusOk;
    }
    Status status = pickRadix(&plan.radix, plan.length / 2);
    if (status != StatusOk) return status;
    status = makeOutput(plan, type);
    if (status != StatusOk) return status;
    status = makeFoldStage(plan, type);
    if (status != StatusOk) return status;
    plan.scratch = arenaAlloc(head.arena, wrapProduct(plan.length, type.width));
    return StatusOk;
}

}  // namespace zulg
