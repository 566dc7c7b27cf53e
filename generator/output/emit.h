// From a graph and its order to text: the kernel files, the table of slots and the list of routines of the header.
#pragma once

#include <string>
#include <vector>

#include "graph/schedule.h"
#include "output/catalogue.h"

namespace gen {

// The file of one graph: the graph as straight-line text and, where it has kernels, their instantiations.
std::string emitGraph(const GraphEntry& entry, const Graph& graph, const Schedule& schedule);

// frame/slots.inc and include/zulgenpx_routines.h.
std::string emitSlots(const std::vector<Export>& exports);
std::string emitRoutines(const std::vector<Export>& exports);

}  // namespace gen
