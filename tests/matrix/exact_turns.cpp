#include "tests/matrix/exact_turns.h"

#include <boost/math/constants/constants.hpp>
#include <boost/multiprecision/cpp_dec_float.hpp>

namespace test {
namespace {

using Decimal = boost::multiprecision::cpp_dec_float_50;

Exact split(const Decimal& value) {
    const double high = value.convert_to<double>();
    return {high, Decimal(value - high).convert_to<double>()};
}

}  // namespace

std::vector<ExactTurn> exactTurns(int parts) {
    std::vector<ExactTurn> turns;
    for (int j = 0; j < parts; ++j) {
        Decimal cosine, sine;
        if (4 * j % parts == 0) {  // the quarters, where a series of 50 digits leaves 10^-50 in place of 0
            constexpr int cosines[] = {1, 0, -1, 0};
            cosine = cosines[4 * j / parts];
            sine = cosines[(4 * j / parts + 3) % 4];
        } else {
            const Decimal angle = boost::math::constants::two_pi<Decimal>() * j / parts;
            cosine = cos(angle);
            sine = sin(angle);
        }
        turns.push_back({split(cosine), split(sine), split(cosine + sine)});
    }
    return turns;
}

}  // namespace test
