// Complex blocks: base, direct symmetric, twiddled (Cooley-Tukey) and prime-factor (Good-Thomas) constructions.
#include <stdexcept>
#include <string>

#include "numbers/modular.h"
#include "rules/axes.h"
#include "rules/block_kind.h"
#include "rules/blocks.h"
#include "rules/direct.h"
#include "rules/rader.h"
#include "rules/tables.h"

namespace gen {
namespace {

using std::size_t;

Signal sumAndDifference(const Signal& x) { return {x[0] + x[1], x[0] - x[1]}; }

std::vector<Value> parts(const Signal& x, Value ComplexValue::*part) {
    std::vector<Value> values;
    for (const ComplexValue& value : x) values.push_back(value.*part);
    return values;
}

// Direct symmetric form of 3, 5, 7: X[k] = P_k - i Q_k, X[p - k] = P_k + i Q_k. Each product is used once. The rotated
// block is the plain one with its outputs renamed, Z[k] = X[a k mod p].
Signal direct(const Signal& x, int a) {
    const int p = static_cast<int>(x.size());
    const std::vector<int> pairs = directPairs(p);
    Signal sums, differences;
    for (int m : pairs) {
        const ComplexValue first = x[static_cast<size_t>(m)], second = x[static_cast<size_t>(p - m)];
        sums.push_back(first + second);
        differences.push_back(first - second);
    }
    Graph& graph = *x[0].re.graph;
    Signal plain(x.size());
    plain[0] = onBothParts(graph, [&](Value ComplexValue::*part) { return sumInOrder(parts(sums, part)); }) + x[0];
    for (int k = 1; k <= (p - 1) / 2; ++k) {
        const ComplexValue cosines = onBothParts(
            graph, [&](Value ComplexValue::*part) { return cosineSum(x[0].*part, parts(sums, part), pairs, k, p); });
        const ComplexValue sines = onBothParts(
            graph, [&](Value ComplexValue::*part) { return sineSum(parts(differences, part), pairs, k, p); });
        plain[static_cast<size_t>(k)] = cosines + timesMinusI(sines);
        plain[static_cast<size_t>(p - k)] = cosines - timesMinusI(sines);
    }
    Signal rotated;
    for (int k = 0; k < p; ++k) rotated.push_back(plain[static_cast<size_t>(modulo(a * k, p))]);
    return rotated;
}

// N = A B with a common factor: B blocks of the inner factor A on the columns, twiddle factors, A blocks of the outer
// factor B on the rows.
//
//     column r reads x[r + B m];  row k1 takes W_N^(a r k1) times output k1 of each column;  X[k1 + A k2] is output k2
Signal twiddledConstruction(const Signal& x, int inner, int outer, int a) {
    const int length = inner * outer;
    std::vector<Signal> columns;
    for (int r = 0; r < outer; ++r) {
        Signal column;
        for (int m = 0; m < inner; ++m) column.push_back(x[static_cast<size_t>(r + outer * m)]);
        columns.push_back(complexBlock(column, modulo(a, inner)));
    }
    Signal result(x.size());
    for (int k1 = 0; k1 < inner; ++k1) {
        Signal row;
        for (int r = 0; r < outer; ++r) {
            row.push_back(twiddled(columns[static_cast<size_t>(r)][static_cast<size_t>(k1)], a * r * k1, length));
        }
        row = complexBlock(row, modulo(a, outer));
        for (int k2 = 0; k2 < outer; ++k2) result[static_cast<size_t>(k1 + inner * k2)] = row[static_cast<size_t>(k2)];
    }
    return result;
}

// N = q_1 q_2 ... pairwise coprime: rotated blocks along each axis in turn, and nothing between them.
Signal primeFactor(const Signal& x, const std::vector<int>& factors, int a) {
    const Axes axes(factors);
    Signal box = axes.gather(x);
    for (int i = 0; i < axes.count(); ++i) {
        axes.alongEach(i, box, [&](const Signal& line) {
            return complexBlock(line, modulo(a * axes.multiplier(i), static_cast<int>(line.size())));
        });
    }
    return axes.scatter(box);
}

}  // namespace

Signal complexBlock(const Signal& x, int a) {
    const int length = static_cast<int>(x.size());
    const InBlock block(*x[0].re.graph, {BlockKind::Complex, length, a});
    const Recipe& recipe = complexRecipe(length);
    switch (recipe.construction) {
        case Construction::Base: return sumAndDifference(x);
        case Construction::Direct: return direct(x, a);
        case Construction::Twiddled: return twiddledConstruction(x, recipe.factors[0], recipe.factors[1], a);
        case Construction::PrimeFactor: return primeFactor(x, recipe.factors, a);
        case Construction::Rader: return raderComplex(x, a);
    }
    throw std::logic_error("complex " + std::to_string(length) + ": no construction");
}

Signal inverseComplexBlock(const Signal& x, int a) {
    const ExchangedPairs pairs(*x[0].re.graph);
    return exchanged(complexBlock(exchanged(x), a));
}

}  // namespace gen
