#include "graph/lines.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

#include "graph/edges.h"

namespace gen {
namespace {

using std::size_t;

// A line, or two that are taken together already: one block of each.
using Line = std::vector<BlockId>;

class Matching {
public:
    Matching(const Graph& source, size_t lanes, Arrays arrays, Mates preferred)
        : graph(source), width(lanes), blocks(source.blocks().size()), mates(source.blocks().size()) {
        if (preferred == Mates::Neighbours) listElements(arrays);
        for (size_t i = 1; i < graph.blocks().size(); ++i) own(graph.blocks()[i].outer).children.push_back(BlockId(i));
        std::vector<Group> pairs;
        for (const Pair& pair : graph.pairs()) pairs.push_back({pair.re, pair.im});
        const Units units(graph, std::move(pairs));
        for (size_t unit = 0; unit < units.count(); ++unit) {
            if (!isLoad(units.nodes(unit)[0])) strands.push_back(units.nodes(unit));
        }
        begin();
        takeApart(BlockId{});
        std::ranges::sort(strands, {}, [](const Group& strand) { return strand[0]; });
    }

    std::vector<Group> groups() {
        for (size_t round = 2; round <= width; round *= 2) {
            begin();
            matchChildren({BlockId{}});
            matchTheRest();
            end();
        }
        std::erase_if(strands, [](const Group& strand) { return strand.size() == 1; });
        takeEdgesTogether(graph, width, strands);
        return strands;
    }

private:
    static constexpr size_t none = static_cast<size_t>(-1);
    using Strand = size_t;  // the number of a group

    struct Inside {
        std::vector<Strand> steps;  // that begin in a block itself, in their order
        std::vector<BlockId> children;
        std::set<int> inputs, outputs;  // complex elements, where neighbours are preferred
    };

    Inside& own(BlockId block) { return blocks[static_cast<size_t>(block)]; }
    std::optional<BlockId>& mate(BlockId block) { return mates[static_cast<size_t>(block)]; }
    bool isLoad(NodeId id) const { return graph.node(id).kind == Kind::Load; }
    const Node& first(Strand strand) const { return graph.node(strands[strand][0]); }

    // The complex elements that each block takes and gives.
    void listElements(Arrays arrays) {
        const auto list = [&](NodeId at, std::set<int> Inside::*elements, int place) {
            for (BlockId block : graph.blocksAround(at)) (own(block).*elements).insert(place / 2);
        };
        if (arrays.inputs == Elements::Complex) {
            for (NodeId id : graph.aliveNodes()) {
                for (NodeId operand : operands(graph.node(id))) {
                    if (isLoad(operand)) list(id, &Inside::inputs, graph.node(operand).input);
                }
            }
        }
        if (arrays.outputs == Elements::Complex) {
            for (const Output& output : graph.outputs()) list(output.node, &Inside::outputs, output.place);
        }
    }

    // How many elements of a line are followed in memory by one of another line.
    int neighbours(const Line& line, const Line& next) {
        const auto followed = [](const std::set<int>& elements, const std::set<int>& others) {
            return static_cast<int>(
                std::ranges::count_if(elements, [&](int element) { return others.contains(element + 1); }));
        };
        const Inside &a = own(line[0]), &b = own(next[0]);
        return followed(a.inputs, b.inputs) + followed(a.outputs, b.outputs);
    }

    // Two lines, by their places, of which the second one follows the first one in memory at the most elements. The
    // first to be chosen are those with the fewest lines to choose from, so that few are left over in the end.
    std::optional<std::pair<size_t, size_t>> nextNeighbours(const std::vector<Line>& lines) {
        std::vector<std::pair<size_t, size_t>> edges;
        int most = 1;
        for (size_t a = 0; a < lines.size(); ++a) {
            for (size_t b = 0; b < lines.size(); ++b) {
                if (a == b) continue;
                const int count = neighbours(lines[a], lines[b]);
                if (count > most) edges.clear();
                if (count >= most) edges.emplace_back(a, b);
                most = std::max(most, count);
            }
        }
        if (edges.empty()) return std::nullopt;
        const auto choices = [&](size_t line) {
            return std::ranges::count_if(edges,
                                         [&](const auto& edge) { return edge.first == line || edge.second == line; });
        };
        return *std::ranges::min_element(
            edges, {}, [&](const auto& edge) { return std::min(choices(edge.first), choices(edge.second)); });
    }

    // Lines inside this one that may be the same: those of one kind and length.
    std::vector<std::vector<Line>> kindsOfLines(const Line& outer) {
        return byKey(linesInside(outer), [&](const Line& line) {
            const Block& block = graph.block(line[0]);
            return std::tuple(line.size(), block.kind, block.length, block.stride);
        });
    }

    // Lines with the same key are together, in the order of the first ones.
    template <class Key>
    static std::vector<std::vector<Line>> byKey(const std::vector<Line>& lines, const Key& key) {
        std::vector<std::vector<Line>> parts;
        for (const Line& line : lines) {
            const auto part = std::ranges::find_if(parts, [&](const auto& same) { return key(same[0]) == key(line); });
            if (part == parts.end()) {
                parts.push_back({line});
            } else {
                part->push_back(line);
            }
        }
        return parts;
    }

    // Where lines of single values fill registers, their pairs are taken apart: the parts of complex values are in
    // registers of their own then, and a turn is no shuffle.
    void takeApart(BlockId outer) {
        const std::map<BlockId, int> stage = stages(outer);
        for (const std::vector<Line>& kind : kindsOfLines({outer})) {
            for (const std::vector<Line>& same : byKey(kind, [&](const Line& line) { return stage.at(line[0]); })) {
                const size_t filling = hasSingles(same[0][0]) ? same.size() / width * width : 0;
                for (size_t i = 0; i < same.size(); ++i) {
                    if (i < filling) {
                        takeAllApart(same[i][0]);
                    } else {
                        takeApart(same[i][0]);
                    }
                }
            }
        }
    }

    bool hasSingles(BlockId block) {
        const Inside& inside = own(block);
        return std::ranges::any_of(inside.steps, [&](Strand strand) { return strands[strand].size() == 1; }) ||
               std::ranges::any_of(inside.children, [&](BlockId child) { return hasSingles(child); });
    }

    void takeAllApart(BlockId block) {
        for (Strand strand : own(block).steps) {
            if (strands[strand].size() == 1) continue;
            strands.push_back({strands[strand][1]});
            strands[strand].pop_back();
        }
        for (BlockId child : own(block).children) takeAllApart(child);
    }

    // Each round takes groups of the round before together.
    void begin() {
        strandOf = PerNode<Strand>(graph.nodes().size(), none);
        other.assign(strands.size(), none);
        for (Inside& inside : blocks) inside.steps.clear();
        for (Strand strand = 0; strand < strands.size(); ++strand) {
            for (NodeId id : strands[strand]) strandOf[id] = strand;
            own(first(strand).block).steps.push_back(strand);
        }
        journal.clear();
        couples.clear();
    }

    void end() {
        for (const auto& [first, second] : journal) {
            strands[first].insert(strands[first].end(), strands[second].begin(), strands[second].end());
            strands[second].clear();
        }
        std::erase_if(strands, [](const Group& strand) { return strand.empty(); });
        for (const auto& [first, second] : couples) {
            mate(first) = second;
            mate(second) = first;
        }
    }

    // A block without steps of its own and with one block inside is no other line than that block.
    BlockId lineOf(BlockId block) {
        while (own(block).steps.empty() && own(block).children.size() == 1) block = own(block).children[0];
        return block;
    }

    // The lines inside one: in the second round those that were taken together are one.
    std::vector<Line> linesInside(const Line& line) {
        std::vector<Line> lines;
        for (BlockId block : own(line[0]).children) {
            const BlockId child = lineOf(block);
            if (const auto second = mate(child); !second) {
                lines.push_back({child});
            } else if (child < *second) {
                lines.push_back({child, *second});
            }
        }
        return lines;
    }

    // Matches the lines inside a line that is not matched itself: those of one stage that are instances of one block,
    // then what is left over with other multipliers, then in several stages.
    void matchChildren(const Line& outer) {
        const std::map<BlockId, int> stage = stages(outer[0]);
        const auto multiplier = [&](const Line& line) { return graph.block(line[0]).multiplier; };
        for (std::vector<Line> left : kindsOfLines(outer)) {
            left = matchByKey(left, [&](const Line& line) { return std::pair(stage.at(line[0]), multiplier(line)); });
            left = matchByKey(left, [&](const Line& line) { return stage.at(line[0]); });
            left = matchLines(left);
            for (const Line& line : left) matchChildren(line);
        }
    }

    // Takes lines with the same key together. Returns those that are left over.
    template <class Key>
    std::vector<Line> matchByKey(const std::vector<Line>& lines, const Key& key) {
        std::vector<Line> left;
        for (const std::vector<Line>& same : byKey(lines, key)) {
            const std::vector<Line> single = matchLines(same);
            left.insert(left.end(), single.begin(), single.end());
        }
        return left;
    }

    // Of each block inside this one, how many others come before it, each of which takes values from the one before.
    std::map<BlockId, int> stages(BlockId outer) {
        std::map<BlockId, int> stage;
        for (BlockId child : own(outer).children) stage[child] = 0;
        const auto childOf = [&](BlockId block) {
            while (block != BlockId{} && graph.block(block).outer != outer) block = graph.block(block).outer;
            return block;
        };
        PerNode<int> depth(graph.nodes().size(), 0);
        for (NodeId id : graph.aliveNodes()) {
            const BlockId child = childOf(graph.node(id).block);
            for (NodeId operand : operands(graph.node(id))) {
                const BlockId from = childOf(graph.node(operand).block);
                const bool isNext = from != child && stage.contains(from);
                depth[id] = std::max(depth[id], depth[operand] + (isNext ? 1 : 0));
            }
            if (stage.contains(child)) stage[child] = std::max(stage[child], depth[id]);
        }
        for (BlockId child : own(outer).children) stage[lineOf(child)] = stage[child];
        return stage;
    }

    // Takes lines together: first neighbours, then those whose inputs have the most steps in common. Returns those that
    // are left over.
    std::vector<Line> matchLines(std::vector<Line> lines) {
        const auto take = [&](size_t a, size_t b) {
            matched(lines[a][0], lines[b][0], true);
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(std::max(a, b)));
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(std::min(a, b)));
        };
        while (lines.size() > 1) {
            if (const auto next = nextNeighbours(lines);
                next && matched(lines[next->first][0], lines[next->second][0], false) > 0) {
                take(next->first, next->second);
                continue;
            }
            size_t bestA = 0, bestB = 0;
            int best = 0;
            for (size_t a = 0; a < lines.size(); ++a) {
                for (size_t b = a + 1; b < lines.size(); ++b) {
                    const int score = matched(lines[a][0], lines[b][0], false);
                    if (score > best) std::tie(best, bestA, bestB) = std::tuple(score, a, b);
                }
            }
            if (best == 0) break;
            take(bestA, bestB);
        }
        return lines;
    }

    // Matches the steps of two lines and what leads to them, and tells how many there are. If it is not to be kept, the
    // matching is undone.
    int matched(BlockId a, BlockId b, bool isKept) {
        const size_t before = journal.size();
        matchInside(a, b, isKept);
        followOperands(before);
        const auto count = static_cast<int>(journal.size() - before);
        if (!isKept) {
            for (; journal.size() > before; journal.pop_back()) {
                other[journal.back().first] = other[journal.back().second] = none;
            }
        }
        return count;
    }

    // Matches what leads to the matches that are in the journal from this place on.
    void followOperands(size_t from) {
        for (size_t i = from; i < journal.size(); ++i) matchOperands(journal[i].first, journal[i].second);
    }

    void matchInside(BlockId a, BlockId b, bool isKept) {
        const Inside &x = own(a), &y = own(b);
        if (isKept && !mate(a)) couples.emplace_back(a, b);
        if (x.steps.size() == y.steps.size()) {
            for (size_t i = 0; i < x.steps.size(); ++i) match(x.steps[i], y.steps[i]);
        }
        if (x.children.size() != y.children.size()) return;
        for (size_t i = 0; i < x.children.size(); ++i) matchInside(x.children[i], y.children[i], isKept);
    }

    bool match(Strand a, Strand b) {
        const auto isProduct = [&](Strand strand) { return first(strand).kind == Kind::Scaled; };
        if (a == b || other[a] != none || other[b] != none || isProduct(a) != isProduct(b)) return false;
        if (strands[a].size() != strands[b].size() || 2 * strands[a].size() > width) return false;
        other[a] = b;
        other[b] = a;
        journal.emplace_back(a, b);
        return true;
    }

    // What two matched steps take is matched where it is not yet, in the order in which it is taken, or else crosswise.
    void matchOperands(Strand a, Strand b) {
        const Node x = first(a), y = first(b);
        const auto matchTwo = [&](NodeId p, NodeId q) {
            return !isLoad(p) && !isLoad(q) && isBetweenStages(strandOf[p]) && isBetweenStages(strandOf[q]) &&
                   match(strandOf[p], strandOf[q]);
        };
        if (x.kind == Kind::Scaled) {
            matchTwo(x.a, y.a);
            return;
        }
        if (!matchTwo(x.a, y.a)) matchTwo(x.a, y.b);
        if (!matchTwo(x.b, y.b)) matchTwo(x.b, y.a);
    }

    // Twiddle factors whose lines have no mate, or a mate without them: two of the same form are taken together.
    void matchTheRest() {
        std::map<std::pair<BlockId, Twiddle>, Strand> waiting;
        for (Strand strand = strands.size(); strand-- > 0;) {
            if (other[strand] != none || !isBetweenStages(strand)) continue;
            const std::optional<Twiddle> form = formOf(strand);
            if (!form) continue;
            const auto [mate, isNew] = waiting.try_emplace({first(strand).block, *form}, strand);
            if (isNew) continue;
            const size_t before = journal.size();
            match(mate->second, strand);
            followOperands(before);
            waiting.erase(mate);
        }
    }

    // A twiddle factor is a sum of two products. Those of an eighth of a turn are the two of one pair.
    enum class Twiddle { General, Eighth };

    // None if a step is no twiddle factor, or if its products have mates already.
    std::optional<Twiddle> formOf(Strand strand) const {
        const Node& node = first(strand);
        if (strands[strand].size() != 2 || (node.kind != Kind::Add && node.kind != Kind::Sub)) return std::nullopt;
        for (NodeId operand : operands(node)) {
            if (graph.node(operand).kind != Kind::Scaled) return std::nullopt;
            const Strand taken = strandOf[operand];
            if (strands[taken].size() != 2 || other[taken] != none) return std::nullopt;
        }
        return strandOf[node.a] == strandOf[node.b] ? Twiddle::Eighth : Twiddle::General;
    }

    // Whether a step belongs to a block that has blocks inside: it leads from one stage to the next.
    bool isBetweenStages(Strand strand) const {
        return !blocks[static_cast<size_t>(first(strand).block)].children.empty();
    }

    const Graph& graph;
    size_t width;
    std::vector<Group> strands;
    std::vector<Inside> blocks;
    std::vector<std::optional<BlockId>> mates;  // the line that one was taken together with in an earlier round
    PerNode<Strand> strandOf;
    std::vector<Strand> other;  // what a group is taken together with in this round
    std::vector<std::pair<Strand, Strand>> journal;
    std::vector<std::pair<BlockId, BlockId>> couples;  // lines that are taken together in this round
};

}  // namespace

std::vector<Group> groupsOfLines(const Graph& graph, size_t lanes, Arrays arrays, Mates mates) {
    return Matching(graph, lanes, arrays, mates).groups();
}

}  // namespace gen
