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
        for (NodeId id : graph.aliveNodes()) missingLoads += isLoad(id);
        for (std::size_t k = 0; k < graph.outputs().size(); ++k) outputsOf[graph.outputs()[k].node].push_back(k);
    }

    // Writes nothing for a load: see loadIfNeeded.
    void operation(NodeId id) {
        if (isLoad(id)) return;
        for (NodeId operand : operands(graph.node(id))) loadIfNeeded(operand);
        schedule.steps.push_back({Step::Kind::Operation, id});
        finish(id);
    }

    Schedule take() {
        for (const Output& output : graph.outputs()) loadIfNeeded(output.node);
        schedule.mostAlive = mostAlive();
        return std::move(schedule);
    }

private:
    bool isLoad(NodeId id) const { return graph.node(id).kind == Kind::Load; }

    // Writes the step of this node if it is a load that is not written yet, and does nothing otherwise. It is
    // called for the operands of each operation, and for the outputs, since a load that is an output need not be an
    // operand.
    void loadIfNeeded(NodeId id) {
        if (!isLoad(id) || done[id]) return;
        schedule.steps.push_back({Step::Kind::Load, id});
        --missingLoads;
        finish(id);
    }

    void finish(NodeId id) {
        done[id] = true;
        for (std::size_t k : outputsOf[id]) waiting.push_back(k);
        if (missingLoads > 0) return;
        for (std::size_t k : waiting) schedule.steps.push_back({Step::Kind::Store, graph.outputs()[k].node, k});
        waiting.clear();
    }

    int mostAlive() const {
        PerNode<int> usesLeft(graph.nodes().size(), 0);
        const auto uses = [&](const Step& step, auto&& visit) {
            if (step.kind == Step::Kind::Store) {
                visit(step.node);
            } else {
                for (NodeId operand : operands(graph.node(step.node))) visit(operand);
            }
        };
        for (const Step& step : schedule.steps) {
            uses(step, [&](NodeId id) { ++usesLeft[id]; });
        }
        int alive = 0, most = 0;
        for (const Step& step : schedule.steps) {
            uses(step, [&](NodeId id) { alive -= --usesLeft[id] == 0; });
            alive += step.kind != Step::Kind::Store;
            most = std::max(most, alive);
        }
        return most;
    }

    const Graph& graph;
    PerNode<bool> done;
    PerNode<std::vector<std::size_t>> outputsOf;
    std::vector<std::size_t> waiting;
    int missingLoads = 0;
    Schedule schedule;
};

// The nodes of a graph, loads included, in the order of recursive bisection.
class Bisection {
public:
    explicit Bisection(const Graph& source)
        : graph(source), consumers(source.nodes().size()), part(source.nodes().size(), -1) {
        const std::vector<NodeId> all = graph.aliveNodes();
        for (NodeId id : all) {
            for (NodeId operand : operands(graph.node(id))) consumers[operand].push_back(id);
        }
        cut(all);
    }

    std::vector<NodeId> order;

private:
    bool isIn(NodeId id, int label) const { return part[id] == label; }

    // Appends these nodes to the order. Their numbers rise.
    void cut(const std::vector<NodeId>& nodes) {
        if (nodes.size() == 1) return order.push_back(nodes[0]);
        const std::vector<std::vector<NodeId>> components = componentsOf(nodes);
        if (components.size() > 1) {
            for (const std::vector<NodeId>& component : components) cut(component);
            return;
        }
        const auto [early, late] = halvesOf(nodes);
        cut(early);
        cut(late);
    }

    std::vector<std::vector<NodeId>> componentsOf(const std::vector<NodeId>& nodes) {
        const int here = ++labels;
        for (NodeId id : nodes) part[id] = here;
        std::vector<std::vector<NodeId>> components;
        for (NodeId id : nodes) {
            if (!isIn(id, here)) continue;
            const int label = ++labels;
            std::vector<NodeId> component{id};
            part[id] = label;
            for (std::size_t i = 0; i < component.size(); ++i) {
                const auto visit = [&](NodeId next) {
                    if (!isIn(next, here)) return;
                    part[next] = label;
                    component.push_back(next);
                };
                for (NodeId operand : operands(graph.node(component[i]))) visit(operand);
                for (NodeId consumer : consumers[component[i]]) visit(consumer);
            }
            std::ranges::sort(component);
            components.push_back(std::move(component));
        }
        return components;
    }

    // The early half and the late half of connected nodes. Layers are taken alternately from the inputs and from the
    // outputs until no node is left.
    std::pair<std::vector<NodeId>, std::vector<NodeId>> halvesOf(const std::vector<NodeId>& nodes) {
        const int open = ++labels, early = ++labels, late = ++labels;
        for (NodeId id : nodes) part[id] = open;
        std::size_t left = nodes.size();
        const auto takeLayer = [&](int label, auto&& isReady) {
            std::vector<NodeId> layer;
            for (NodeId id : nodes) {
                if (isIn(id, open) && isReady(id)) layer.push_back(id);
            }
            for (NodeId id : layer) part[id] = label;
            left -= layer.size();
        };
        while (left > 0) {
            takeLayer(early, [&](NodeId id) {
                return std::ranges::none_of(operands(graph.node(id)),
                                            [&](NodeId x) { return isIn(x, open) || isIn(x, late); });
            });
            takeLayer(late, [&](NodeId id) {
                return std::ranges::none_of(consumers[id], [&](NodeId x) { return isIn(x, open) || isIn(x, early); });
            });
        }
        std::pair<std::vector<NodeId>, std::vector<NodeId>> halves;
        for (NodeId id : nodes) (isIn(id, early) ? halves.first : halves.second).push_back(id);
        return halves;
    }

    const Graph& graph;
    PerNode<std::vector<NodeId>> consumers;
    PerNode<int> part;  // for each node, the label of the set it was put into last
    int labels = 0;
};

Schedule inOrder(const Graph& graph, const std::vector<NodeId>& nodes) {
    Writer writer(graph);
    for (NodeId id : nodes) writer.operation(id);
    return writer.take();
}

}  // namespace

Schedule byBisection(const Graph& graph) { return inOrder(graph, Bisection(graph).order); }

Schedule blockByBlock(const Graph& graph) { return inOrder(graph, graph.aliveNodes()); }

}  // namespace gen
