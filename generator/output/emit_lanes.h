// Writes the texts of a graph in registers of several lanes.
#pragma once

#include <string>
#include <vector>

#include "graph/lanes.h"
#include "output/catalogue.h"
#include "output/tuning.h"

namespace gen {

// A graph in one of the forms of its family: the file, and the steps.
struct LaneText {
    const LaneForm* form;
    std::string file;
    LaneProgram program;
};

// Those of a graph. A form with more lanes is there where it takes at most four fifths of the steps: with fewer saved,
// it is the slower one.
std::vector<LaneText> laneTexts(const GraphEntry& entry, const Graph& graph, const Tuning& tuning = {});

std::string emitLanes(const GraphEntry& entry, const Graph& graph, const LaneText& text);

}  // namespace gen
