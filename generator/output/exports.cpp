#include "output/exports.h"

#include <algorithm>
#include <stdexcept>

namespace gen {
namespace {

using std::to_string;

struct Width {
    std::string digits;
    std::string element;
    int bytes;
};
const std::vector<Width> widths = {{"32", "float", 4}, {"64", "double", 8}};

Argument array(const std::string& name, Use use, const std::string& type, const std::string& elements) {
    return {name, use, type, elements};
}
Argument number(const std::string& name) { return {name, Use::Value, "int32_t"}; }
Argument buffer(const std::string& type, const std::string& elements) {
    return {"pBuffer", Use::InOut, type, elements, true};
}
Argument size() { return {"pSize", Use::Out, "int32_t"}; }

// The fixed-length kernels of one graph.
void addKernels(const GraphEntry& graph, std::vector<Export>& exports) {
    const std::string length = to_string(graph.length);
    for (const KernelFamily& family : graph.family->exported) {
        const auto elements = [&](Layout layout) { return to_string(elementsOf(layout, graph.length)); };
        for (const Width& width : widths) {
            const std::string suffix = width.digits + graph.family->suffixTail, type = "Zulg" + suffix;
            exports.push_back(
                {.name = "zulg" + family.name + "_" + length + "_" + suffix,
                 .family = family.name,
                 .elementType = suffix,
                 .length = graph.length,
                 .order = {},
                 .arguments = {array("pSrc", Use::In, type, elements(family.source)),
                               array("pDst", Use::Out, type, elements(family.destination)), number("flag")},
                 .routine = "bestKernel",
                 .routineParameters = {"Family::" + family.name, length, width.element},
                 .graph = graph,
                 .kernelFamily = &family});
        }
    }
}

// The length dispatchers of one family of graphs.
void addDispatchers(const GraphFamily& graphs, std::vector<Export>& exports) {
    for (const KernelFamily& family : graphs.exported) {
        for (const Width& width : widths) {
            const std::string suffix = width.digits + graphs.suffixTail, type = "Zulg" + suffix;
            exports.push_back({.name = "zulg" + family.name + "_" + suffix,
                               .family = family.name,
                               .elementType = suffix,
                               .length = {},
                               .order = {},
                               .arguments = {array("pSrc", Use::In, type, elementsFormula(family.source)),
                                             array("pDst", Use::Out, type, elementsFormula(family.destination)),
                                             number("length"), number("flag")},
                               .routine = "dispatch",
                               .routineParameters = {"Family::" + family.name, width.element},
                               .graph = {},
                               .kernelFamily = &family});
        }
    }
}

// The body that the kernel of an order runs once; there is none for the orders that work through a buffer.
std::optional<GraphEntry> whtGraph(int order) {
    for (const GraphEntry& entry : allGraphs()) {
        if (entry.family->word == "wht" && entry.length == 1 << order) return entry;
    }
    return {};
}

// An export of a family of bodies.
Export ofBodies(const std::string& name, const std::string& family, const Width& width, const std::string& routine,
                std::vector<Argument> arguments) {
    return {.name = name + "_" + width.digits + "f",
            .family = family,
            .elementType = width.digits + "f",
            .length = {},
            .order = {},
            .arguments = std::move(arguments),
            .routine = routine,
            .routineParameters = {width.element},
            .graph = {}};
}

// Walsh-Hadamard: a kernel for each order, the dispatcher, the size of the buffer.
void addWht(std::vector<Export>& exports) {
    for (const Width& width : widths) {
        const std::string type = "Zulg" + width.digits + "f";
        for (int order = firstWhtOrder; order <= lastWhtOrder; ++order) {
            const std::string points = to_string(1 << order);
            Export kernel =
                ofBodies("zulgWHT_" + to_string(order), "WHT", width, "bestWht",
                         {array("pSrc", Use::In, type, points), array("pDst", Use::Out, type, points), number("flag"),
                          buffer(type, to_string(whtBufferBytes(order, width.bytes) / width.bytes))});
            kernel.order = order;
            kernel.routineParameters = {to_string(order), width.element};
            kernel.graph = whtGraph(order);
            exports.push_back(kernel);
        }
        exports.push_back(
            ofBodies("zulgWHT", "WHT", width, "whtDispatch",
                     {array("pSrc", Use::In, type, "1 << order"), array("pDst", Use::Out, type, "1 << order"),
                      number("order"), number("flag"), buffer(type, "size / sizeof(element)")}));
        exports.push_back(
            ofBodies("zulgWHTGetBufferSize", "WHT", width, "whtGetBufferSize", {number("order"), size()}));
    }
}

// DCT-IV: the transform through a plan, and the life of a plan.
void addDct4(std::vector<Export>& exports) {
    for (const Width& width : widths) {
        const std::string suffix = width.digits + "f", type = "Zulg" + suffix, plan = "ZulgDCT4Plan_" + suffix;
        const auto add = [&](const std::string& name, const std::string& routine, std::vector<Argument> arguments) {
            exports.push_back(ofBodies(name, "DCT4", width, routine, std::move(arguments)));
        };
        const Argument newPlan{"pPlan", Use::Out, plan + "*"}, usedPlan{"plan", Use::InOut, plan};
        add("zulgDCT4", "bestDct4",
            {array("pSrc", Use::In, type, "length of the plan"), array("pDst", Use::Out, type, "length of the plan"),
             usedPlan});
        add("zulgDCT4Free", "dct4Free", {usedPlan});
        add("zulgDCT4GetSize", "dct4GetSize", {number("length"), size()});
        add("zulgDCT4Init", "dct4Init", {newPlan, number("length"), array("pBuffer", Use::InOut, "uint8_t", "size")});
        add("zulgDCT4InitAlloc", "dct4InitAlloc", {newPlan, number("length")});
    }
}

// The arguments of a batch: an array and its shape for source and destination, then those of one transform.
std::vector<Argument> batchArguments(const std::string& type, const std::string& read, const std::string& written,
                                     std::vector<Argument> others) {
    const auto shaped = [](Argument argument, const std::string& prefix) {
        argument.step = prefix + "Step";
        argument.distance = prefix + "Distance";
        return argument;
    };
    const auto wide = [](const std::string& name) { return Argument{name, Use::Value, "int64_t"}; };
    std::vector<Argument> arguments = {
        shaped(array("pSrc", Use::In, type, read), "src"),     wide("srcStep"), wide("srcDistance"),
        shaped(array("pDst", Use::Out, type, written), "dst"), wide("dstStep"), wide("dstDistance")};
    arguments.insert(arguments.end(), others.begin(), others.end());
    return arguments;
}

Argument countOfTransforms() { return {"count", Use::Value, "int64_t"}; }

// Batches of one family of kernels, and of singles those that compute in single.
void addBatches(const GraphFamily& graphs, std::vector<Export>& exports) {
    for (const KernelFamily& family : graphs.exported) {
        for (const Width& width : widths) {
            const std::string suffix = width.digits + graphs.suffixTail, type = "Zulg" + suffix;
            Export batch{
                .name = "zulgBatch" + family.name + "_" + suffix,
                .family = family.name,
                .elementType = suffix,
                .length = {},
                .order = {},
                .arguments = batchArguments(type, elementsFormula(family.source), elementsFormula(family.destination),
                                            {number("length"), number("flag"), countOfTransforms()}),
                .routine = "bestBatch",
                .routineParameters = {"Family::" + family.name, width.element},
                .graph = {},
                .kernelFamily = &family};
            exports.push_back(batch);
            if (width.bytes != 4) continue;
            batch.name = "zulgBatchSingle" + family.name + "_" + suffix;
            batch.routine = "bestBatchInSingle";
            batch.routineParameters = {"Family::" + family.name};
            exports.push_back(batch);
        }
    }
}

void addBatchesOfBodies(std::vector<Export>& exports) {
    for (const Width& width : widths) {
        const std::string suffix = width.digits + "f", type = "Zulg" + suffix;
        const auto add = [&](const std::string& stem, const std::string& family, const std::string& routine,
                             std::vector<Argument> arguments) {
            exports.push_back(ofBodies("zulgBatch" + stem, family, width, routine, std::move(arguments)));
        };
        const Argument own = buffer(type, "size / sizeof(element)");
        add("WHT", "WHT", "batchWht",
            batchArguments(type, "1 << order", "1 << order",
                           {number("order"), number("flag"), countOfTransforms(), own}));
        add("WHTGetBufferSize", "WHT", "batchWhtGetBufferSize", {number("order"), size()});
        add("DCT4", "DCT4", "batchDct4",
            batchArguments(type, "length of the plan", "length of the plan",
                           {{"plan", Use::InOut, "ZulgDCT4Plan_" + suffix}, countOfTransforms(), own}));
        add("DCT4GetBufferSize", "DCT4", "batchDct4GetBufferSize", {number("length"), size()});
    }
}

}  // namespace

std::string Argument::declaration() const {
    return (use == Use::In ? "const " : "") + type + (use == Use::Value ? " " : "* ") + name;
}

std::vector<Export> allExports() {
    std::vector<Export> exports;
    for (const GraphEntry& graph : allGraphs()) addKernels(graph, exports);
    for (const GraphFamily& family : allFamilies()) addDispatchers(family, exports);
    addWht(exports);
    addDct4(exports);
    std::ranges::sort(exports, {}, &Export::name);
    return exports;
}

std::vector<Export> batchExports() {
    std::vector<Export> exports;
    for (const GraphFamily& family : allFamilies()) addBatches(family, exports);
    addBatchesOfBodies(exports);
    std::ranges::sort(exports, {}, &Export::name);
    return exports;
}

int elementsOf(Layout layout, int length) { return layout == Layout::CCS ? length / 2 * 2 + 2 : length; }
std::string elementsFormula(Layout layout) { return layout == Layout::CCS ? "length / 2 * 2 + 2" : "length"; }

std::vector<BinSlots> slotsOf(Layout layout, int length) {
    std::vector<BinSlots> slots;
    for (int k = 0; k <= length / 2; ++k) {
        const bool isReal = 2 * k % length == 0;
        const auto both = [&](int re) { slots.push_back({re, isReal ? std::nullopt : std::optional(re + 1)}); };
        switch (layout) {
            case Layout::CCS: both(2 * k); break;
            case Layout::Pack: both(k == 0 ? 0 : 2 * k - 1); break;
            case Layout::Perm: both(length % 2 == 1 ? std::max(0, 2 * k - 1) : k == 0 ? 0 : isReal ? 1 : 2 * k); break;
            default: throw std::logic_error("no half spectrum");
        }
    }
    return slots;
}

// As many numbers as points. Orders 12 and 13 have an outer block as well, which works on a copy of its points.
int whtBufferBytes(int order, int elementBytes) {
    if (order < 8) return 0;
    const int extra = order == 12 ? 256 : order == 13 ? 1024 : 0;
    return ((1 << order) + extra) * elementBytes;
}

}  // namespace gen
