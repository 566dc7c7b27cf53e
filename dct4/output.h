// The second pass of a plan.
#pragma once

#include "dct4/records.h"

namespace zulg {

// Row by row, from the skew transforms in T to the result. A `kind` out of range is refused with StatusPlanKindError,
// which nobody looks at, and leaves the result as it is.
template <class Element>
Status outputPass(const OutputStage& stage, Element* y, const Element* transforms);

}  // namespace zulg
