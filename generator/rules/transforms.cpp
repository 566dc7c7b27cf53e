#include "rules/transforms.h"

#include <utility>

#include "graph/merge.h"
#include "graph/turn.h"
#include "rules/block_kind.h"
#include "rules/blocks.h"
#include "rules/dct4_bodies.h"
#include "rules/hartley.h"
#include "rules/tables.h"
#include "rules/wht.h"

namespace gen {
namespace {

// Loads `count` numbers, beginning with input number `first`.
RealSignal loadReals(Graph& graph, int first, int count) {
    RealSignal x;
    for (int n = 0; n < count; ++n) x.push_back(graph.load(first + n));
    return x;
}

Signal loadPairs(Graph& graph, int first, int count) {
    Signal x;
    for (int n = 0; n < count; ++n) {
        const Value re = graph.load(first + 2 * n);
        x.push_back(paired(re, graph.load(first + 2 * n + 1)));
    }
    return x;
}

void storeReals(Graph& graph, const RealSignal& y) {
    for (std::size_t k = 0; k < y.size(); ++k) graph.store(static_cast<int>(k), y[k]);
}

void storePairs(Graph& graph, const Signal& y) {
    for (std::size_t k = 0; k < y.size(); ++k) {
        graph.store(static_cast<int>(2 * k), graph.withoutMinus(y[k].re));
        graph.store(static_cast<int>(2 * k + 1), graph.withoutMinus(y[k].im));
    }
}

}  // namespace

std::unique_ptr<Graph> complexTransform(int length) {
    auto graph = std::make_unique<Graph>();
    storePairs(*graph, complexBlock(loadPairs(*graph, 0, length), 1));
    return merged(std::move(graph));
}

std::unique_ptr<Graph> realForwardTransform(int length) {
    auto graph = std::make_unique<Graph>();
    const HalfSpectrum bins = realBlock(loadReals(*graph, 0, length), 1);
    for (int k = 0; k <= bins.half(); ++k) {
        graph->store(2 * k, bins.real(k));
        if (!bins.isReal(k)) graph->store(2 * k + 1, bins.at(k).im);
    }
    return turned(merged(std::move(graph)), realForwardRecipe(length).turned);
}

// The bins between 0 and N/2 are doubled first: each of them takes part in a result together with its conjugate.
std::unique_ptr<Graph> realInverseTransform(int length) {
    auto graph = std::make_unique<Graph>();
    const InBlock block(*graph, {BlockKind::DoubledBins, length});
    const Coefficient two{2, "2"};
    HalfSpectrum bins(length);
    for (int k = 0; k <= bins.half(); ++k) {
        if (bins.isReal(k)) {
            bins.setReal(k, graph->load(2 * k));
        } else {
            const Value re = graph->load(2 * k);
            bins.set(k, two * ComplexValue{re, graph->load(2 * k + 1)});
        }
    }
    storeReals(*graph, spectrumBlock(bins, 1));
    return merged(std::move(graph));
}

std::unique_ptr<Graph> hartleyTransform(int length) {
    auto graph = std::make_unique<Graph>();
    storeReals(*graph, hartley(loadReals(*graph, 0, length)));
    return merged(std::move(graph));
}

std::unique_ptr<Graph> walshHadamardTransform(int points) {
    auto graph = std::make_unique<Graph>();
    storeReals(*graph, walshHadamard(loadReals(*graph, 0, points)));
    return graph;
}

std::unique_ptr<Graph> dct4FoldTransform(int points) {
    auto graph = std::make_unique<Graph>();
    storePairs(*graph, dct4Fold(loadReals(*graph, 0, points)));
    return graph;
}

std::unique_ptr<Graph> dct4OutputRow(int radix) {
    auto graph = std::make_unique<Graph>();
    const Signal z = loadPairs(*graph, 0, radix);
    storeReals(*graph, dct4Output(z, loadPairs(*graph, 2 * radix, radix)));
    return graph;
}

CombineTable combineTable(int radix) {
    if (radix <= 8) return {radix - 1, 0};
    return {radix / 4 - 1, radix / 4 * 3};
}

std::unique_ptr<Graph> dct4CombineRow(int radix) {
    auto graph = std::make_unique<Graph>();
    const Signal d = loadPairs(*graph, 0, radix);
    const CombineTable table = combineTable(radix);
    storePairs(*graph, dct4Combine(d, loadPairs(*graph, 2 * radix, table.inner + table.outer)));
    return graph;
}

std::unique_ptr<Graph> dct4OutputOfRotated(int radix) {
    auto graph = std::make_unique<Graph>();
    storeReals(*graph, dct4OutputOfRotated(loadPairs(*graph, 0, radix)));
    return graph;
}

std::unique_ptr<Graph> dct4CombineOfRotated(int points) {
    auto graph = std::make_unique<Graph>();
    storePairs(*graph, dct4CombineOfRotated(loadPairs(*graph, 0, points)));
    return graph;
}

std::unique_ptr<Graph> dct4DirectTransform(int points) {
    auto graph = std::make_unique<Graph>();
    storeReals(*graph, dct4Direct(loadReals(*graph, 0, points)));
    return graph;
}

}  // namespace gen
