// One graph as JSON, for whoever draws it: steps in the order of the scalar text, blocks, constants and outputs.
#pragma once

#include <string>

#include "graph/schedule.h"
#include "output/catalogue.h"

namespace gen {

// Lists of numbers, so that the longest graph takes a few dozen kilobytes:
//   blocks     [title, number of the outer block, length, multiplier, stride, position, instance]
//   constants  [value, origin], in the order of the text: its c[0] first. The 2 of the doubled bins, which the text
//              takes from the ports, comes after them
//   steps      [kind, a, b, block], without stores. The kind is 0 for a load, with the number of the input as a; 1 for
//              a + b and 2 for a - b, with the places of a and b in this list; 3 for a constant times a, with the place
//              of the constant as b; 4 for a times b
//   outputs    [port, number, step, 1 if the sign is changed at the store], in the order of stores
//   pairs      [first step, second step]
std::string graphJson(const GraphEntry& entry, const Graph& graph, const Schedule& schedule);

}  // namespace gen
