// Writes what is generated as text: the kernel files, the table of slots and the list of routines of the header.
#pragma once

#include <string>
#include <vector>

#include "graph/schedule.h"
#include "output/catalogue.h"

namespace gen {

// The file of one graph: the graph as straight-line text and, where it has kernels, their instantiations.
std::string emitGraph(const GraphEntry& entry, const Graph& graph, const Schedule& schedule);

// Whether a kernel has so many steps that its time depends on the bytes of its code. Such a kernel has its constants
// near a register, and the build shortens its displacements.
bool isLong(const GraphEntry& entry, const Graph& graph);

// kernels/groups.cmake: the files of the kernels that are compiled with flags of their own.
std::string emitGroups(const std::vector<std::string>& longKernels, const std::vector<std::string>& fastKernels);

// boundary/slots.inc and include/zulgenpx_routines.h.
std::string emitSlots(const std::vector<Export>& exports);
std::string emitRoutines(const std::vector<Export>& exports);

}  // namespace gen
