// The combine pass of a split.
#pragma once

#include "dct4/records.h"

namespace zulg {

// Row by row, from the r' transforms of M' points in S to the one of M points that is number `position` in
// `transforms`. A `kind` out of range is refused with StatusPlanKindError, which nobody looks at, and leaves
// `transforms` as they are.
template <class Element>
Status combinePass(const CombineStage& stage, Element* transforms, const Element* parts, std::ptrdiff_t position);

}  // namespace zulg
