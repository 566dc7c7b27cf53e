#include "output/catalogue.h"

#include <algorithm>

#include "graph/merge.h"
#include "graph/turn.h"
#include "rules/blocks.h"
#include "rules/hartley.h"
#include "rules/tables.h"
#include "rules/wht.h"

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

// Loads `count` numbers from an input on.
RealSignal loadReals(Graph& graph, int first, int count) {
    RealSignal x;
    for (int n = 0; n < count; ++n) x.push_back(graph.load(first + n));
    return x;
}

void storeReals(Graph& graph, const RealSignal& y) {
    for (std::size_t k = 0; k < y.size(); ++k) graph.store(static_cast<int>(k), y[k]);
}

std::unique_ptr<Graph> buildWht(int length) {
    auto graph = std::make_unique<Graph>();
    storeReals(*graph, walshHadamard(loadReals(*graph, 0, length)));
    return graph;
}

// Numbers that go by themselves, and parts of complex numbers, real part first.
Port realPort(const std::string& port, int index) { return {"x" + std::to_string(index), port, index}; }
Port complexPort(int index) {
    const std::string number = std::to_string(index / 2);
    return index % 2 == 0 ? Port{"x" + number + "r", "re", index / 2} : Port{"x" + number + "i", "im", index / 2};
}

Port realInput(int, int index) { return realPort("in", index); }
Port realOutput(int, int index) { return realPort("out", index); }
Port complexPlace(int, int index) { return complexPort(index); }

std::vector<int> everyLength() {
    std::vector<int> lengths;
    for (int length = 2; length <= 64; ++length) lengths.push_back(length);
    return lengths;
}

std::vector<int> powersOfTwo(int first, int last) {
    std::vector<int> lengths;
    for (int length = first; length <= last; length *= 2) lengths.push_back(length);
    return lengths;
}

const std::vector<GraphFamily> families = {
    {.word = "complex",
     .graphTemplate = "ComplexGraph",
     .folder = "kernels/complex",
     .filePrefix = "dft_",
     .rule = "generator/rules/tables.cpp",
     .title = "Complex DFT of %d points",
     .exported = {"DFTFwd_CToC", "DFTInv_CToC"},
     .suffixTail = "fc",
     .input = complexPlace,
     .output = complexPlace,
     .allowsNegation = false,
     .lengths = everyLength,
     .recipe = [](int length) { return complexText(complexRecipe(length)); },
     .build = buildComplex},
    {.word = "real_forward",
     .graphTemplate = "RealForwardGraph",
     .folder = "kernels/real_forward",
     .filePrefix = "rdft_",
     .rule = "generator/rules/tables.cpp",
     .title = "Forward DFT of %d real points",
     .exported = {"DFTFwd_RToCCS", "DFTFwd_RToPack", "DFTFwd_RToPerm"},
     .suffixTail = "f",
     .input = realInput,
     .output = complexPlace,
     .allowsNegation = true,
     .lengths = everyLength,
     .recipe = [](int length) { return realText(realForwardRecipe(length)); },
     .build = buildRealForward},
    {.word = "real_inverse",
     .graphTemplate = "RealInverseGraph",
     .folder = "kernels/real_inverse",
     .filePrefix = "rdft_",
     .rule = "generator/rules/tables.cpp",
     .title = "Inverse DFT to %d real points",
     .exported = {"DFTInv_CCSToR", "DFTInv_PackToR", "DFTInv_PermToR"},
     .suffixTail = "f",
     .input = complexPlace,
     .output = realOutput,
     .allowsNegation = false,
     .lengths = everyLength,
     .recipe = [](int length) { return realText(realInverseRecipe(length)); },
     .build = buildRealInverse},
    {.word = "hartley",
     .graphTemplate = "HartleyGraph",
     .folder = "kernels/hartley",
     .filePrefix = "dht_",
     .rule = "generator/rules/tables.cpp",
     .title = "Hartley transform of %d points",
     .exported = {"Hartley"},
     .suffixTail = "f",
     .input = realInput,
     .output = realOutput,
     .allowsNegation = false,
     .lengths = everyLength,
     .recipe = [](int length) { return "form " + hartleyText(length); },
     .build = buildHartley},
    {.word = "wht",
     .graphTemplate = "WhtBlock",
     .folder = "wht/bodies",
     .filePrefix = "wht_",
     .rule = "generator/rules/wht.cpp",
     .title = "Walsh-Hadamard transform of %d points",
     .exported = {},
     .suffixTail = "",
     .input = realInput,
     .output = realOutput,
     .allowsNegation = false,
     .lengths = [] { return powersOfTwo(2, 128); },
     .recipe = [](int) { return std::string("stages in rising stride"); },
     .build = buildWht},
};

struct Width {
    const char* digits;
    const char* element;
};
constexpr Width widths[] = {{"32", "float"}, {"64", "double"}};

std::vector<GraphEntry> listGraphs() {
    std::vector<GraphEntry> graphs;
    for (const GraphFamily& family : families) {
        for (int length : family.lengths()) graphs.push_back({&family, length});
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

// Walsh-Hadamard: a kernel for each order, the dispatcher, the size of the buffer.
void addWht(std::vector<Export>& exports) {
    for (const Width& width : widths) {
        const std::string suffix = std::string("_") + width.digits + "f", type = std::string("Zulg") + width.digits + "f";
        const std::string element = std::string("<") + width.element + ">";
        const std::string arrays = "const " + type + "* pSrc, " + type + "* pDst, ";
        for (int order = 1; order <= 13; ++order) {
            const std::string number = std::to_string(order);
            exports.push_back({"zulgWHT_" + number + suffix, "wht<" + number + ", " + width.element + ">", 16,
                               arrays + "int32_t flag, " + type + "* pBuffer"});
        }
        exports.push_back({"zulgWHT" + suffix, "whtDispatch" + element, 20,
                           arrays + "int32_t order, int32_t flag, " + type + "* pBuffer"});
        exports.push_back(
            {"zulgWHTGetBufferSize" + suffix, "whtGetBufferSize" + element, 8, "int32_t order, int32_t* pSize"});
    }
}

}  // namespace

std::string GraphEntry::file() const {
    return family->folder + "/" + family->filePrefix + std::to_string(length) + (family->isBody() ? ".h" : ".cpp");
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
    addWht(exports);
    std::ranges::sort(exports, {}, &Export::name);
    return exports;
}

}  // namespace gen
