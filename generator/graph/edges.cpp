#include "graph/edges.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace gen {
namespace {

using std::size_t;

class Edges {
public:
    Edges(const Graph& source, size_t lanes, std::vector<Group>& groupsSoFar)
        : graph(source), width(lanes), groups(groupsSoFar), places(source.nodes().size()) {
        for (size_t group = 0; group < groups.size(); ++group) {
            for (size_t lane = 0; lane < groups[group].size(); ++lane) places[groups[group][lane]] = {group, lane};
        }
    }

    void takeLast() {
        std::map<size_t, Users> users = usersByGroup();
        while (!users.empty()) {
            const auto [group, first] = *users.begin();
            users.erase(users.begin());
            const auto next = std::ranges::find_if(users, [&, size = groups[group].size()](const auto& item) {
                return groups[item.first].size() == size;
            });
            for (const size_t kind : {0u, 1u}) {
                Group steps;
                for (size_t line = 0; line < first[kind].size(); ++line) {
                    steps.push_back(first[kind][line]);
                    if (next != users.end()) steps.push_back(next->second[kind][line]);
                }
                add(steps);
            }
            if (next != users.end()) users.erase(next);
        }
    }

    void takeFirst(Kind kind) {
        std::vector<NodeId> steps;
        for (NodeId id : singles()) {
            const Node& node = graph.node(id);
            if (node.kind == kind && isLoad(node.a) && isLoad(node.b)) steps.push_back(id);
        }
        std::ranges::sort(steps, {}, [&](NodeId id) { return inputs(id).first; });
        const auto areNeighbours = [&](NodeId left, NodeId right) {
            const auto [a, b] = inputs(left);
            const auto [c, d] = inputs(right);
            return c == a + 1 && std::abs(d - b) == 1;
        };
        for (size_t lanes = width; lanes > 1; lanes /= 2) {
            for (auto next = steps.begin(); std::cmp_less_equal(lanes, steps.end() - next);) {
                const auto last = next + static_cast<std::ptrdiff_t>(lanes);
                if (std::adjacent_find(next, last, std::not_fn(areNeighbours)) != last) {
                    ++next;
                    continue;
                }
                add({next, last});
                next = steps.erase(next, last);
            }
        }
    }

private:
    // Sums and differences, one of each for each complex value in a group.
    using Users = std::array<std::vector<NodeId>, 2>;
    struct Place {
        size_t group, lane;
    };

    std::map<size_t, Users> usersByGroup() const {
        std::map<size_t, Users> users;
        for (NodeId id : singles()) {
            const Node& node = graph.node(id);
            if (node.kind == Kind::Scaled || !places[node.a] || !places[node.b]) continue;
            const Place a = *places[node.a], b = *places[node.b];
            if (a.group != b.group || a.lane / 2 != b.lane / 2) continue;
            users[a.group][node.kind == Kind::Sub ? 1 : 0].push_back(id);
        }
        std::erase_if(users, [&](const auto& item) {
            return std::ranges::any_of(
                item.second, [&](const auto& steps) { return 2 * steps.size() != groups[item.first].size(); });
        });
        return users;
    }

    bool isLoad(NodeId id) const { return graph.node(id).kind == Kind::Load; }
    std::pair<int, int> inputs(NodeId sum) const {
        const Node& node = graph.node(sum);
        return {graph.node(node.a).input, graph.node(node.b).input};
    }

    std::vector<NodeId> singles() const {
        std::vector<NodeId> result = graph.aliveNodes();
        std::erase_if(result, [&](NodeId id) { return isLoad(id) || places[id].has_value(); });
        return result;
    }

    void add(const Group& group) {
        if (group.size() == 1) return;
        for (size_t lane = 0; lane < group.size(); ++lane) places[group[lane]] = {groups.size(), lane};
        groups.push_back(group);
    }

    const Graph& graph;
    size_t width;
    std::vector<Group>& groups;
    PerNode<std::optional<Place>> places;
};

}  // namespace

void takeEdgesTogether(const Graph& graph, size_t lanes, std::vector<Group>& groups) {
    Edges edges(graph, lanes, groups);
    edges.takeLast();
    edges.takeFirst(Kind::Add);
    edges.takeFirst(Kind::Sub);
}

}  // namespace gen
