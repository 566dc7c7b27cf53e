// Grows the tree of a plan. One text and one code serve both element types; what differs comes as an argument.
#pragma once

#include "dct4/records.h"
#include "dct4/release.h"
#include "dct4/tables.h"

namespace zulg {

struct PlanType {
    std::int32_t width;  // of an element, in bytes
    ReleaseOperation *releasePlan, *releaseSplit, *releaseOutput, *releaseCombine;
    AngleOperation* angleEntry;
    void (*buildOutputTable)(OutputStage& stage);
    void (*buildCombineTable)(CombineStage& stage);
};

template <class Element>
inline constexpr PlanType planType = {sizeof(Element),           releasePlan<Element>,      releaseSplit<Element>,
                                      releaseOutput<Element>,    releaseCombine<Element>,   angleEntry<Element>,
                                      buildOutputTable<Element>, buildCombineTable<Element>};

// Draws the root record and its empty lists. The arena must be fresh.
DctPlan* drawPlan(PlanArena* arena, std::int32_t length, const PlanType& type);

// Builds all below a root, whose length is set and whose lists are empty. On StatusSizeError what was drawn stands, for
// releasePlan to walk.
Status buildPlan(PlanHead& plan, const PlanType& type);

}  // namespace zulg
