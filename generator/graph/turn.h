// Turns of single differences: a - b formed as b - a. Its consumers take over the sign, exchanging additions and
// subtractions; nothing else changes.
#pragma once

#include <memory>
#include <vector>

#include "graph/graph.h"

namespace gen {

// `nodes` by their numbers in this graph, all of them differences.
std::unique_ptr<Graph> turned(std::unique_ptr<Graph> graph, const std::vector<int>& nodes);

}  // namespace gen
