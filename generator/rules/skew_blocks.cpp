// Skew blocks: the odd bins of a real transform of twice the length, and their mirror, which takes the odd bins of a
// half spectrum to real values (the odd-frequency form). They serve the middle row of twiddled real constructions.
//
// Frequencies: number d stands for the odd frequency 2d + 1 over 2L. Of the L odd frequencies below 2L the upper half
// are conjugates; for odd L the frequency L in the middle is real.
#include <stdexcept>
#include <string>

#include "numbers/modular.h"
#include "rules/block_title.h"
#include "rules/blocks.h"

namespace gen {
namespace {

using std::size_t;

// sqrt(1/2).
Coefficient diagonal() { return cosine(1, 8); }

// L = 2: Z[0] = v[0] - i v[1], no step.
Signal skewTwo(const RealSignal& v) { return {{v[0], -v[1]}}; }

// L = 4: with p = R (v[1] - v[3]), q = R (v[1] + v[3]): Z[0] = v[0] + p - i (v[2] + q), Z[1] = v[0] - p + i (v[2] - q).
// Which way round the difference of v[2] and q is formed follows the complex block of 4 that this one is the half of:
// it takes v[2] times -i when the multiplier is 1 modulo 4, and times +i when it is 3.
Signal skewFour(const RealSignal& v, int a) {
    const Value p = diagonal() * (v[1] - v[3]), q = diagonal() * (v[1] + v[3]);
    const Value difference = modulo(a, 4) == 1 ? -(q - v[2]) : v[2] - q;
    return {{v[0] + p, -(v[2] + q)}, {v[0] - p, difference}};
}

// The same odd frequency a (2d + 1) modulo 2L, as a number and whether it is met as a conjugate.
struct Frequency {
    int number;
    bool isConjugate;
};

Frequency rotatedFrequency(int d, int a, int length) {
    const int frequency = modulo(a * (2 * d + 1), 2 * length);
    if (frequency < length) return {frequency / 2, false};
    return {(2 * length - frequency) / 2, true};
}

// L = 2: out[0] = E.re, out[1] = -E.im.
RealSignal mirroredTwo(const Signal& bins) { return {bins[0].re, -bins[0].im}; }

// L = 4: with s = E[0] + E[1] on real parts, t = E[0] - E[1] on imaginary ones, u, v the other two times R:
// out = s, u - v, -t, -(u + v).
RealSignal mirroredFour(const Signal& bins) {
    const Value u = diagonal() * (bins[0].re - bins[1].re), v = diagonal() * (bins[0].im + bins[1].im);
    return {bins[0].re + bins[1].re, u - v, -(bins[0].im - bins[1].im), -(u + v)};
}

// The bins by any odd frequency modulo 2L.
ComplexValue atFrequency(const Signal& bins, int frequency, int length) {
    frequency = modulo(frequency, 2 * length);
    if (frequency < length) return bins[static_cast<size_t>(frequency / 2)];
    return conjugate(bins[static_cast<size_t>((2 * length - frequency) / 2)]);
}

// L = r s: the frequency 2d + 1 = k0 + 2 r e belongs to row k0 at place e. Each odd k0 < r takes an inverse complex
// block of s and the twiddles of 2L; then, for each place b, the mirror of length r over the rows gives out[s m + b].
RealSignal mirroredSplit(const Signal& bins, int r, int s) {
    const int length = r * s;
    std::vector<Signal> rows;
    for (int k0 = 1; k0 < r; k0 += 2) {
        Signal row;
        for (int e = 0; e < s; ++e) row.push_back(atFrequency(bins, k0 + 2 * r * e, length));
        row = inverseComplexBlock(row, 1);
        for (int b = 0; b < s; ++b)
            row[static_cast<size_t>(b)] = twiddled(row[static_cast<size_t>(b)], -b * k0, 2 * length);
        rows.push_back(row);
    }
    RealSignal out(static_cast<size_t>(length), rows[0][0].re);
    for (int b = 0; b < s; ++b) {
        Signal column;
        for (const Signal& row : rows) column.push_back(row[static_cast<size_t>(b)]);
        const RealSignal values = mirroredSkewBlock(column, 1);
        for (int m = 0; m < r; ++m) out[static_cast<size_t>(s * m + b)] = values[static_cast<size_t>(m)];
    }
    return out;
}

}  // namespace

Signal skewBlock(const RealSignal& v, int a) {
    const int length = static_cast<int>(v.size());
    const Titled title(*v[0].graph, blockTitle("skew", length, a));
    if (length != 2 && length != 4) throw std::logic_error("no skew block of " + std::to_string(length));
    const Signal plain = length == 2 ? skewTwo(v) : skewFour(v, a);
    Signal rotated;
    for (int d = 0; d < length / 2; ++d) {
        const Frequency source = rotatedFrequency(d, a, length);
        const ComplexValue bin = plain[static_cast<size_t>(source.number)];
        rotated.push_back(source.isConjugate ? conjugate(bin) : bin);
    }
    return rotated;
}

RealSignal mirroredSkewBlock(const Signal& bins, int a) {
    const int length = 2 * static_cast<int>(bins.size());
    const Titled title(*bins[0].re.graph, blockTitle("mirrored skew", length, a));
    Signal plain(bins.size());
    for (int d = 0; d < length / 2; ++d) {
        const Frequency place = rotatedFrequency(d, a, length);
        const ComplexValue bin = bins[static_cast<size_t>(d)];
        plain[static_cast<size_t>(place.number)] = place.isConjugate ? conjugate(bin) : bin;
    }
    switch (length) {
        case 2: return mirroredTwo(plain);
        case 4: return mirroredFour(plain);
        case 8: return mirroredSplit(plain, 2, 4);
        case 16: return mirroredSplit(plain, 8, 2);
        default: throw std::logic_error("no mirrored skew block of " + std::to_string(length));
    }
}

}  // namespace gen
