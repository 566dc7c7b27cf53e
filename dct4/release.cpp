#include "dct4/release.h"

#include "dct4/tree.h"

namespace zulg {

namespace {

// Releases the records that a record owns, and all its lists.
template <class Record>
void releaseLists(Record& record) {
    listReleaseValues(record.owned);
    for (const auto list : Record::lists) {
        listReleaseTail(record.*list);
        arenaRelease(record.head.arena, record.*list, sizeof(PlanListNode));
    }
}

}  // namespace

template <std::int32_t width>
void releasePlan(PlanHead& head) {
    auto& plan = recordOf<DctPlan>(head);
    if (plan.kind == PlanKind::Composite) {
        arenaRelease(head.arena, plan.scratch, scratchBytes(plan.length, width));
    }
    releaseLists(plan);
}

template <std::int32_t width>
void releaseOutput(PlanHead& head) {
    auto& stage = recordOf<OutputStage>(head);
    arenaRelease(head.arena, stage.table, tableBytes<OutputStage>(stage.rows, stage.radix, width));
    releaseLists(stage);
}

template <class Fold>
void releaseFold(PlanHead& head) {
    releaseLists(recordOf<Fold>(head));
}

template <std::int32_t width>
void releaseSplit(PlanHead& head) {
    auto& split = recordOf<SkewSplit>(head);
    if (split.active == 1) {
        arenaRelease(head.arena, split.scratch, scratchBytes(split.skewLength, width));
    }
    releaseLists(split);
}

template <std::int32_t width>
void releaseCombine(PlanHead& head) {
    auto& stage = recordOf<CombineStage>(head);
    arenaRelease(head.arena, stage.table, tableBytes<CombineStage>(stage.rows, stage.radix, width));
    releaseLists(stage);
}

void releaseNothing(PlanHead&) {}

template void releasePlan<sizeof(float)>(PlanHead&);
template void releasePlan<sizeof(double)>(PlanHead&);
template void releaseOutput<sizeof(float)>(PlanHead&);
template void releaseOutput<sizeof(double)>(PlanHead&);
template void releaseFold<FoldStage>(PlanHead&);
template void releaseFold<FoldStep>(PlanHead&);
template void releaseSplit<sizeof(float)>(PlanHead&);
template void releaseSplit<sizeof(double)>(PlanHead&);
template void releaseCombine<sizeof(float)>(PlanHead&);
template void releaseCombine<sizeof(double)>(PlanHead&);

}  // namespace zulg
