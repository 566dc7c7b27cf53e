// Releases a plan. Nothing is freed one by one: each step moves the cursor back by what a record, table or vector was
// charged. When a finished plan and then its root are released, the cursor is where it was before the root was drawn.
// After a failed build it may be lower, since vectors that were never drawn are released with the rest.
//
// These are the `free` operations of the records; each gives back what its record owns, not the record.
#pragma once

#include "dct4/records.h"

namespace zulg {

template <class Element>
void releasePlan(PlanHead& plan);
template <class Element>
void releaseSplit(PlanHead& split);
template <class Element>
void releaseOutput(PlanHead& stage);
template <class Element>
void releaseCombine(PlanHead& stage);

// For a FoldStage or a FoldStep. These have no table, so that the element type does not matter.
template <class Record>
void releaseFold(PlanHead& fold);

// For the two angle sources. The distances of all operations count from this routine.
void releaseNothing(PlanHead& source);

}  // namespace zulg
