// The list of every graph of which a text is written.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "graph/graph.h"
#include "rules/tables.h"

namespace gen {

// How the emitted text reads an input or stores an output: io.<port>(<number>), and the name of the value read.
struct Port {
    std::string value, port;
    int number;
};

// Which of the two transforms of a pair it is; Both where one transform is its own inverse, up to scale.
enum class Sense { Forward, Inverse, Both };

// How an array holds its numbers. The last three are half spectra.
enum class Layout { Complex, Real, CCS, Pack, Perm };

// An exported family of kernels, which runs one family of graphs.
struct KernelFamily {
    std::string name;  // "DFTFwd_CToC"
    Sense sense;
    Layout source, destination;
};

// A form of the texts of a family other than the scalar one: in registers of several lanes.
struct LaneForm {
    std::string name;           // "pairs"
    int lanes;                  // of a register at most
    std::string graphTemplate;  // "ComplexPairs"
    std::string folder;         // "kernels/complex_pairs"
    std::string title;          // "one complex number to a register"
};

// A family of graphs, which has one graph for each length. Either the kernels of one or more exported families run the
// graph, or it is a body: a text that hand-written loops include and run through ports of their own.
struct GraphFamily {
    std::string word;                       // "complex", as the command line and the tables say it
    std::string graphTemplate;              // "ComplexGraph"
    std::string folder, filePrefix;         // of <folder>/<filePrefix><length>.cpp, or .h for a body
    std::string rule;                       // the file to edit for a change
    std::string title;                      // "Complex DFT of %d points", where %d is the length
    std::vector<KernelFamily> exported;     // none for a body
    std::string suffixTail;                 // of the element suffix: "fc" for complex elements, "f" for real ones
    Port (*input)(int length, int index);   // of each input of the graph
    Port (*output)(int length, int index);  // of each output
    bool allowsNegation;                    // whether an output may be stored with its sign changed
    std::vector<LaneForm> laneForms{};      // that with the fewest lanes first

    std::vector<int> (*lengths)();
    std::string (*recipe)(int length);  // in words
    const Recipe& (*row)(int length);   // of the tables; null where no table has a row
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

const std::vector<GraphFamily>& allFamilies();
const std::vector<GraphEntry>& allGraphs();

}  // namespace gen
