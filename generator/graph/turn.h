// Reverses single differences: a - b is formed as b - a. The steps that use it take over the sign, so that additions
// and subtractions are exchanged there. Nothing else changes.
#pragma once

#include <memory>
#include <vector>

#include "graph/graph.h"

namespace gen {

// `nodes` are nodes of this graph, all of them differences.
std::unique_ptr<Graph> turned(std::unique_ptr<Graph> graph, const std::vector<NodeId>& nodes);

}  // namespace gen
