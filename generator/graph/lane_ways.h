// The registers that a text in lanes has at some point, and the ways from these to others.
#pragma once

#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "graph/lanes.h"

namespace gen {

// A way to a register that holds what is wanted: how many steps it takes beyond those that are done, and the steps.
// `last` is the step whose operands are the ways before it.
struct Way {
    int cost = 0;
    int standing = -1;  // a register that is there already, or
    LaneStep last{};    // the step that gives it
    std::vector<Way> before{};
    Lanes lanes{};
};

class LaneRegisters {
public:
    LaneRegisters(const Graph& source, Elements inputElements);

    // A new register. It is open while the step that gives it waits for signs: any lanes of it can still be minus what
    // they are now.
    int add(Lanes lanes, bool open);
    void close(int number, Lanes lanes);
    bool isOpen(int number) const { return open[static_cast<std::size_t>(number)]; }
    const Lanes& lanesOf(int number) const { return registers[static_cast<std::size_t>(number)]; }
    const std::vector<Lanes>& all() const { return registers; }

    bool isLoad(NodeId id) const { return graph.node(id).kind == Kind::Load; }
    bool isAnywhere(NodeId id) const { return !homes[id].empty(); }
    // Loads come before stores: when no load is missing, nothing is loaded any more.
    bool isLoadMissing() const { return missingLoads > 0; }
    // The first input that is in no register yet.
    NodeId missingLoad() const;

    // Where a lane of a register holds a node.
    struct Home {
        int number;
        int lane;
    };
    // In registers of so many lanes, the latest first.
    std::vector<Home> homesOf(NodeId node, std::size_t width) const;
    // Registers of four lanes that hold these two nodes side by side, and which half it is.
    std::vector<std::pair<int, int>> linesWith(NodeId low, NodeId high) const;

    // The cheapest way to these lanes.
    Way way(const Lanes& want) const;
    // This register with the signs that are wanted.
    Way standingWay(int number, const Lanes& want) const { return withSigns(standingWay(number), want); }
    // The way to one input or, where it is a part of one, to its element.
    Way elementWay(NodeId load) const;

private:
    Way standingWay(int number) const { return {.standing = number, .lanes = lanesOf(number)}; }
    Way stepWay(LaneStep step, std::vector<Way> before, Lanes lanes) const;
    Way loadWay(const std::vector<NodeId>& nodes) const;
    Way withSigns(Way way, const Lanes& want) const;
    bool absorb(Way& way, const Lanes& want) const;
    Way shuffled(std::vector<Way> before, std::vector<int> places) const;
    Way joined(Way low, Way high) const;
    Way part(Way whole, int half) const;

    Way singleWay(const Lanes& want) const;
    Way pairWay(const Lanes& want) const;
    Way linesWay(const Lanes& want) const;
    Way fromHalves(const Lanes& want) const;
    std::vector<std::pair<Way, int>> pairsWith(NodeId node) const;
    std::vector<std::pair<Way, int>> halvesWith(NodeId low, NodeId high) const;
    std::optional<int> upperLane(int number, NodeId node) const;
    bool isAnyHalf(Lane low, Lane high) const;
    bool areElement(Lane low, Lane high) const;
    bool areRealLoads(const Lanes& lanes) const;
    int inputOf(NodeId load) const { return graph.node(load).input; }

    const Graph& graph;
    Elements elements;
    std::vector<Lanes> registers;
    std::vector<bool> open;
    PerNode<std::vector<Home>> homes;
    std::map<int, NodeId> loads;  // by input
    std::size_t missingLoads = 0;
};

}  // namespace gen
