#include "tests/reference.h"

#include <cmath>

namespace test {

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

Values complexTransform(const Values& x, int sign) {
    const int length = static_cast<int>(x.size() / 2);
    Values cosines, sines;
    for (int k = 0; k < length; ++k) {
        cosines.push_back(cosTurn(k, length));
        sines.push_back(static_cast<Wide>(sign) * sinTurn(k, length));
    }
    Values result;
    for (int k = 0; k < length; ++k) {
        Wide re = 0, im = 0;
        for (int n = 0; n < length; ++n) {
            const auto place = static_cast<std::size_t>(n * k % length);
            const Wide xr = x[static_cast<std::size_t>(2 * n)], xi = x[static_cast<std::size_t>(2 * n + 1)];
            re += xr * cosines[place] - xi * sines[place];
            im += xr * sines[place] + xi * cosines[place];
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
    Values result;
    for (int k = 0; k < length; ++k) {
        Wide sum = 0;
        for (int j = 0; j < length; ++j) {
            sum += x[static_cast<std::size_t>(j)] * (cosTurn(j * k, length) + sinTurn(j * k, length));
        }
        result.push_back(sum);
    }
    return result;
}

}  // namespace test
