// Which steps of a transform are the same on several lines of a stage, so that they can share a register.
#pragma once

#include <cstddef>
#include <vector>

#include "graph/lanes.h"

namespace gen {

// Groups of at most so many lanes, two or four. A pair is a group to begin with, any other step is one by itself;
// groups of the same width are taken together until they fill a register.
//
// Lines are instances of one block inside the same outer block, of which none takes values from another. Two of them
// are taken together, all blocks inside them as well, then two such couples. Of a line that is left over, the lines
// inside are taken together. Steps between two stages, such as twiddle factors, follow the lines that take their
// results, and those of a last stage the registers that they take.
std::vector<Group> groupsOfLines(const Graph& graph, std::size_t lanes, Arrays arrays, Mates mates);

}  // namespace gen
