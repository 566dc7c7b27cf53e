#include "output/emit.h"

#include <cctype>
#include <map>
#include <optional>
#include <stdexcept>

#include "output/block_title.h"
#include "output/numerals.h"
#include "output/words.h"

namespace gen {
namespace {

using std::to_string;

// Names the values of one graph in the order in which the schedule meets them, and numbers its constants: those used
// most come first. The 2 of the doubled bins is no constant of a text but comes from the ports: a compiler that sees it
// forms x + x where the graph says 2 x.
class Names {
public:
    Names(const GraphEntry& entry, const Graph& graph, const Schedule& schedule) {
        int operations = 0;
        std::vector<ConstantId> uses;
        for (const Step& step : schedule.steps) {
            if (step.kind == Step::Kind::Store) continue;
            const Node& node = graph.node(step.node);
            if (node.kind == Kind::Load) {
                values[step.node] = entry.family->input(entry.length, node.input).value;
            } else {
                values[step.node] = "t" + to_string(operations++);
            }
            if (node.kind != Kind::Scaled) continue;
            if (!entry.family->isBody() && graph.constant(node.constant).stored == 2) {
                constants.emplace(node.constant, "two");
                usesTwo = true;
            } else {
                uses.push_back(node.constant);
            }
        }
        constantOrder = mostUsedFirst(uses);
        for (std::size_t i = 0; i < constantOrder.size(); ++i) {
            constants.emplace(constantOrder[i], "c[" + to_string(i) + "]");
        }
    }

    const std::string& value(NodeId node) const { return values.at(node); }
    const std::string& constant(ConstantId id) const { return constants.at(id); }
    const std::vector<ConstantId>& constantsInOrder() const { return constantOrder; }
    bool hasTwo() const { return usesTwo; }

private:
    bool usesTwo = false;
    std::map<NodeId, std::string> values;
    std::map<ConstantId, std::string> constants;
    std::vector<ConstantId> constantOrder;
};

std::string operationText(const Node& node, const Names& names) {
    switch (node.kind) {
        case Kind::Add: return names.value(node.a) + " + " + names.value(node.b);
        case Kind::Sub: return names.value(node.a) + " - " + names.value(node.b);
        case Kind::Scaled: return names.constant(node.constant) + " * " + names.value(node.a);
        case Kind::Product: return names.value(node.a) + " * " + names.value(node.b);
        case Kind::Load: break;
    }
    throw std::logic_error("a load is no operation");
}

std::string loadText(const Port& port) { return "io." + port.port + "(" + to_string(port.number) + ")"; }

// A store: io.re(3, t7); or, where the output has a minus, io.minusRe(3, t7);
std::string storeText(const Port& place, bool minus, const std::string& value) {
    std::string port = place.port;
    if (minus) {
        port[0] = static_cast<char>(std::toupper(port[0]));
        port = "minus" + port;
    }
    return "io." + port + "(" + to_string(place.number) + ", " + value + ");";
}

std::string headText(const GraphEntry& entry, const Graph& graph, const Schedule& schedule) {
    const Counts counts = graph.counts();
    const auto outputs = static_cast<int>(graph.outputs().size());
    std::string text = "// Written by `generate write`; do not edit. The rule: " + entry.family->rule + ", " +
                       entry.family->word + ", " + to_string(entry.length) + ".\n// " + entry.title() + ", " +
                       entry.recipe() + ".\n// " + to_string(counts.additions) + " additions, " +
                       to_string(counts.subtractions) + " subtractions, " + to_string(counts.multiplications) +
                       " multiplications";
    if (!entry.family->isBody()) text += " (" + to_string(counts.multiplications + outputs) + " with `scale`)";
    text += "; ";
    if (counts.negations > 0) text += to_string(counts.negations) + " outputs negated; ";
    return text + to_string(counts.constants) + " constants; " + to_string(schedule.mostAlive) +
           " values alive at most.\n";
}

}  // namespace

std::string factsText(const GraphEntry& entry, const Graph& graph, const std::vector<ConstantId>& constants) {
    std::string text;
    if (!entry.family->isBody()) {
        text += "    static constexpr int steps = " + to_string(stepsOf(entry, graph)) +
                ";  // with `scale`\n    static constexpr double inverseRoot = " +
                literal(storedInverseRoot(entry.length)) + ";  // 1/sqrt(" + to_string(entry.length) +
                "), for `scale`\n";
    }
    if (!constants.empty()) {
        text += "    static constexpr double constants[] = {\n";
        for (std::size_t i = 0; i < constants.size(); ++i) {
            const Constant& constant = graph.constant(constants[i]);
            text += "        " + literal(constant.stored) + ",  // c[" + to_string(i) + "]: " + constant.origin + "\n";
        }
        text += "    };\n";
    }
    return text.empty() ? text : text + "\n";
}

namespace {

// The block of step i. A load belongs to the block of the next operation; none if no operation comes next.
std::optional<BlockId> blockAt(const Graph& graph, const std::vector<Step>& steps, std::size_t i) {
    while (i < steps.size() && steps[i].kind == Step::Kind::Load) ++i;
    if (i == steps.size() || steps[i].kind == Step::Kind::Store) return std::nullopt;
    return graph.node(steps[i].node).block;
}

std::string stepsText(const GraphEntry& entry, const Graph& graph, const Schedule& schedule, const Names& names) {
    std::string text;
    BlockId block{};
    for (std::size_t i = 0; i < schedule.steps.size(); ++i) {
        const Step& step = schedule.steps[i];
        if (const auto next = blockAt(graph, schedule.steps, i); next && *next != block) {
            block = *next;
            const std::string title = blockTitle(graph.block(block));
            if (!title.empty()) text += "        // " + title + "\n";
        }
        text += "        ";
        if (step.kind == Step::Kind::Store) {
            const Output& output = graph.outputs()[step.output];
            if (output.minus && !entry.family->allowsNegation) {
                throw std::logic_error(entry.name() + ": output " + to_string(output.place) + " is left with a minus");
            }
            text += storeText(entry.family->output(entry.length, output.place), output.minus, names.value(output.node));
        } else {
            const Node& node = graph.node(step.node);
            text += "const V " + names.value(step.node) + " = " +
                    (step.kind == Step::Kind::Load ? loadText(entry.family->input(entry.length, node.input))
                                                   : operationText(node, names)) +
                    ";";
        }
        text += "\n";
    }
    return text;
}

}  // namespace

int stepsOf(const GraphEntry& entry, const Graph& graph) {
    const Counts counts = graph.counts();
    const int steps = counts.additions + counts.subtractions + counts.multiplications;
    return entry.family->isBody() ? steps : steps + static_cast<int>(graph.outputs().size());
}

std::string emitGraph(const GraphEntry& entry, const Graph& graph, const Schedule& schedule) {
    const Names names(entry, graph, schedule);
    const GraphFamily& family = *entry.family;
    const std::string header = family.isBody() ? family.folder + ".h" : "kernel/graphs.h";
    std::string text = headText(entry, graph, schedule) + "#pragma once\n\n#include \"" + header +
                       "\"\n\nnamespace zulg {\n\ntemplate <>\nstruct " + family.graphTemplate + "<" +
                       to_string(entry.length) + "> {\n" + factsText(entry, graph, names.constantsInOrder()) +
                       "    template <class Ports>\n"
                       "    ZULG_INLINE static void run(const Ports& io) {\n"
                       "        using V = typename Ports::Value;\n";
    if (!names.constantsInOrder().empty()) {
        text += "        const ConstantsOf<Ports, " + family.graphTemplate + "> c{};\n";
    }
    if (names.hasTwo()) text += "        const V two = Ports::two();\n";
    return text + stepsText(entry, graph, schedule, names) + "    }\n};\n\n}  // namespace zulg\n";
}

std::string emitTexts(const std::vector<KernelText>& texts) {
    std::string text =
        "# Written by `generate write`; do not edit. The rule: generator/output/emit.cpp.\n"
        "# The texts of which the build makes kernels: file, form, graph, length, steps with `scale`, families.\n"
        "set(kernel_texts";
    for (const KernelText& row : texts) {
        text += "\n    \"" + row.file + " " + row.form + " " + row.graph + " " + to_string(row.entry->length) + " " +
                to_string(row.steps);
        for (const KernelFamily& family : row.entry->family->exported) text += " " + family.name;
        text += "\"";
    }
    return text + ")\n";
}

namespace {

// A prototype, broken where it does not fit into a line.
std::string prototype(const Export& entry) {
    constexpr size_t columns = 120;
    std::vector<std::string> parameters;
    for (const Argument& argument : entry.arguments) parameters.push_back(argument.declaration());
    const std::string start = "ZulgStatus ZULG_CALL " + entry.name + "(", end = ");\n";
    const std::string line = start + joined(parameters) + end;
    if (line.size() <= columns + 1) return line;
    std::string text = start, indented;
    for (const std::string& parameter : parameters) {
        if (indented.empty() || indented.size() + parameter.size() + 3 > columns) {
            text += indented + "\n";
            indented = "    " + parameter;
        } else {
            indented += " " + parameter;
        }
        indented += ",";
    }
    indented.pop_back();
    return text + indented + end;
}

std::string prototypes(const std::vector<Export>& exports) { return joined(exports, prototype, ""); }

// The routine of an export as a macro takes it.
std::string routineOf(const Export& entry) {
    return "(" + entry.routine + "<" + joined(entry.routineParameters) + ">)";
}

// The beginning of a line of the slot table.
std::string slot(const Export& entry) { return "SLOT(" + entry.name + ", " + routineOf(entry); }

// An entry: its name, its parameters, and what it calls with what.
std::string entryInCpp(const Export& entry) {
    std::vector<std::string> parameters, names;
    for (const Argument& argument : entry.arguments) {
        parameters.push_back(argument.declaration());
        names.push_back(argument.name);
    }
    return "ENTRY(" + entry.name + ",\n      (" + joined(parameters) + "),\n      (" + joined(names) + "), " +
           routineOf(entry) + ")\n";
}

}  // namespace

std::string emitSlots(const std::vector<Export>& exports) {
    std::string text =
        "/* Written by `generate write`; do not edit. The rule: generator/output/exports.cpp.\n"
        "   SLOT(exported name, routine, bytes of arguments), in the ASCII order of the names: the line's place from 0 "
        "is\n"
        "   the slot, from 1 the ordinal. */\n";
    for (const Export& entry : exports) text += slot(entry) + ", " + to_string(entry.argumentBytes()) + ")\n";
    return text;
}

std::string emitBatchSlots(const std::vector<Export>& exports) {
    std::string text =
        "/* Written by `generate write`; do not edit. The rule: generator/output/exports.cpp.\n"
        "   SLOT(exported name, routine), in the ASCII order of the names: the line's place from 0 is the slot. */\n";
    for (const Export& entry : exports) text += slot(entry) + ")\n";
    return text;
}

std::string emitEntries(const std::vector<Export>& exports) {
    return "/* Written by `generate write`; do not edit. The rule: generator/output/exports.cpp.\n"
           "   ENTRY(exported name, (parameters), (their names), routine), in the ASCII order of the names. */\n" +
           joined(exports, entryInCpp, "");
}

std::string emitBatchRoutines(const std::vector<Export>& exports) {
    std::string text =
        "/* Written by `generate write`; do not edit. The rule: generator/output/exports.cpp.\n"
        "   The routines of the batch library. Included by zulgenpx_batch.h, which tells what each does. */\n";
    return text + prototypes(exports);
}

std::string emitRoutines(const std::vector<Export>& exports) {
    std::string text =
        "/* Written by `generate write`; do not edit. The rule: generator/output/exports.cpp.\n"
        "   The routines of the library, one to a line. Included by zulgenpx.h, which tells what each family does. "
        "*/\n";
    return text + prototypes(exports);
}

}  // namespace gen
