// A complex transform in registers of several lanes: each step of the graph takes one lane of one step here, so that
// the results are the same bits and the counts are the same numbers. What is added are shuffles and changes of sign.
//
// Groups of one, two or four nodes are steps of registers with as many lanes. A group of two is a pair: the real and
// the imaginary part of one complex step. A group of four is two pairs that take the same step on two lines of a stage.
#pragma once

#include <vector>

#include "graph/schedule.h"

namespace gen {

// What one lane of a register holds: the value of a node or minus that value.
struct Lane {
    NodeId node;
    bool minus = false;
    bool operator==(const Lane&) const = default;
};
using Lanes = std::vector<Lane>;

struct LaneStep {
    enum class Kind {
        Load,        // complex elements, one for each two lanes
        Sum,         // a + b
        Difference,  // a - b
        Scaled,      // a times constants, one for each lane
        Flip,        // a with the signs of some lanes changed
        Shuffle,     // lanes of a, or of a and b
        Join,        // the lanes of a, then those of b
        Part,        // one half of the lanes of a
        Store        // complex elements, one for each two lanes
    };
    struct Factor {
        ConstantId constant{};
        bool minus = false;
        bool operator==(const Factor&) const = default;
    };

    Kind kind;
    int result = -1;              // the register that the step gives
    int a = -1, b = -1;           // those that it takes; -1 if none
    std::vector<int> elements{};  // of Load and Store: the number of each complex element
    std::vector<Factor> factors{};
    std::vector<bool> flips{};
    std::vector<int> places{};  // of Shuffle: those of a from 0, then those of b; of Part: 0 or 1
    BlockId block{};            // of Sum, Difference and Scaled
};

struct LaneProgram {
    std::vector<LaneStep> steps;
    std::vector<Lanes> registers;  // what each one holds
};

// The inputs and the outputs 2 n and 2 n + 1 of the graph are the parts of complex element n. All loads come before the
// first store.
LaneProgram inLanes(const Graph& graph, const Units& units, Order order);

}  // namespace gen
