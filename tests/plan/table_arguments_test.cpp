// What the tables ask the mathematics library for: the cosine and the sine of this program note their arguments. They
// must not depend on the control word of the processor, with which a caller may have set the width of its registers.
#include <gtest/gtest.h>

#include "tests/plan/exact.h"
#include "tests/plan/plan_fixture.h"
#include "tests/transforms/float_state.h"

namespace {

std::vector<double> arguments;

double noted(double x) {
    arguments.push_back(x);
    return 0.5;
}

}  // namespace

extern "C" {
double cos(double x) noexcept { return noted(x); }
double sin(double x) noexcept { return noted(x); }
}

namespace test {
namespace {

template <class Element>
std::vector<double> argumentsOf(std::int32_t length) {
    arguments.clear();
    const BuiltPlan<Element> built(length);
    return std::move(arguments);
}

template <class Element>
class TableArgumentsTest : public ElementTest<Element> {};
TYPED_TEST_SUITE(TableArgumentsTest, Elements, ElementNames);

TYPED_TEST(TableArgumentsTest, AreTheSameAtAnyWidthOfRegisters) {
    for (const std::int32_t length : builtLengths()) {
        const auto before = argumentsOf<TypeParam>(length);
        EXPECT_EQ(before.empty(), length <= 32 && length % 2 == 0) << length;
        const DoublePrecisionRegisters asACallerMaySetThem;
        EXPECT_EQ(argumentsOf<TypeParam>(length), before) << length;
    }
}

// The table of the second pass comes first. Its entries are those of pi (2m + 1)(2p + 1)/(4N), in an order of p that
// the rows of one plan share.
TYPED_TEST(TableArgumentsTest, AreRoundedOnce) {
    for (const std::int32_t length : builtLengths()) {
        const auto asked = argumentsOf<TypeParam>(length);
        if (asked.empty()) continue;
        const BuiltPlan<TypeParam> built(length);
        const std::int32_t r = built.plan->radix, rows = length / (2 * r);
        std::vector<double> due;
        for (std::int32_t m = 0; m < rows; ++m) {
            for (std::int32_t p = 0; p < r; ++p) {
                volatile auto fraction =
                    static_cast<TypeParam>(roundedOnce(Exact((2 * m + 1) * (2 * p + 1)) / Exact(4 * length)));
                due.insert(due.end(), 2, roundedOnce(Exact(fraction) * Exact(3.141592653589793)));
            }
        }
        std::vector<double> table(asked.begin(), asked.begin() + 2 * r * rows);
        std::sort(due.begin(), due.end());
        std::sort(table.begin(), table.end());
        EXPECT_EQ(table, due) << length;
    }
}

}  // namespace
}  // namespace test
