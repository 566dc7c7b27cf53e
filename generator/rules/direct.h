// Pieces of the direct symmetric form that complex, real and spectrum blocks share.
#pragma once

#include <vector>

#include "graph/graph.h"

namespace gen {

// First members m of the pairs (m, p - m), in their order: powers of a generator modulo p, up to half the group. The
// order within a pair fixes the sign of its difference.
std::vector<int> directPairs(int p);

// (v[0] + v[1]) + ...
Value sumInOrder(const std::vector<Value>& values);

// x0 + sum of cos(2 pi m_j k/p) v_j. Where the first product is negative, the sum begins with x0; where it is positive,
// x0 is added last.
Value cosineSum(Value x0, const std::vector<Value>& values, const std::vector<int>& pairs, int k, int p);

// Sum of sin(2 pi m_j k/p) v_j.
Value sineSum(const std::vector<Value>& values, const std::vector<int>& pairs, int k, int p);

}  // namespace gen
