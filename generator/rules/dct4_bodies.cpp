#include "rules/dct4_bodies.h"

#include <stdexcept>
#include <string>

#include "rules/block_kind.h"
#include "rules/blocks.h"

namespace gen {
namespace {

using std::size_t;

// How many parts a skew transform is split into.
int skewParts(size_t length) {
    switch (length) {
        case 8:
        case 32: return 2;
        case 16:
        case 64: return 4;
        default: throw std::out_of_range("no skew transform of " + std::to_string(length));
    }
}

// The splits of its mirror in an output row.
Splits outputSplits(size_t radix) {
    switch (radix) {
        case 1:
        case 2: return {};
        case 4: return {2};
        case 8: return {2, 2};
        case 16: return {2, 2, 2};
        case 32: return {4, 4};
        default: throw std::out_of_range("no output row of radix " + std::to_string(radix));
    }
}

// x times w, both complex.
ComplexValue rotated(ComplexValue x, ComplexValue w) {
    const Value imIm = x.im * w.im, reRe = x.re * w.re, re = reRe - imIm;
    const Value imRe = x.im * w.re, reIm = x.re * w.im, im = reIm + imRe;
    x.re.graph->pair(reRe, imRe);
    x.re.graph->pair(imIm, reIm);
    return paired(re, im);
}

// The DFT with the root exp(2 pi i/L).
Signal positiveDft(const Signal& x) { return x.size() == 1 ? x : inverseComplexBlock(x, 1); }

// The decimation identity down to parts of 4 points.
Signal skewTransform(const RealSignal& v) {
    const auto M = static_cast<int>(v.size());
    if (M == 2) return {{v[0], v[1]}};
    if (M == 4) {
        const Value p = cosine(1, 8) * (v[1] - v[3]), q = cosine(1, 8) * (v[1] + v[3]);
        return {{v[0] + p, q + v[2]}, {v[0] - p, q - v[2]}};
    }
    const int parts = skewParts(v.size()), length = M / parts;
    std::vector<Signal> bins;
    for (int c = 0; c < parts; ++c) {
        RealSignal part;
        for (int t = 0; t < length; ++t) part.push_back(v[static_cast<size_t>(parts * t + c)]);
        const InBlock block(*v[0].graph, {.kind = BlockKind::SkewPart, .length = M, .position = c});
        bins.push_back(skewTransform(part));
    }
    Signal result(static_cast<size_t>(M / 2));
    for (int k = 0; k < length / 2; ++k) {
        const InBlock block(*v[0].graph, {.kind = BlockKind::SkewRow, .length = M, .position = k});
        Signal row;
        for (int c = 0; c < parts; ++c) {
            row.push_back(twiddled(bins[static_cast<size_t>(c)][static_cast<size_t>(k)], -c * (2 * k + 1), 2 * M));
        }
        row = positiveDft(row);
        for (int b = 0; b < parts; ++b) {
            const int e = k + b * length;
            const ComplexValue bin = row[static_cast<size_t>(b)];
            result[static_cast<size_t>(e < M / 2 ? e : M - 1 - e)] = e < M / 2 ? bin : conjugate(bin);
        }
    }
    return result;
}

// The outputs of one row from its rotated bins z: U[s] = the real part of sum over p of z[p] exp(i pi (2p+1) s/(2r));
// rising output b is U[b], falling output b is -U[b + r].
RealSignal outputRow(const Signal& z) {
    const size_t r = z.size();
    if (r == 1) return {z[0].re, z[0].im};
    RealSignal outputs = mirroredSkewBlock(z, static_cast<int>(2 * r), 1, outputSplits(r));
    for (size_t b = r; b < 2 * r; ++b) outputs[b] = -outputs[b];
    return outputs;
}

// Bins in their order, those of the upper half as conjugates of their mirrors.
Signal folded(Signal bins) {
    for (size_t e = bins.size() / 2; e < bins.size(); ++e) bins[e] = conjugate(bins[e]);
    return bins;
}

// c = c1 + 4 c2: for each c1 a step of size r/4 over c2, then for each sub-row j a step of size 4 over c1, whose output
// b is bin j + b r/4.
Signal combinedInTwo(const Signal& d, const Signal& table) {
    const size_t inner = d.size() / 4;
    std::vector<Signal> columns;
    for (size_t c1 = 0; c1 < 4; ++c1) {
        const InBlock block(
            *d[0].re.graph,
            {.kind = BlockKind::InnerStep, .length = static_cast<int>(inner), .position = static_cast<int>(c1)});
        Signal column = {d[c1]};
        for (size_t c2 = 1; c2 < inner; ++c2) column.push_back(rotated(d[c1 + 4 * c2], table[c2 - 1]));
        columns.push_back(positiveDft(column));
    }
    Signal bins(d.size());
    for (size_t j = 0; j < inner; ++j) {
        const InBlock block(*d[0].re.graph,
                            {.kind = BlockKind::OuterStep, .length = 4, .position = static_cast<int>(j)});
        Signal row = {columns[0][j]};
        for (size_t c1 = 1; c1 < 4; ++c1) row.push_back(rotated(columns[c1][j], table[inner - 1 + 3 * j + c1 - 1]));
        row = positiveDft(row);
        for (size_t b = 0; b < 4; ++b) bins[j + b * inner] = row[b];
    }
    return bins;
}

// y[0] = c x[0] + s x[1], y[1] = s x[0] - c x[1], with the angle pi/8.
RealSignal directTwo(const RealSignal& x) {
    const Coefficient c = cosine(1, 16), s = sine(1, 16);
    const Value s1 = s * x[1], c0 = c * x[0], first = c0 + s1;
    const Value c1 = c * x[1], s0 = s * x[0], second = s0 - c1;
    return {first, second};
}

Coefficient tangent(int k, int n) {
    return {sine(k, n).value / cosine(k, n).value, "tan 2 pi " + std::to_string(k) + "/" + std::to_string(n)};
}

// A plane rotation of (u, v) by three lifting steps: u - a v, v + A u, u - a v again.
struct Lifted {
    Value u, v;
};
Lifted lifted(Value u, Value v, int k) {
    const Coefficient a = tangent(k, 64), sineOfTwice = sine(k, 32);
    const Value first = u - a * v, second = v + sineOfTwice * first;
    return {first - a * second, second};
}

// Two rotations, by 7 pi/16 and 5 pi/16, and one butterfly stage.
RealSignal directFour(const RealSignal& x) {
    const Coefficient diagonal = cosine(1, 8);
    const Lifted t = lifted(x[0], x[3], 7), u = lifted(x[1], x[2], 5);
    const Value e = diagonal * (t.v - u.v), f = diagonal * (t.u + u.u);
    return {t.v + u.v, e + f, e - f, t.u - u.u};
}

// The two passes of a longer transform in one body, constants in place of tables: r folds of M = N/r points, then
// N/(2r) rows.
RealSignal directPasses(const RealSignal& x, int r) {
    const int N = static_cast<int>(x.size()), M = N / r;
    std::vector<Signal> transforms;
    for (int p = 0; p < r; ++p) {
        RealSignal part;
        for (int s = 0; s < M; ++s) {
            part.push_back(x[static_cast<size_t>(s < M / 2 ? p + 2 * r * s : 2 * N - 1 - p - 2 * r * s)]);
        }
        transforms.push_back(dct4Fold(part));
    }
    RealSignal y(x.size());
    for (int m = 0; m < N / (2 * r); ++m) {
        const InBlock block(*x[0].graph, {.kind = BlockKind::OutputRow, .length = 2 * r, .position = m});
        Signal z;
        for (int p = 0; p < r; ++p) {
            const ComplexValue bin = transforms[static_cast<size_t>(p)][static_cast<size_t>(m)];
            z.push_back(twiddled(bin, -(2 * m + 1) * (2 * p + 1), 8 * N));
        }
        const RealSignal outputs = outputRow(z);
        for (int b = 0; b < r; ++b) {
            y[static_cast<size_t>(m + b * M)] = outputs[static_cast<size_t>(b)];
            y[static_cast<size_t>(N - 1 - m - b * M)] = outputs[static_cast<size_t>(r + b)];
        }
    }
    return y;
}

}  // namespace

Signal dct4Fold(const RealSignal& x) {
    const size_t M = x.size();
    const InBlock block(*x[0].graph, {BlockKind::Fold, static_cast<int>(M)});
    RealSignal v = x;
    for (size_t s = M / 2; s < M; ++s) v[s] = -v[s];
    return skewTransform(v);
}

std::vector<int> dct4OutputOrder(int radix) {
    std::vector<int> order;
    if (radix == 1) return {0};
    if (radix < 32) {
        for (int p = 0; p < radix / 2; ++p) order.insert(order.end(), {p, radix - 1 - p});
        return order;
    }
    for (int a = 0; a < 2; ++a) {
        for (int b = 0; b < 4; ++b) {
            for (int c = 0; c < 2; ++c) {
                const int p = a + 4 * b + 16 * c;
                order.insert(order.end(), {p, radix - 1 - p});
            }
        }
    }
    return order;
}

RealSignal dct4Output(const Signal& z, const Signal& table) {
    const std::vector<int> order = dct4OutputOrder(static_cast<int>(z.size()));
    Signal turned(z.size());
    for (size_t place = 0; place < order.size(); ++place) {
        const auto p = static_cast<size_t>(order[place]);
        turned[p] = rotated(z[p], table[place]);
    }
    return outputRow(turned);
}

RealSignal dct4OutputOfRotated(const Signal& z) { return outputRow(z); }

Signal dct4CombineOfRotated(const Signal& d) { return positiveDft(d); }

Signal dct4Combine(const Signal& d, const Signal& table) {
    if (d.size() > 8) return folded(combinedInTwo(d, table));
    Signal row = {d[0]};
    for (size_t c = 1; c < d.size(); ++c) row.push_back(rotated(d[c], table[c - 1]));
    return folded(positiveDft(row));
}

RealSignal dct4Direct(const RealSignal& x) {
    switch (x.size()) {
        case 2: return directTwo(x);
        case 4: return directFour(x);
        case 8: return directPasses(x, 2);
        case 16: return directPasses(x, 4);
        case 32: return directPasses(x, 2);
        default: throw std::out_of_range("no direct DCT of " + std::to_string(x.size()));
    }
}

}  // namespace gen
