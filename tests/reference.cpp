#include "tests/reference.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <iterator>
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
        int turn = 0;  // n k modulo N
        for (int n = 0; n < length; ++n) {
            const auto place = static_cast<std::size_t>(turn);
            const Wide xr = x[static_cast<std::size_t>(2 * n)], xi = x[static_cast<std::size_t>(2 * n + 1)];
            const Wide cosine = cosines[place], sine = static_cast<Wide>(sign) * sines[place];
            re += xr * cosine - xi * sine;
            im += xr * sine + xi * cosine;
            turn += k;
            if (turn >= length) turn -= length;
        }
        result.push_back(re);
        result.push_back(im);
    }
    return result;
}

Values realTransform(const Values& x) {
    const int length = static_cast<int>(x.size());
    const Values &cosines = tableOf<cosTurn>(length), &sines = tableOf<sinTurn>(length);
    Values bins;
    for (int k = 0; 2 * k <= length; ++k) {
        Wide re = 0, im = 0;
        int turn = 0;  // n k modulo N
        for (const Wide value : x) {
            re += value * cosines[static_cast<std::size_t>(turn)];
            im -= value * sines[static_cast<std::size_t>(turn)];
            turn += k;
            if (turn >= length) turn -= length;
        }
        const bool isReal = 2 * k % length == 0;
        bins.insert(bins.end(), {re, isReal ? 0 : im});
    }
    return bins;
}

// The bins that are left out are the conjugates of those between the real ones, so that these count twice.
Values inverseRealTransform(const Values& bins, int length) {
    const Values &cosines = tableOf<cosTurn>(length), &sines = tableOf<sinTurn>(length);
    Values y;
    for (int n = 0; n < length; ++n) {
        Wide sum = 0;
        int turn = 0;  // n k modulo N
        for (int k = 0; 2 * k <= length; ++k) {
            const Wide re = bins[static_cast<std::size_t>(2 * k)], im = bins[static_cast<std::size_t>(2 * k + 1)];
            const Wide cosine = cosines[static_cast<std::size_t>(turn)], sine = sines[static_cast<std::size_t>(turn)];
            sum += 2 * k % length == 0 ? re * cosine : 2 * (re * cosine - im * sine);
            turn += n;
            if (turn >= length) turn -= length;
        }
        y.push_back(sum);
    }
    return y;
}

Values hartleyTransform(const Values& x) {
    const int length = static_cast<int>(x.size());
    const Values& factors = tableOf<casTurn>(length);
    Values result;
    for (int k = 0; k < length; ++k) {
        Wide sum = 0;
        int turn = 0;  // j k modulo N
        for (const Wide value : x) {
            sum += value * factors[static_cast<std::size_t>(turn)];
            turn += k;
            if (turn >= length) turn -= length;
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
    // Zeros at both ends are left out: there is one value in a unit vector.
    const auto isThere = [](Wide value) { return value != 0; };
    const auto begin = std::find_if(x.begin(), x.end(), isThere);
    const auto end = std::find_if(x.rbegin(), std::make_reverse_iterator(begin), isThere).base();
    const auto first = static_cast<int>(begin - x.begin()), count = static_cast<int>(end - begin);
    Values result;
    for (int k = outputs.first; k < length; k += outputs.step) {
        // (2n + 1)(2k + 1) modulo 8N
        auto turn = static_cast<int>(static_cast<long long>(2 * first + 1) * (2 * k + 1) % period);
        result.push_back(summed(count, [&](int n) {
            const Wide term = begin[n] * cosines[static_cast<std::size_t>(turn)];
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
