#include "tests/reference.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <map>

namespace test {
namespace {

// The sum of term(i) for i = 0 .. count-1, in groups of 64: fewer roundings reach a long sum.
template <class Term>
Wide summed(int count, const Term& term) {
    Wide sum = 0;
    for (int from = 0; from < count; from += 64) {
        Wide group = 0;
        for (int i = from; i < std::min(count, from + 64); ++i) group += term(i);
        sum += group;
    }
    return sum;
}

// turn(k, n) for each k from 0 to n - 1, computed once for each n.
template <Wide (*turn)(int, int)>
const Values& tableOf(int n) {
    static std::map<int, Values> tables;
    Values& table = tables[n];
    for (int k = static_cast<int>(table.size()); k < n; ++k) table.push_back(turn(k, n));
    return table;
}

}  // namespace

Wide cosTurn(int k, int n) {
    constexpr Wide pi = 3.14159265358979323846264338327950288L;
    // The angle is reduced in integers, and a quarter turn is exact.
    k = ((k % n) + n) % n;
    if (2 * k > n) k = n - k;
    if (4 * k == n) return 0;
    if (4 * k > n) return -std::cos(2 * pi * static_cast<Wide>(n - 2 * k) / static_cast<Wide>(2 * n));
    return std::cos(2 * pi * static_cast<Wide>(k) / static_cast<Wide>(n));
}

Wide sinTurn(int k, int n) { return cosTurn(4 * k - n, 4 * n); }

Wide casTurn(int k, int n) { return cosTurn(k, n) + sinTurn(k, n); }

Values complexTransform(const Values& x, int sign) {
    const int length = static_cast<int>(x.size() / 2);
    const Values &cosines = tableOf<cosTurn>(length), &sines = tableOf<sinTurn>(length);
    Values result;
    for (int k = 0; k < length; ++k) {
        Wide re = 0, im = 0;
        for (int n = 0; n < length; ++n) {
            const auto place = static_cast<std::size_t>(n * k % length);
            const Wide xr = x[static_cast<std::size_t>(2 * n)], xi = x[static_cast<std::size_t>(2 * n + 1)];
            const Wide cosine = cosines[place], sine = static_cast<Wide>(sign) * sines[place];
            re += xr * cosine - xi * sine;
            im += xr * sine + xi * cosine;
        }
        result.push_back(re);
        result.push_back(im);
    }
    return result;
}

Values realTransform(const Values& x) {
    Values pairs;
    for (Wide value : x) pairs.insert(pairs.end(), {value, 0});
    Values bins = complexTransform(pairs, -1);
    bins.resize(x.size() / 2 * 2 + 2);
    bins[1] = 0;
    if (x.size() % 2 == 0) bins[x.size() + 1] = 0;
    return bins;
}

Values inverseRealTransform(const Values& bins, int length) {
    Values spectrum(static_cast<std::size_t>(2 * length));
    for (int k = 0; 2 * k <= length; ++k) {
        const auto here = static_cast<std::size_t>(2 * k),
                   mirrored = static_cast<std::size_t>(2 * ((length - k) % length));
        const bool isReal = 2 * k % length == 0;
        spectrum[here] = spectrum[mirrored] = bins[here];
        spectrum[here + 1] = isReal ? 0 : bins[here + 1];
        spectrum[mirrored + 1] = -spectrum[here + 1];
    }
    const Values pairs = complexTransform(spectrum, +1);
    Values y;
    for (std::size_t n = 0; n < pairs.size(); n += 2) y.push_back(pairs[n]);
    return y;
}

Values hartleyTransform(const Values& x) {
    const int length = static_cast<int>(x.size());
    const Values& factors = tableOf<casTurn>(length);
    Values result;
    for (int k = 0; k < length; ++k) {
        Wide sum = 0;
        for (int j = 0; j < length; ++j) {
            sum += x[static_cast<std::size_t>(j)] * factors[static_cast<std::size_t>(j * k % length)];
        }
        result.push_back(sum);
    }
    return result;
}

int walshHadamardSign(int j, int k) { return std::popcount(static_cast<unsigned>(j & k)) % 2 == 0 ? 1 : -1; }

Values walshHadamardTransform(const Values& x) {
    Values result = x;
    for (std::size_t bit = 1; bit < x.size(); bit *= 2) {
        // This bit of j turns the sign of those k that have it too.
        for (std::size_t k = 0; k < x.size(); ++k) {
            if ((k & bit) != 0) continue;
            const Wide without = result[k], with = result[k + bit];
            result[k] = without + with;
            result[k + bit] = without - with;
        }
    }
    return result;
}

Wide dct4Factor(int n, int k, int length) {
    const auto turn = static_cast<long long>(2 * n + 1) * (2 * k + 1) % (8LL * length);
    return cosTurn(static_cast<int>(turn), 8 * length);
}

Values dct4Transform(const Values& x, Chosen outputs) {
    const int length = static_cast<int>(x.size()), period = 8 * length;
    const Values& cosines = tableOf<cosTurn>(period);
    Values result;
    for (int k = outputs.first; k < length; k += outputs.step) {
        int turn = 2 * k + 1;  // (2n + 1)(2k + 1) modulo 8N
        result.push_back(summed(length, [&](int n) {
            const Wide term = x[static_cast<std::size_t>(n)] * cosines[static_cast<std::size_t>(turn)];
            turn += 2 * (2 * k + 1);
            if (turn >= period) turn -= period;
            return term;
        }));
    }
    return result;
}

Values skewTransform(const Values& v, Chosen bins) {
    const int length = static_cast<int>(v.size()), period = 2 * length;
    const Values &cosines = tableOf<cosTurn>(period), &sines = tableOf<sinTurn>(period);
    Values result;
    for (int k = bins.first; k < length / 2; k += bins.step) {
        Wide re = 0, im = 0;
        for (int s = 0; s < length; ++s) {
            const auto turn = static_cast<std::size_t>(static_cast<long long>(s) * (2 * k + 1) % period);
            re += v[static_cast<std::size_t>(s)] * cosines[turn];
            im += v[static_cast<std::size_t>(s)] * sines[turn];
        }
        result.insert(result.end(), {re, im});
    }
    return result;
}

}  // namespace test
