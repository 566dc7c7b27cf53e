// Steps outside all lines: of the first stage, which takes the inputs, and of the last one.
#pragma once

#include <cstddef>
#include <vector>

#include "graph/units.h"

namespace gen {

// Adds groups, of at most so many lanes, of steps that are in none:
//
// - sums and differences of the parts of complex values, such as the outputs of a Hartley transform. Those of two
//   registers are taken together, so that the real parts can be put into one register and the imaginary ones into
//   another;
// - sums and differences of inputs. Those of neighbours are taken together, so that one load fills a register.
void takeEdgesTogether(const Graph& graph, std::size_t lanes, std::vector<Group>& groups);

}  // namespace gen
