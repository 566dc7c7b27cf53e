// Writes the texts of a graph in registers of several lanes.
#pragma once

#include <string>
#include <vector>

#include "graph/lanes.h"
#include "output/catalogue.h"

namespace gen {

// The forms in which a graph is written beside the scalar one: a complex number to a register, or two of them.
enum class Form { Pairs, Lines };

struct FormOfText {
    std::string name;           // "pairs"
    std::string graphTemplate;  // "ComplexPairs"
    std::string folder;         // "kernels/complex_pairs"
    std::string title;          // "one complex number to a register"
};
const FormOfText& formOfText(Form form);

// The forms that a length has. Prime lengths have no lines: few of their steps would share registers, and the shuffles
// would be three times as many.
std::vector<Form> formsOf(int length);

std::string laneFile(const GraphEntry& entry, Form form);
// The steps of a graph in this form, and the text of them.
LaneProgram laneProgram(Form form, const Graph& graph);
std::string laneText(const GraphEntry& entry, Form form, const Graph& graph);

}  // namespace gen
