// Releases a plan. Nothing is freed one by one: each step moves the cursor back by what a record, table or vector was
// charged. When a finished plan and then its root are released, the cursor is where it was before the root was drawn.
// After a failed build it may be lower, since vectors that were never drawn are released with the rest.
//
// These are the `free` operations of the records. Each gives back what its record owns, not the record. No record
// states how many bytes an element has, so that there is an operation for each width.
#pragma once

#include "dct4/records.h"

namespace zulg {

// Releases the records that a record owns, and its lists. A FoldStage or a FoldStep has nothing else to give back.
template <class Record>
void releaseLists(PlanHead& record);

template <std::int32_t width>
void releasePlan(PlanHead& plan);
template <std::int32_t width>
void releaseOutput(PlanHead& stage);

template <std::int32_t width>
void releaseSplit(PlanHead& split);
template <std::int32_t width>
void releaseCombine(PlanHead& stage);

// For the two angle sources. The distances of all operations count from this routine.
void releaseNothing(PlanHead& source);

}  // namespace zulg
