// Writes what is generated as text: the kernel files, the table of slots and the list of routines of the header.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "graph/schedule.h"
#include "output/exports.h"

namespace gen {

// What a text says of itself before its steps: steps, factor and constants.
std::string factsText(const GraphEntry& entry, const Graph& graph, const std::vector<ConstantId>& constants);

// The file of one graph, as straight-line text.
std::string emitGraph(const GraphEntry& entry, const Graph& graph, const Schedule& schedule);

// The sums, differences and products of a graph, those by `scale` included where it has kernels.
int stepsOf(const GraphEntry& entry, const Graph& graph);

// A text of which the build makes kernels.
struct KernelText {
    std::string file, form, graph;  // form: "scalar", "pairs" or "lines"
    const GraphEntry* entry;
    int steps;
};
// kernels/texts.cmake.
std::string emitTexts(const std::vector<KernelText>& texts);

// boundary/slots.inc and include/zulgenpx_routines.h.
std::string emitSlots(const std::vector<Export>& exports);
std::string emitRoutines(const std::vector<Export>& exports);

// The same of the batch library: batch/slots.inc and include/zulgenpx_batch_routines.h.
std::string emitBatchSlots(const std::vector<Export>& exports);
std::string emitBatchRoutines(const std::vector<Export>& exports);

// boundary/cpp_entries.inc or batch/cpp_entries.inc: the entries of targets without assembler.
std::string emitEntries(const std::vector<Export>& exports);

}  // namespace gen
