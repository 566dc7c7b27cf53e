#include "output/catalogue.h"

#include <algorithm>

#include "graph/merge.h"
#include "graph/turn.h"
#include "rules/blocks.h"
#include "rules/hartley.h"
#include "rules/tables.h"

namespace gen {
namespace {

std::unique_ptr<Graph> buildComplex(int length) {
    auto graph = std::make_unique<Graph>();
    Signal x;
    for (int n = 0; n < length; ++n) x.push_back({graph->load(2 * n), graph->load(2 * n + 1)});
    x = complexBlock(x, 1);
    for (int k = 0; k < length; ++k) {
        graph->store(2 * k, x[static_cast<std::size_t>(k)].re);
        graph->store(2 * k + 1, x[static_cast<std::size_t>(k)].im);
    }
    return merged(std::move(graph));
}

std::unique_ptr<Graph> buildRealForward(int length) {
    auto graph = std::make_unique<Graph>();
    RealSignal x;
    for (int n = 0; n < length; ++n) x.push_back(graph->load(n));
    const HalfSpectrum bins = realBlock(x, 1);
    for (int k = 0; k <= bins.half(); ++k) {
        graph->store(2 * k, bins.real(k));
        if (!bins.isReal(k)) graph->store(2 * k + 1, bins.at(k).im);
    }
    return turned(merged(std::move(graph)), realForwardTurns(length));
}

// Each interior bin stands for itself and its conjugate: its parts are doubled first.
std::unique_ptr<Graph> buildRealInverse(int length) {
    auto graph = std::make_unique<Graph>();
    const Titled title(*graph, "doubled bins");
    const Coefficient two{2, "2"};
    HalfSpectrum bins(length);
    for (int k = 0; k <= bins.half(); ++k) {
        if (bins.isReal(k)) {
            bins.setReal(k, graph->load(2 * k));
        } else {
            bins.set(k, {two * graph->load(2 * k), two * graph->load(2 * k + 1)});
        }
    }
    const RealSignal y = spectrumBlock(bins, 1);
    for (int n = 0; n < length; ++n) graph->store(n, y[static_cast<std::size_t>(n)]);
    return merged(std::move(graph));
}

std::unique_ptr<Graph> buildHartley(int length) {
    auto graph = std::make_unique<Graph>();
    RealSignal x;
    for (int n = 0; n < length; ++n) x.push_back(graph->load(n));
    const RealSignal y = hartley(x);
    for (int k = 0; k < length; ++k) graph->store(k, y[static_cast<std::size_t>(k)]);
    return merged(std::move(graph));
}

const std::vector<GraphFamily> families = {
    {.word = "complex",
     .graphTemplate = "ComplexGraph",
     .filePrefix = "dft_",
     .title = "Complex DFT of %d points",
     .exported = {"DFTFwd_CToC", "DFTInv_CToC"},
     .suffixTail = "fc",
     .complexInput = true,
     .complexOutput = true,
     .allowsNegation = false,
     .recipe = [](int length) { return complexText(complexRecipe(length)); },
     .build = buildComplex},
    {.word = "real_forward",
     .graphTemplate = "RealForwardGraph",
     .filePrefix = "rdft_",
     .title = "Forward DFT of %d real points",
     .exported = {"DFTFwd_RToCCS", "DFTFwd_RToPack", "DFTFwd_RToPerm"},
     .suffixTail = "f",
     .complexInput = false,
     .complexOutput = true,
     .allowsNegation = true,
     .recipe = [](int length) { return realText(realForwardRecipe(length)); },
     .build = buildRealForward},
    {.word = "real_inverse",
     .graphTemplate = "RealInverseGraph",
     .filePrefix = "rdft_",
     .title = "Inverse DFT to %d real points",
     .exported = {"DFTInv_CCSToR", "DFTInv_PackToR", "DFTInv_PermToR"},
     .suffixTail = "f",
     .complexInput = true,
     .complexOutput = false,
     .allowsNegation = false,
     .recipe = [](int length) { return realText(realInverseRecipe(length)); },
     .build = buildRealInverse},
    {.word = "hartley",
     .graphTemplate = "HartleyGraph",
     .filePrefix = "dht_",
     .title = "Hartley transform of %d points",
     .exported = {"Hartley"},
     .suffixTail = "f",
     .complexInput = false,
     .complexOutput = false,
     .allowsNegation = false,
     .recipe = [](int length) { return "form " + hartleyText(length); },
     .build = buildHartley},
};

struct Width {
    const char* digits;
    const char* element;
};
constexpr Width widths[] = {{"32", "float"}, {"64", "double"}};

std::vector<GraphEntry> listGraphs() {
    std::vector<GraphEntry> graphs;
    for (const GraphFamily& family : families) {
        for (int length = 2; length <= 64; ++length) graphs.push_back({&family, length});
    }
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
