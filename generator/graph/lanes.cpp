#include "graph/lanes.h"

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <utility>

namespace gen {
namespace {

using Kind = LaneStep::Kind;
using std::size_t;

// A way to a register that holds what is wanted: how many steps it takes beyond those that are done, and the steps.
// `last` is the step whose operands are the ways before it.
struct Way {
    int cost = 0;
    int standing = -1;  // a register that is there already, or
    LaneStep last{};    // the step that gives it
    std::vector<Way> before{};
    Lanes lanes{};
};

class Builder {
public:
    Builder(const Graph& source, const Units& sourceUnits)
        : graph(source), units(sourceUnits), homes(source.nodes().size()) {
        for (NodeId id : graph.aliveNodes()) {
            if (isLoad(id)) loads.emplace(graph.node(id).input, id);
        }
        missingLoads = loads.size();
        std::map<int, NodeId> nodes;
        for (const Output& output : graph.outputs()) {
            if (output.minus) throw std::logic_error("an output of a complex transform has a minus");
            nodes[output.place] = output.node;
        }
        for (const auto& [place, node] : nodes) {
            if (place % 2 == 0) waiting.emplace(place / 2, Lanes{{node}, {nodes.at(place + 1)}});
        }
    }

    LaneProgram run(Order order) {
        for (size_t unit : orderOf(units, order)) {
            add(units.nodes(unit));
            if (missingLoads == 0) storeWhatIsDone();
        }
        for (const auto& [input, id] : loads) {
            if (homes[id].empty()) done(loadWay(input / 2));
        }
        storeWhatIsDone();
        if (!waiting.empty()) throw std::logic_error("an output is never computed");
        return std::move(program);
    }

private:
    // Where a lane of a register holds a node.
    struct Home {
        int number;
        int lane;
    };

    bool isLoad(NodeId id) const { return graph.node(id).kind == gen::Kind::Load; }
    const Lanes& lanesOf(int number) const { return program.registers[static_cast<size_t>(number)]; }

    // A new register. It is open while the step that gives it waits for signs.
    int addRegister(Lanes lanes, bool open) {
        const auto number = static_cast<int>(program.registers.size());
        for (size_t lane = 0; lane < lanes.size(); ++lane) {
            homes[lanes[lane].node].push_back({number, static_cast<int>(lane)});
        }
        program.registers.push_back(std::move(lanes));
        isOpen.push_back(open);
        return number;
    }

    int add(LaneStep step, Lanes lanes) {
        const int number = addRegister(std::move(lanes), false);
        step.result = number;
        program.steps.push_back(std::move(step));
        return number;
    }

    // ---- what is wanted, and the cheapest way to it ----

    // Registers of so many lanes that hold this node, the latest first.
    std::vector<Home> homesOf(NodeId node, size_t width) const {
        std::vector<Home> found;
        for (auto home = homes[node].rbegin(); home != homes[node].rend(); ++home) {
            if (lanesOf(home->number).size() == width) found.push_back(*home);
        }
        return found;
    }

    Way standingWay(int number) const { return {.standing = number, .lanes = lanesOf(number)}; }

    Way stepWay(LaneStep step, std::vector<Way> before, Lanes lanes) const {
        int cost = 1;
        for (const Way& way : before) cost += way.cost;
        return {.cost = cost, .last = std::move(step), .before = std::move(before), .lanes = std::move(lanes)};
    }

    static bool holdsNodes(const Lanes& lanes, const Lanes& want) {
        return std::ranges::equal(lanes, want, {}, &Lane::node, &Lane::node);
    }

    // Gives the lanes of a way these signs, where the signs that differ are those of open products: the step of such a
    // product is not done yet, and its constants take on any signs.
    bool absorb(Way& way, const Lanes& want) const {
        if (way.lanes == want) return true;
        if (way.standing >= 0) {
            if (!isOpen[static_cast<size_t>(way.standing)]) return false;
            way.lanes = want;
            return true;
        }
        if (way.last.kind != Kind::Shuffle && way.last.kind != Kind::Part && way.last.kind != Kind::Join) return false;
        std::vector<Lanes> sources;
        for (const Way& before : way.before) sources.push_back(before.lanes);
        std::vector<std::vector<bool>> isSet;
        for (const Lanes& lanes : sources) isSet.emplace_back(lanes.size(), false);
        for (size_t i = 0; i < want.size(); ++i) {
            size_t place = i;
            if (way.last.kind == Kind::Shuffle) place = static_cast<size_t>(way.last.places[i]);
            if (way.last.kind == Kind::Part) place += want.size() * static_cast<size_t>(way.last.places[0]);
            const size_t source = place < sources[0].size() ? 0 : 1;
            if (source == 1) place -= sources[0].size();
            Lane& lane = sources[source][place];
            if (isSet[source][place] && lane.minus != want[i].minus) return false;
            isSet[source][place] = true;
            lane.minus = want[i].minus;
        }
        for (size_t i = 0; i < sources.size(); ++i) {
            if (!absorb(way.before[i], sources[i])) return false;
        }
        way.lanes = want;
        return true;
    }

    // The same with the signs that are wanted.
    Way withSigns(Way way, const Lanes& want) const {
        if (Way other = way; absorb(other, want)) return other;
        std::vector<bool> flips;
        for (size_t i = 0; i < want.size(); ++i) flips.push_back(way.lanes[i].minus != want[i].minus);
        return stepWay({.kind = Kind::Flip, .flips = flips}, {std::move(way)}, want);
    }

    static void keepCheaper(std::optional<Way>& best, Way way) {
        if (!best || way.cost < best->cost) best = std::move(way);
    }

    Way shuffled(std::vector<Way> before, std::vector<int> places) const {
        Lanes lanes;
        for (int place : places) {
            const Lanes& first = before[0].lanes;
            const auto at = static_cast<size_t>(place);
            lanes.push_back(at < first.size() ? first[at] : before[1].lanes[at - first.size()]);
        }
        return stepWay({.kind = Kind::Shuffle, .places = std::move(places)}, std::move(before), std::move(lanes));
    }

    Way joined(Way low, Way high) const {
        Lanes lanes = low.lanes;
        lanes.insert(lanes.end(), high.lanes.begin(), high.lanes.end());
        return stepWay({.kind = Kind::Join}, {std::move(low), std::move(high)}, std::move(lanes));
    }

    Way part(Way whole, int half) const {
        const auto middle = whole.lanes.begin() + static_cast<std::ptrdiff_t>(whole.lanes.size() / 2);
        Lanes lanes = half == 0 ? Lanes(whole.lanes.begin(), middle) : Lanes(middle, whole.lanes.end());
        Way way = stepWay({.kind = Kind::Part, .places = {half}}, {std::move(whole)}, std::move(lanes));
        if (half == 0) --way.cost;  // the low half of a register is that register
        return way;
    }

    // Every register of two lanes in which a node is, or half a register of four, with its lane.
    std::vector<std::pair<Way, int>> pairsWith(NodeId node) const {
        std::vector<std::pair<Way, int>> found;
        for (const Home& home : homesOf(node, 2)) found.emplace_back(standingWay(home.number), home.lane);
        if (!found.empty()) return found;
        for (const Home& home : homesOf(node, 4)) {
            found.emplace_back(part(standingWay(home.number), home.lane / 2), home.lane % 2);
        }
        if (found.empty() && isLoad(node)) found.emplace_back(loadWay(elementOf(node)), graph.node(node).input % 2);
        return found;
    }

    int elementOf(NodeId load) const { return graph.node(load).input / 2; }

    Way loadWay(int element) const {
        Way way = stepWay({.kind = Kind::Load, .elements = {element}}, {},
                          {{loads.at(2 * element)}, {loads.at(2 * element + 1)}});
        way.cost = 0;
        return way;
    }

    Way way(const Lanes& want) const {
        switch (want.size()) {
            case 1: return singleWay(want);
            case 2: return pairWay(want);
            default: return linesWay(want);
        }
    }

    Way singleWay(const Lanes& want) const {
        std::optional<Way> best;
        for (const Home& home : homesOf(want[0].node, 1)) keepCheaper(best, withSigns(standingWay(home.number), want));
        for (auto& [pair, lane] : pairsWith(want[0].node)) keepCheaper(best, withSigns(part(pair, lane), want));
        if (!best) throw std::logic_error("a node is taken before its step");
        return *best;
    }

    Way pairWay(const Lanes& want) const {
        std::optional<Way> best;
        const auto first = pairsWith(want[0].node), second = pairsWith(want[1].node);
        for (const auto& [a, lane] : first) {
            if (holdsNodes(a.lanes, want)) keepCheaper(best, withSigns(a, want));
        }
        if (best && best->cost == 0) return *best;
        for (const auto& [a, aLane] : first) {
            for (const auto& [b, bLane] : second) {
                Way both = a.lanes == b.lanes ? shuffled({a}, {aLane, bLane}) : shuffled({a, b}, {aLane, bLane + 2});
                keepCheaper(best, withSigns(std::move(both), want));
            }
        }
        // Each of the two in a register of its own.
        if (!best) best = withSigns(joined(singleWay({want[0]}), singleWay({want[1]})), want);
        return *best;
    }

    // Registers of four lanes that hold these two nodes side by side, and which half it is.
    std::vector<std::pair<int, int>> linesWith(NodeId low, NodeId high) const {
        std::vector<std::pair<int, int>> found;
        for (const Home& home : homesOf(low, 4)) {
            if (home.lane % 2 != 0) continue;
            if (lanesOf(home.number)[static_cast<size_t>(home.lane) + 1].node == high) {
                found.emplace_back(home.number, home.lane / 2);
            }
        }
        return found;
    }

    Way linesWay(const Lanes& want) const {
        std::optional<Way> best;
        const Lanes swapped = {want[1], want[0], want[3], want[2]};
        for (const Home& home : homesOf(want[0].node, 4)) {
            const Way way = standingWay(home.number);
            if (holdsNodes(way.lanes, want)) keepCheaper(best, withSigns(way, want));
            if (holdsNodes(way.lanes, swapped)) keepCheaper(best, withSigns(shuffled({way}, {1, 0, 3, 2}), want));
        }
        if (best && best->cost == 0) return *best;
        keepCheaper(best, withSigns(fromHalves(want), want));
        if (isAnyHalf(swapped[0], swapped[1]) || isAnyHalf(swapped[2], swapped[3])) {
            const Way way = fromHalves(swapped);
            keepCheaper(best, withSigns(shuffled({way}, {1, 0, 3, 2}), want));
        }
        // One line is swapped and the other is not.
        for (const int line : {0, 1}) {
            const Lanes mixed =
                line == 0 ? Lanes{want[1], want[0], want[2], want[3]} : Lanes{want[0], want[1], want[3], want[2]};
            if (!isAnyHalf(mixed[0], mixed[1]) || !isAnyHalf(mixed[2], mixed[3])) continue;
            const std::vector<int> places = line == 0 ? std::vector{1, 0, 2, 3} : std::vector{0, 1, 3, 2};
            keepCheaper(best, withSigns(shuffled({fromHalves(mixed)}, places), want));
        }
        // Lanes 0 and 2 of one register with lanes 1 and 3 of another.
        for (const Home& a : homesOf(want[0].node, 4)) {
            for (const Home& b : homesOf(want[1].node, 4)) {
                const auto i = upperLane(a.number, want[2].node), j = upperLane(b.number, want[3].node);
                if (a.lane > 1 || b.lane > 1 || !i || !j) continue;
                const Way both =
                    shuffled({standingWay(a.number), standingWay(b.number)}, {a.lane, b.lane + 4, *i, *j + 4});
                keepCheaper(best, withSigns(both, want));
            }
        }
        return *best;
    }

    // Which of lanes 2 and 3 of a register holds a node.
    std::optional<int> upperLane(int number, NodeId node) const {
        for (const int lane : {2, 3}) {
            if (lanesOf(number)[static_cast<size_t>(lane)].node == node) return lane;
        }
        return std::nullopt;
    }

    bool isAnyHalf(Lane low, Lane high) const {
        if (!linesWith(low.node, high.node).empty()) return true;
        for (const Home& home : homesOf(low.node, 2)) {
            if (home.lane == 0 && lanesOf(home.number)[1].node == high.node) return true;
        }
        return areElement(low, high);
    }

    bool areElement(Lane low, Lane high) const {
        return isLoad(low.node) && isLoad(high.node) && elementOf(low.node) == elementOf(high.node) &&
               graph.node(low.node).input % 2 == 0 && graph.node(high.node).input % 2 == 1;
    }

    // Each line from wherever it is.
    Way fromHalves(const Lanes& want) const {
        std::optional<Way> best;
        const auto low = linesWith(want[0].node, want[1].node), high = linesWith(want[2].node, want[3].node);
        for (const auto& [a, aHalf] : low) {
            for (const auto& [b, bHalf] : high) {
                Way both = a == b ? shuffled({standingWay(a)}, {2 * aHalf, 2 * aHalf + 1, 2 * bHalf, 2 * bHalf + 1})
                                  : shuffled({standingWay(a), standingWay(b)},
                                             {2 * aHalf, 2 * aHalf + 1, 2 * bHalf + 4, 2 * bHalf + 5});
                keepCheaper(best, std::move(both));
            }
        }
        if (best) return *best;
        // Elements may be read once more while nothing is stored.
        if (missingLoads > 0 && areElement(want[0], want[1]) && areElement(want[2], want[3])) {
            const std::vector<int> elements = {elementOf(want[0].node), elementOf(want[2].node)};
            return stepWay({.kind = Kind::Load, .elements = elements}, {},
                           {{want[0].node}, {want[1].node}, {want[2].node}, {want[3].node}});
        }
        return joined(pairWay({want[0], want[1]}), pairWay({want[2], want[3]}));
    }

    // ---- steps ----

    // Does the steps of a way.
    int done(const Way& way) {
        if (way.standing >= 0) {
            settle(way.standing, way.lanes);
            // The product may have been settled with other signs since the way was found.
            if (lanesOf(way.standing) != way.lanes) return done(withSigns(standingWay(way.standing), way.lanes));
            return way.standing;
        }
        LaneStep step = way.last;
        std::vector<int> operands;
        for (const Way& before : way.before) operands.push_back(done(before));
        if (!operands.empty()) step.a = operands[0];
        if (operands.size() > 1) step.b = operands[1];
        if (step.kind == Kind::Load) {
            for (const Lane& lane : way.lanes) markLoaded(lane.node);
        }
        return add(std::move(step), way.lanes);
    }

    void markLoaded(NodeId id) {
        if (homes[id].empty()) --missingLoads;
    }

    // Products wait for the signs with which they are first taken.
    void settle(int number, const Lanes& lanes) {
        const auto at = static_cast<size_t>(number);
        if (!isOpen[at]) return;
        isOpen[at] = false;
        program.registers[at] = lanes;
        Lanes operand;
        for (const Lane& lane : lanes) operand.push_back({graph.node(lane.node).a});
        // Any signs of the operand will do.
        Way from = way(operand);
        if (from.standing < 0 && from.last.kind == Kind::Flip) from = from.before[0];
        LaneStep step{.kind = Kind::Scaled, .result = number};
        step.a = done(from);
        for (size_t i = 0; i < lanes.size(); ++i) {
            step.factors.push_back({graph.node(lanes[i].node).constant, lanes[i].minus != lanesOf(step.a)[i].minus});
        }
        step.block = graph.node(lanes[0].node).block;
        program.steps.push_back(std::move(step));
    }

    void add(const std::vector<NodeId>& group) {
        if (isLoad(group[0])) return;
        Lanes lanes;
        for (NodeId id : group) lanes.push_back({id});
        if (graph.node(group[0]).kind == gen::Kind::Scaled) {
            addRegister(std::move(lanes), true);
        } else {
            addSum(lanes);
        }
    }

    // A sum takes its two values in either order, and a difference is the sum with minus the second value. Of all ways
    // to say the step, the cheapest one is taken.
    void addSum(const Lanes& lanes) {
        std::optional<std::pair<Way, Way>> best;
        Kind bestKind = Kind::Sum;
        std::pair<int, std::ptrdiff_t> bestCost;
        const auto orders = 1U << lanes.size();
        for (unsigned order = 0; order < orders; ++order) {
            for (const Kind kind : {Kind::Sum, Kind::Difference}) {
                Lanes a, b;
                for (size_t i = 0; i < lanes.size(); ++i) {
                    const Node& node = graph.node(lanes[i].node);
                    Lane x{node.a}, y{node.b, node.kind == gen::Kind::Sub};
                    if (order >> i & 1) std::swap(x, y);
                    if (kind == Kind::Difference) y.minus = !y.minus;
                    a.push_back(x);
                    b.push_back(y);
                }
                Way wayA = way(a), wayB = way(b);
                const auto minuses =
                    std::ranges::count(a, true, &Lane::minus) + std::ranges::count(b, true, &Lane::minus);
                // Of equal ways, the one with fewer signs in its constants.
                const auto cost = std::pair(wayA.cost + wayB.cost, minuses);
                if (best && cost >= bestCost) continue;
                best = {std::move(wayA), std::move(wayB)};
                bestCost = cost;
                bestKind = kind;
            }
        }
        LaneStep step{.kind = bestKind};
        step.block = graph.node(lanes[0].node).block;
        step.a = done(best->first);
        // The first way may have made a register that the second one asks for as well.
        step.b = done(way(best->second.lanes));
        add(std::move(step), lanes);
    }

    bool isDone(const Lanes& lanes) const {
        return std::ranges::none_of(lanes, [&](const Lane& lane) { return homes[lane.node].empty(); });
    }

    // Stores the outputs that are known: two elements at once where one register holds them.
    void storeWhatIsDone() {
        for (auto next = waiting.begin(); next != waiting.end(); next = waiting.begin()) {
            while (next != waiting.end() && !isDone(next->second)) ++next;
            if (next == waiting.end()) return;
            const auto [element, lanes] = *next;
            waiting.erase(next);
            LaneStep step{.kind = Kind::Store, .elements = {element}};
            if (const auto lines = linesWith(lanes[0].node, lanes[1].node); !lines.empty()) {
                const auto [number, half] = lines[0];
                const Lanes& all = lanesOf(number);
                const auto other = std::ranges::find_if(waiting, [&](const auto& item) {
                    const auto at = static_cast<size_t>(half == 0 ? 2 : 0);
                    return item.second[0].node == all[at].node && item.second[1].node == all[at + 1].node;
                });
                if (other != waiting.end()) {
                    step.elements.insert(half == 0 ? step.elements.end() : step.elements.begin(), other->first);
                    Lanes both;
                    for (const Lane& lane : all) both.push_back({lane.node});
                    step.a = done(way(both));
                    waiting.erase(other);
                    program.steps.push_back(std::move(step));
                    continue;
                }
            }
            step.a = done(way(lanes));
            program.steps.push_back(std::move(step));
        }
    }

    const Graph& graph;
    const Units& units;
    LaneProgram program;
    std::vector<bool> isOpen;
    PerNode<std::vector<Home>> homes;
    std::map<int, NodeId> loads;   // by input
    std::map<int, Lanes> waiting;  // elements that are not stored yet, by number
    size_t missingLoads = 0;
};

}  // namespace

LaneProgram inLanes(const Graph& graph, const Units& units, Order order) { return Builder(graph, units).run(order); }

}  // namespace gen
