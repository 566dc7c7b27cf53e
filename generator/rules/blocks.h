// The blocks: rules that add the transform of a length to a graph. A block looks up the row of its length in the tables
// and goes to that construction, which calls blocks in turn, always for a shorter length.
//
// Every block takes a multiplier a, coprime to its length L, and then works with the root W_L^a in place of W_L: that
// is how it is used inside a prime-factor construction. W_L is exp(-2 pi i/L). No block has a scale factor.
//
// A real or spectrum block takes its factor order from its row, or as an argument where a longer block prescribes it.
#pragma once

#include "rules/half_spectrum.h"
#include "rules/tables.h"

namespace gen {

// Z[k] = sum over n of x[n] W_L^(a n k), k = 0 .. L - 1, with L the length of x.
Signal complexBlock(const Signal& x, int a);

// The same with the root W_L^-a.
Signal inverseComplexBlock(const Signal& x, int a);

// Z[k] = sum over n of x[n] W_L^(a n k) for real x, k = 0 .. L/2.
HalfSpectrum realBlock(const RealSignal& x, int a);
HalfSpectrum realBlock(const RealSignal& x, int a, const Recipe& recipe);

// The mirror: y[n] = E[0] + (-1)^n E[L/2] + sum over 0 < k < L/2 of the real part of E[k] W_L^(-a n k). An interior bin
// stands for itself and its conjugate and is expected doubled.
RealSignal spectrumBlock(const HalfSpectrum& bins, int a);
RealSignal spectrumBlock(const HalfSpectrum& bins, int a, const Recipe& recipe);

// The odd bins of a real transform of length 2L: Z[d] = sum over b of v[b] W_(2L)^(a b (2d + 1)) for L real values v,
// d = 0 .. ceil(L/2) - 1. The last one of odd L is real: its imaginary part is not set. a is odd.
Signal skewBlock(const RealSignal& v, int a);

// The splits of a mirrored skew block, outermost first, where they are not to be those of the tables: a length L is
// split into so many parts, and each of them by the rest of the list. The last parts have 4 points.
using Splits = std::vector<int>;

// The mirror, the odd-frequency form: out[m] = sum over d of the real part of E[d] W_(2L)^(-a m (2d + 1)), m = 0 .. L
// - 1. Bins come doubled, but for the real last one of odd L.
RealSignal mirroredSkewBlock(const Signal& bins, int length, int a, const Splits& splits = {});

}  // namespace gen
