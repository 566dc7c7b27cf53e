#include "output/catalogue.h"

#include "output/recipe_words.h"
#include "rules/tables.h"
#include "rules/transforms.h"

namespace gen {
namespace {

// The port of a real number, and that of a part of a complex number: even indices are real parts, odd ones imaginary.
Port realPort(const std::string& port, int index) { return {"x" + std::to_string(index), port, index}; }
Port complexPort(int index) {
    const std::string number = std::to_string(index / 2);
    return index % 2 == 0 ? Port{"x" + number + "r", "re", index / 2} : Port{"x" + number + "i", "im", index / 2};
}

Port realInput(int, int index) { return realPort("in", index); }
Port realOutput(int, int index) { return realPort("out", index); }
Port complexPlace(int, int index) { return complexPort(index); }

// The inputs of a row are its bins and then the entries of its table. A combine row with two steps has the entries of
// the inner step before those of the outer one.
Port tablePort(const std::string& port, const std::string& letter, int index) {
    return {letter + std::to_string(index), port, index};
}
Port outputRowInput(int radix, int index) {
    return index < 2 * radix ? complexPort(index) : tablePort("table", "w", index - 2 * radix);
}
Port outputRowOutput(int radix, int index) {
    return index < radix ? Port{"", "rising", index} : Port{"", "falling", index - radix};
}
Port combineRowInput(int radix, int index) {
    if (index < 2 * radix) return complexPort(index);
    const CombineTable table = combineTable(radix);
    const int entry = index - 2 * radix, innerEntries = 2 * table.inner;
    if (table.outer == 0) return tablePort("table", "w", entry);
    return entry < innerEntries ? tablePort("inner", "w", entry) : tablePort("outer", "u", entry - innerEntries);
}

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
     .exported = {{"DFTFwd_CToC", Sense::Forward, Layout::Complex, Layout::Complex},
                  {"DFTInv_CToC", Sense::Inverse, Layout::Complex, Layout::Complex}},
     .suffixTail = "fc",
     .input = complexPlace,
     .output = complexPlace,
     .allowsNegation = false,
     .laneForms = {{"pairs", 2, "ComplexPairs", "kernels/complex_pairs", "one complex number to a register"},
                   {"lines", 4, "ComplexLines", "kernels/complex_lines", "two lines of a stage to a register"}},
     .lengths = everyLength,
     .recipe = [](int length) { return complexWords(complexRecipe(length)); },
     .row = complexRecipe,
     .build = complexTransform},
    {.word = "real_forward",
     .graphTemplate = "RealForwardGraph",
     .folder = "kernels/real_forward",
     .filePrefix = "rdft_",
     .rule = "generator/rules/tables.cpp",
     .title = "Forward DFT of %d real points",
     .exported = {{"DFTFwd_RToCCS", Sense::Forward, Layout::Real, Layout::CCS},
                  {"DFTFwd_RToPack", Sense::Forward, Layout::Real, Layout::Pack},
                  {"DFTFwd_RToPerm", Sense::Forward, Layout::Real, Layout::Perm}},
     .suffixTail = "f",
     .input = realInput,
     .output = complexPlace,
     .allowsNegation = true,
     .laneForms = {{"pairs", 2, "RealForwardPairs", "kernels/real_forward_pairs", "two lanes to a register"},
                   {"lines", 4, "RealForwardLines", "kernels/real_forward_lines", "up to four lanes to a register"}},
     .lengths = everyLength,
     .recipe = [](int length) { return realWords(realForwardRecipe(length)); },
     .row = realForwardRecipe,
     .build = realForwardTransform},
    {.word = "real_inverse",
     .graphTemplate = "RealInverseGraph",
     .folder = "kernels/real_inverse",
     .filePrefix = "rdft_",
     .rule = "generator/rules/tables.cpp",
     .title = "Inverse DFT to %d real points",
     .exported = {{"DFTInv_CCSToR", Sense::Inverse, Layout::CCS, Layout::Real},
                  {"DFTInv_PackToR", Sense::Inverse, Layout::Pack, Layout::Real},
                  {"DFTInv_PermToR", Sense::Inverse, Layout::Perm, Layout::Real}},
     .suffixTail = "f",
     .input = complexPlace,
     .output = realOutput,
     .allowsNegation = false,
     .laneForms = {{"pairs", 2, "RealInversePairs", "kernels/real_inverse_pairs", "two lanes to a register"},
                   {"lines", 4, "RealInverseLines", "kernels/real_inverse_lines", "up to four lanes to a register"}},
     .lengths = everyLength,
     .recipe = [](int length) { return realWords(realInverseRecipe(length)); },
     .row = realInverseRecipe,
     .build = realInverseTransform},
    {.word = "hartley",
     .graphTemplate = "HartleyGraph",
     .folder = "kernels/hartley",
     .filePrefix = "dht_",
     .rule = "generator/rules/tables.cpp",
     .title = "Hartley transform of %d points",
     .exported = {{"Hartley", Sense::Both, Layout::Real, Layout::Real}},
     .suffixTail = "f",
     .input = realInput,
     .output = realOutput,
     .allowsNegation = false,
     .laneForms = {{"pairs", 2, "HartleyPairs", "kernels/hartley_pairs", "two lanes to a register"},
                   {"lines", 4, "HartleyLines", "kernels/hartley_lines", "up to four lanes to a register"}},
     .lengths = everyLength,
     .recipe = hartleyWords,
     .row = hartleyRecipe,
     .build = hartleyTransform},
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
     .row = nullptr,
     .build = walshHadamardTransform},
    {.word = "dct4_fold",
     .graphTemplate = "Dct4Fold",
     .folder = "dct4/bodies",
     .filePrefix = "fold_",
     .rule = "generator/rules/dct4_bodies.cpp",
     .title = "Skew transform of %d folded points",
     .exported = {},
     .suffixTail = "",
     .input = realInput,
     .output = complexPlace,
     .allowsNegation = true,  // at length 2 the second output is an input with its sign changed
     .lengths = [] { return powersOfTwo(2, 64); },
     .recipe = [](int) { return std::string("decimation in time"); },
     .row = nullptr,
     .build = dct4FoldTransform},
    {.word = "dct4_output",
     .graphTemplate = "Dct4Output",
     .folder = "dct4/bodies",
     .filePrefix = "output_",
     .rule = "generator/rules/dct4_bodies.cpp",
     .title = "Output row of radix %d",
     .exported = {},
     .suffixTail = "",
     .input = outputRowInput,
     .output = outputRowOutput,
     .allowsNegation = false,
     .lengths = [] { return powersOfTwo(1, 32); },
     .recipe = [](int) { return std::string("rotations by the table, then a mirrored skew transform"); },
     .row = nullptr,
     .build = dct4OutputRow},
    {.word = "dct4_combine",
     .graphTemplate = "Dct4Combine",
     .folder = "dct4/bodies",
     .filePrefix = "combine_",
     .rule = "generator/rules/dct4_bodies.cpp",
     .title = "Combine row of radix %d",
     .exported = {},
     .suffixTail = "",
     .input = combineRowInput,
     .output = complexPlace,
     .allowsNegation = false,
     .lengths = [] { return powersOfTwo(2, 32); },
     .recipe =
         [](int radix) {
             if (combineTable(radix).outer == 0) return std::string("rotations by the table, then a DFT");
             return "rotations and DFTs of " + std::to_string(radix / 4) + ", then of 4";
         },
     .row = nullptr,
     .build = dct4CombineRow},
    {.word = "dct4_direct",
     .graphTemplate = "Dct4Direct",
     .folder = "dct4/bodies",
     .filePrefix = "direct_",
     .rule = "generator/rules/dct4_bodies.cpp",
     .title = "DCT-IV of %d points",
     .exported = {},
     .suffixTail = "",
     .input = realInput,
     .output = realOutput,
     .allowsNegation = false,
     .lengths = [] { return powersOfTwo(2, 32); },
     .recipe =
         [](int length) {
             return std::string(length == 2 ? "one rotation" : length == 4 ? "rotations by lifting" : "two passes");
         },
     .row = nullptr,
     .build = dct4DirectTransform},
};

std::vector<GraphEntry> listGraphs() {
    std::vector<GraphEntry> graphs;
    for (const GraphFamily& family : families) {
        for (int length : family.lengths()) graphs.push_back({&family, length});
    }
    return graphs;
}

}  // namespace

const std::vector<GraphFamily>& allFamilies() { return families; }

std::string GraphEntry::file() const {
    return family->folder + "/" + family->filePrefix + std::to_string(length) + ".h";
}

std::string GraphEntry::title() const {
    std::string title = family->title;
    return title.replace(title.find("%d"), 2, std::to_string(length));
}

const std::vector<GraphEntry>& allGraphs() {
    static const std::vector<GraphEntry> graphs = listGraphs();
    return graphs;
}

}  // namespace gen
