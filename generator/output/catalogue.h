// The list of everything that is generated and exported. The only place where the name of a family is spelled.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "graph/graph.h"

namespace gen {

// One family of graphs, one for each length, each seen through the kernels of several exported families.
struct GraphFamily {
    std::string word;                   // "complex", as the command line and the tables say it
    std::string graphTemplate;          // "ComplexGraph"
    std::string filePrefix;             // of kernels/<word>/<filePrefix><length>.cpp
    std::string title;                  // "Complex DFT of %d points", the length in place of %d
    std::vector<std::string> exported;  // "DFTFwd_CToC", ...
    std::string suffixTail;             // of the element suffix: "fc" for complex elements, "f" for real ones
    bool complexInput, complexOutput;   // whether inputs and outputs go by (number, part) or by number
    bool allowsNegation;                // whether an output may be stored with its sign turned

    std::string (*recipe)(int length);
    std::unique_ptr<Graph> (*build)(int length);
};

// One graph: a family and a length.
struct GraphEntry {
    const GraphFamily* family;
    int length;

    std::string name() const { return family->word + " " + std::to_string(length); }
    std::string file() const;
    std::string title() const;
    std::string recipe() const { return family->recipe(length); }
    std::unique_ptr<Graph> build() const { return family->build(length); }
};

// One exported routine, with its slot: the routine as the library's own sources name it, and the size of its arguments.
struct Export {
    std::string name;
    std::string routine;
    int argumentBytes;
    std::string parameters;  // as the public header declares them
};

const std::vector<GraphEntry>& allGraphs();

// In the ASCII order of the names, which is the order of ordinals and slots. The version call is not among them: it has
// no slot, and its ordinal is the last.
std::vector<Export> allExports();

}  // namespace gen
