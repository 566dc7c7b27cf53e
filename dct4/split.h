// A skew transform that is too long for one body. Its sequence is decimated into shorter ones, whose transforms go to
// the split's own vector S. Rows of S are then combined into the bins of the long transform.
#pragma once

#include "dct4/fold.h"

namespace zulg {

// Transforms one sequence and leaves its skew transform in `transforms` as number `position`. A split that is not
// active does nothing. A pass whose record has a kind out of range is left out. Without the fold pass, the combine pass
// takes S as it is.
template <class Element>
void runSplit(const SkewSplit& split, Element* transforms, const FoldSource<Element>& from, std::ptrdiff_t position);

}  // namespace zulg
