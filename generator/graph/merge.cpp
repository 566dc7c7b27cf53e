#include "graph/merge.h"

#include <utility>

namespace gen {
namespace {

// One pass over a graph, which copies what the outputs need into a new graph and rewrites it on the way.
class Pass {
public:
    explicit Pass(const Graph& source)
        : old(source), uses(countUses(source)), copies(source.nodes().size()), steps(source.nodes().size()) {}

    std::pair<std::unique_ptr<Graph>, bool> run() {
        fresh->takeBlocksOf(old);
        for (NodeId id : old.aliveNodes()) {
            fresh->continueBlock(old.node(id).block);
            const Recording recording(*fresh);
            copies[id] = copy(old.node(id));
            steps[id] = recording.steps();
        }
        for (const Pair& pair : old.pairs()) pairInOrder(*fresh, steps[pair.re], steps[pair.im]);
        for (const Output& output : old.outputs()) {
            const Value value = copies[output.node];
            fresh->store(output.place, output.minus ? -value : value);
        }
        return {std::move(fresh), changed};
    }

private:
    static PerNode<int> countUses(const Graph& graph) {
        PerNode<int> uses(graph.nodes().size(), 0);
        for (NodeId id : graph.aliveNodes()) {
            for (NodeId operand : operands(graph.node(id))) ++uses[operand];
        }
        for (const Output& output : graph.outputs()) ++uses[output.node];
        return uses;
    }

    bool isLoneProduct(NodeId id) const { return old.node(id).kind == Kind::Scaled && uses[id] == 1; }

    // (outer d) * x, where the inner product is d * x.
    Value mergedProduct(const Constant& outer, const Node& inner) {
        const Constant& factor = old.constant(inner.constant);
        return Coefficient{outer.exact * factor.exact, outer.origin + " times " + factor.origin} * copies[inner.a];
    }

    Value copy(const Node& x) {
        if (x.kind != Kind::Scaled) return fresh->copy(old, x, copies);
        const Constant& outer = old.constant(x.constant);
        const Node& inner = old.node(x.a);
        if (isLoneProduct(x.a)) {
            changed = true;
            return mergedProduct(outer, inner);
        }
        const bool isSum = inner.kind == Kind::Add || inner.kind == Kind::Sub;
        if (isSum && uses[x.a] == 1 && isLoneProduct(inner.a) && isLoneProduct(inner.b)) {
            changed = true;
            const Value left = mergedProduct(outer, old.node(inner.a)), right = mergedProduct(outer, old.node(inner.b));
            return inner.kind == Kind::Add ? left + right : left - right;
        }
        return fresh->copy(old, x, copies);
    }

    const Graph& old;
    PerNode<int> uses;
    PerNode<Value> copies;
    PerNode<std::vector<NodeId>> steps;  // that have taken the place of a node
    std::unique_ptr<Graph> fresh = std::make_unique<Graph>();
    bool changed = false;
};

}  // namespace

std::unique_ptr<Graph> merged(std::unique_ptr<Graph> graph) {
    for (bool changed = true; changed;) std::tie(graph, changed) = Pass(*graph).run();
    return graph;
}

}  // namespace gen
