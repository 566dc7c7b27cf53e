#include "graph/merge.h"

#include <utility>

namespace gen {
namespace {

// One pass over a graph, which copies what the outputs need into a new graph and rewrites it on the way.
class Pass {
public:
    explicit Pass(const Graph& source) : old(source), uses(countUses(source)), copies(source.nodes().size()) {}

    std::pair<std::unique_ptr<Graph>, bool> run() {
        const std::vector<bool> needed = old.alive();
        fresh->takeBlocksOf(old);
        for (std::size_t i = 0; i < needed.size(); ++i) {
            if (!needed[i]) continue;
            fresh->continueBlock(old.nodes()[i].title);
            copies[i] = copy(old.nodes()[i]);
        }
        for (const Output& output : old.outputs()) {
            const Value value = copyOf(output.node);
            fresh->store(output.place, output.minus ? -value : value);
        }
        return {std::move(fresh), changed};
    }

private:
    static std::vector<int> countUses(const Graph& graph) {
        std::vector<int> uses(graph.nodes().size(), 0);
        const std::vector<bool> needed = graph.alive();
        for (std::size_t i = 0; i < needed.size(); ++i) {
            const Node& node = graph.nodes()[i];
            if (!needed[i] || node.kind == Kind::Load) continue;
            ++uses[static_cast<std::size_t>(node.a)];
            if (node.kind != Kind::Mul) ++uses[static_cast<std::size_t>(node.b)];
        }
        for (const Output& output : graph.outputs()) ++uses[static_cast<std::size_t>(output.node)];
        return uses;
    }

    const Node& node(int number) const { return old.nodes()[static_cast<std::size_t>(number)]; }
    const Constant& constant(int number) const { return old.constants()[static_cast<std::size_t>(number)]; }
    Value copyOf(int number) const { return copies[static_cast<std::size_t>(number)]; }
    bool isLoneProduct(int number) const {
        return node(number).kind == Kind::Mul && uses[static_cast<std::size_t>(number)] == 1;
    }

    // (outer d) * x, where the inner product is d * x.
    Value mergedProduct(const Constant& outer, const Node& inner) {
        const Constant& factor = constant(inner.b);
        return Coefficient{outer.exact * factor.exact, outer.origin + " times " + factor.origin} * copyOf(inner.a);
    }

    Value copy(const Node& x) {
        if (x.kind != Kind::Mul) return fresh->copy(old, x, copies);
        const Constant& outer = constant(x.b);
        const Node& inner = node(x.a);
        if (isLoneProduct(x.a)) {
            changed = true;
            return mergedProduct(outer, inner);
        }
        const bool isSum = inner.kind == Kind::Add || inner.kind == Kind::Sub;
        if (isSum && uses[static_cast<std::size_t>(x.a)] == 1 && isLoneProduct(inner.a) && isLoneProduct(inner.b)) {
            changed = true;
            const Value left = mergedProduct(outer, node(inner.a)), right = mergedProduct(outer, node(inner.b));
            return inner.kind == Kind::Add ? left + right : left - right;
        }
        return fresh->copy(old, x, copies);
    }

    const Graph& old;
    std::vector<int> uses;
    std::vector<Value> copies;
    std::unique_ptr<Graph> fresh = std::make_unique<Graph>();
    bool changed = false;
};

}  // namespace

std::unique_ptr<Graph> merged(std::unique_ptr<Graph> graph) {
    for (bool changed = true; changed;) std::tie(graph, changed) = Pass(*graph).run();
    return graph;
}

}  // namespace gen
