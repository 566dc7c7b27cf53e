// Rader's construction for a prime p: the primitive root, the permutations and the constants that follow from them.
//
//     M = p - 1;  g the smallest primitive root
//     b[n] = exp(-2 pi i (a g^-n mod p)/p),  B[k] = (1/M) sum over n of b[n] exp(-2 pi i n k/M)
//
// a is the multiplier of a rotated block. B[0] is -1/M; every other bin has the magnitude sqrt(p)/M. The even bins come
// from the cosines in b, the odd ones from its sines; B[M/2] is real or imaginary as M/2 is even or odd.
#pragma once

#include <vector>

#include "numbers/exact.h"

namespace gen {

struct ExactComplex {
    Exact re, im;
};

class RaderConstants {
public:
    RaderConstants(int p, int a);

    int prime() const { return p; }
    int order() const { return p - 1; }

    // g^n mod p and g^-m mod p.
    int input(int n) const { return powers[static_cast<std::size_t>(n)]; }
    int output(int m) const { return powers[static_cast<std::size_t>((p - 1 - m) % (p - 1))]; }

    const ExactComplex& spectrum(int k) const { return bins[static_cast<std::size_t>(k)]; }

private:
    int p;
    std::vector<int> powers;
    std::vector<ExactComplex> bins;
};

}  // namespace gen
