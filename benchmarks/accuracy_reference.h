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
