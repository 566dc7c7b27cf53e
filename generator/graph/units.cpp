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

std::vector<Group> pairsAsGroups(const Graph& graph, Unit unit) {
    std::vector<Group> groups;
    if (unit == Unit::Node) return groups;
    for (const Pair& pair : graph.pairs()) groups.push_back({pair.re, pair.im});
    return groups;
}

}  // namespace

Units::Units(const Graph& source, Unit unit) : Units(source, pairsAsGroups(source, unit)) {}

Units::Units(const Graph& source, std::vector<Group> groups) : graph(source), unitByNode(source.nodes().size()) {
    const PerNode<bool> alive = graph.alive();
    std::erase_if(
        groups, [&](const Group& group) { return std::ranges::any_of(group, [&](NodeId id) { return !alive[id]; }); });
    do {
        list(groups);
    } while (!sort(groups));
}

// All units, by their last nodes.
void Units::list(const std::vector<Group>& groups) {
    constexpr std::size_t none = static_cast<std::size_t>(-1);
    PerNode<std::size_t> groupOf(graph.nodes().size(), none);
    for (std::size_t i = 0; i < groups.size(); ++i) {
        for (NodeId id : groups[i]) groupOf[id] = i;
    }
    units.clear();
    for (NodeId id : graph.aliveNodes()) {
        if (groupOf[id] == none) {
            units.push_back({id});
        } else if (const Group& group = groups[groupOf[id]]; id == *std::ranges::max_element(group)) {
            units.push_back(group);
        }
    }
    number();
}

void Units::number() {
    for (std::size_t unit = 0; unit < units.size(); ++unit) {
        for (NodeId id : units[unit]) unitByNode[id] = unit;
    }
}

// Whether the units could be put in order; otherwise a group is cut.
bool Units::sort(std::vector<Group>& groups) {
    const Sorting sorting(*this);
    if (!sorting.circle.empty()) {
        const auto isGroup = [&](std::size_t unit) { return units[unit].size() > 1; };
        const Group cut = units[*std::ranges::find_if(sorting.circle, isGroup)];
        groups.erase(std::ranges::find(groups, cut));
        const auto middle = cut.begin() + static_cast<std::ptrdiff_t>(cut.size() / 2);
        if (cut.size() > 2) {
            groups.emplace_back(cut.begin(), middle);
            groups.emplace_back(middle, cut.end());
        }
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
