// Quotients and products that are rounded once, under both settings of the processor's control word: by operators where
// these round once, and by integers.
#include "dct4/rounded_once.h"

#include <cmath>
#include <limits>
#include <random>

#include "tests/plan/exact.h"
#include "tests/plan/plan_fixture.h"
#include "tests/transforms/float_state.h"

// Of rounded_by_integers.cpp.
namespace by_integers {
double quotientRoundedOnce(std::int32_t dividend, std::int32_t divisor);
double productRoundedOnce(double a, double b);
}  // namespace by_integers

namespace test {
namespace {

constexpr double pi = 3.141592653589793;

void expectQuotient(std::int32_t a, std::int32_t b) {
    const double due = roundedOnce(Exact(a) / Exact(b));
    ASSERT_EQ(zulg::quotientRoundedOnce(a, b), due) << a << " / " << b;
    ASSERT_EQ(by_integers::quotientRoundedOnce(a, b), due) << a << " / " << b;
    const DoublePrecisionRegisters asACallerMaySetThem;
    ASSERT_EQ(zulg::quotientRoundedOnce(a, b), due) << a << " / " << b;
}

void expectProduct(double a, double b) {
    const double due = roundedOnce(Exact(a) * Exact(b));
    ASSERT_EQ(zulg::productRoundedOnce(a, b), due) << a << " * " << b;
    ASSERT_EQ(by_integers::productRoundedOnce(a, b), due) << a << " * " << b;
    const DoublePrecisionRegisters asACallerMaySetThem;
    ASSERT_EQ(zulg::productRoundedOnce(a, b), due) << a << " * " << b;
}

TEST(RoundedOnce, QuotientsOfIntegers) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min(), greatest = ~least;
    const std::int32_t special[] = {1, 2, 3, -1, -3, 7, 72, 1 << 30, (1 << 30) + 1, least, least + 1, greatest};
    for (std::int32_t a : special) {
        for (std::int32_t b : special) expectQuotient(a, b);
    }
    std::mt19937 random{static_cast<unsigned>(GTEST_FLAG_GET(random_seed))};
    std::uniform_int_distribution<std::int32_t> any(1, greatest);
    for (int i = 0; i < 200000; ++i) expectQuotient(any(random) >> i % 31 | 1, any(random) >> i % 29 | 1);
    EXPECT_EQ(zulg::quotientRoundedOnce(0, 5), 0.0);
    EXPECT_EQ(by_integers::quotientRoundedOnce(0, 5), 0.0);
    EXPECT_EQ(by_integers::quotientRoundedOnce(-5, 0), -std::numeric_limits<double>::infinity());
}

TEST(RoundedOnce, ProductsOfFractionsAndPi) {
    std::mt19937_64 random{static_cast<std::uint64_t>(GTEST_FLAG_GET(random_seed))};
    for (int i = 0; i < 200000; ++i) {
        expectProduct(static_cast<double>(2 * (random() >> 45) + 1) / (1 << 21), pi);
        expectProduct(std::ldexp(static_cast<double>(random() >> 11 | 1), -60 - i % 20), pi);
        expectProduct(-std::ldexp(static_cast<double>(random() >> 11 | 1), -20), pi * i + 1);
    }
}

// A significand that rounds up to the next power of two, a tie to even, and one that a trace decides.
TEST(RoundedOnce, Ties) {
    const double unit = std::numeric_limits<double>::epsilon();
    expectProduct(1 + unit, 1 + unit);
    expectProduct(2 - unit, 1 + unit);
    expectProduct(2 - unit, 2 - unit);
    expectProduct(1 + unit, 1.5);
    expectProduct(1 + 3 * unit, 1.5);
    expectProduct(1 + unit, 1.5 + unit);
    expectProduct(1, 1);
}

}  // namespace
}  // namespace test
