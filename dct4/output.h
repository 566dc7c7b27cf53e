// The second pass of a plan.
#pragma once

#include "dct4/records.h"

namespace zulg {

// Computes the result row by row from the skew transforms in T. A `kind` out of range returns StatusPlanKindError,
// which the caller ignores, and leaves the result unchanged.
template <class Element>
Status outputPass(const OutputStage& stage, Element* y, const Element* transforms);

}  // namespace zulg
