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

// The forms that a length has: no line is a part of a prime length.
std::vector<Form> formsOf(int length);

std::string laneFile(const GraphEntry& entry, Form form);
std::string emitLanes(const GraphEntry& entry, Form form, const Graph& graph, const LaneProgram& program);

// The same, of the steps as they are taken in this form.
LaneProgram laneProgram(Form form, const Graph& graph);
std::string laneText(const GraphEntry& entry, Form form, const Graph& graph);

}  // namespace gen
