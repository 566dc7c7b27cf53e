#include "output/emit.h"

#include <cctype>
#include <charconv>
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

// What a number of inputs or outputs is called: "3" or, with two parts to a number, ("1", part).
struct Place {
    std::string number;
    std::string part;  // "re", "im", or empty
};

Place placeOf(int index, bool isComplex) {
    if (!isComplex) return {to_string(index), ""};
    return {to_string(index / 2), index % 2 ? "im" : "re"};
}

// Names the constants and values of one graph in the order in which the schedule meets them.
class Names {
public:
    Names(const GraphEntry& entry, const Graph& graph, const Schedule& schedule) {
        int operations = 0;
        for (const Step& step : schedule.steps) {
            if (step.kind == Step::Kind::Store) continue;
            const Node& node = graph.nodes()[static_cast<std::size_t>(step.number)];
            if (node.kind == Kind::Load) {
                const Place place = placeOf(node.a, entry.family->complexInput);
                values[step.number] = "x" + place.number + place.part.substr(0, 1);
            } else {
                values[step.number] = "t" + to_string(operations++);
            }
            if (node.kind == Kind::Mul && constants.emplace(node.b, "c" + to_string(constants.size())).second) {
                constantOrder.push_back(node.b);
            }
        }
    }

    const std::string& value(int node) const { return values.at(node); }
    const std::string& constant(int number) const { return constants.at(number); }
    const std::vector<int>& constantsInOrder() const { return constantOrder; }

private:
    std::map<int, std::string> values, constants;
    std::vector<int> constantOrder;
};

std::string operationText(const Node& node, const Names& names) {
    switch (node.kind) {
        case Kind::Add: return names.value(node.a) + " + " + names.value(node.b);
        case Kind::Sub: return names.value(node.a) + " - " + names.value(node.b);
        case Kind::Mul: return names.constant(node.b) + " * " + names.value(node.a);
        case Kind::Load: break;
    }
    throw std::logic_error("a load is no operation");
}

std::string loadText(const Node& node, bool isComplex) {
    const Place place = placeOf(node.a, isComplex);
    return "io." + (place.part.empty() ? "in" : place.part) + "(" + place.number + ")";
}

// A store: io.re(3, t7); or, where the output has a minus, io.minusRe(3, t7);
std::string storeText(const Output& output, const std::string& value, bool isComplex) {
    const Place place = placeOf(output.place, isComplex);
    std::string port = place.part.empty() ? "out" : place.part;
    if (output.minus) {
        port[0] = static_cast<char>(std::toupper(port[0]));
        port = "minus" + port;
    }
    return "io." + port + "(" + place.number + ", " + value + ");";
}

std::string headText(const GraphEntry& entry, const Graph& graph, const Schedule& schedule) {
    const Counts counts = graph.counts();
    const auto outputs = static_cast<int>(graph.outputs().size());
    std::string text = "// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, " +
                       entry.family->word + ", " + to_string(entry.length) + ".\n// " + entry.title() + ", " +
                       entry.recipe() + ".\n// " + to_string(counts.additions) + " additions, " +
                       to_string(counts.subtractions) + " subtractions, " + to_string(counts.multiplications) +
                       " multiplications (" + to_string(counts.multiplications + outputs) + " with `scale`); ";
    if (counts.negations > 0) text += to_string(counts.negations) + " outputs negated; ";
    return text + to_string(counts.constants) + " constants; " + to_string(schedule.mostAlive) +
           " values alive at most.\n";
}

std::string constantsText(const Graph& graph, const Names& names) {
    std::string text;
    for (int number : names.constantsInOrder()) {
        const Constant& constant = graph.constants()[static_cast<std::size_t>(number)];
        text += "    static constexpr double " + names.constant(number) + " = " + literal(constant.stored) + ";  // " +
                constant.origin + "\n";
    }
    return text;
}

// The title of the next operation at or behind a step: a load is written where its first use is.
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
            text += "        // " + graph.title(title) + "\n";
        }
        text += "        ";
        if (step.kind == Step::Kind::Store) {
            const Output& output = graph.outputs()[static_cast<std::size_t>(step.number)];
            if (output.minus && !entry.family->allowsNegation) {
                throw std::logic_error(entry.name() + ": output " + to_string(output.place) + " is left with a minus");
            }
            text += storeText(output, names.value(output.node), entry.family->complexOutput);
        } else {
            const Node& node = graph.nodes()[static_cast<std::size_t>(step.number)];
            text += "const V " + names.value(step.number) + " = " +
                    (step.kind == Step::Kind::Load ? loadText(node, entry.family->complexInput)
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

std::string emitKernels(const GraphEntry& entry, const Graph& graph, const Schedule& schedule) {
    const Names names(entry, graph, schedule);
    return headText(entry, graph, schedule) +
           "#include \"frame/kernel_body.h\"\n\n"
           "namespace zulg {\n\n"
           "template <>\n"
           "struct " +
           entry.family->graphTemplate + "<" + to_string(entry.length) +
           "> {\n"
           "    static constexpr double inverseRoot = " +
           literal(storedInverseRoot(entry.length)) + ";  // 1/sqrt(" + to_string(entry.length) + "), for `scale`\n" +
           constantsText(graph, names) +
           "\n"
           "    template <class Ports>\n"
           "    ZULG_INLINE static void run(const Ports& io) {\n"
           "        using V = typename Ports::Value;\n" +
           stepsText(entry, graph, schedule, names) +
           "    }\n"
           "};\n\n" +
           instantiations(entry) +
           "\n"
           "}  // namespace zulg\n";
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
