// How far the outputs of a graph can be from the exact ones at worst: for every input, and whichever way each step is
// rounded. It is a proof and no estimate.
//
// The computed values are those of the graph with an error r[v] added at each node v that rounds. So an output is off
// by the sum of g[v] r[v], where g[v] is its gain, plus what the rounded constants shift. With u = 2^-53 and x the
// input,
//
//     |r[v]| <= u |w[v] x| + u e[v] |x|      w[v]: the row of v; e[v] |x|: the error that v has before it rounds
//
// The second term is of the order of u^2 and is added up as it is. The first one is the greatest value of the sum of
// |g[v]| |w[v] x| over all x of norm 1. For any positive d[v],
//
//     (sum of |g[v]| |w[v] x|)^2  <=  (sum of d[v]) (sum of g[v]^2 (w[v] x)^2 / d[v])          (Cauchy and Schwarz)
//
// and the last sum is at most the greatest eigenvalue of S = sum of g[v]^2/d[v] w[v]' w[v]. With d[v] = (g[v] |w[v]|)^2
// the bound is near to the best: what a stage of an orthogonal transform adds is then sqrt(N), as it should be. That S
// has no greater eigenvalue than L is proved by a triangular factorisation of L - S, which has none unless all of its
// pivots are positive.
//
// A step of x87 rounds to 64 bits, and once more to 53 where the compiler keeps its result in memory: together at most
// 2^-53 (1 + 2^-11). Some steps may use a value from its register and others the same value from memory, so that the
// second rounding is there for any part of the uses. The gain of v is therefore that of those uses for which it is
// greatest. All bounds are for such steps; where every use has the same rounding, as elsewhere, nothing is greater.
//
// Where two outputs are one complex number, the error is the modulus of that number's. There the two nodes of a pair
// are taken together: g[v] becomes the 2-norm of their 2 by 2 matrix of gains, and w[v] x the length of their two
// values.
#pragma once

#include <vector>

#include "errors/linear_map.h"

namespace gen {

// All are over the 2-norm of the input, which is its root mean square times sqrt(N).
struct ErrorBound {
    double steps = 0;      // the greatest error of what is computed, in units of 2^-53
    double constants = 0;  // the greatest shift by rounded constants, in the same unit
    double greatest = 0;   // the greatest value of the output itself

    double total() const { return steps + constants; }
};

// Of an output that is one real number, or of the two that are a complex one.
ErrorBound errorBound(const LinearMap& map, const std::vector<Output>& parts);

// The greatest of the bounds of all outputs, each figure by itself. Where outputs are `complex`, those of numbers 2k
// and 2k + 1 are one.
ErrorBound errorBound(const LinearMap& map, bool complex);

// The greatest gain of what is added to an input, at any of its uses. Here inputs 2k and 2k + 1 are one complex number,
// and what is added is over its modulus. Outputs are as above.
double gainOfInputUses(const LinearMap& map, bool complex);

// Of a Walsh-Hadamard transform in any number of blocks. Each of its stages has N steps, and the rows of those on which
// an output depends are orthogonal and of equal length: a stage adds sqrt(N), and not more. An output depends on one
// use of each step.
ErrorBound walshHadamardBound(int order);

}  // namespace gen
