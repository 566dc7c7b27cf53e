// Releases a plan. Nothing is freed one by one: each step moves the cursor back by what a record, table or vector was
// charged. When a finished plan and then its root are released, the cursor is where it was before the root was drawn.
// After a failed build it may be lower, since vectors that were never drawn are released with the rest.
//
// These are the `free` operations of the records; each gives back what its record owns, not the record.
// Since no record states the width of an element in bytes, there is one operation for each width.
#pragma once

#include "dct4/records.h"

namespace zulg {

template <std::int32_t width>
void releasePlan(PlanHead& plan);
template <std::int32_t width>
void releaseOutput(PlanHead& stage);

// For a FoldStage or a FoldStep. These have no table, so that the width of an element does not matter.
template <class Fold>
void releaseFold(PlanHead& fold);

template <std::int32_t width>
void releaseSplit(PlanHead& split);
template <std::int32_t width>
void releaseCombine(PlanHead& stage);

// For the two angle sources. The distances of all operations count from this routine.
void releaseNothing(PlanHead& source);

}  // namespace zulg
