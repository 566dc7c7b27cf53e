// Skew blocks: the odd bins of a real transform of twice the length, and their mirror, the odd-frequency form, which
// takes the odd bins of a half spectrum to real values. They serve the middle row of twiddled real constructions and
// the odd channel of real Rader forms.
//
// Frequencies: number d stands for the odd frequency 2d + 1 over 2L. Of the L odd frequencies below 2L the upper half
// are conjugates; for odd L the frequency L in the middle is real.
#include <stdexcept>
#include <string>

#include "numbers/modular.h"
#include "rules/block_kind.h"
#include "rules/blocks.h"
#include "rules/tables.h"

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

// An odd frequency modulo 2L as a number, and whether it is met as a conjugate.
struct Frequency {
    int number;
    bool isConjugate;
};

Frequency frequencyNumber(int frequency, int length) {
    frequency = modulo(frequency, 2 * length);
    if (frequency <= length) return {frequency / 2, false};
    return {(2 * length - frequency) / 2, true};
}

// The bin at any odd frequency.
ComplexValue atFrequency(const Signal& bins, int frequency, int length) {
    const Frequency place = frequencyNumber(frequency, length);
    const ComplexValue bin = bins[static_cast<size_t>(place.number)];
    return place.isConjugate ? conjugate(bin) : bin;
}

void setFrequency(Signal& bins, int frequency, int length, ComplexValue bin) {
    const Frequency place = frequencyNumber(frequency, length);
    bins[static_cast<size_t>(place.number)] = place.isConjugate ? conjugate(bin) : bin;
}

// Odd L: with u[m] = (-1)^m v[m], Z at the frequency L - 2j is the conjugate of bin j of u.
Signal skewOdd(const RealSignal& v) {
    const int length = static_cast<int>(v.size());
    RealSignal alternating = v;
    for (size_t m = 1; m < alternating.size(); m += 2) alternating[m] = -alternating[m];
    const HalfSpectrum bins = realBlock(alternating, 1);
    Signal result(static_cast<size_t>((length + 1) / 2));
    result.back().re = bins.real(0);
    for (int j = 1; j <= bins.half(); ++j) result[static_cast<size_t>((length - 2 * j) / 2)] = conjugate(bins.at(j));
    return result;
}

// L = r s: for each b a skew block of r on v[s m + b]; the bin k0 of all of them is row k0. A row k0 < r takes the
// twiddles W_(2L)^(b k0) and a complex block of s, whose output e has the frequency k0 + 2 r e; the row r of odd r is
// real and takes a skew block of s.
Signal skewSplit(const RealSignal& v, int r, int s) {
    const int length = r * s;
    std::vector<Signal> columns;
    for (int b = 0; b < s; ++b) {
        RealSignal column;
        for (int m = 0; m < r; ++m) column.push_back(v[static_cast<size_t>(s * m + b)]);
        columns.push_back(skewBlock(column, 1));
    }
    Signal result(static_cast<size_t>((length + 1) / 2));
    for (int k0 = 1; k0 < r; k0 += 2) {
        Signal row;
        for (int b = 0; b < s; ++b) {
            row.push_back(twiddled(columns[static_cast<size_t>(b)][static_cast<size_t>(k0 / 2)], b * k0, 2 * length));
        }
        row = complexBlock(row, 1);
        for (int e = 0; e < s; ++e) setFrequency(result, k0 + 2 * r * e, length, row[static_cast<size_t>(e)]);
    }
    if (r % 2 == 1) {
        RealSignal row;
        for (const Signal& column : columns) row.push_back(column.back().re);
        const Signal bins = skewBlock(row, 1);
        for (size_t e = 0; e < bins.size(); ++e)
            result[static_cast<size_t>(r * (2 * static_cast<int>(e) + 1) / 2)] = bins[e];
    }
    return result;
}

// L = 2: out[0] = E.re, out[1] = -E.im.
RealSignal mirroredTwo(const Signal& bins) { return {bins[0].re, -bins[0].im}; }

// L = 4: with s = E[0] + E[1] on real parts, t = E[0] - E[1] on imaginary ones, u, v the other two times R:
// out = s, u - v, -t, -(u + v).
RealSignal mirroredFour(const Signal& bins) {
    const Value u = diagonal() * (bins[0].re - bins[1].re), v = diagonal() * (bins[0].im + bins[1].im);
    return {bins[0].re + bins[1].re, u - v, -(bins[0].im - bins[1].im), -(u + v)};
}

// Odd L: F[0] = E[L], F[j] = conj E[L - 2j] is a half spectrum of length L, y its values; out[m] = (-1)^m y[m]. The
// block is the one rotated by 2, as in a prime-factor construction of 2 and L, where y[m] is its value m/2 modulo L;
// that of 11 is plain.
RealSignal mirroredOdd(const Signal& bins, int length) {
    HalfSpectrum spectrum(length);
    spectrum.setReal(0, bins.back().re);
    for (int j = 1; j <= spectrum.half(); ++j) spectrum.set(j, conjugate(atFrequency(bins, length - 2 * j, length)));
    const int rotation = length == 11 ? 1 : 2;
    const RealSignal y = spectrumBlock(spectrum, rotation);
    RealSignal out;
    for (int m = 0; m < length; ++m) {
        const int place = rotation == 1 ? m : modulo(m * ((length + 1) / 2), length);
        out.push_back(m % 2 == 0 ? y[static_cast<size_t>(place)] : -y[static_cast<size_t>(place)]);
    }
    return out;
}

// L = r s: the frequency k0 + 2 r e belongs to row k0 at place e. Each odd k0 < r takes an inverse complex block of s
// and the twiddles of 2L, the row r of odd r the mirror of length s; then, for each place b, the mirror of length r
// over the rows gives out[s m + b].
RealSignal mirroredSplit(const Signal& bins, int r, int s, const Splits& inner) {
    const int length = r * s;
    std::vector<Signal> columns(static_cast<size_t>(s));
    for (int k0 = 1; k0 < r; k0 += 2) {
        Signal row;
        for (int e = 0; e < s; ++e) row.push_back(atFrequency(bins, k0 + 2 * r * e, length));
        row = inverseComplexBlock(row, 1);
        for (int b = 0; b < s; ++b) {
            columns[static_cast<size_t>(b)].push_back(twiddled(row[static_cast<size_t>(b)], -b * k0, 2 * length));
        }
    }
    if (r % 2 == 1) {
        Signal row;
        for (int frequency = r; frequency <= length; frequency += 2 * r)
            row.push_back(atFrequency(bins, frequency, length));
        const RealSignal values = mirroredSkewBlock(row, s, 1);
        for (int b = 0; b < s; ++b) columns[static_cast<size_t>(b)].push_back({values[static_cast<size_t>(b)], {}});
    }
    RealSignal out(static_cast<size_t>(length));
    for (int b = 0; b < s; ++b) {
        const RealSignal values = mirroredSkewBlock(columns[static_cast<size_t>(b)], r, 1, inner);
        for (int m = 0; m < r; ++m) out[static_cast<size_t>(s * m + b)] = values[static_cast<size_t>(m)];
    }
    return out;
}

Signal plainSkew(const RealSignal& v, int a) {
    const int length = static_cast<int>(v.size());
    if (length == 2) return skewTwo(v);
    if (length == 4) return skewFour(v, a);
    if (length % 2 == 1) return skewOdd(v);
    const OddSplit split = oddSplit(length, true);
    return skewSplit(v, split.r, split.s);
}

RealSignal plainMirror(const Signal& bins, int length, const Splits& splits) {
    if (length == 2) return mirroredTwo(bins);
    if (length == 4) return mirroredFour(bins);
    if (length % 2 == 1) return mirroredOdd(bins, length);
    if (!splits.empty()) {
        return mirroredSplit(bins, length / splits[0], splits[0], Splits(splits.begin() + 1, splits.end()));
    }
    const OddSplit split = oddSplit(length, false);
    return mirroredSplit(bins, split.r, split.s, {});
}

}  // namespace

// A rotated block is the plain one with its bins renamed: the frequency f of the one is a f of the other.
Signal skewBlock(const RealSignal& v, int a) {
    const int length = static_cast<int>(v.size());
    const InBlock block(*v[0].graph, {BlockKind::Skew, length, a});
    const Signal plain = plainSkew(v, a);
    Signal rotated = plain;
    for (int d = 0; d < length / 2; ++d) rotated[static_cast<size_t>(d)] = atFrequency(plain, a * (2 * d + 1), length);
    return rotated;
}

RealSignal mirroredSkewBlock(const Signal& bins, int length, int a, const Splits& splits) {
    const InBlock block(*bins[0].re.graph, {BlockKind::MirroredSkew, length, a});
    Signal plain = bins;
    for (int d = 0; d < length / 2; ++d) setFrequency(plain, a * (2 * d + 1), length, bins[static_cast<size_t>(d)]);
    return plainMirror(plain, length, splits);
}

}  // namespace gen
