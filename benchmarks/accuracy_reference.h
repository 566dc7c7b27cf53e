// What the routines should give, to 64 bits and fast enough for a hundred thousand inputs of each length.
// `definitionsHold` compares each of them with the definition itself.
#pragma once

#include <vector>

#include "tests/reference.h"

namespace accuracy {

using test::Values;
using test::Wide;

// The sums that all transforms of a length between 2 and 64 are made of. With s and d given for k = 0 .. N/2,
//
//     cosines[n] = sum of s[k] cos(2 pi k n/N)     sines[n] = sum of d[k] sin(2 pi k n/N)     n = 0 .. N/2
//
// A signal is folded first: s[k] = x[k] + x[N-k] and d[k] = x[k] - x[N-k], and x[k] itself where k and N-k are one.
class FoldedSums {
public:
    explicit FoldedSums(int length);

    void fold(const double* x);
    // A half spectrum in Pack: the folded sums of the signal that its bins are.
    void foldBins(const double* packed);
    void compute();

    // For any n of 0 .. N-1.
    Wide cosine(int n) const { return cosines[static_cast<std::size_t>(2 * n > N ? N - n : n)]; }
    Wide sine(int n) const {
        return 2 * n > N ? -sines[static_cast<std::size_t>(N - n)] : sines[static_cast<std::size_t>(n)];
    }

private:
    int N, rows;                    // rows: N/2 + 1
    Values cosineTable, sineTable;  // row n, column k
    Values s, d, cosines, sines;
};

// The results that the DFT and Hartley routines of one length must give at factor 1. For double elements they are the
// sums of the definition, in long double.
class WideReference {
public:
    using Due = Wide;

    explicit WideReference(int length) : N(length), sums{FoldedSums(length), FoldedSums(length)} {}

    void signal(const double* re, const double* im) {
        sums[0].fold(re);
        sums[1].fold(im);
        for (FoldedSums& part : sums) part.compute();
    }
    void complexTransform(std::vector<Due>& due, int sign) const {
        for (int k = 0; k < N; ++k) {
            due[static_cast<std::size_t>(2 * k)] = sums[0].cosine(k) - static_cast<Wide>(sign) * sums[1].sine(k);
            due[static_cast<std::size_t>(2 * k + 1)] = sums[1].cosine(k) + static_cast<Wide>(sign) * sums[0].sine(k);
        }
    }
    void realForward(std::vector<Due>& due) const {
        due[0] = sums[0].cosine(0);
        for (int i = 1; i < N; ++i) {
            const int k = (i + 1) / 2;
            due[static_cast<std::size_t>(i)] = i % 2 == 1 ? sums[0].cosine(k) : -sums[0].sine(k);
        }
    }
    void hartley(std::vector<Due>& due) const {
        for (int k = 0; k < N; ++k) due[static_cast<std::size_t>(k)] = sums[0].cosine(k) + sums[0].sine(k);
    }
    void realInverse(const double* packed, std::vector<Due>& due) {
        sums[0].foldBins(packed);
        sums[0].compute();
        for (int n = 0; n < N; ++n) due[static_cast<std::size_t>(n)] = sums[0].cosine(n) - sums[0].sine(n);
    }

private:
    int N;
    FoldedSums sums[2];
};

// In place, stage after stage.
void walshHadamard(Values& x);

// y[k] = sum of x[n] cos(pi (n + 1/2)(k + 1/2)/N), by a complex transform of N/2 points between two rotations by
// pi (n + 1/8)/N. N is a power of two.
class Dct4Reference {
public:
    explicit Dct4Reference(int length);
    void compute(const double* x, Values& y);

private:
    int N;
    Values rotations, roots, work;  // pairs
};

// Whether all of these agree with the definition, one random input to a length. Says on stderr which one does not.
bool definitionsHold();

}  // namespace accuracy
