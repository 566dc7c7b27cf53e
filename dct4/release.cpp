#include "dct4/release.h"

#include "dct4/tree.h"

namespace zulg {

template <class Record>
void releaseLists(PlanHead& head) {
    auto& record = recordOf<Record>(head);
    listReleaseValues(record.owned);
    for (const auto list : Record::lists) {
        listReleaseTail(record.*list);
        arenaRelease(head.arena, record.*list, sizeof(PlanListNode));
    }
}

template <std::int32_t width>
void releasePlan(PlanHead& head) {
    const auto& plan = recordOf<DctPlan>(head);
    if (plan.kind == PlanKind::Composite) {
        arenaRelease(head.arena, plan.scratch, scratchBytes(plan.length, width));
    }
    releaseLists<DctPlan>(head);
}

template <std::int32_t width>
void releaseOutput(PlanHead& head) {
    const auto& stage = recordOf<OutputStage>(head);
    arenaRelease(head.arena, stage.table, tableBytes<OutputStage>(stage.rows, stage.radix, width));
    releaseLists<OutputStage>(head);
}

template <std::int32_t width>
void releaseSplit(PlanHead& head) {
    const auto& split = recordOf<SkewSplit>(head);
    if (split.active == 1) {
        arenaRelease(head.arena, split.scratch, scratchBytes(split.skewLength, width));
    }
    releaseLists<SkewSplit>(head);
}

template <std::int32_t width>
void releaseCombine(PlanHead& head) {
    const auto& stage = recordOf<CombineStage>(head);
    arenaRelease(head.arena, stage.table, tableBytes<CombineStage>(stage.rows, stage.radix, width));
    releaseLists<CombineStage>(head);
}

void releaseNothing(PlanHead&) {}

template void releasePlan<sizeof(float)>(PlanHead&);
template void releasePlan<sizeof(double)>(PlanHead&);
template void releaseOutput<sizeof(float)>(PlanHead&);
template void releaseOutput<sizeof(double)>(PlanHead&);
template void releaseLists<FoldStage>(PlanHead&);
template void releaseLists<FoldStep>(PlanHead&);
template void releaseSplit<sizeof(float)>(PlanHead&);
template void releaseSplit<sizeof(double)>(PlanHead&);
template void releaseCombine<sizeof(float)>(PlanHead&);
template void releaseCombine<sizeof(double)>(PlanHead&);

}  // namespace zulg
