#include "graph/lines.h"

#include <algorithm>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

namespace gen {
namespace {

using std::size_t;

class Matching {
public:
    explicit Matching(const Graph& source)
        : graph(source), blocks(source.blocks().size()), other(source.nodes().size()) {
        const PerNode<bool> alive = graph.alive();
        for (const Pair& pair : graph.pairs()) {
            if (!alive[pair.re] || !alive[pair.im] || isLoad(pair.re)) continue;
            steps.push_back(pair);
            own(graph.node(pair.re).block).steps.push_back(pair);
        }
        for (size_t i = 1; i < graph.blocks().size(); ++i) own(graph.blocks()[i].outer).children.push_back(BlockId(i));
    }

    std::vector<Group> groups() {
        matchChildren(BlockId{});
        matchTheRest();
        std::vector<Group> result;
        for (const Pair& pair : steps) {
            const std::optional<Pair>& mate = other[pair.re];
            if (!mate) {
                result.push_back({pair.re, pair.im});
            } else if (pair.re < mate->re) {
                result.push_back({pair.re, pair.im, mate->re, mate->im});
            }
        }
        return result;
    }

private:
    struct Inside {
        std::vector<Pair> steps;  // of a block itself, in their order
        std::vector<BlockId> children;
    };

    Inside& own(BlockId block) { return blocks[static_cast<size_t>(block)]; }
    bool isLoad(NodeId id) const { return graph.node(id).kind == Kind::Load; }

    // Matches the lines inside a block that is not matched itself.
    void matchChildren(BlockId block) {
        std::vector<BlockId> left = own(block).children;
        while (!left.empty()) {
            const BlockId first = left.front();
            std::vector<BlockId> same, rest;
            for (BlockId child : left) {
                (graph.block(child).isInstanceOfSame(graph.block(first)) ? same : rest).push_back(child);
            }
            matchLines(same);
            left = rest;
        }
    }

    // Takes lines together: first those whose inputs have the most steps in common.
    void matchLines(std::vector<BlockId> lines) {
        while (lines.size() > 1) {
            size_t bestA = 0, bestB = 1;
            int best = -1;
            for (size_t a = 0; a < lines.size(); ++a) {
                for (size_t b = a + 1; b < lines.size(); ++b) {
                    const int score = matched(lines[a], lines[b], false);
                    if (score > best) std::tie(best, bestA, bestB) = std::tuple(score, a, b);
                }
            }
            matched(lines[bestA], lines[bestB], true);
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(bestB));
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(bestA));
        }
        if (lines.size() == 1) matchChildren(lines[0]);
    }

    // Matches the steps of two lines and what leads to them, and tells how many there are. If it is not to be kept, the
    // matching is undone.
    int matched(BlockId a, BlockId b, bool isKept) {
        const size_t before = journal.size();
        matchInside(a, b);
        followOperands(before);
        const auto count = static_cast<int>(journal.size() - before);
        if (!isKept) {
            for (; journal.size() > before; journal.pop_back()) {
                for (const Pair& pair : {journal.back().first, journal.back().second}) {
                    other[pair.re] = other[pair.im] = std::nullopt;
                }
            }
        }
        return count;
    }

    // Matches what leads to the matches that are in the journal from this place on.
    void followOperands(size_t first) {
        for (size_t i = first; i < journal.size(); ++i) matchOperands(journal[i].first, journal[i].second);
    }

    void matchInside(BlockId a, BlockId b) {
        const Inside &x = own(a), &y = own(b);
        if (x.steps.size() == y.steps.size()) {
            for (size_t i = 0; i < x.steps.size(); ++i) match(x.steps[i], y.steps[i]);
        }
        if (x.children.size() != y.children.size()) return;
        for (size_t i = 0; i < x.children.size(); ++i) matchInside(x.children[i], y.children[i]);
    }

    bool match(const Pair& a, const Pair& b) {
        const auto isProduct = [&](const Pair& pair) { return graph.node(pair.re).kind == Kind::Scaled; };
        if (a.re == b.re || other[a.re] || other[b.re] || isProduct(a) != isProduct(b)) return false;
        other[a.re] = other[a.im] = b;
        other[b.re] = other[b.im] = a;
        journal.emplace_back(a, b);
        return true;
    }

    std::optional<Pair> stepPair(NodeId id) const {
        const auto pair = graph.pairOf(id);
        return pair && !isLoad(id) ? pair : std::nullopt;
    }

    // What two matched steps take is matched where it is not yet, in the order in which it is taken, or else crosswise.
    void matchOperands(const Pair& a, const Pair& b) {
        const Node x = graph.node(a.re), y = graph.node(b.re);
        const auto matchTwo = [&](NodeId first, NodeId second) {
            const auto p = stepPair(first), q = stepPair(second);
            return p && q && isBetweenStages(*p) && isBetweenStages(*q) && match(*p, *q);
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
        std::map<std::pair<BlockId, Twiddle>, Pair> waiting;
        for (auto pair = steps.rbegin(); pair != steps.rend(); ++pair) {
            if (other[pair->re] || !isBetweenStages(*pair)) continue;
            const std::optional<Twiddle> form = formOf(*pair);
            if (!form) continue;
            const auto [mate, isFirst] = waiting.try_emplace({graph.node(pair->re).block, *form}, *pair);
            if (isFirst) continue;
            const size_t before = journal.size();
            match(mate->second, *pair);
            followOperands(before);
            waiting.erase(mate);
        }
    }

    // A twiddle factor is a sum of two products. Those of an eighth of a turn are the two of one pair.
    enum class Twiddle { General, Eighth };

    // None if a step is no twiddle factor, or if its products have mates already.
    std::optional<Twiddle> formOf(const Pair& pair) const {
        const Node& node = graph.node(pair.re);
        if (node.kind != Kind::Add && node.kind != Kind::Sub) return std::nullopt;
        for (NodeId operand : operands(node)) {
            const auto taken = stepPair(operand);
            if (!taken || other[taken->re] || graph.node(operand).kind != Kind::Scaled) return std::nullopt;
        }
        return graph.pairOf(node.a)->re == graph.pairOf(node.b)->re ? Twiddle::Eighth : Twiddle::General;
    }

    // Whether a step belongs to a block that has blocks inside: it leads from one stage to the next.
    bool isBetweenStages(const Pair& pair) const {
        return !blocks[static_cast<size_t>(graph.node(pair.re).block)].children.empty();
    }

    const Graph& graph;
    std::vector<Pair> steps;
    std::vector<Inside> blocks;
    PerNode<std::optional<Pair>> other;  // the step of the other line
    std::vector<std::pair<Pair, Pair>> journal;
};

}  // namespace

std::vector<Group> groupsOfLines(const Graph& graph) { return Matching(graph).groups(); }

}  // namespace gen
