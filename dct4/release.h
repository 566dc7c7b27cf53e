// Takes a plan down. Nothing is freed one by one: each step moves the cursor back by what a record, table or vector was
// charged, so that after the walk over a finished plan it stands where it stood before the root was drawn. After a
// failed build it may stand lower, for vectors that were never drawn are released with the rest.
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

// Of a FoldStage and of a FoldStep: these have no table, so that the element type is of no matter.
template <class Record>
void releaseFold(PlanHead& fold);

// Of the two angle sources. The distances of all operations count from this routine.
void releaseNothing(PlanHead& source);

}  // namespace zulg
