#include "output/emit.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <functional>
#include <map>
#include <stdexcept>

namespace gen {
namespace {

using std::to_string;

// The shortest text that reads back as this double.
std::string literal(double x) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, x).ptr;
    std::string digits(text, end);
    return digits.find_first_of(".e") == std::string::npos ? digits + ".0" : digits;
}

// Names the constants and values of one graph in the order in which the schedule meets them.
class Names {
public:
    Names(const GraphEntry& entry, const Graph& graph, const Schedule& schedule) : table(isLong(entry, graph)) {
        int operations = 0;
        for (const Step& step : schedule.steps) {
            if (step.kind == Step::Kind::Store) continue;
            const Node& node = graph.nodes()[static_cast<std::size_t>(step.number)];
            if (node.kind == Kind::Load) {
                values[step.number] = entry.family->input(entry.length, node.a).value;
            } else {
                values[step.number] = "t" + to_string(operations++);
            }
            if (node.kind != Kind::Mul) continue;
            if (uses[node.b]++ == 0) constantOrder.push_back(node.b);
        }
        if (table) {
            nameByPlace();
        } else {
            for (int number : constantOrder) constants.emplace(number, "c" + to_string(constants.size()));
        }
    }

    const std::string& value(int node) const { return values.at(node); }
    const std::string& constant(int number) const { return constants.at(number); }
    const std::vector<int>& constantsInOrder() const { return constantOrder; }
    // Whether the constants are in a table, and the index of the one that c then points at.
    bool hasTable() const { return table; }
    std::size_t origin() const { return std::min(constantOrder.size() / 2, reach); }

private:
    // Names the constants of a table by their distance from c. They are sorted by use, so that those used most are
    // within reach of a short displacement from c.
    void nameByPlace() {
        std::ranges::stable_sort(constantOrder, std::greater(), [&](int number) { return uses[number]; });
        for (std::size_t i = 0; i < constantOrder.size(); ++i) {
            const int place = static_cast<int>(i) - static_cast<int>(origin());
            constants.emplace(constantOrder[i], "c[" + to_string(place) + "]");
        }
    }

    static constexpr std::size_t reach = 16;  // doubles in 128 bytes
    bool table;
    std::map<int, int> uses;
    std::map<int, std::string> values, constants;
    std::vector<int> constantOrder;
};

std::string operationText(const Node& node, const Names& names) {
    switch (node.kind) {
        case Kind::Add: return names.value(node.a) + " + " + names.value(node.b);
        case Kind::Sub: return names.value(node.a) + " - " + names.value(node.b);
        case Kind::Mul: return names.constant(node.b) + " * " + names.value(node.a);
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

// The constants of a kernel are doubles; those of a body have the width that its ports give them.
std::string constantsText(const GraphEntry& entry, const Graph& graph, const Names& names) {
    const bool isBody = entry.family->isBody(), isTable = names.hasTable();
    std::string text = isTable ? "    static constexpr double constants[] = {\n" : "";
    for (int number : names.constantsInOrder()) {
        const Constant& constant = graph.constants()[static_cast<std::size_t>(number)];
        const std::string value = literal(constant.stored), name = names.constant(number);
        text += isBody    ? "        constexpr auto " + name + " = Ports::fixed(" + value + ");  // "
                : isTable ? "        " + value + ",  // " + name + ": "
                          : "    static constexpr double " + name + " = " + value + ";  // ";
        text += constant.origin + "\n";
    }
    return text + (isTable ? "    };\n" : "");
}

// The title of the block of step i. A load belongs to the block of the next operation; -1 if no operation comes next.
int titleAt(const Graph& graph, const std::vector<Step>& steps, std::size_t i) {
    while (i < steps.size() && steps[i].kind == Step::Kind::Load) ++i;
    if (i == steps.size() || steps[i].kind == Step::Kind::Store) return -1;
    return graph.nodes()[static_cast<std::size_t>(steps[i].number)].title;
}

std::string stepsText(const GraphEntry& entry, const Graph& graph, const Schedule& schedule, const Names& names) {
    std::string text;
    int title = 0;
    for (std::size_t i = 0; i < schedule.steps.size(); ++i) {
        const Step& step = schedule.steps[i];
        if (const int next = titleAt(graph, schedule.steps, i); next >= 0 && next != title) {
            title = next;
            if (!graph.title(title).empty()) text += "        // " + graph.title(title) + "\n";
        }
        text += "        ";
        if (step.kind == Step::Kind::Store) {
            const Output& output = graph.outputs()[static_cast<std::size_t>(step.number)];
            if (output.minus && !entry.family->allowsNegation) {
                throw std::logic_error(entry.name() + ": output " + to_string(output.place) + " is left with a minus");
            }
            text += storeText(entry.family->output(entry.length, output.place), output.minus, names.value(output.node));
        } else {
            const Node& node = graph.nodes()[static_cast<std::size_t>(step.number)];
            text += "const V " + names.value(step.number) + " = " +
                    (step.kind == Step::Kind::Load ? loadText(entry.family->input(entry.length, node.a))
                                                   : operationText(node, names)) +
                    ";";
        }
        text += "\n";
    }
    return text;
}

std::string instantiations(const GraphEntry& entry) {
    std::string text;
    for (const std::string& family : entry.family->exported) {
        for (const std::string element : {"float", "double"}) {
            text += "template Status ZULG_CALL kernel<Family::" + family + ", " + to_string(entry.length) + ", " +
                    element + ">(const " + element + "*, " + element + "*, std::int32_t);\n";
        }
    }
    return text;
}

}  // namespace

std::string emitGraph(const GraphEntry& entry, const Graph& graph, const Schedule& schedule) {
    const Names names(entry, graph, schedule);
    const GraphFamily& family = *entry.family;
    const std::string name = family.graphTemplate + "<" + to_string(entry.length) + ">";
    const std::string constants = constantsText(entry, graph, names);
    std::string text = headText(entry, graph, schedule);
    if (family.isBody()) {
        text += "#pragma once\n\n#include \"" + family.folder + ".h\"\n\nnamespace zulg {\n\ntemplate <>\nstruct " +
                name + " {\n";
    } else {
        text += "#include \"kernel/kernel_body.h\"\n";
        if (names.hasTable()) text += "#include \"kernel/near_constants.h\"\n";
        text += "\nnamespace zulg {\n\ntemplate <>\nstruct " + name +
                " {\n    static constexpr double inverseRoot = " + literal(storedInverseRoot(entry.length)) +
                ";  // 1/sqrt(" + to_string(entry.length) + "), for `scale`\n" + constants + "\n";
    }
    text +=
        "    template <class Ports>\n"
        "    ZULG_INLINE static void run(const Ports& io) {\n"
        "        using V = typename Ports::Value;\n";
    if (family.isBody()) {
        text += constants;
    } else if (names.hasTable()) {
        text += "        const double* const c = inRegister(constants + " + to_string(names.origin()) + ");\n";
    }
    text += stepsText(entry, graph, schedule, names) +
            "    }\n"
            "};\n\n";
    if (!family.isBody()) text += instantiations(entry) + "\n";
    return text + "}  // namespace zulg\n";
}

// The processor's cache of decoded instructions holds about 16 KB of code. A kernel that is larger takes the longer the
// more bytes its code has. A constant near a register saves 3 bytes in each product over a constant with an address of
// its own. A short displacement saves 4 bytes in each access to the stack frame. A short kernel gains nothing by
// either, or loses.
bool isLong(const GraphEntry& entry, const Graph& graph) {
    const Counts counts = graph.counts();
    const int steps = counts.additions + counts.subtractions + counts.multiplications;
    return !entry.family->isBody() && steps + static_cast<int>(graph.outputs().size()) >= 1200;
}

std::string emitGroups(const std::vector<std::string>& longKernels, const std::vector<std::string>& fastKernels) {
    std::string text =
        "# Written by `generate write`; do not edit. The rules: isLong in generator/output/emit.cpp, and\n"
        "# isCompiledForSpeed in generator/rules/tables.cpp.\n";
    const auto set = [&](const std::string& name, const std::vector<std::string>& files) {
        text += "set(" + name;
        for (const std::string& file : files) text += "\n    " + file;
        text += ")\n";
    };
    set("long_kernel_sources", longKernels);
    set("fast_kernel_sources", fastKernels);
    return text;
}

std::string emitSlots(const std::vector<Export>& exports) {
    std::string text =
        "/* Written by `generate write`; do not edit. The rule: generator/output/catalogue.cpp.\n"
        "   SLOT(exported name, routine, bytes of arguments), in the ASCII order of the names: the line's place from 0 "
        "is\n"
        "   the slot, from 1 the ordinal. */\n";
    for (const Export& entry : exports) {
        text += "SLOT(" + entry.name + ", (" + entry.routine + "), " + to_string(entry.argumentBytes) + ")\n";
    }
    return text;
}

std::string emitRoutines(const std::vector<Export>& exports) {
    std::string text =
        "/* Written by `generate write`; do not edit. The rule: generator/output/catalogue.cpp.\n"
        "   The routines of the library, one to a line. Included by zulgenpx.h, which tells what each family does. "
        "*/\n";
    for (const Export& entry : exports) {
        text += "ZulgStatus ZULG_CALL " + entry.name + "(" + entry.parameters + ");\n";
    }
    return text;
}

}  // namespace gen
