// A skew transform that is too long for one body: the decimated parts of its sequence are transformed into the split's
// own vector S, and rows of S are combined into the bins of the whole.
#pragma once

#include "dct4/fold.h"

namespace zulg {

// Transforms one sequence and leaves its skew transform in `transforms` as number `position`. A split that is not
// active does nothing. Either pass is left out where its record has a kind out of range: the combine pass then takes S
// as it is.
template <class Element>
void runSplit(const SkewSplit& split, Element* transforms, const FoldSource<Element>& from, std::ptrdiff_t position);

}  // namespace zulg
