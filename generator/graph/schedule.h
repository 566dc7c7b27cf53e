// The order in which a kernel goes through its graph: loads, steps and stores, one after the other.
//
// What comes out holds every operand before its use, every load before the first store, and no dead node. There is one
// order for a graph, whatever width, direction or layout it is seen through.
#pragma once

#include <vector>

#include "graph/graph.h"

namespace gen {

struct Step {
    enum class Kind { Load, Operation, Store };
    Kind kind;
    int number;  // of the node, or for a store of the output
};

struct Schedule {
    std::vector<Step> steps;
    int mostAlive = 0;  // the greatest number of values that wait for a use at one time
};

// Block by block as constructed: the steps in their order of insertion, each load right before its first use, each
// store as soon as its value and the last load are there.
Schedule blockByBlock(const Graph& graph);

// Recursive bisection: parts that do not touch each other one after the other; a part that hangs together is cut in
// half between its inputs and its outputs, and each half is taken in the same way. Few values wait whatever the number
// of registers. The idea: M. Frigo, A fast Fourier transform compiler, PLDI 1999.
Schedule byBisection(const Graph& graph);

}  // namespace gen
