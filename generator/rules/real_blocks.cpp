// Real blocks: real values to half spectrum. The same constructions as on the complex side, of which only the half that
// conjugate symmetry leaves is built.
#include <stdexcept>
#include <string>

#include "numbers/modular.h"
#include "rules/block_kind.h"
#include "rules/blocks.h"
#include "rules/direct.h"
#include "rules/rader.h"
#include "rules/tables.h"

namespace gen {
namespace {

using std::size_t;

HalfSpectrum sumAndDifference(const RealSignal& x) {
    HalfSpectrum bins(2);
    bins.setReal(0, x[0] + x[1]);
    bins.setReal(1, x[0] - x[1]);
    return bins;
}

// Im Z[k] = sum of -sin(2 pi a m_j k/p) d_j, its positive terms first, so that only a sum of negative terms throughout
// leaves a minus.
Value negativeSineSum(const RealSignal& differences, const std::vector<int>& pairs, int k, int p) {
    RealSignal terms, negative;
    for (size_t j = 0; j < pairs.size(); ++j) {
        const Value term = -(sine(pairs[j] * k, p) * differences[j]);
        (term.minus ? negative : terms).push_back(term);
    }
    terms.insert(terms.end(), negative.begin(), negative.end());
    return sumInOrder(terms);
}

// Direct symmetric form of 3, 5, 7, 11, with the coefficients of the rotated block itself.
HalfSpectrum direct(const RealSignal& x, int a) {
    const int p = static_cast<int>(x.size());
    const std::vector<int> pairs = directPairs(p);
    RealSignal sums, differences;
    for (int m : pairs) {
        sums.push_back(x[static_cast<size_t>(m)] + x[static_cast<size_t>(p - m)]);
        differences.push_back(x[static_cast<size_t>(m)] - x[static_cast<size_t>(p - m)]);
    }
    HalfSpectrum bins(p);
    bins.setReal(0, sumInOrder(sums) + x[0]);
    for (int k = 1; k <= bins.half(); ++k) {
        bins.set(k, {cosineSum(x[0], sums, pairs, a * k, p), negativeSineSum(differences, pairs, a * k, p)});
    }
    return bins;
}

// The outer stage of both constructions: the bins c of all columns are row c.
RealSignal realRow(const std::vector<HalfSpectrum>& columns, int c) {
    RealSignal row;
    for (const HalfSpectrum& column : columns) row.push_back(column.real(c));
    return row;
}

Signal complexRow(const std::vector<HalfSpectrum>& columns, int c) {
    Signal row;
    for (const HalfSpectrum& column : columns) row.push_back(column.at(c));
    return row;
}

// N = r s, coprime, r inside. With n = s n1 + r n2 and k = s k1 + r k2 (modulo N) no twiddle comes between: real
// blocks of r on the s columns, then a real block of s on each real row and a complex one on each other row k1 < r/2;
// the rows above are conjugates.
HalfSpectrum primeFactor(const RealSignal& x, int a, const Recipe& recipe) {
    const Recipe inner = innerSide(recipe, realForwardRecipes()), outer = outerSide(recipe, realForwardRecipes());
    const int r = inner.length, s = outer.length, length = r * s;
    std::vector<HalfSpectrum> columns;
    for (int n2 = 0; n2 < s; ++n2) {
        RealSignal column;
        for (int n1 = 0; n1 < r; ++n1) column.push_back(x[static_cast<size_t>((s * n1 + r * n2) % length)]);
        columns.push_back(realBlock(column, modulo(a * s, r), inner));
    }
    HalfSpectrum bins(length);
    for (int k1 = 0; 2 * k1 <= r; ++k1) {
        const int multiplier = modulo(a * r, s);
        if (columns[0].isReal(k1)) {
            const HalfSpectrum row = realBlock(realRow(columns, k1), multiplier, outer);
            for (int k2 = 0; k2 <= row.half(); ++k2) bins.take(s * k1 + r * k2, row, k2);
        } else {
            const Signal row = complexBlock(complexRow(columns, k1), multiplier);
            for (int k2 = 0; k2 < s; ++k2) bins.set(s * k1 + r * k2, row[static_cast<size_t>(k2)]);
        }
    }
    return bins;
}

// N = r s within a prime power, r inside: column b reads x[s m + b]; row c takes W_N^(a b c); X[c + r d] is output d of
// row c. Row r/2 of even r is real before its twiddles, and with them a skew block. An eighth turn adds first, where
// the one of a complex block multiplies first.
HalfSpectrum twiddledConstruction(const RealSignal& x, int a, int r, int s) {
    const int length = r * s;
    std::vector<HalfSpectrum> columns;
    for (int b = 0; b < s; ++b) {
        RealSignal column;
        for (int m = 0; m < r; ++m) column.push_back(x[static_cast<size_t>(s * m + b)]);
        columns.push_back(realBlock(column, modulo(a, r)));
    }
    HalfSpectrum bins(length);
    const HalfSpectrum firstRow = realBlock(realRow(columns, 0), modulo(a, s));
    for (int d = 0; d <= firstRow.half(); ++d) bins.take(r * d, firstRow, d);
    for (int c = 1; 2 * c < r; ++c) {
        Signal row = complexRow(columns, c);
        for (int b = 0; b < s; ++b) {
            ComplexValue& value = row[static_cast<size_t>(b)];
            value = twiddled(value, a * b * c, length, EighthTurn::SumsFirst);
        }
        row = complexBlock(row, modulo(a, s));
        for (int d = 0; d < s; ++d) bins.set(c + r * d, row[static_cast<size_t>(d)]);
    }
    if (r % 2 == 0) {
        const Signal row = skewBlock(realRow(columns, r / 2), a);
        for (int d = 0; d < s / 2; ++d) bins.set(r / 2 + r * d, row[static_cast<size_t>(d)]);
    }
    return bins;
}

}  // namespace

HalfSpectrum realBlock(const RealSignal& x, int a) {
    return realBlock(x, a, realForwardRecipe(static_cast<int>(x.size())));
}

HalfSpectrum realBlock(const RealSignal& x, int a, const Recipe& recipe) {
    const InBlock block(*x[0].graph, {BlockKind::Real, recipe.length, a});
    switch (recipe.construction) {
        case Construction::Base: return sumAndDifference(x);
        case Construction::Direct: return direct(x, a);
        case Construction::Twiddled: return twiddledConstruction(x, a, recipe.factors[0], recipe.factors[1]);
        case Construction::PrimeFactor: return primeFactor(x, a, recipe);
        case Construction::Rader: return raderReal(x, a, recipe);
    }
    throw std::logic_error("real " + std::to_string(recipe.length) + ": no construction");
}

}  // namespace gen
