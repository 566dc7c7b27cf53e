// The list of everything that is generated and exported. Nothing else in the generator spells an exported name.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "graph/graph.h"

namespace gen {

// How the emitted text reads an input or stores an output: io.<port>(<number>), and the name of the value read.
struct Port {
    std::string value, port;
    int number;
};

// A family of graphs, which has one graph for each length. Either the kernels of one or more exported families run the
// graph, or it is a body: a text that hand-written loops include and run through ports of their own.
struct GraphFamily {
    std::string word;                       // "complex", as the command line and the tables say it
    std::string graphTemplate;              // "ComplexGraph"
    std::string folder, filePrefix;         // of <folder>/<filePrefix><length>.cpp, or .h for a body
    std::string rule;                       // the file to edit for a change
    std::string title;                      // "Complex DFT of %d points", where %d is the length
    std::vector<std::string> exported;      // "DFTFwd_CToC", ...; none for a body
    std::string suffixTail;                 // of the element suffix: "fc" for complex elements, "f" for real ones
    Port (*input)(int length, int index);   // of each input of the graph
    Port (*output)(int length, int index);  // of each output
    bool allowsNegation;                    // whether an output may be stored with its sign changed

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
};

// One exported routine: its exported name, its name in the library's own sources, and the size of its arguments.
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
