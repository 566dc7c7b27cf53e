// Reverses single differences: a - b is formed as b - a. The steps that use it take over the sign, so that additions
// and subtractions are exchanged there. Nothing else changes.
#pragma once

#include <memory>
#include <vector>

#include "graph/graph.h"

namespace gen {

// A step, by the block to which it belongs and its place among the steps of that block, from 0. Steps of blocks inside
// do not count, nor do loads and steps that no output needs.
struct BlockStep {
    BlockKind kind;
    int length, multiplier, instance;
    int step;
};

// Throws if the graph has no such block or the block no such step.
NodeId nodeAt(const Graph& graph, const BlockStep& place);

// Reverses these steps, all of them differences.
std::unique_ptr<Graph> turned(std::unique_ptr<Graph> graph, const std::vector<BlockStep>& places);

}  // namespace gen
