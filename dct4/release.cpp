#include "dct4/release.h"

#include "dct4/size.h"

namespace zulg {

namespace {

// Releases a list that is a second view: its nodes, but not its records.
void releaseView(PlanArena* arena, PlanListNode* list) {
    listReleaseTail(list);
    arenaRelease(arena, list, sizeof(PlanListNode));
}

void releaseOwned(PlanArena* arena, PlanListNode* list) {
    listReleaseValues(list);
    releaseView(arena, list);
}

}  // namespace

void releaseNothing(PlanHead&) {}

template <class Element>
void releasePlan(PlanHead& head) {
    auto& plan = recordOf<DctPlan>(head);
    const std::int32_t scratchLength = plan.kind == PlanKind::Composite ? plan.length : 0;
    arenaRelease(head.arena, plan.scratch, wrapProduct(scratchLength, sizeof(Element)));
    releaseView(head.arena, plan.post);
    releaseView(head.arena, plan.pre);
    releaseOwned(head.arena, plan.owned);
}

template <class Element>
void releaseSplit(PlanHead& head) {
    auto& split = recordOf<SkewSplit>(head);
    if (split.active == 1) {
        arenaRelease(head.arena, split.scratch, wrapProduct(split.skewLength, sizeof(Element)));
    }
    releaseView(head.arena, split.post);
    releaseView(head.arena, split.pre);
    releaseOwned(head.arena, split.owned);
}

template <class Element>
void releaseOutput(PlanHead& head) {
    auto& stage = recordOf<OutputStage>(head);
    arenaRelease(head.arena, stage.table, outputTableBytes(stage.rows, stage.radix, sizeof(Element)));
    releaseOwned(head.arena, stage.owned);
}

template <class Element>
void releaseCombine(PlanHead& head) {
    auto& stage = recordOf<CombineStage>(head);
    arenaRelease(head.arena, stage.table, combineTableBytes(stage.rows, stage.radix, sizeof(Element)));
    releaseOwned(head.arena, stage.owned);
}

template <class Record>
void releaseFold(PlanHead& head) {
    auto& fold = recordOf<Record>(head);
    arenaRelease(head.arena, fold.table, 0);
    releaseView(head.arena, fold.children);
    releaseOwned(head.arena, fold.owned);
}

template void releasePlan<float>(PlanHead&);
template void releasePlan<double>(PlanHead&);
template void releaseSplit<float>(PlanHead&);
template void releaseSplit<double>(PlanHead&);
template void releaseOutput<float>(PlanHead&);
template void releaseOutput<double>(PlanHead&);
template void releaseCombine<float>(PlanHead&);
template void releaseCombine<double>(PlanHead&);
template void releaseFold<FoldStage>(PlanHead&);
template void releaseFold<FoldStep>(PlanHead&);

}  // namespace zulg
