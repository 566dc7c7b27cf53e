#include "graph/lanes.h"

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <utility>

#include "graph/lane_ways.h"

namespace gen {
namespace {

using Kind = LaneStep::Kind;
using std::size_t;

class Builder {
public:
    Builder(const Graph& source, const Units& sourceUnits, Arrays arrays, Mates mates)
        : graph(source), units(sourceUnits), registers(source, arrays.inputs), outputs(arrays.outputs) {
        for (const Output& output : graph.outputs()) {
            const int element = outputs == Elements::Complex ? output.place / 2 * 2 : output.place;
            waiting[element].push_back({output.node, output.minus});
        }
        if (mates == Mates::Neighbours && outputs == Elements::Complex) findNeighbours();
    }

    LaneProgram run(Order order) {
        for (size_t unit : orderOf(units, order)) {
            add(units.nodes(unit));
            if (!registers.isLoadMissing()) storeWhatIsDone();
        }
        while (registers.isLoadMissing()) done(registers.elementWay(registers.missingLoad()));
        storeWhatIsDone();
        if (!waiting.empty()) throw std::logic_error("an output is never computed");
        return {std::move(steps), registers.all()};
    }

private:
    int add(LaneStep step, Lanes lanes) {
        step.result = registers.add(std::move(lanes), false);
        steps.push_back(std::move(step));
        return steps.back().result;
    }

    // Does the steps of a way.
    int done(const Way& way) {
        if (way.standing >= 0) {
            settle(way.standing, way.lanes);
            // The product may have been settled with other signs since the way was found.
            if (registers.lanesOf(way.standing) != way.lanes) {
                return done(registers.standingWay(way.standing, way.lanes));
            }
            return way.standing;
        }
        LaneStep step = way.last;
        std::vector<int> operands;
        for (const Way& before : way.before) operands.push_back(done(before));
        if (!operands.empty()) step.a = operands[0];
        if (operands.size() > 1) step.b = operands[1];
        return add(std::move(step), way.lanes);
    }

    // Products wait for the signs with which they are first taken.
    void settle(int number, const Lanes& lanes) {
        if (!registers.isOpen(number)) return;
        registers.close(number, lanes);
        Lanes operand;
        for (const Lane& lane : lanes) operand.push_back({graph.node(lane.node).a});
        // Any signs of the operand will do.
        Way from = registers.way(operand);
        if (from.standing < 0 && from.last.kind == Kind::Flip) from = Way(from.before[0]);
        LaneStep step{.kind = Kind::Scaled, .result = number};
        step.a = done(from);
        for (size_t i = 0; i < lanes.size(); ++i) {
            const bool minus = lanes[i].minus != registers.lanesOf(step.a)[i].minus;
            step.factors.push_back({graph.node(lanes[i].node).constant, minus});
        }
        step.block = graph.node(lanes[0].node).block;
        steps.push_back(std::move(step));
    }

    void add(const std::vector<NodeId>& group) {
        if (registers.isLoad(group[0])) return;
        Lanes lanes;
        for (NodeId id : group) lanes.push_back({id});
        if (graph.node(group[0]).kind == gen::Kind::Scaled) {
            registers.add(std::move(lanes), true);
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
                Way wayA = registers.way(a), wayB = registers.way(b);
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
        step.b = done(registers.way(best->second.lanes));
        add(std::move(step), lanes);
    }

    // Outputs that are stored by one step: their numbers, and the lanes.
    struct Stored {
        std::vector<int> numbers;
        Lanes lanes;
    };

    // Where an output element is: in which half of which group of two lines.
    struct Half {
        std::size_t unit;
        std::size_t lane;
    };
    std::optional<Half> halfOf(const Lanes& element) const {
        if (element.size() != 2) return std::nullopt;
        const size_t unit = units.of(element[0].node);
        const std::vector<NodeId>& nodes = units.nodes(unit);
        for (const size_t lane : {0u, 2u}) {
            if (nodes.size() == 4 && nodes[lane] == element[0].node && nodes[lane + 1] == element[1].node) {
                return Half{unit, lane};
            }
        }
        return std::nullopt;
    }

    // The two lines of a group: the outermost blocks that hold one half of it and not the other. No blocks if there are
    // none.
    std::pair<BlockId, BlockId> linesOf(size_t unit) const {
        const std::vector<NodeId>& nodes = units.nodes(unit);
        const std::vector<BlockId> around[] = {graph.blocksAround(nodes[0]), graph.blocksAround(nodes[2])};
        const auto [a, b] = std::ranges::mismatch(around[0], around[1]);
        if (a == around[0].end() || b == around[1].end()) return {};
        return {*a, *b};
    }

    // Elements that follow each other in memory are stored at once where two lines hold them, the first one in the low
    // half of a register and the next one in the high half of this register or of another.
    void findNeighbours() {
        for (auto low = waiting.begin(); low != waiting.end(); ++low) {
            const auto high = waiting.find(low->first + 2);
            if (high == waiting.end() || neighbours.contains(low->first)) continue;
            const std::optional<Half> a = halfOf(low->second), b = halfOf(high->second);
            if (!a || !b || a->lane != 0 || b->lane != 2) continue;
            const auto lines = linesOf(a->unit);
            if (lines.first == BlockId{} || lines != linesOf(b->unit)) continue;
            neighbours[low->first] = high->first;
            neighbours[high->first] = low->first;
        }
    }

    bool isDone(const Lanes& lanes) const {
        return std::ranges::all_of(lanes, [&](const Lane& lane) { return registers.isAnywhere(lane.node); });
    }

    // Stores the outputs that are known: several elements at once where one register holds them.
    void storeWhatIsDone() {
        for (auto next = waiting.begin(); next != waiting.end(); next = waiting.begin()) {
            while (next != waiting.end() && !canBeStored(*next)) ++next;
            if (next == waiting.end()) return;
            const Stored stored = outputs == Elements::Complex ? elementsWith(next) : realsWith(next);
            for (int number : stored.numbers) waiting.erase(number);
            LaneStep step{.kind = Kind::Store, .numbers = stored.numbers};
            Way way = registers.way(stored.lanes);
            if (way.standing < 0 && way.last.kind == Kind::Flip) {
                step.flips = way.last.flips;
                way = Way(way.before[0]);
            }
            step.a = done(way);
            steps.push_back(std::move(step));
        }
    }

    bool canBeStored(const std::pair<const int, Lanes>& element) const {
        if (!isDone(element.second)) return false;
        const auto neighbour = neighbours.find(element.first);
        return neighbour == neighbours.end() || isDone(waiting.at(neighbour->second));
    }

    using Waiting = std::map<int, Lanes>;  // elements that are not stored yet, by the number of their first output

    static Stored numbered(const std::vector<Waiting::const_iterator>& elements) {
        Stored stored;
        for (const auto& element : elements) {
            for (size_t i = 0; i < element->second.size(); ++i) {
                stored.numbers.push_back(element->first + static_cast<int>(i));
                stored.lanes.push_back(element->second[i]);
            }
        }
        return stored;
    }

    // A complex element, with its neighbour, or else with that of the other line where both are in one register.
    Stored elementsWith(Waiting::const_iterator element) const {
        if (element->second.size() == 1) return numbered({element});
        if (const auto neighbour = neighbours.find(element->first); neighbour != neighbours.end()) {
            const auto mate = waiting.find(neighbour->second);
            return mate->first > element->first ? numbered({element, mate}) : numbered({mate, element});
        }
        const NodeId re = element->second[0].node, im = element->second[1].node;
        if (const auto lines = registers.linesWith(re, im); !lines.empty()) {
            const auto [number, half] = lines[0];
            const auto at = static_cast<size_t>(half == 0 ? 2 : 0);
            const Lanes& all = registers.lanesOf(number);
            const auto other = std::ranges::find_if(waiting, [&](const auto& item) {
                return item.second.size() == 2 && !neighbours.contains(item.first) &&
                       item.second[0].node == all[at].node && item.second[1].node == all[at + 1].node;
            });
            if (other != waiting.end()) {
                const Waiting::const_iterator mate = other;
                return half == 0 ? numbered({element, mate}) : numbered({mate, element});
            }
        }
        return numbered({element});
    }

    // A real number, with all others in the widest register of which every lane is an output.
    Stored realsWith(Waiting::const_iterator real) const {
        for (const size_t width : {4u, 2u}) {
            for (const auto& home : registers.homesOf(real->second[0].node, width)) {
                std::vector<Waiting::const_iterator> found;
                for (const Lane& lane : registers.lanesOf(home.number)) {
                    const auto place = std::ranges::find_if(
                        waiting, [&](const auto& item) { return item.second[0].node == lane.node; });
                    if (place != waiting.end()) found.push_back(place);
                }
                if (found.size() == width) return numbered(found);
            }
        }
        return numbered({real});
    }

    const Graph& graph;
    const Units& units;
    LaneRegisters registers;
    std::vector<LaneStep> steps;
    Elements outputs;
    Waiting waiting;
    std::map<int, int> neighbours;  // of elements that are stored with the one before or after them
};

}  // namespace

LaneProgram inLanes(const Graph& graph, const Units& units, Arrays arrays, Mates mates, Order order) {
    return Builder(graph, units, arrays, mates).run(order);
}

}  // namespace gen
