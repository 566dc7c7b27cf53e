#include "graph/schedule.h"

#include <algorithm>

namespace gen {
namespace {

// Lays steps down one by one: loads come with their first use, stores are held back until the last load is done.
class Writer {
public:
    explicit Writer(const Graph& source)
        : graph(source), done(source.nodes().size(), false), outputsOf(source.nodes().size()) {
        const std::vector<bool> needed = graph.alive();
        for (std::size_t i = 0; i < needed.size(); ++i)
            missingLoads += needed[i] && graph.nodes()[i].kind == Kind::Load;
        for (std::size_t k = 0; k < graph.outputs().size(); ++k) {
            outputsOf[static_cast<std::size_t>(graph.outputs()[k].node)].push_back(static_cast<int>(k));
        }
    }

    void operation(int number) {
        const Node& node = graph.nodes()[static_cast<std::size_t>(number)];
        loadIfNeeded(node.a);
        if (node.kind != Kind::Mul) loadIfNeeded(node.b);
        schedule.steps.push_back({Step::Kind::Operation, number});
        finish(number);
    }

    // A load that is an output by itself or feeds nothing else.
    void loadIfNeeded(int number) {
        if (graph.nodes()[static_cast<std::size_t>(number)].kind != Kind::Load ||
            done[static_cast<std::size_t>(number)]) {
            return;
        }
        schedule.steps.push_back({Step::Kind::Load, number});
        --missingLoads;
        finish(number);
    }

    Schedule take() {
        schedule.mostAlive = mostAlive();
        return std::move(schedule);
    }

private:
    void finish(int number) {
        done[static_cast<std::size_t>(number)] = true;
        for (int k : outputsOf[static_cast<std::size_t>(number)]) waiting.push_back(k);
        if (missingLoads > 0) return;
        for (int k : waiting) schedule.steps.push_back({Step::Kind::Store, k});
        waiting.clear();
    }

    int mostAlive() const {
        std::vector<int> usesLeft(graph.nodes().size(), 0);
        const auto operands = [&](const Step& step, auto&& visit) {
            if (step.kind == Step::Kind::Store) {
                visit(graph.outputs()[static_cast<std::size_t>(step.number)].node);
            } else if (step.kind == Step::Kind::Operation) {
                const Node& node = graph.nodes()[static_cast<std::size_t>(step.number)];
                visit(node.a);
                if (node.kind != Kind::Mul) visit(node.b);
            }
        };
        for (const Step& step : schedule.steps) {
            operands(step, [&](int node) { ++usesLeft[static_cast<std::size_t>(node)]; });
        }
        int alive = 0, most = 0;
        for (const Step& step : schedule.steps) {
            operands(step, [&](int node) { alive -= --usesLeft[static_cast<std::size_t>(node)] == 0; });
            alive += step.kind != Step::Kind::Store;
            most = std::max(most, alive);
        }
        return most;
    }

    const Graph& graph;
    std::vector<bool> done;
    std::vector<std::vector<int>> outputsOf;
    std::vector<int> waiting;
    int missingLoads = 0;
    Schedule schedule;
};

}  // namespace

Schedule blockByBlock(const Graph& graph) {
    Writer writer(graph);
    const std::vector<bool> needed = graph.alive();
    for (std::size_t i = 0; i < needed.size(); ++i) {
        if (needed[i] && graph.nodes()[i].kind != Kind::Load) writer.operation(static_cast<int>(i));
    }
    for (const Output& output : graph.outputs()) writer.loadIfNeeded(output.node);
    return writer.take();
}

}  // namespace gen
