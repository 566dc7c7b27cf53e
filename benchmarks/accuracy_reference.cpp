#include "benchmarks/accuracy_reference.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <random>
#include <utility>

namespace accuracy {

namespace {

std::size_t at(int i) { return static_cast<std::size_t>(i); }

}  // namespace

FoldedSums::FoldedSums(int length)
    : N(length), rows(length / 2 + 1), s(at(rows)), d(at(rows)), cosines(at(rows)), sines(at(rows)) {
    for (int n = 0; n < rows; ++n) {
        for (int k = 0; k < rows; ++k) {
            cosineTable.push_back(test::cosTurn(n * k, N));
            sineTable.push_back(test::sinTurn(n * k, N));
        }
    }
}

void FoldedSums::fold(const double* x) {
    for (int k = 0; k < rows; ++k) {
        const bool isAlone = 2 * k % N == 0;
        s[at(k)] = isAlone ? Wide{x[k]} : Wide{x[k]} + x[N - k];
        d[at(k)] = isAlone ? Wide{0} : Wide{x[k]} - x[N - k];
    }
}

void FoldedSums::foldBins(const double* packed) {
    for (int k = 0; k < rows; ++k) {
        const bool isAlone = 2 * k % N == 0;
        s[at(k)] = k == 0 ? Wide{packed[0]} : (isAlone ? 1 : 2) * Wide{packed[2 * k - 1]};
        d[at(k)] = isAlone ? Wide{0} : 2 * Wide{packed[2 * k]};
    }
}

void FoldedSums::compute() {
    for (int n = 0; n < rows; ++n) {
        const Wide* const cosineRow = &cosineTable[at(n * rows)];
        const Wide* const sineRow = &sineTable[at(n * rows)];
        Wide c[2] = {}, t[2] = {};  // two sums of each kind, so that no addition waits for the last one
        int k = 0;
        for (; k + 1 < rows; k += 2) {
            for (int i : {0, 1}) {
                c[i] += s[at(k + i)] * cosineRow[k + i];
                t[i] += d[at(k + i)] * sineRow[k + i];
            }
        }
        if (k < rows) {
            c[0] += s[at(k)] * cosineRow[k];
            t[0] += d[at(k)] * sineRow[k];
        }
        cosines[at(n)] = c[0] + c[1];
        sines[at(n)] = t[0] + t[1];
    }
}

void walshHadamard(Values& x) {
    for (std::size_t stride = 1; stride < x.size(); stride *= 2) {
        for (std::size_t block = 0; block < x.size(); block += 2 * stride) {
            for (std::size_t j = block; j < block + stride; ++j) {
                const Wide a = x[j], b = x[j + stride];
                x[j] = a + b;
                x[j + stride] = a - b;
            }
        }
    }
}

Dct4Reference::Dct4Reference(int length) : N(length), work(at(length)) {
    for (int n = 0; n < N / 2; ++n) {
        rotations.push_back(test::cosTurn(8 * n + 1, 16 * N));
        rotations.push_back(-test::sinTurn(8 * n + 1, 16 * N));
        roots.push_back(test::cosTurn(n, N / 2));
        roots.push_back(-test::sinTurn(n, N / 2));
    }
}

void Dct4Reference::compute(const double* x, Values& y) {
    const auto points = static_cast<unsigned>(N / 2);
    const int bits = std::countr_zero(points);
    for (unsigned n = 0; n < points; ++n) {
        unsigned place = 0;
        for (int bit = 0; bit < bits; ++bit) place |= (n >> bit & 1) << (bits - 1 - bit);
        const Wide re = x[2 * n], im = x[static_cast<unsigned>(N) - 1 - 2 * n];
        const Wide c = rotations[2 * n], s = rotations[2 * n + 1];
        work[2 * place] = re * c - im * s;
        work[2 * place + 1] = re * s + im * c;
    }
    for (unsigned half = 1; half < points; half *= 2) {
        for (unsigned block = 0; block < points; block += 2 * half) {
            for (unsigned j = 0; j < half; ++j) {
                const Wide c = roots[points / half * j], s = roots[points / half * j + 1];
                Wide* const a = &work[2 * (block + j)];
                Wide* const b = a + 2 * half;
                const Wide re = b[0] * c - b[1] * s, im = b[0] * s + b[1] * c;
                b[0] = a[0] - re;
                b[1] = a[1] - im;
                a[0] += re;
                a[1] += im;
            }
        }
    }
    for (unsigned k = 0; k < points; ++k) {
        const Wide c = rotations[2 * k], s = rotations[2 * k + 1];
        y[2 * k] = work[2 * k] * c - work[2 * k + 1] * s;
        y[static_cast<unsigned>(N) - 1 - 2 * k] = -(work[2 * k] * s + work[2 * k + 1] * c);
    }
}

namespace {

// Relative error in units of 2^-64. Sums of 64-bit values of up to 2^13 terms stay within a few.
bool agrees(const char* what, int length, const Values& found, const Values& due) {
    Wide errors = 0, squares = 0;
    for (std::size_t i = 0; i < due.size(); ++i) {
        errors += (found[i] - due[i]) * (found[i] - due[i]);
        squares += due[i] * due[i];
    }
    const double error = static_cast<double>(std::ldexp(std::sqrt(errors / squares), 64));
    if (error < 16) return true;
    std::fprintf(stderr, "the reference of %s, length %d, is off by %g * 2^-64\n", what, length, error);
    return false;
}

Values dct4ByDefinition(const std::vector<double>& x) {
    const int N = static_cast<int>(x.size());
    Values y;
    for (int k = 0; k < N; ++k) {
        Wide sum = 0;
        for (int n = 0; n < N; ++n) sum += x[at(n)] * test::cosTurn((2 * n + 1) * (2 * k + 1) % (8 * N), 8 * N);
        y.push_back(sum);
    }
    return y;
}

Values walshHadamardByDefinition(const std::vector<double>& x) {
    Values y;
    for (unsigned k = 0; k < x.size(); ++k) {
        Wide sum = 0;
        for (unsigned j = 0; j < x.size(); ++j) sum += std::popcount(j & k) % 2 == 1 ? -Wide{x[j]} : Wide{x[j]};
        y.push_back(sum);
    }
    return y;
}

}  // namespace

bool definitionsHold() {
    std::mt19937_64 random;
    std::normal_distribution<double> normal;
    const auto randomValues = [&](int count) {
        std::vector<double> x;
        for (int i = 0; i < count; ++i) x.push_back(normal(random));
        return x;
    };
    bool hold = true;
    for (int N = 2; N <= 64; ++N) {
        FoldedSums sums(N);
        const auto x = randomValues(N);
        sums.fold(x.data());
        sums.compute();
        Values found, pairs;
        for (int k = 0; k < N; ++k) {
            found.insert(found.end(), {sums.cosine(k), -sums.sine(k)});
            pairs.insert(pairs.end(), {x[at(k)], 0});
        }
        hold &= agrees("the DFT", N, found, test::complexTransform(pairs, -1));

        sums.foldBins(x.data());
        sums.compute();
        Values signal, bins(at(N / 2 * 2 + 2));
        for (int n = 0; n < N; ++n) signal.push_back(sums.cosine(n) - sums.sine(n));
        for (int i = 0; i < N; ++i) bins[at(i == 0 ? 0 : i + 1)] = x[at(i)];
        hold &= agrees("the inverse of a half spectrum", N, signal, test::inverseRealTransform(bins, N));
    }
    for (int N = 2; N <= 1024; N *= 2) {
        const auto x = randomValues(N);
        Values found(x.begin(), x.end());
        walshHadamard(found);
        hold &= agrees("Walsh-Hadamard", N, found, walshHadamardByDefinition(x));
        Dct4Reference(N).compute(x.data(), found);
        hold &= agrees("the DCT-IV", N, found, dct4ByDefinition(x));
    }
    return hold;
}

}  // namespace accuracy
