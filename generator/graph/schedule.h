// The order in which a kernel goes through its graph: loads, steps and stores, one after the other.
//
// In a schedule every operand comes before its use and every load before the first store. A node that no output needs
// has no step. A graph has one order, which serves all widths, directions and layouts.
#pragma once

#include <vector>

#include "graph/units.h"

namespace gen {

struct Step {
    enum class Kind { Load, Operation, Store };
    Kind kind;
    NodeId node;             // what is loaded, computed or stored
    std::size_t output = 0;  // of a store: which entry of the list of outputs
};

struct Schedule {
    std::vector<Step> steps;
    int mostAlive = 0;  // the greatest number of values that wait for a use at one time
};

// The order of the units, by their numbers: as they are numbered, or by recursive bisection.
enum class Order { Blocks, Bisection };
std::vector<std::size_t> orderOf(const Units& units, Order order);

// Block by block as constructed: the steps in their order of insertion, each load right before its first use, each
// store as soon as its value is computed and all loads are done.
//
// Both orders take single nodes or pairs. The loads, steps and stores of a pair that stays together follow each other.
Schedule blockByBlock(const Graph& graph, Unit unit = Unit::Node);

// Recursive bisection. Components of the graph that are not connected come one after the other. A connected component
// is cut in two halves between its inputs and its outputs, and each half is ordered in the same way. So few values wait
// at a time, whatever the number of registers is. The idea is that of M. Frigo, A fast Fourier transform compiler, PLDI
// 1999.
Schedule byBisection(const Graph& graph, Unit unit = Unit::Node);

}  // namespace gen
