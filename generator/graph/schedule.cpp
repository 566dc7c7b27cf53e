#include "graph/schedule.h"

#include <algorithm>
#include <numeric>

namespace gen {
namespace {

// Writes the steps of a schedule. A load comes right before the first step that uses it; stores wait until all loads
// are written.
class Writer {
public:
    Writer(const Graph& source, const Units& sourceUnits)
        : graph(source), units(sourceUnits), done(source.nodes().size(), false), outputsOf(source.nodes().size()) {
        for (NodeId id : graph.aliveNodes()) missingLoads += isLoad(id);
        for (std::size_t k = 0; k < graph.outputs().size(); ++k) outputsOf[graph.outputs()[k].node].push_back(k);
    }

    // Writes nothing for loads: see loadIfNeeded.
    void operations(std::size_t unit) {
        if (isLoad(units.nodes(unit)[0])) return;
        for (NodeId id : units.nodes(unit)) {
            for (NodeId operand : operands(graph.node(id))) loadIfNeeded(operand);
        }
        write(Step::Kind::Operation, unit);
    }

    Schedule take() {
        for (const Output& output : graph.outputs()) loadIfNeeded(output.node);
        schedule.mostAlive = mostAlive();
        return std::move(schedule);
    }

private:
    bool isLoad(NodeId id) const { return graph.node(id).kind == Kind::Load; }

    // Writes the unit of this node if it is a load that is not written yet, and does nothing otherwise. It is
    // called for the operands of each operation, and for the outputs, since a load that is an output need not be an
    // operand.
    void loadIfNeeded(NodeId id) {
        if (!isLoad(id) || done[id]) return;
        missingLoads -= static_cast<int>(units.nodes(units.of(id)).size());
        write(Step::Kind::Load, units.of(id));
    }

    void write(Step::Kind kind, std::size_t unit) {
        for (NodeId id : units.nodes(unit)) {
            schedule.steps.push_back({kind, id});
            done[id] = true;
            waiting.insert(waiting.end(), outputsOf[id].begin(), outputsOf[id].end());
        }
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
    const Units& units;
    PerNode<bool> done;
    PerNode<std::vector<std::size_t>> outputsOf;
    std::vector<std::size_t> waiting;
    int missingLoads = 0;
    Schedule schedule;
};

// The units of a graph, loads included, in the order of recursive bisection.
class Bisection {
public:
    explicit Bisection(const Units& source) : units(source), consumers(source.count()), part(source.count(), -1) {
        std::vector<std::size_t> all(units.count());
        std::iota(all.begin(), all.end(), std::size_t{0});
        for (std::size_t unit : all) {
            operands.push_back(units.operands(unit));
            for (std::size_t operand : operands.back()) consumers[operand].push_back(unit);
        }
        cut(all);
    }

    std::vector<std::size_t> order;

private:
    bool isIn(std::size_t unit, int label) const { return part[unit] == label; }

    // Appends these units to the order. Their numbers rise.
    void cut(const std::vector<std::size_t>& some) {
        if (some.size() == 1) return order.push_back(some[0]);
        const std::vector<std::vector<std::size_t>> components = componentsOf(some);
        if (components.size() > 1) {
            for (const std::vector<std::size_t>& component : components) cut(component);
            return;
        }
        const auto [early, late] = halvesOf(some);
        cut(early);
        cut(late);
    }

    std::vector<std::vector<std::size_t>> componentsOf(const std::vector<std::size_t>& some) {
        const int here = ++labels;
        for (std::size_t unit : some) part[unit] = here;
        std::vector<std::vector<std::size_t>> components;
        for (std::size_t unit : some) {
            if (!isIn(unit, here)) continue;
            const int label = ++labels;
            std::vector<std::size_t> component{unit};
            part[unit] = label;
            for (std::size_t i = 0; i < component.size(); ++i) {
                const auto visit = [&](std::size_t next) {
                    if (!isIn(next, here)) return;
                    part[next] = label;
                    component.push_back(next);
                };
                for (std::size_t operand : operands[component[i]]) visit(operand);
                for (std::size_t consumer : consumers[component[i]]) visit(consumer);
            }
            std::ranges::sort(component);
            components.push_back(std::move(component));
        }
        return components;
    }

    // The early half and the late half of connected units. Layers are taken alternately from the inputs and from the
    // outputs until no unit is left.
    std::pair<std::vector<std::size_t>, std::vector<std::size_t>> halvesOf(const std::vector<std::size_t>& some) {
        const int open = ++labels, early = ++labels, late = ++labels;
        for (std::size_t unit : some) part[unit] = open;
        std::size_t left = some.size();
        const auto takeLayer = [&](int label, auto&& isReady) {
            std::vector<std::size_t> layer;
            for (std::size_t unit : some) {
                if (isIn(unit, open) && isReady(unit)) layer.push_back(unit);
            }
            for (std::size_t unit : layer) part[unit] = label;
            left -= layer.size();
        };
        while (left > 0) {
            takeLayer(early, [&](std::size_t unit) {
                return std::ranges::none_of(operands[unit],
                                            [&](std::size_t x) { return isIn(x, open) || isIn(x, late); });
            });
            takeLayer(late, [&](std::size_t unit) {
                return std::ranges::none_of(consumers[unit],
                                            [&](std::size_t x) { return isIn(x, open) || isIn(x, early); });
            });
        }
        std::pair<std::vector<std::size_t>, std::vector<std::size_t>> halves;
        for (std::size_t unit : some) (isIn(unit, early) ? halves.first : halves.second).push_back(unit);
        return halves;
    }

    const Units& units;
    std::vector<std::vector<std::size_t>> operands, consumers;
    std::vector<int> part;  // for each unit, the label of the set it was put into last
    int labels = 0;
};

Schedule scheduled(const Graph& graph, Unit unit, Order order) {
    const Units units(graph, unit);
    Writer writer(graph, units);
    for (std::size_t next : orderOf(units, order)) writer.operations(next);
    return writer.take();
}

}  // namespace

std::vector<std::size_t> orderOf(const Units& units, Order order) {
    if (order == Order::Bisection) return Bisection(units).order;
    std::vector<std::size_t> all(units.count());
    std::iota(all.begin(), all.end(), std::size_t{0});
    return all;
}

Schedule byBisection(const Graph& graph, Unit unit) { return scheduled(graph, unit, Order::Bisection); }

Schedule blockByBlock(const Graph& graph, Unit unit) { return scheduled(graph, unit, Order::Blocks); }

}  // namespace gen
