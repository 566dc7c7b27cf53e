// A transform in registers of several lanes: each step of the graph takes one lane of one step here, so that the
// results are the same bits and the counts are the same numbers. What is added are shuffles and changes of sign.
//
// Groups of one, two or four nodes are steps of registers with as many lanes. A group of two is a pair, such as the
// real and the imaginary part of one complex step, or a step of two lines of a stage that are alike. A group of four is
// two pairs that take the same step on two lines, or a step of four lines.
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
        Load,        // inputs, one for each lane
        Sum,         // a + b
        Difference,  // a - b
        Scaled,      // a times constants, one for each lane
        Flip,        // a with the signs of some lanes changed
        Shuffle,     // lanes of a, or of a and b
        Join,        // the lanes of a, then those of b
        Part,        // one half of the lanes of a
        Store        // outputs, one for each lane
    };
    struct Factor {
        ConstantId constant{};
        bool minus = false;
        bool operator==(const Factor&) const = default;
    };

    Kind kind;
    int result = -1;             // the register that the step gives
    int a = -1, b = -1;          // those that it takes; -1 if none
    std::vector<int> numbers{};  // of Load and Store: those of the inputs or outputs
    std::vector<Factor> factors{};
    std::vector<bool> flips{};  // of Flip; of Store, which may change signs as well: none if it changes none
    std::vector<int> places{};  // of Shuffle: those of a from 0, then those of b; of Part: 0 or 1
    BlockId block{};            // of Sum, Difference and Scaled
};

struct LaneProgram {
    std::vector<LaneStep> steps;
    std::vector<Lanes> registers;  // what each one holds
};

// What the inputs or the outputs of a graph are: real numbers, or the parts of complex elements, 2 n and 2 n + 1 those
// of element n. The parts of an element are loaded and stored together, unless it has one only.
enum class Elements { Complex, Real };
struct Arrays {
    Elements inputs, outputs;
};

// Which lines of a stage share registers: those with the most steps in common, or, of complex arrays, those whose
// elements are neighbours. Registers of the second kind hold two elements that follow each other in memory, or two
// registers do that differ in one half each, so that such elements are stored at once.
enum class Mates { Alike, Neighbours };

// All loads come before the first store.
LaneProgram inLanes(const Graph& graph, const Units& units, Arrays arrays, Mates mates, Order order);

}  // namespace gen
