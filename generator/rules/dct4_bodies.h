// The straight-line bodies of the DCT of type IV: folds, output rows, combine rows, and whole transforms of up to 32
// points.
//
// All of them go by the skew transform of an even number M of real values,
//     C[k] = sum over s of v[s] exp(2 pi i s (k + 1/2)/M),   k = 0 .. M/2 - 1;   C[M-1-k] is the conjugate of C[k],
// and by its decimation: with D[c] the skew transforms of the r parts v[r t + c], M' = M/r,
//     C[k + b M'] = sum over c of D[c][k] exp(2 pi i c (k + 1/2 + b M')/M).
#pragma once

#include "rules/half_spectrum.h"

namespace gen {

// The skew transform of a folded sequence: the upper half of x is taken with its sign turned.
Signal dct4Fold(const RealSignal& x);

// One row of the second pass. z: the row's bins of the r skew transforms. table: the r pairs cos alpha, sin alpha, in
// the order of dct4OutputOrder. Result: r rising outputs, then r falling ones.
RealSignal dct4Output(const Signal& z, const Signal& table);

// The same from bins that have been rotated by their table entries.
RealSignal dct4OutputOfRotated(const Signal& z);

// Which p each place of a table row has.
std::vector<int> dct4OutputOrder(int radix);

// One row of a combine pass: bins C[k + b M'] of the joined transform, those of the upper half as conjugates. d: the
// row's bins of the r parts. table: the twiddles of parts 1 .. r-1; for radix 16 and 32, done as r/4 by 4, those of the
// inner step (r/4 - 1), then for each of r/4 sub-rows the three of the outer step.
Signal dct4Combine(const Signal& d, const Signal& table);

// What a row of radix 2, 4 or 8, and each step of one of 16 or 32, does after its rotations: a DFT with the root
// exp(2 pi i/L).
Signal dct4CombineOfRotated(const Signal& d);

// The whole transform: y[k] = sum over n of x[n] cos(pi (n + 1/2)(k + 1/2)/N).
RealSignal dct4Direct(const RealSignal& x);

}  // namespace gen
