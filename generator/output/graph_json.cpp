#include "output/graph_json.h"

#include <map>
#include <vector>

#include "output/block_title.h"
#include "output/emit.h"
#include "output/numerals.h"
#include "output/words.h"

namespace gen {
namespace {

using std::to_string;

std::string quoted(const std::string& text) { return "\"" + text + "\""; }
std::string list(const std::vector<std::string>& items) { return "[" + joined(items, std::string(",")) + "]"; }
std::string lines(const std::vector<std::string>& items) { return "[" + joined(items, std::string(",\n")) + "]"; }

bool isTwoOfPorts(const GraphEntry& entry, const Constant& constant) {
    return !entry.family->isBody() && constant.stored == 2;
}

// The constants of the text in its order, then the 2 that it takes from the ports.
std::vector<ConstantId> constantsOf(const GraphEntry& entry, const Graph& graph, const Schedule& schedule) {
    std::vector<ConstantId> uses, two;
    for (const Step& step : schedule.steps) {
        if (step.kind != Step::Kind::Operation || graph.node(step.node).kind != Kind::Scaled) continue;
        const ConstantId id = graph.node(step.node).constant;
        (isTwoOfPorts(entry, graph.constant(id)) ? two : uses).push_back(id);
    }
    std::vector<ConstantId> constants = mostUsedFirst(uses);
    for (ConstantId id : mostUsedFirst(two)) constants.push_back(id);
    return constants;
}

std::string blockJson(const Block& block) {
    return list({quoted(blockTitle(block)), to_string(static_cast<int>(block.outer)), to_string(block.length),
                 to_string(block.multiplier), to_string(block.stride), to_string(block.position),
                 to_string(block.instance)});
}

}  // namespace

std::string graphJson(const GraphEntry& entry, const Graph& graph, const Schedule& schedule) {
    const std::vector<ConstantId> constants = constantsOf(entry, graph, schedule);
    std::map<ConstantId, std::size_t> placeOfConstant;
    for (std::size_t i = 0; i < constants.size(); ++i) placeOfConstant[constants[i]] = i;

    std::map<NodeId, std::size_t> placeOfStep;
    std::vector<std::string> steps, outputs, pairs, inputs;
    for (const Step& step : schedule.steps) {
        if (step.kind == Step::Kind::Store) {
            const Output& output = graph.outputs()[step.output];
            const Port port = entry.family->output(entry.length, output.place);
            outputs.push_back(list({quoted(port.port), to_string(port.number), to_string(placeOfStep.at(output.node)),
                                    output.minus ? "1" : "0"}));
            continue;
        }
        const Node& node = graph.node(step.node);
        const auto place = [&](NodeId id) { return to_string(placeOfStep.at(id)); };
        std::string a, b = "0";
        switch (node.kind) {
            case Kind::Load:
                a = to_string(inputs.size());
                inputs.push_back(quoted(entry.family->input(entry.length, node.input).value));
                break;
            case Kind::Scaled:
                a = place(node.a);
                b = to_string(placeOfConstant.at(node.constant));
                break;
            case Kind::Add:
            case Kind::Sub:
            case Kind::Product:
                a = place(node.a);
                b = place(node.b);
                break;
        }
        placeOfStep[step.node] = steps.size();
        steps.push_back(list({to_string(static_cast<int>(node.kind)), a, b, to_string(static_cast<int>(node.block))}));
    }
    for (const Pair& pair : graph.pairs()) {
        if (!placeOfStep.contains(pair.re) || !placeOfStep.contains(pair.im)) continue;
        pairs.push_back(list({to_string(placeOfStep.at(pair.re)), to_string(placeOfStep.at(pair.im))}));
    }
    std::vector<std::string> constantTexts;
    for (ConstantId id : constants) {
        const Constant& constant = graph.constant(id);
        constantTexts.push_back(list({literal(constant.stored), quoted(constant.origin)}));
    }

    std::vector<std::string> blocks;
    for (const Block& block : graph.blocks()) blocks.push_back(blockJson(block));

    const Counts counts = graph.counts();
    return "{\"family\": " + quoted(entry.family->word) + ", \"length\": " + to_string(entry.length) +
           ", \"title\": " + quoted(entry.title()) + ", \"recipe\": " + quoted(entry.recipe()) +
           ", \"text\": " + quoted(entry.file()) + ", \"rule\": " + quoted(entry.family->rule) +
           ",\n\"additions\": " + to_string(counts.additions) +
           ", \"subtractions\": " + to_string(counts.subtractions) +
           ", \"multiplications\": " + to_string(counts.multiplications) +
           ", \"steps_with_scale\": " + to_string(stepsOf(entry, graph)) +
           ", \"most_alive\": " + to_string(schedule.mostAlive) + ",\n\"blocks\": " + lines(blocks) +
           ",\n\"constants\": " + lines(constantTexts) + ",\n\"inputs\": " + list(inputs) +
           ",\n\"steps\": " + list(steps) + ",\n\"outputs\": " + list(outputs) + ",\n\"pairs\": " + list(pairs) + "}\n";
}

}  // namespace gen
