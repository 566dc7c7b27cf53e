#include "output/catalogue.h"

#include <algorithm>

#include "rules/blocks.h"
#include "rules/tables.h"

namespace gen {
namespace {

const std::vector<GraphFamily> families = {
    {.word = "complex",
     .graphTemplate = "ComplexGraph",
     .filePrefix = "dft_",
     .title = "Complex DFT of %d points",
     .exported = {"DFTFwd_CToC", "DFTInv_CToC"},
     .suffixTail = "fc",
     .complexInput = true,
     .complexOutput = true,
     .allowsNegation = false},
};

struct Width {
    const char* digits;
    const char* element;
};
constexpr Width widths[] = {{"32", "float"}, {"64", "double"}};

void buildComplex(Graph& graph, int length) {
    Signal x;
    for (int n = 0; n < length; ++n) x.push_back({graph.load(2 * n), graph.load(2 * n + 1)});
    x = complexBlock(x, 1);
    for (int k = 0; k < length; ++k) {
        graph.store(2 * k, x[static_cast<std::size_t>(k)].re);
        graph.store(2 * k + 1, x[static_cast<std::size_t>(k)].im);
    }
}

std::vector<GraphEntry> listGraphs() {
    std::vector<GraphEntry> graphs;
    for (const Recipe& recipe : complexRecipes()) graphs.push_back({&families[0], recipe.length});
    return graphs;
}

// The fixed-length kernels of one graph.
void addKernels(const GraphEntry& graph, std::vector<Export>& exports) {
    const std::string length = std::to_string(graph.length);
    for (const std::string& family : graph.family->exported) {
        for (const Width& width : widths) {
            const std::string suffix = width.digits + graph.family->suffixTail;
            exports.push_back({"zulg" + family + "_" + length + "_" + suffix,
                               "kernel<Family::" + family + ", " + length + ", " + width.element + ">", 12,
                               "const Zulg" + suffix + "* pSrc, Zulg" + suffix + "* pDst, int32_t flag"});
        }
    }
}

// The length dispatchers of one family of graphs.
void addDispatchers(const GraphFamily& graphs, std::vector<Export>& exports) {
    for (const std::string& family : graphs.exported) {
        for (const Width& width : widths) {
            const std::string suffix = width.digits + graphs.suffixTail;
            exports.push_back(
                {"zulg" + family + "_" + suffix, "dispatch<Family::" + family + ", " + width.element + ">", 16,
                 "const Zulg" + suffix + "* pSrc, Zulg" + suffix + "* pDst, int32_t length, int32_t flag"});
        }
    }
}

}  // namespace

std::string GraphEntry::file() const {
    return "kernels/" + family->word + "/" + family->filePrefix + std::to_string(length) + ".cpp";
}

std::string GraphEntry::title() const {
    std::string title = family->title;
    return title.replace(title.find("%d"), 2, std::to_string(length));
}

std::string GraphEntry::recipe() const { return complexText(complexRecipe(length)); }

void GraphEntry::build(Graph& graph) const { buildComplex(graph, length); }

const std::vector<GraphEntry>& allGraphs() {
    static const std::vector<GraphEntry> graphs = listGraphs();
    return graphs;
}

std::vector<Export> allExports() {
    std::vector<Export> exports;
    for (const GraphEntry& graph : allGraphs()) addKernels(graph, exports);
    for (const GraphFamily& family : families) addDispatchers(family, exports);
    std::ranges::sort(exports, {}, &Export::name);
    return exports;
}

}  // namespace gen
