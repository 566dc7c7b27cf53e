// The combine pass of a split.
#pragma once

#include "dct4/records.h"

namespace zulg {

// Combines the r' transforms of M' points in S, which is `parts`, row by row into one transform of M points: number
// `position` in `transforms`. A `kind` out of range returns StatusPlanKindError, which the callers ignore, and leaves
// `transforms` unchanged.
template <class Element>
Status combinePass(const CombineStage& stage, Element* transforms, const Element* parts, std::ptrdiff_t position);

}  // namespace zulg
