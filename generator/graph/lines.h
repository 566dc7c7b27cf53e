// Which steps of a complex transform are the same on two lines of a stage, so that they can share a register of four
// lanes: the real and the imaginary part of the one line's step, then those of the other's.
#pragma once

#include <vector>

#include "graph/units.h"

namespace gen {

// Lines are instances of one block inside the same outer block, and two of them are taken together, all blocks inside
// them as well. Of a block that is left over, the lines inside are taken together. Steps between two stages, such as
// twiddle factors, follow the lines that take their results. A step without a mate is a group of two.
std::vector<Group> groupsOfLines(const Graph& graph);

}  // namespace gen
