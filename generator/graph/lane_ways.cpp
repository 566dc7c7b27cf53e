#include "graph/lane_ways.h"

#include <algorithm>
#include <stdexcept>

namespace gen {
namespace {

using StepKind = LaneStep::Kind;
using std::size_t;

bool holdsNodes(const Lanes& lanes, const Lanes& want) {
    return std::ranges::equal(lanes, want, {}, &Lane::node, &Lane::node);
}

void keepCheaper(std::optional<Way>& best, Way way) {
    if (!best || way.cost < best->cost) best = std::move(way);
}

// A list of ways that are moved into it; a list in braces would copy them, with all ways before them.
template <class... Ways>
std::vector<Way> waysOf(Ways... ways) {
    std::vector<Way> list;
    list.reserve(sizeof...(ways));
    (list.push_back(std::move(ways)), ...);
    return list;
}

}  // namespace

LaneRegisters::LaneRegisters(const Graph& source, Elements inputElements)
    : graph(source), elements(inputElements), homes(source.nodes().size()) {
    for (NodeId id : graph.aliveNodes()) {
        if (isLoad(id)) loads.emplace(inputOf(id), id);
    }
    missingLoads = loads.size();
}

int LaneRegisters::add(Lanes lanes, bool isOpenNow) {
    const auto number = static_cast<int>(registers.size());
    for (size_t lane = 0; lane < lanes.size(); ++lane) {
        const NodeId node = lanes[lane].node;
        if (isLoad(node) && homes[node].empty()) --missingLoads;
        homes[node].push_back({number, static_cast<int>(lane)});
    }
    registers.push_back(std::move(lanes));
    open.push_back(isOpenNow);
    return number;
}

void LaneRegisters::close(int number, Lanes lanes) {
    open[static_cast<size_t>(number)] = false;
    registers[static_cast<size_t>(number)] = std::move(lanes);
}

NodeId LaneRegisters::missingLoad() const {
    return std::ranges::find_if(loads, [&](const auto& load) { return !isAnywhere(load.second); })->second;
}

std::vector<LaneRegisters::Home> LaneRegisters::homesOf(NodeId node, size_t width) const {
    std::vector<Home> found;
    for (auto home = homes[node].rbegin(); home != homes[node].rend(); ++home) {
        if (lanesOf(home->number).size() == width) found.push_back(*home);
    }
    return found;
}

Way LaneRegisters::stepWay(LaneStep step, std::vector<Way> before, Lanes lanes) const {
    int cost = 1;
    for (const Way& way : before) cost += way.cost;
    return {.cost = cost, .last = std::move(step), .before = std::move(before), .lanes = std::move(lanes)};
}

// Inputs. An element, or neighbours, are an operand in memory; each other real number is put into its lane.
Way LaneRegisters::loadWay(const std::vector<NodeId>& nodes) const {
    LaneStep step{.kind = StepKind::Load};
    Lanes lanes;
    bool areNeighbours = true;
    for (NodeId id : nodes) {
        areNeighbours &= inputOf(id) == inputOf(nodes[0]) + static_cast<int>(lanes.size());
        step.numbers.push_back(inputOf(id));
        lanes.push_back({id});
    }
    Way way = stepWay(std::move(step), {}, std::move(lanes));
    const bool areLines = elements == Elements::Complex && nodes.size() == 4;
    way.cost = areLines ? 1 : areNeighbours ? 0 : static_cast<int>(nodes.size() / 2);
    return way;
}

Way LaneRegisters::elementWay(NodeId load) const {
    if (elements == Elements::Complex) {
        const auto re = loads.find(inputOf(load) / 2 * 2), im = loads.find(inputOf(load) / 2 * 2 + 1);
        if (re != loads.end() && im != loads.end()) return loadWay({re->second, im->second});
    }
    return loadWay({load});
}

// Gives the lanes of a way these signs, where the signs that differ are those of open products: the step of such a
// product is not done yet, and its constants take on any signs.
bool LaneRegisters::absorb(Way& way, const Lanes& want) const {
    if (way.lanes == want) return true;
    if (way.standing >= 0) {
        if (!isOpen(way.standing)) return false;
        way.lanes = want;
        return true;
    }
    if (way.last.kind != StepKind::Shuffle && way.last.kind != StepKind::Part && way.last.kind != StepKind::Join)
        return false;
    std::vector<Lanes> sources;
    for (const Way& before : way.before) sources.push_back(before.lanes);
    std::vector<std::vector<bool>> isSet;
    for (const Lanes& lanes : sources) isSet.emplace_back(lanes.size(), false);
    for (size_t i = 0; i < want.size(); ++i) {
        size_t place = i;
        if (way.last.kind == StepKind::Shuffle) place = static_cast<size_t>(way.last.places[i]);
        if (way.last.kind == StepKind::Part) place += want.size() * static_cast<size_t>(way.last.places[0]);
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

Way LaneRegisters::withSigns(Way way, const Lanes& want) const {
    if (way.lanes == want) return way;
    if (Way other = way; absorb(other, want)) return other;
    std::vector<bool> flips;
    for (size_t i = 0; i < want.size(); ++i) flips.push_back(way.lanes[i].minus != want[i].minus);
    return stepWay({.kind = StepKind::Flip, .flips = flips}, waysOf(std::move(way)), want);
}

Way LaneRegisters::shuffled(std::vector<Way> before, std::vector<int> places) const {
    Lanes lanes;
    for (int place : places) {
        const Lanes& first = before[0].lanes;
        const auto at = static_cast<size_t>(place);
        lanes.push_back(at < first.size() ? first[at] : before[1].lanes[at - first.size()]);
    }
    return stepWay({.kind = StepKind::Shuffle, .places = std::move(places)}, std::move(before), std::move(lanes));
}

Way LaneRegisters::joined(Way low, Way high) const {
    Lanes lanes = low.lanes;
    lanes.insert(lanes.end(), high.lanes.begin(), high.lanes.end());
    return stepWay({.kind = StepKind::Join}, waysOf(std::move(low), std::move(high)), std::move(lanes));
}

Way LaneRegisters::part(Way whole, int half) const {
    const auto middle = whole.lanes.begin() + static_cast<std::ptrdiff_t>(whole.lanes.size() / 2);
    Lanes lanes = half == 0 ? Lanes(whole.lanes.begin(), middle) : Lanes(middle, whole.lanes.end());
    Way way = stepWay({.kind = StepKind::Part, .places = {half}}, waysOf(std::move(whole)), std::move(lanes));
    if (half == 0) --way.cost;  // the low half of a register is that register
    return way;
}

Way LaneRegisters::way(const Lanes& want) const {
    switch (want.size()) {
        case 1: return singleWay(want);
        case 2: return pairWay(want);
        default: return linesWay(want);
    }
}

// ---- one lane, and two ----

// Every register of two lanes in which a node is, or half a register of four, with its lane.
std::vector<std::pair<Way, int>> LaneRegisters::pairsWith(NodeId node) const {
    std::vector<std::pair<Way, int>> found;
    for (const Home& home : homesOf(node, 2)) found.emplace_back(standingWay(home.number), home.lane);
    if (!found.empty()) return found;
    for (const Home& home : homesOf(node, 4)) {
        found.emplace_back(part(standingWay(home.number), home.lane / 2), home.lane % 2);
    }
    if (found.empty() && isLoad(node)) {
        Way element = elementWay(node);
        if (element.lanes.size() == 2) found.emplace_back(std::move(element), inputOf(node) % 2);
    }
    return found;
}

Way LaneRegisters::singleWay(const Lanes& want) const {
    const NodeId node = want[0].node;
    std::optional<Way> best;
    for (const Home& home : homesOf(node, 1)) keepCheaper(best, withSigns(standingWay(home.number), want));
    for (auto& [pair, lane] : pairsWith(node)) keepCheaper(best, withSigns(part(pair, lane), want));
    if (isLoad(node) && (!best || (elements == Elements::Real && isLoadMissing()))) {
        keepCheaper(best, withSigns(loadWay({node}), want));
    }
    if (!best) throw std::logic_error("a node is taken before its step");
    return std::move(*best);
}

Way LaneRegisters::pairWay(const Lanes& want) const {
    std::optional<Way> best;
    const auto first = pairsWith(want[0].node), second = pairsWith(want[1].node);
    for (const auto& [a, lane] : first) {
        if (holdsNodes(a.lanes, want)) keepCheaper(best, withSigns(a, want));
    }
    if (best && best->cost == 0) return *best;
    for (const auto& [a, aLane] : first) {
        for (const auto& [b, bLane] : second) {
            Way both =
                a.lanes == b.lanes ? shuffled(waysOf(a), {aLane, bLane}) : shuffled(waysOf(a, b), {aLane, bLane + 2});
            keepCheaper(best, withSigns(std::move(both), want));
        }
    }
    if (areRealLoads(want)) keepCheaper(best, withSigns(loadWay({want[0].node, want[1].node}), want));
    // Each of the two in a register of its own.
    if (!best) best = withSigns(joined(singleWay({want[0]}), singleWay({want[1]})), want);
    return std::move(*best);
}

bool LaneRegisters::areRealLoads(const Lanes& lanes) const {
    return elements == Elements::Real && isLoadMissing() &&
           std::ranges::all_of(lanes, [&](const Lane& lane) { return isLoad(lane.node); });
}

// ---- four lanes ----

std::vector<std::pair<int, int>> LaneRegisters::linesWith(NodeId low, NodeId high) const {
    std::vector<std::pair<int, int>> found;
    for (const Home& home : homesOf(low, 4)) {
        if (home.lane % 2 != 0) continue;
        if (lanesOf(home.number)[static_cast<size_t>(home.lane) + 1].node == high) {
            found.emplace_back(home.number, home.lane / 2);
        }
    }
    return found;
}

Way LaneRegisters::linesWay(const Lanes& want) const {
    std::optional<Way> best;
    const Lanes swapped = {want[1], want[0], want[3], want[2]};
    for (const Home& home : homesOf(want[0].node, 4)) {
        const Way way = standingWay(home.number);
        if (holdsNodes(way.lanes, want)) keepCheaper(best, withSigns(way, want));
        if (holdsNodes(way.lanes, swapped)) keepCheaper(best, withSigns(shuffled(waysOf(way), {1, 0, 3, 2}), want));
    }
    if (best && best->cost == 0) return *best;
    if (areRealLoads(want)) {
        keepCheaper(best, withSigns(loadWay({want[0].node, want[1].node, want[2].node, want[3].node}), want));
    }
    keepCheaper(best, withSigns(fromHalves(want), want));
    if (isAnyHalf(swapped[0], swapped[1]) || isAnyHalf(swapped[2], swapped[3])) {
        const Way way = fromHalves(swapped);
        keepCheaper(best, withSigns(shuffled(waysOf(way), {1, 0, 3, 2}), want));
    }
    // One line is swapped and the other is not.
    for (const int line : {0, 1}) {
        const Lanes mixed =
            line == 0 ? Lanes{want[1], want[0], want[2], want[3]} : Lanes{want[0], want[1], want[3], want[2]};
        if (!isAnyHalf(mixed[0], mixed[1]) || !isAnyHalf(mixed[2], mixed[3])) continue;
        const std::vector<int> places = line == 0 ? std::vector{1, 0, 2, 3} : std::vector{0, 1, 3, 2};
        keepCheaper(best, withSigns(shuffled(waysOf(fromHalves(mixed)), places), want));
    }
    // Lanes 0 and 2 of one register with lanes 1 and 3 of another.
    for (const Home& a : homesOf(want[0].node, 4)) {
        for (const Home& b : homesOf(want[1].node, 4)) {
            const auto i = upperLane(a.number, want[2].node), j = upperLane(b.number, want[3].node);
            if (a.lane > 1 || b.lane > 1 || !i || !j) continue;
            const Way both =
                shuffled(waysOf(standingWay(a.number), standingWay(b.number)), {a.lane, b.lane + 4, *i, *j + 4});
            keepCheaper(best, withSigns(both, want));
        }
    }
    return std::move(*best);
}

// Which of lanes 2 and 3 of a register holds a node.
std::optional<int> LaneRegisters::upperLane(int number, NodeId node) const {
    for (const int lane : {2, 3}) {
        if (lanesOf(number)[static_cast<size_t>(lane)].node == node) return lane;
    }
    return std::nullopt;
}

bool LaneRegisters::isAnyHalf(Lane low, Lane high) const {
    if (!linesWith(low.node, high.node).empty()) return true;
    for (const Home& home : homesOf(low.node, 2)) {
        if (home.lane == 0 && lanesOf(home.number)[1].node == high.node) return true;
    }
    return areElement(low, high);
}

bool LaneRegisters::areElement(Lane low, Lane high) const {
    return elements == Elements::Complex && isLoad(low.node) && isLoad(high.node) && inputOf(low.node) % 2 == 0 &&
           inputOf(high.node) == inputOf(low.node) + 1;
}

// Registers of four lanes in which these two are side by side, and which half it is: those that are there, or else
// those that one shuffle makes of two that are there. Such a shuffle does the same in the other half, where the
// neighbours of the two are: in four registers of columns it is a step of their transposition.
std::vector<std::pair<Way, int>> LaneRegisters::halvesWith(NodeId low, NodeId high) const {
    std::vector<std::pair<Way, int>> found;
    for (const auto& [number, half] : linesWith(low, high)) found.emplace_back(standingWay(number), half);
    if (!found.empty()) return found;
    for (const Home& a : homesOf(low, 4)) {
        for (const Home& b : homesOf(high, 4)) {
            if (a.lane / 2 != b.lane / 2) continue;
            const int i = a.lane % 2, j = b.lane % 2;
            found.emplace_back(a.number == b.number ? shuffled(waysOf(standingWay(a.number)), {i, j, i + 2, j + 2})
                                                    : shuffled(waysOf(standingWay(a.number), standingWay(b.number)),
                                                               {i, j + 4, i + 2, j + 6}),
                               a.lane / 2);
        }
    }
    return found;
}

Way LaneRegisters::fromHalves(const Lanes& want) const {
    std::optional<Way> best;
    for (const auto& [a, aHalf] : halvesWith(want[0].node, want[1].node)) {
        for (const auto& [b, bHalf] : halvesWith(want[2].node, want[3].node)) {
            const bool isOne = a.standing >= 0 && a.standing == b.standing;
            Way both = isOne ? shuffled(waysOf(a), {2 * aHalf, 2 * aHalf + 1, 2 * bHalf, 2 * bHalf + 1})
                             : shuffled(waysOf(a, b), {2 * aHalf, 2 * aHalf + 1, 2 * bHalf + 4, 2 * bHalf + 5});
            keepCheaper(best, std::move(both));
        }
    }
    if (best && best->cost == 1) return *best;
    // Elements may be read once more while nothing is stored.
    if (isLoadMissing() && areElement(want[0], want[1]) && areElement(want[2], want[3])) {
        return loadWay({want[0].node, want[1].node, want[2].node, want[3].node});
    }
    keepCheaper(best, joined(pairWay({want[0], want[1]}), pairWay({want[2], want[3]})));
    return std::move(*best);
}

}  // namespace gen
