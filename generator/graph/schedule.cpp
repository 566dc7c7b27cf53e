#include "graph/schedule.h"

#include <algorithm>

namespace gen {
namespace {

// Writes the steps of a schedule. A load comes right before the first step that uses it; stores wait until all loads
// are written.
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

    // Writes the step of this node if it is a load that is not written yet, and does nothing otherwise. It is
    // called for the operands of each operation, and for the outputs, since a load that is an output need not be an
    // operand.
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

// The nodes of a graph, loads included, in the order of recursive bisection.
class Bisection {
public:
    explicit Bisection(const Graph& source) : graph(source), part(source.nodes().size(), -1) {
        const std::vector<bool> needed = graph.alive();
        consumers.resize(needed.size());
        std::vector<int> all;
        for (std::size_t i = 0; i < needed.size(); ++i) {
            if (!needed[i]) continue;
            all.push_back(static_cast<int>(i));
            for (int operand : operandsOf(static_cast<int>(i))) {
                consumers[static_cast<std::size_t>(operand)].push_back(static_cast<int>(i));
            }
        }
        cut(all);
    }

    std::vector<int> order;

private:
    std::vector<int> operandsOf(int number) const {
        const Node& node = graph.nodes()[static_cast<std::size_t>(number)];
        if (node.kind == Kind::Load) return {};
        if (node.kind == Kind::Mul || node.a == node.b) return {node.a};
        return {node.a, node.b};
    }

    bool isIn(int number, int label) const { return part[static_cast<std::size_t>(number)] == label; }

    // Appends these nodes to the order. Their numbers rise.
    void cut(const std::vector<int>& nodes) {
        if (nodes.size() == 1) return order.push_back(nodes[0]);
        const std::vector<std::vector<int>> components = componentsOf(nodes);
        if (components.size() > 1) {
            for (const std::vector<int>& component : components) cut(component);
            return;
        }
        const auto [early, late] = halvesOf(nodes);
        cut(early);
        cut(late);
    }

    std::vector<std::vector<int>> componentsOf(const std::vector<int>& nodes) {
        const int here = ++labels;
        for (int node : nodes) part[static_cast<std::size_t>(node)] = here;
        std::vector<std::vector<int>> components;
        for (int node : nodes) {
            if (!isIn(node, here)) continue;
            const int label = ++labels;
            std::vector<int> component{node};
            part[static_cast<std::size_t>(node)] = label;
            for (std::size_t i = 0; i < component.size(); ++i) {
                const auto visit = [&](int next) {
                    if (!isIn(next, here)) return;
                    part[static_cast<std::size_t>(next)] = label;
                    component.push_back(next);
                };
                for (int operand : operandsOf(component[i])) visit(operand);
                for (int consumer : consumers[static_cast<std::size_t>(component[i])]) visit(consumer);
            }
            std::ranges::sort(component);
            components.push_back(std::move(component));
        }
        return components;
    }

    // The early half and the late half of connected nodes. Layers are taken alternately from the inputs and from the
    // outputs until no node is left.
    std::pair<std::vector<int>, std::vector<int>> halvesOf(const std::vector<int>& nodes) {
        const int open = ++labels, early = ++labels, late = ++labels;
        for (int node : nodes) part[static_cast<std::size_t>(node)] = open;
        std::size_t left = nodes.size();
        const auto takeLayer = [&](int label, auto&& isReady) {
            std::vector<int> layer;
            for (int node : nodes) {
                if (isIn(node, open) && isReady(node)) layer.push_back(node);
            }
            for (int node : layer) part[static_cast<std::size_t>(node)] = label;
            left -= layer.size();
        };
        while (left > 0) {
            takeLayer(early, [&](int node) {
                return std::ranges::none_of(operandsOf(node), [&](int x) { return isIn(x, open) || isIn(x, late); });
            });
            takeLayer(late, [&](int node) {
                return std::ranges::none_of(consumers[static_cast<std::size_t>(node)],
                                            [&](int x) { return isIn(x, open) || isIn(x, early); });
            });
        }
        std::pair<std::vector<int>, std::vector<int>> halves;
        for (int node : nodes) (isIn(node, early) ? halves.first : halves.second).push_back(node);
        return halves;
    }

    const Graph& graph;
    std::vector<std::vector<int>> consumers;
    std::vector<int> part;  // for each node, the label of the set it was put into last
    int labels = 0;
};

}  // namespace

Schedule byBisection(const Graph& graph) {
    Writer writer(graph);
    for (int number : Bisection(graph).order) {
        if (graph.nodes()[static_cast<std::size_t>(number)].kind != Kind::Load) writer.operation(number);
    }
    for (const Output& output : graph.outputs()) writer.loadIfNeeded(output.node);
    return writer.take();
}

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
