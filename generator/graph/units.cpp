#include "graph/units.h"

#include <algorithm>
#include <utility>

namespace gen {
namespace {

// Puts each unit after those whose values it takes, and finds a circle where that cannot be.
class Sorting {
public:
    explicit Sorting(const Units& source) : units(source), states(source.count(), State::Open) {
        for (std::size_t unit = 0; unit < units.count() && circle.empty(); ++unit) visit(unit);
    }

    std::vector<std::size_t> order, circle;

private:
    enum class State { Open, Begun, Done };

    void visit(std::size_t unit) {
        if (states[unit] == State::Done || !circle.empty()) return;
        if (states[unit] == State::Begun) {
            circle.assign(std::ranges::find(path, unit), path.end());
            return;
        }
        states[unit] = State::Begun;
        path.push_back(unit);
        for (std::size_t operand : units.operands(unit)) visit(operand);
        path.pop_back();
        states[unit] = State::Done;
        order.push_back(unit);
    }

    const Units& units;
    std::vector<State> states;
    std::vector<std::size_t> path;
};

}  // namespace

Units::Units(const Graph& source, Unit unit) : graph(source), unitByNode(source.nodes().size()) {
    const PerNode<bool> alive = graph.alive();
    PerNode<bool> isTogether(graph.nodes().size(), false);
    for (const Pair& pair : graph.pairs()) {
        if (unit == Unit::Pair && alive[pair.re] && alive[pair.im]) isTogether[pair.re] = isTogether[pair.im] = true;
    }
    do {
        list(isTogether);
    } while (!sort(isTogether));
}

// All units, by their last nodes.
void Units::list(const PerNode<bool>& isTogether) {
    units.clear();
    for (NodeId id : graph.aliveNodes()) {
        if (!isTogether[id]) {
            units.push_back({id});
        } else if (const Pair pair = *graph.pairOf(id); id == std::max(pair.re, pair.im)) {
            units.push_back({pair.re, pair.im});
        }
    }
    number();
}

void Units::number() {
    for (std::size_t unit = 0; unit < units.size(); ++unit) {
        for (NodeId id : units[unit]) unitByNode[id] = unit;
    }
}

// Whether the units could be put in order; otherwise a pair is taken apart.
bool Units::sort(PerNode<bool>& isTogether) {
    const Sorting sorting(*this);
    if (!sorting.circle.empty()) {
        const auto isPair = [&](std::size_t unit) { return units[unit].size() > 1; };
        for (NodeId id : units[*std::ranges::find_if(sorting.circle, isPair)]) isTogether[id] = false;
        return false;
    }
    std::vector<std::vector<NodeId>> sorted;
    for (std::size_t unit : sorting.order) sorted.push_back(std::move(units[unit]));
    units = std::move(sorted);
    number();
    return true;
}

std::vector<std::size_t> Units::operands(std::size_t unit) const {
    std::vector<std::size_t> result;
    for (NodeId id : units[unit]) {
        for (NodeId operand : gen::operands(graph.node(id))) {
            if (std::ranges::find(result, of(operand)) == result.end()) result.push_back(of(operand));
        }
    }
    return result;
}

}  // namespace gen
