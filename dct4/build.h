// Builds the tree of a plan. The same code serves both element types; what differs between them is an argument.
#pragma once

#include "dct4/records.h"
#include "dct4/release.h"
#include "dct4/tables.h"

namespace zulg {

struct PlanType {
    std::int32_t width;  // of an element, in bytes
    ReleaseOperation *releasePlan, *releaseOutput, *releaseSplit, *releaseCombine;
    AngleOperation* angleEntry;
    void (*buildOutputTable)(OutputStage& stage);
    void (*buildCombineTable)(CombineStage& stage);
};

template <class Element>
inline constexpr PlanType planType = {
    .width = sizeof(Element),
    .releasePlan = releasePlan<sizeof(Element)>,
    .releaseOutput = releaseOutput<sizeof(Element)>,
    .releaseSplit = releaseSplit<sizeof(Element)>,
    .releaseCombine = releaseCombine<sizeof(Element)>,
    .angleEntry = angleEntry<Element>,
    .buildOutputTable = buildOutputTable<Element>,
    .buildCombineTable = buildCombineTable<Element>,
};

// Draws the root record and its empty lists. The arena must be fresh.
DctPlan* drawPlan(PlanArena* arena, std::int32_t length, const PlanType& type);

// Builds everything below a root, whose length is set and whose lists are empty. After StatusSizeError the records that
// were drawn are still in the lists, and releasePlan releases them.
Status buildPlan(PlanHead& plan, const PlanType& type);

}  // namespace zulg
