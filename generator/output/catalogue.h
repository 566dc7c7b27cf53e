// The list of everything that is generated and exported. The only place where the name of a family is spelled.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "graph/graph.h"
#include "graph/schedule.h"

namespace gen {

// How the emitted text reads an input or stores an output: io.<port>(<number>), and the name of the value read.
struct Port {
    std::string value, port;
    int number;
};

// One family of graphs, one for each length. Either each is seen through the kernels of several exported families, or
// it is a body: a text that hand-written loops include and run through ports of their own.
struct GraphFamily {
    std::string word;                       // "complex", as the command line and the tables say it
    std::string graphTemplate;              // "ComplexGraph"
    std::string folder, filePrefix;         // of <folder>/<filePrefix><length>.cpp, or .h for a body
    std::string rule;                       // the file in which to change it
    std::string title;                      // "Complex DFT of %d points", the length in place of %d
    std::vector<std::string> exported;      // "DFTFwd_CToC", ...; none for a body
    std::string suffixTail;                 // of the element suffix: "fc" for complex elements, "f" for real ones
    Port (*input)(int length, int index);   // where the graph's inputs
    Port (*output)(int length, int index);  // and outputs are
    bool allowsNegation;                    // whether an output may be stored with its sign turned

    std::vector<int> (*lengths)();
    std::string (*recipe)(int length);
    std::unique_ptr<Graph> (*build)(int length);

    bool isBody() const { return exported.empty(); }
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
    // The order that is settled for this graph.
    Schedule schedule(const Graph& graph) const;
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
