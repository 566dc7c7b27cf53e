#include "output/emit_lanes.h"

#include <algorithm>
#include <map>

#include "graph/lines.h"
#include "output/block_title.h"
#include "output/emit.h"
#include "output/words.h"

namespace gen {
namespace {

using StepKind = LaneStep::Kind;
using std::to_string;

std::string numbered(const std::vector<int>& numbers, const std::string& separator = ", ") {
    return joined(
        numbers, [](int number) { return to_string(number); }, separator);
}

// Names the registers, and numbers the constants: those used most come first.
class LaneNames {
public:
    explicit LaneNames(const LaneProgram& program) {
        names.resize(program.registers.size());
        int operations = 0;
        std::vector<ConstantId> uses;
        for (const LaneStep& step : program.steps) {
            if (step.kind == StepKind::Store) continue;
            std::string& name = names[static_cast<std::size_t>(step.result)];
            name = step.kind == StepKind::Load ? "x" + numbered(step.elements, "_") : "t" + to_string(operations++);
            for (const LaneStep::Factor& factor : step.factors) uses.push_back(factor.constant);
        }
        constants = mostUsedFirst(uses);
    }

    const std::string& of(int number) const { return names[static_cast<std::size_t>(number)]; }
    const std::vector<ConstantId>& constantsInOrder() const { return constants; }
    std::string factor(const LaneStep::Factor& factor) const {
        const auto place = std::ranges::find(constants, factor.constant) - constants.begin();
        return (factor.minus ? "-c[" : "c[") + to_string(place) + "]";
    }

private:
    std::vector<std::string> names;
    std::vector<ConstantId> constants;
};

std::string typeOf(const LaneProgram& program, int number) {
    switch (program.registers[static_cast<std::size_t>(number)].size()) {
        case 1: return "V";
        case 2: return "P";
        default: return "Q";
    }
}

std::string portOf(const LaneStep& step) { return step.elements.size() == 1 ? "io.pair(" : "io.pairs("; }

std::string scaledText(const LaneStep& step, const LaneNames& names, const std::string& type) {
    const auto text = [&](const LaneStep::Factor& factor) { return names.factor(factor); };
    const bool isUniform = std::ranges::count(step.factors, step.factors[0]) == std::ssize(step.factors);
    const std::string factors = isUniform ? text(step.factors[0]) : type + "(" + joined(step.factors, text) + ")";
    return factors + " * " + names.of(step.a);
}

std::string stepText(const LaneStep& step, const LaneNames& names, const std::string& type) {
    const auto a = [&] { return names.of(step.a); };
    const auto b = [&] { return names.of(step.b); };
    switch (step.kind) {
        case StepKind::Load: return portOf(step) + numbered(step.elements) + ")";
        case StepKind::Sum: return a() + " + " + b();
        case StepKind::Difference: return a() + " - " + b();
        case StepKind::Scaled: return scaledText(step, names, type);
        case StepKind::Flip:
            return "flipped<" + joined(step.flips, [](bool flip) { return std::string(flip ? "1" : "0"); }) + ">(" +
                   a() + ")";
        case StepKind::Shuffle:
            return "shuffled<" + numbered(step.places) + ">(" + a() + (step.b < 0 ? "" : ", " + b()) + ")";
        case StepKind::Join: return "joined(" + a() + ", " + b() + ")";
        case StepKind::Part: return "part<" + numbered(step.places) + ">(" + a() + ")";
        case StepKind::Store: return portOf(step) + numbered(step.elements) + ", " + a() + ")";
    }
    return {};
}

std::string headText(const GraphEntry& entry, Form form, const Graph& graph, const LaneProgram& program) {
    std::map<StepKind, int> steps;
    for (const LaneStep& step : program.steps) ++steps[step.kind];
    const int halves = static_cast<int>(std::ranges::count_if(
        program.steps, [](const LaneStep& step) { return step.kind == StepKind::Part && step.places[0] == 1; }));
    return "// Written by `generate write`; do not edit. The rule: " + entry.family->rule + ", " + entry.family->word +
           ", " + to_string(entry.length) + ".\n// " + entry.title() + ", " + entry.recipe() + "; " +
           formOfText(form).title + ".\n// " + to_string(steps[StepKind::Sum]) + " sums, " +
           to_string(steps[StepKind::Difference]) + " differences, " + to_string(steps[StepKind::Scaled]) +
           " products of registers, which do the " + to_string(stepsOf(entry, graph)) +
           " steps of the graph, those with\n// `scale` included; " +
           to_string(steps[StepKind::Shuffle] + steps[StepKind::Join] + halves) + " shuffles, " +
           to_string(steps[StepKind::Flip]) + " changes of sign.\n";
}

std::string emitLanes(const GraphEntry& entry, Form form, const Graph& graph, const LaneProgram& program) {
    const LaneNames names(program);
    const std::string graphTemplate = formOfText(form).graphTemplate;
    std::string text = headText(entry, form, graph, program) +
                       "#pragma once\n\n#include \"kernel/graphs.h\"\n\nnamespace zulg {\n\ntemplate <>\nstruct " +
                       graphTemplate + "<" + to_string(entry.length) + "> {\n" +
                       factsText(entry, graph, names.constantsInOrder()) +
                       "    template <class Ports>\n"
                       "    ZULG_INLINE static void run(const Ports& io) {\n";
    for (const auto& [type, name] : {std::pair("V", "Value"), std::pair("P", "Pair"), std::pair("Q", "Lines")}) {
        const bool isUsed = std::ranges::any_of(program.steps, [&](const LaneStep& step) {
            return step.kind != StepKind::Store && typeOf(program, step.result) == type;
        });
        if (isUsed) text += std::string("        using ") + type + " = typename Ports::" + name + ";\n";
    }
    if (!names.constantsInOrder().empty()) text += "        const ConstantsOf<Ports, " + graphTemplate + "> c{};\n";
    BlockId block{};
    for (const LaneStep& step : program.steps) {
        const bool isOperation =
            step.kind == StepKind::Sum || step.kind == StepKind::Difference || step.kind == StepKind::Scaled;
        if (isOperation && step.block != block) {
            block = step.block;
            const std::string title = blockTitle(graph.block(block));
            if (!title.empty()) text += "        // " + title + "\n";
        }
        text += "        ";
        if (step.kind != StepKind::Store) {
            text += "const " + typeOf(program, step.result) + " " + names.of(step.result) + " = ";
            text += stepText(step, names, typeOf(program, step.result));
        } else {
            text += stepText(step, names, "");
        }
        text += ";\n";
    }
    return text + "    }\n};\n\n}  // namespace zulg\n";
}

}  // namespace

const FormOfText& formOfText(Form form) {
    static const FormOfText pairs{"pairs", "ComplexPairs", "kernels/complex_pairs", "one complex number to a register"};
    static const FormOfText lines{"lines", "ComplexLines", "kernels/complex_lines",
                                  "two lines of a stage to a register"};
    return form == Form::Pairs ? pairs : lines;
}

std::vector<Form> formsOf(int length) {
    for (int divisor = 2; divisor * divisor <= length; ++divisor) {
        if (length % divisor == 0) return {Form::Pairs, Form::Lines};
    }
    return {Form::Pairs};
}

LaneProgram laneProgram(Form form, const Graph& graph) {
    const Units units = form == Form::Pairs ? Units(graph, Unit::Pair) : Units(graph, groupsOfLines(graph));
    return inLanes(graph, units, Order::Blocks);
}

std::string laneText(const GraphEntry& entry, Form form, const Graph& graph) {
    return emitLanes(entry, form, graph, laneProgram(form, graph));
}

std::string laneFile(const GraphEntry& entry, Form form) {
    return formOfText(form).folder + "/" + entry.family->filePrefix + to_string(entry.length) + ".h";
}

}  // namespace gen
