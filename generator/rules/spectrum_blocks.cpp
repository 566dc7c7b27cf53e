// Spectrum blocks: half spectrum to real values, the mirror of the real blocks. Interior bins come doubled.
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

RealSignal sumAndDifference(const HalfSpectrum& bins) {
    return {bins.real(0) + bins.real(1), bins.real(0) - bins.real(1)};
}

// Direct symmetric form of 3, 5, 7 (and 11 where a row says so): y[m] = E_m - O_m, y[p - m] = E_m + O_m, with E_m =
// X[0] plus the sum of d[k] cos and O_m the sum of e[k] sin of 2 pi k m/p, d and e the parts of the bins. The rotated
// block is the plain one with its outputs renamed.
RealSignal direct(const HalfSpectrum& bins, int a) {
    const int p = bins.length();
    std::vector<int> numbers;
    RealSignal d, e;
    for (int k = 1; k <= bins.half(); ++k) {
        numbers.push_back(k);
        d.push_back(bins.at(k).re);
        e.push_back(bins.at(k).im);
    }
    RealSignal plain(static_cast<size_t>(p), sumInOrder(d) + bins.real(0));
    for (int m = 1; m <= bins.half(); ++m) {
        const Value even = cosineSum(bins.real(0), d, numbers, m, p), odd = sineSum(e, numbers, m, p);
        plain[static_cast<size_t>(m)] = even - odd;
        plain[static_cast<size_t>(p - m)] = even + odd;
    }
    RealSignal rotated;
    for (int m = 0; m < p; ++m) rotated.push_back(plain[static_cast<size_t>(modulo(a * m, p))]);
    return rotated;
}

// The final stage of both constructions: the values of all rows at one place are a half spectrum of the final length.
// Rows 0 and, for even length, the middle one are real.
struct Rows {
    std::vector<RealSignal> real;  // row 0, then the middle row
    std::vector<Signal> complex;   // rows 1, 2, ...
};

HalfSpectrum atPlace(const Rows& rows, int place, int length) {
    HalfSpectrum bins(length);
    bins.setReal(0, rows.real[0][static_cast<size_t>(place)]);
    if (rows.real.size() > 1) bins.setReal(length / 2, rows.real[1][static_cast<size_t>(place)]);
    for (size_t c = 0; c < rows.complex.size(); ++c) {
        bins.set(static_cast<int>(c) + 1, rows.complex[c][static_cast<size_t>(place)]);
    }
    return bins;
}

// N = f g, coprime, f first. With k = g k1 + f k2 and n = g n1 + f n2 (modulo N): row k2 holds the bins of all k1. Rows
// 0 and g/2 are half spectra of length f, the others below g/2 complex; those above do not exist.
RealSignal primeFactor(const HalfSpectrum& bins, int a, const Recipe& recipe) {
    const Recipe first = innerSide(recipe, realInverseRecipes()), final = outerSide(recipe, realInverseRecipes());
    const int f = first.length, g = final.length, length = f * g;
    Rows rows;
    for (int k2 = 0; 2 * k2 <= g; ++k2) {
        const int multiplier = modulo(a * g, f);
        if (2 * k2 % g == 0) {
            HalfSpectrum row(f);
            for (int k1 = 0; 2 * k1 <= f; ++k1) row.take(k1, bins, g * k1 + f * k2);
            rows.real.push_back(spectrumBlock(row, multiplier, first));
        } else {
            Signal row;
            for (int k1 = 0; k1 < f; ++k1) row.push_back(bins.at(g * k1 + f * k2));
            rows.complex.push_back(inverseComplexBlock(row, multiplier));
        }
    }
    RealSignal y(static_cast<size_t>(length), bins.real(0));
    for (int n1 = 0; n1 < f; ++n1) {
        const RealSignal values = spectrumBlock(atPlace(rows, n1, g), modulo(a * f, g), final);
        for (int n2 = 0; n2 < g; ++n2)
            y[static_cast<size_t>((g * n1 + f * n2) % length)] = values[static_cast<size_t>(n2)];
    }
    return y;
}

// N = f g within a prime power, f first: row c holds the bins c + g d. Row 0 is a half spectrum of length f, the middle
// row of even g a mirrored skew block, the others inverse complex blocks and twiddles W_N^(-a b c), of which an eighth
// turn adds first. Then, for each place b, a spectrum block of g gives y[f m + b].
RealSignal twiddledConstruction(const HalfSpectrum& bins, int a, int f, int g) {
    const int length = f * g;
    Rows rows;
    HalfSpectrum firstRow(f);
    for (int d = 0; d <= firstRow.half(); ++d) firstRow.take(d, bins, g * d);
    rows.real.push_back(spectrumBlock(firstRow, modulo(a, f)));
    for (int c = 1; 2 * c < g; ++c) {
        Signal row;
        for (int d = 0; d < f; ++d) row.push_back(bins.at(c + g * d));
        row = inverseComplexBlock(row, modulo(a, f));
        for (int b = 0; b < f; ++b) {
            ComplexValue& value = row[static_cast<size_t>(b)];
            value = twiddled(value, -a * b * c, length, EighthTurn::SumsFirst);
        }
        rows.complex.push_back(row);
    }
    if (g % 2 == 0) {
        Signal middle;
        for (int d = 0; d < f / 2; ++d) middle.push_back(bins.at(g / 2 + g * d));
        rows.real.push_back(mirroredSkewBlock(middle, f, a));
    }
    RealSignal y(static_cast<size_t>(length), bins.real(0));
    for (int b = 0; b < f; ++b) {
        const RealSignal values = spectrumBlock(atPlace(rows, b, g), modulo(a, g));
        for (int m = 0; m < g; ++m) y[static_cast<size_t>(f * m + b)] = values[static_cast<size_t>(m)];
    }
    return y;
}

}  // namespace

RealSignal spectrumBlock(const HalfSpectrum& bins, int a) {
    return spectrumBlock(bins, a, realInverseRecipe(bins.length()));
}

RealSignal spectrumBlock(const HalfSpectrum& bins, int a, const Recipe& recipe) {
    const InBlock block(*bins.real(0).graph, {BlockKind::Spectrum, recipe.length, a});
    switch (recipe.construction) {
        case Construction::Base: return sumAndDifference(bins);
        case Construction::Direct: return direct(bins, a);
        case Construction::Twiddled: return twiddledConstruction(bins, a, recipe.factors[0], recipe.factors[1]);
        case Construction::PrimeFactor: return primeFactor(bins, a, recipe);
        case Construction::Rader: return raderSpectrum(bins, a, recipe);
    }
    throw std::logic_error("spectrum " + std::to_string(recipe.length) + ": no construction");
}

}  // namespace gen
