#include "numbers/rader_constants.h"

#include "numbers/modular.h"

namespace gen {
namespace {

// 1, g, g^2, ... modulo p.
std::vector<int> powersOf(int g, int p) {
    std::vector<int> powers = {1};
    while (static_cast<int>(powers.size()) < p - 1) powers.push_back(powers.back() * g % p);
    return powers;
}

bool isPrimitiveRoot(int g, int p) {
    const std::vector<int> powers = powersOf(g, p);
    for (std::size_t n = 1; n < powers.size(); ++n) {
        if (powers[n] == 1) return false;
    }
    return true;
}

int smallestPrimitiveRoot(int p) {
    int g = 2;
    while (!isPrimitiveRoot(g, p)) ++g;
    return g;
}

}  // namespace

RaderConstants::RaderConstants(int prime, int a) : p(prime), powers(powersOf(smallestPrimitiveRoot(p), p)) {
    const int m = order();
    for (int k = 0; k < m; ++k) {
        ExactComplex sum{0, 0};
        for (int n = 0; n < m; ++n) {
            // b[n] exp(-2 pi i n k/M) = exp(-2 pi i t/(p M)).
            const int t = modulo(a * output(n) * m + n * k * p, p * m);
            sum.re = sum.re + cosTurn(t, p * m);
            sum.im = sum.im - sinTurn(t, p * m);
        }
        bins.push_back({sum.re / m, sum.im / m});
    }
}

}  // namespace gen
