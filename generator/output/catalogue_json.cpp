#include "output/catalogue_json.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "output/recipe_words.h"
#include "output/words.h"

namespace gen {
namespace {

using std::to_string;

// JSON is put together from texts that are JSON already. No text of the catalogue needs an escape.
std::string quoted(const std::string& text) { return "\"" + text + "\""; }

std::string quotedOrNumber(const std::string& text) {
    const bool isNumber = text.find_first_not_of("0123456789") == std::string::npos;
    return isNumber ? text : quoted(text);
}

std::string numberOrNull(std::optional<int> number) { return number ? to_string(*number) : "null"; }

std::string list(const std::vector<std::string>& items, const std::string& separator = ", ") {
    return "[" + joined(items, separator) + "]";
}

class Object {
public:
    void add(const std::string& name, const std::string& value) {
        text += (text.empty() ? "" : ", ") + quoted(name) + ": " + value;
    }
    std::string json() const { return "{" + text + "}"; }

private:
    std::string text;
};

std::string useName(Use use) {
    switch (use) {
        case Use::Value: return "value";
        case Use::In: return "in";
        case Use::Out: return "out";
        case Use::InOut: return "inout";
    }
    throw std::logic_error("no use");
}

std::string senseName(Sense sense) {
    return sense == Sense::Forward ? "forward" : sense == Sense::Inverse ? "inverse" : "both";
}

bool isHalfSpectrum(Layout layout) { return layout != Layout::Complex && layout != Layout::Real; }

std::string layoutName(Layout layout) {
    switch (layout) {
        case Layout::Complex: return "complex";
        case Layout::Real: return "real";
        case Layout::CCS: return "CCS";
        case Layout::Pack: return "Pack";
        case Layout::Perm: return "Perm";
    }
    throw std::logic_error("no layout");
}

std::string argumentJson(const Argument& argument) {
    Object object;
    object.add("name", quoted(argument.name));
    object.add("use", quoted(useName(argument.use)));
    object.add("type", quoted(argument.type));
    if (argument.use != Use::Value) object.add("elements", quotedOrNumber(argument.elements));
    if (argument.mayBeNull) object.add("null", "true");
    if (!argument.step.empty()) {
        object.add("step", quoted(argument.step));
        object.add("distance", quoted(argument.distance));
    }
    return object.json();
}

// The slots of the bins, and of the zeros that CCS has in place of imaginary parts.
std::string spectrumJson(const Export& entry) {
    const Layout source = entry.kernelFamily->source, destination = entry.kernelFamily->destination;
    const Layout layout = isHalfSpectrum(source) ? source : destination;
    Object object;
    object.add("argument", quoted(isHalfSpectrum(source) ? "pSrc" : "pDst"));
    object.add("layout", quoted(layoutName(layout)));
    if (!entry.length) return object.json();
    std::vector<std::string> slots, zeros;
    for (const BinSlots& bin : slotsOf(layout, *entry.length)) {
        slots.push_back("[" + numberOrNull(bin.re) + ", " + numberOrNull(bin.im) + "]");
        if (layout == Layout::CCS && !bin.im) zeros.push_back(to_string(*bin.re + 1));
    }
    object.add("slots", list(slots));
    object.add("zeros", list(zeros));
    return object.json();
}

std::string recipeJson(const GraphEntry& graph) {
    Object object;
    object.add("words", quoted(graph.recipe()));
    if (graph.family->row == nullptr) return object.json();
    if (graph.family->word == "hartley") {
        const bool isF = hartleyForm(graph.length) == HartleyForm::F;
        object.add("form", quoted(isF ? "F" : "I"));
        object.add("around", quoted(isF ? "real_forward" : "real_inverse"));
        object.add("reversed", isHartleyReversed(graph.length) ? "true" : "false");
    }
    const Recipe& row = graph.family->row(graph.length);
    object.add("construction", quoted(constructionName(row.construction)));
    std::vector<std::string> factors;
    for (int factor : row.factors) factors.push_back(to_string(factor));
    object.add("factors", list(factors));
    if (row.innerCount != 1) object.add("inner", to_string(row.innerCount));
    if (row.isInnerDirect) object.add("inner_direct", "true");
    return object.json();
}

// `scale` counts the products of the outputs with it, which the graph does not hold.
std::string countsJson(const Counts& counts, int outputs) {
    Object object;
    object.add("additions", to_string(counts.additions));
    object.add("subtractions", to_string(counts.subtractions));
    object.add("multiplications", to_string(counts.multiplications));
    object.add("scale", to_string(outputs));
    object.add("negations", to_string(counts.negations));
    object.add("constants", to_string(counts.constants));
    return object.json();
}

// How many reals a kernel stores, zeros left out.
int outputsOf(const Export& entry) {
    if (entry.order) return 1 << *entry.order;
    return entry.kernelFamily->destination == Layout::Complex ? 2 * *entry.length : *entry.length;
}

// Ordinal 0: the routine has none.
std::string exportJson(const Export& entry, int ordinal, const std::map<std::string, Counts>& counts) {
    Object object;
    object.add("name", quoted(entry.name));
    if (ordinal != 0) object.add("ordinal", to_string(ordinal));
    object.add("family", quoted(entry.family));
    if (entry.kernelFamily != nullptr) object.add("sense", quoted(senseName(entry.kernelFamily->sense)));
    object.add("length", numberOrNull(entry.length));
    object.add("order", numberOrNull(entry.order));
    object.add("element", quoted(entry.elementType));
    object.add("returns", quoted("ZulgStatus"));
    std::vector<std::string> arguments;
    for (const Argument& argument : entry.arguments) arguments.push_back(argumentJson(argument));
    object.add("arguments", list(arguments));
    if (entry.kernelFamily != nullptr &&
        (isHalfSpectrum(entry.kernelFamily->source) || isHalfSpectrum(entry.kernelFamily->destination))) {
        object.add("spectrum", spectrumJson(entry));
    }
    if (entry.graph) {
        object.add("counts", countsJson(counts.at(entry.graph->name()), outputsOf(entry)));
        object.add("recipe", recipeJson(*entry.graph));
    }
    return object.json();
}

std::string versionJson(int ordinal) {
    Object object;
    object.add("name", quoted("zulgenGetLibVersion"));
    object.add("ordinal", to_string(ordinal));
    object.add("family", quoted("version"));
    object.add("returns", quoted("const LibVersion*"));
    object.add("arguments", "[]");
    return object.json();
}

// Bytes of a plan of 2, 4, 8 ... 65536 points.
constexpr int planBytes32[] = {224,  224,  224,   224,   224,   1184,   1696,   2720,
                               4768, 8864, 17056, 35072, 68864, 136384, 271552, 541760};
constexpr int planBytes64[] = {224,  224,   224,   224,   224,    1696,   2720,   4768,
                               8864, 17056, 33440, 68800, 136384, 271424, 541760, 1082176};

std::string sizesJson() {
    Object buffers, plans;
    for (int order = firstWhtOrder; order <= lastWhtOrder; ++order) {
        buffers.add(to_string(order), list({to_string(whtBufferBytes(order, 4)), to_string(whtBufferBytes(order, 8))}));
    }
    for (std::size_t i = 0; i < std::size(planBytes32); ++i) {
        plans.add(to_string(2 << i), list({to_string(planBytes32[i]), to_string(planBytes64[i])}));
    }
    Object sizes;
    sizes.add("of", list({quoted("32f"), quoted("64f")}));
    sizes.add("wht_buffer_bytes", buffers.json());
    sizes.add("dct4_plan_bytes", plans.json());
    return sizes.json();
}

}  // namespace

std::string catalogueJson(const std::vector<Export>& exports, const std::vector<Export>& batches,
                          const std::map<std::string, Counts>& counts) {
    std::vector<std::string> lines, batchLines;
    for (const Export& entry : batches) batchLines.push_back(exportJson(entry, 0, counts));
    for (const Export& entry : exports) lines.push_back(exportJson(entry, static_cast<int>(lines.size()) + 1, counts));
    lines.push_back(versionJson(static_cast<int>(lines.size()) + 1));
    return "{\"written_by\": \"generate write\", \"rule\": \"generator/output/exports.cpp\",\n\"sizes\": " +
           sizesJson() + ",\n\"exports\": " + list(lines, ",\n") + ",\n\"batches\": " + list(batchLines, ",\n") + "}\n";
}

}  // namespace gen
