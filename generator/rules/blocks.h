// The blocks: rules that add the transform of a length to a graph. A block looks up the row of its length in the tables
// and goes to that construction, which calls blocks in turn, always for a shorter length.
//
// Every block takes a multiplier a, coprime to its length L, and then works with the root W_L^a in place of W_L: that
// is how it stands inside a prime-factor construction. W_L is exp(-2 pi i/L). No block has a scale factor.
#pragma once

#include "graph/complex_value.h"

namespace gen {

// Z[k] = sum over n of x[n] W_L^(a n k), k = 0 .. L - 1, with L the length of x.
Signal complexBlock(const Signal& x, int a);

}  // namespace gen
