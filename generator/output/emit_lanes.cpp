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

// How a text says which inputs a register is loaded from or which outputs are stored: io.<port>(<numbers>).
struct Place {
    std::string port;
    std::vector<int> numbers;

    std::string name() const { return numbered(numbers, "_") + (port == "re" ? "r" : port == "im" ? "i" : ""); }
};

Place placeOf(const LaneStep& step, Elements elements) {
    const bool isLoad = step.kind == StepKind::Load;
    if (elements == Elements::Real) return {isLoad ? "in" : "out", step.numbers};
    if (step.numbers.size() == 1) return {step.numbers[0] % 2 == 0 ? "re" : "im", {step.numbers[0] / 2}};
    std::vector<int> numbers;
    for (std::size_t i = 0; i < step.numbers.size(); i += 2) numbers.push_back(step.numbers[i] / 2);
    return {numbers.size() == 1 ? "pair" : "pairs", numbers};
}

Arrays arraysOf(const GraphFamily& family) {
    const KernelFamily& kernels = family.exported.front();
    const auto elements = [](Layout layout) { return layout == Layout::Real ? Elements::Real : Elements::Complex; };
    return {elements(kernels.source), elements(kernels.destination)};
}

// Names the registers, and numbers the constants: those used most come first.
class LaneNames {
public:
    LaneNames(const LaneProgram& program, Elements inputs) {
        names.resize(program.registers.size());
        int operations = 0;
        std::vector<ConstantId> uses;
        for (const LaneStep& step : program.steps) {
            if (step.kind == StepKind::Store) continue;
            std::string& name = names[static_cast<std::size_t>(step.result)];
            name = step.kind == StepKind::Load ? "x" + placeOf(step, inputs).name() : "t" + to_string(operations++);
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

std::string flipsText(const LaneStep& step) {
    return "<" + joined(step.flips, [](bool flip) { return std::string(flip ? "1" : "0"); }) + ">";
}

std::string portText(const LaneStep& step, Elements elements) {
    const Place place = placeOf(step, elements);
    return "io." + place.port + "(" + numbered(place.numbers);
}

std::string scaledText(const LaneStep& step, const LaneNames& names, const std::string& type) {
    const auto text = [&](const LaneStep::Factor& factor) { return names.factor(factor); };
    const bool isUniform = std::ranges::count(step.factors, step.factors[0]) == std::ssize(step.factors);
    const std::string factors = isUniform ? text(step.factors[0]) : type + "(" + joined(step.factors, text) + ")";
    return factors + " * " + names.of(step.a);
}

std::string stepText(const LaneStep& step, const LaneNames& names, const std::string& type, Arrays arrays) {
    const auto a = [&] { return names.of(step.a); };
    const auto b = [&] { return names.of(step.b); };
    switch (step.kind) {
        case StepKind::Load: return portText(step, arrays.inputs) + ")";
        case StepKind::Sum: return a() + " + " + b();
        case StepKind::Difference: return a() + " - " + b();
        case StepKind::Scaled: return scaledText(step, names, type);
        case StepKind::Flip: return "flipped" + flipsText(step) + "(" + a() + ")";
        case StepKind::Shuffle:
            return "shuffled<" + numbered(step.places) + ">(" + a() + (step.b < 0 ? "" : ", " + b()) + ")";
        case StepKind::Join: return "joined(" + a() + ", " + b() + ")";
        case StepKind::Part: return "part<" + numbered(step.places) + ">(" + a() + ")";
        case StepKind::Store: {
            const std::string value = step.flips.empty() ? a() : "negated" + flipsText(step) + "(" + a() + ")";
            return portText(step, arrays.outputs) + ", " + value + ")";
        }
    }
    return {};
}

struct StepCounts {
    int sums = 0, differences = 0, products = 0, shuffles = 0, flips = 0;

    explicit StepCounts(const LaneProgram& program) {
        for (const LaneStep& step : program.steps) {
            switch (step.kind) {
                case StepKind::Sum: ++sums; break;
                case StepKind::Difference: ++differences; break;
                case StepKind::Scaled: ++products; break;
                case StepKind::Flip: ++flips; break;
                case StepKind::Part: shuffles += step.places[0]; break;  // the low half needs no instruction
                case StepKind::Shuffle:
                case StepKind::Join: ++shuffles; break;
                case StepKind::Load:
                case StepKind::Store: break;
            }
        }
    }
    int all() const { return sums + differences + products + shuffles + flips; }
};

// The steps of a program and what its memory costs. A register of two complex elements that are neighbours is loaded or
// stored by one instruction, and none is counted for that; for two elements that lie apart a load takes one more and a
// store two more.
int instructionsOf(const LaneProgram& program) {
    int count = StepCounts(program).all();
    for (const LaneStep& step : program.steps) {
        const bool isLoad = step.kind == StepKind::Load;
        if ((!isLoad && step.kind != StepKind::Store) || step.numbers.size() != 4) continue;
        if (step.numbers[3] != step.numbers[0] + 3) count += isLoad ? 1 : 2;
    }
    return count;
}

// Lines whose elements are neighbours have more steps between the stages and fewer at the stores. Where that saves less
// than three in a hundred instructions, the longer lives of the registers cost as much.
bool isWorthwhile(const LaneProgram& neighbours, const LaneProgram& alike) {
    return 100 * instructionsOf(neighbours) < 97 * instructionsOf(alike);
}

std::string headText(const GraphEntry& entry, const Graph& graph, const LaneText& text) {
    const StepCounts steps(text.program);
    return "// Written by `generate write`; do not edit. The rule: " + entry.family->rule + ", " + entry.family->word +
           ", " + to_string(entry.length) + ".\n// " + entry.title() + ", " + entry.recipe() + "; " + text.form->title +
           ".\n// " + to_string(steps.sums) + " sums, " + to_string(steps.differences) + " differences, " +
           to_string(steps.products) + " products of registers, which do the " + to_string(stepsOf(entry, graph)) +
           " steps of the graph, those with\n// `scale` included; " + to_string(steps.shuffles) + " shuffles, " +
           to_string(steps.flips) + " changes of sign.\n";
}

}  // namespace

std::string emitLanes(const GraphEntry& entry, const Graph& graph, const LaneText& laneText) {
    const LaneForm& form = *laneText.form;
    const LaneProgram& program = laneText.program;
    const Arrays arrays = arraysOf(*entry.family);
    const LaneNames names(program, arrays.inputs);
    std::string text = headText(entry, graph, laneText) +
                       "#pragma once\n\n#include \"kernel/graphs.h\"\n\nnamespace zulg {\n\ntemplate <>\nstruct " +
                       form.graphTemplate + "<" + to_string(entry.length) + "> {\n" +
                       factsText(entry, graph, names.constantsInOrder()) +
                       "    template <class Ports>\n"
                       "    ZULG_INLINE static void run(const Ports& io) {\n";
    for (const auto& [type, name] : {std::pair("V", "Value"), std::pair("P", "Pair"), std::pair("Q", "Lines")}) {
        const bool isUsed = std::ranges::any_of(program.steps, [&](const LaneStep& step) {
            return step.kind != StepKind::Store && typeOf(program, step.result) == type;
        });
        if (isUsed) text += std::string("        using ") + type + " = typename Ports::" + name + ";\n";
    }
    if (!names.constantsInOrder().empty())
        text += "        const ConstantsOf<Ports, " + form.graphTemplate + "> c{};\n";
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
            text += stepText(step, names, typeOf(program, step.result), arrays);
        } else {
            text += stepText(step, names, "", arrays);
        }
        text += ";\n";
    }
    return text + "    }\n};\n\n}  // namespace zulg\n";
}

std::vector<LaneText> laneTexts(const GraphEntry& entry, const Graph& graph, const Tuning& tuning) {
    std::vector<LaneText> texts;
    int fewest = 0;
    for (const LaneForm& form : entry.family->laneForms) {
        const Arrays arrays = arraysOf(*entry.family);
        const auto inOrder = [&](Mates mates, Order order) {
            const Units units(graph, groupsOfLines(graph, static_cast<std::size_t>(form.lanes), arrays, mates));
            return inLanes(graph, units, arrays, mates, order);
        };
        // Four lanes by bisection are 2 to 3 % faster in the mean; two are not.
        const Order usual = form.lanes == 4 ? Order::Bisection : Order::Blocks;
        LaneProgram program = inOrder(Mates::Alike, usual);
        const int steps = StepCounts(program).all();
        if (!texts.empty() && 5 * steps > 4 * fewest) continue;
        fewest = steps;
        Mates mates = Mates::Alike;
        // With real numbers on one side there was nothing to gain in trials.
        if (form.lanes == 4 && arrays.inputs == Elements::Complex && arrays.outputs == Elements::Complex) {
            LaneProgram other = inOrder(Mates::Neighbours, usual);
            if (isWorthwhile(other, program)) {
                mates = Mates::Neighbours;
                program = std::move(other);
            }
        }
        const std::string text = form.folder.substr(form.folder.find('/') + 1) + " " + to_string(entry.length);
        if (const Order order = tuning.orderOf(text, usual); order != usual) program = inOrder(mates, order);
        const std::string file = form.folder + "/" + entry.family->filePrefix + to_string(entry.length) + ".h";
        texts.push_back({&form, file, std::move(program)});
    }
    return texts;
}

}  // namespace gen
