// What is the DCT-IV's own: values, plans, lengths beside powers of two, statuses, and what is asked of the core
// library. That it holds the promises of every transform is tested in tests/transforms.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <thread>

#include "tests/dct4/dct4_fixture.h"
#include "tests/memory.h"

namespace test {
namespace {

TYPED_TEST_SUITE(Dct4Test, Elements, ElementNames);

TYPED_TEST(Dct4Test, ZerosGiveZeros) {
    for (int length = 2; length <= 65536; length *= 2) {
        const std::vector<TypeParam> zeros(static_cast<std::size_t>(length));
        for (TypeParam y : Planned<TypeParam>(length).run(zeros)) ASSERT_EQ(y, 0) << length;
    }
}

TYPED_TEST(Dct4Test, AnImpulseAtZeroGivesTheFirstColumn) {
    for (int length = 2; length <= 16384; length *= 2) {
        std::vector<TypeParam> x(static_cast<std::size_t>(length));
        x[0] = 1;
        const auto y = Planned<TypeParam>(length).run(x);
        for (int k = 0; k < length; ++k) {
            const double due = static_cast<double>(dct4Factor(0, k, length));
            ASSERT_NEAR(y[static_cast<std::size_t>(k)], due, 8 * this->unit) << length << ", " << k;
        }
    }
}

// In a second level of SkewSplit, the folds of 32 points and the combine rows of radix 32 are first used at 2^20, for
// rising and for falling bins. The folds of 64 points are first used there at 2^21. All bins are checked, of an input
// with few values.
TYPED_TEST(Dct4Test, ComputesTheDefinitionWithEveryBodyInTheSecondLevel) {
    for (int length = 1 << 18; length <= 1 << 21; length *= 2) {
        std::vector<TypeParam> x(static_cast<std::size_t>(length));
        const int places[] = {5, length / 3, length - 2};
        for (int place : places) x[static_cast<std::size_t>(place)] = static_cast<TypeParam>(place % 7 + 1);
        const auto y = Planned<TypeParam>(length).run(x);
        double worst = 0;
        for (int k = 0; k < length; ++k) {
            Wide due = 0;
            for (int place : places) due += x[static_cast<std::size_t>(place)] * dct4Factor(place, k, length);
            worst = std::max(worst, static_cast<double>(std::abs(y[static_cast<std::size_t>(k)] - due)));
        }
        EXPECT_LT(worst, 100 * this->unit) << length;
    }
}

TYPED_TEST(Dct4Test, LengthTwoHasNoFactor) {
    const auto y = Planned<TypeParam>(2).run({1, 0});
    EXPECT_NEAR(y[0], std::cos(3.141592653589793 / 8), this->unit);
    EXPECT_NEAR(y[1], std::sin(3.141592653589793 / 8), this->unit);
}

// The lifting constants of length 4 and the cosines of length 2 are of the element's width.
TYPED_TEST(Dct4Test, FixedConstantsHaveTheWidthOfTheElement) {
    const auto y = Planned<TypeParam>(2).run({1, 0});
    EXPECT_EQ(y[0], rounded<TypeParam>(0.9238795325112867));
    EXPECT_EQ(y[1], rounded<TypeParam>(0.3826834323650898));
    // x = (0, 0, 0, 1): t0 = -a, t1 = 1 - A a, so that y[0] = t1.
    const double a = rounded<TypeParam>(0.8206787908286603), A = rounded<TypeParam>(0.9807852804032304);
    volatile double product = A * a;
    const TypeParam due = rounded<TypeParam>(1 - product);
    const auto lifted = Planned<TypeParam>(4).run({0, 0, 0, 1});
    EXPECT_NEAR(lifted[0], due, perType<TypeParam>(1e-9, 1e-16));
}

TYPED_TEST(Dct4Test, TwiceGivesHalfTheLengthTimesTheInput) {
    for (int length = 2; length <= 65536; length *= 2) {
        Planned<TypeParam> planned(length);
        const auto x = this->randomElements(length);
        const auto twice = planned.run(planned.run(x));
        for (std::size_t n = 0; n < x.size(); ++n)
            ASSERT_NEAR(twice[n] / (length / 2.0), x[n], 40 * this->unit) << length;
    }
}

TYPED_TEST(Dct4Test, ARunDependsOnNoEarlierOne) {
    for (int length : {64, 2048, 8192}) {
        Planned<TypeParam> used(length), fresh(length);
        const auto x = this->randomElements(length);
        used.run(std::vector<TypeParam>(static_cast<std::size_t>(length), std::numeric_limits<TypeParam>::quiet_NaN()));
        EXPECT_EQ(used.run(x), fresh.run(x)) << length;
    }
}

TYPED_TEST(Dct4Test, NotANumberGoesThrough) {
    for (int length : {2, 4, 32, 64, 4096}) {
        std::vector<TypeParam> x(static_cast<std::size_t>(length), std::numeric_limits<TypeParam>::quiet_NaN());
        for (TypeParam y : Planned<TypeParam>(length).run(x)) ASSERT_TRUE(std::isnan(y)) << length;
    }
}

// 9 points: r = 2, M = 4, 2 rows. The fold reads x[9], one past the end; the second pass writes 0, 1, 4, 5, 8 and 9,
// one past the end, and never 2, 3, 6 and 7.
TYPED_TEST(Dct4Test, LengthNineReadsAndWritesWhatItsPassesSay) {
    Planned<TypeParam> planned(9);
    auto x = this->randomElements(10);
    const TypeParam untouched = 77;
    std::vector<TypeParam> y(12, untouched);
    EXPECT_EQ(this->dct4.run(x.data(), y.data(), planned.plan), StatusOk);
    for (int k : {2, 3, 6, 7, 10, 11}) EXPECT_EQ(y[static_cast<std::size_t>(k)], untouched) << k;
    for (int k : {0, 1, 4, 5, 8, 9}) EXPECT_NE(y[static_cast<std::size_t>(k)], untouched) << k;

    // The two passes, computed from their formulas.
    const int N = 9, r = 2, M = 4, rows = 2;
    std::vector<Values> C;
    for (int p = 0; p < r; ++p) {
        Values v;
        for (int s = 0; s < M; ++s) {
            v.push_back(s < M / 2 ? x[static_cast<std::size_t>(p + 2 * r * s)]
                                  : -x[static_cast<std::size_t>(2 * N - 1 - p - 2 * r * s)]);
        }
        C.push_back(skewTransform(v));
    }
    std::vector<Wide> due(10);
    for (int m = 0; m < rows; ++m) {
        for (int b = 0; b < r; ++b) {
            Wide rising = 0, falling = 0;
            for (int p = 0; p < r; ++p) {
                const Wide re = C[static_cast<std::size_t>(p)][static_cast<std::size_t>(2 * m)],
                           im = C[static_cast<std::size_t>(p)][static_cast<std::size_t>(2 * m + 1)];
                // alpha + pi (2p+1) b/(2r), in units of 2 pi/(8 N r).
                const int turn = (2 * m + 1) * (2 * p + 1) * r + 2 * N * (2 * p + 1) * b;
                const Wide c = cosTurn(turn, 8 * N * r), s = sinTurn(turn, 8 * N * r);
                rising += re * c - im * s;
                falling += (p % 2 == 0 ? 1 : -1) * (re * s + im * c);
            }
            due[static_cast<std::size_t>(m + b * M)] = rising;
            due[static_cast<std::size_t>(2 * N - 1 - m - (r + b) * M)] = falling;
        }
    }
    for (int k : {0, 1, 8, 9}) {
        EXPECT_NEAR(static_cast<double>(y[static_cast<std::size_t>(k)] - due[static_cast<std::size_t>(k)]), 0,
                    16 * this->unit)
            << k;
    }
    // x[9] has an effect.
    std::vector<TypeParam> other(12, untouched);
    x[9] += 1;
    EXPECT_EQ(this->dct4.run(x.data(), other.data(), planned.plan), StatusOk);
    EXPECT_NE(other, y);
}

TYPED_TEST(Dct4Test, LengthsBesidePowersOfTwoRunWithOneElementMore) {
    for (int k = 3; k <= 14; ++k) {
        const int length = (1 << k) + 1;
        Planned<TypeParam> planned(length);
        const std::size_t bytes = static_cast<std::size_t>(length + 1) * sizeof(TypeParam);
        const GuardedPages from(bytes), to(bytes);
        const auto x = this->randomElements(length + 1);
        std::memcpy(from.atRear(bytes), x.data(), bytes);
        EXPECT_EQ(this->dct4.run(reinterpret_cast<const TypeParam*>(from.atRear(bytes)),
                                 reinterpret_cast<TypeParam*>(to.atRear(bytes)), planned.plan),
                  StatusOk)
            << length;
    }
}

TYPED_TEST(Dct4Test, NullPointersAreRefusedAndNothingIsWritten) {
    Planned<TypeParam> planned(8);
    TypeParam data[8] = {7, 7, 7, 7, 7, 7, 7, 7};
    EXPECT_EQ(this->dct4.run(nullptr, data, planned.plan), StatusNullPointer);
    EXPECT_EQ(this->dct4.run(data, nullptr, planned.plan), StatusNullPointer);
    EXPECT_EQ(this->dct4.run(data, data, nullptr), StatusNullPointer);
    for (TypeParam x : data) EXPECT_EQ(x, 7);
    EXPECT_EQ(this->dct4.init(nullptr, 8, reinterpret_cast<std::uint8_t*>(data)), StatusNullPointer);
    zulg::DctPlan* plan = nullptr;
    EXPECT_EQ(this->dct4.init(&plan, 8, nullptr), StatusNullPointer);
    EXPECT_EQ(this->dct4.initAlloc(nullptr, 8), StatusNullPointer);
    EXPECT_EQ(this->dct4.free(nullptr), StatusNullPointer);
    EXPECT_EQ(this->core.allocations, 0);
    EXPECT_EQ(this->core.releases, 0);
}

TYPED_TEST(Dct4Test, APlanOfUnknownKindIsRefused) {
    for (int kind : {0, -1, 7, 8, 1000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        Planned<TypeParam> planned(64);
        planned.plan->kind = zulg::PlanKind{kind};
        std::vector<TypeParam> x(64, 1), y(64, 7);
        EXPECT_EQ(this->dct4.run(x.data(), y.data(), planned.plan), StatusPlanKindError) << kind;
        EXPECT_EQ(y, std::vector<TypeParam>(64, 7));
    }
}

TYPED_TEST(Dct4Test, RefusedLengthsLeaveSizeAndPlanAsTheyWere) {
    std::vector<std::uint8_t> block(1 << 20);
    for (int length : {0, 1, 3, 5, 6, 7, 12, 1000, -1, -2, -64, 48, 63, 66}) {
        std::int32_t size = 77;
        EXPECT_EQ(this->dct4.getSize(length, &size), StatusSizeError) << length;
        EXPECT_EQ(size, 77);
        auto* plan = reinterpret_cast<zulg::DctPlan*>(block.data());
        EXPECT_EQ(this->dct4.initAlloc(&plan, length), StatusSizeError) << length;
        EXPECT_EQ(plan, reinterpret_cast<zulg::DctPlan*>(block.data()));
    }
    EXPECT_EQ(this->core.allocations, 0);
}

TYPED_TEST(Dct4Test, InitAllocAsksForTheReportedSizeAndFreeGivesItBack) {
    for (int length : {2, 32, 64, 1024, 4096, 131072}) {
        this->core = {};
        zulg::DctPlan* plan = nullptr;
        ASSERT_EQ(this->dct4.initAlloc(&plan, length), StatusOk);
        std::int32_t size = 0;
        this->dct4.getSize(length, &size);
        EXPECT_EQ(this->core.bytes, static_cast<std::uint32_t>(size));
        const auto x = this->randomElements(length);
        std::vector<TypeParam> y(x.size());
        EXPECT_EQ(this->dct4.run(x.data(), y.data(), plan), StatusOk);
        EXPECT_EQ(y, Planned<TypeParam>(length).run(x));
        EXPECT_EQ(this->dct4.free(plan), StatusOk);
        EXPECT_EQ(this->core.allocations, 1);
        EXPECT_EQ(this->core.releases, 1);
        EXPECT_EQ(this->core.released, this->core.block);
    }
}

TYPED_TEST(Dct4Test, ARefusedBlockShowsAsANullPointer) {
    this->core.refuses = true;
    zulg::DctPlan* plan = nullptr;
    EXPECT_EQ(this->dct4.initAlloc(&plan, 64), StatusNullPointer);
    EXPECT_EQ(plan, nullptr);
    EXPECT_EQ(this->core.allocations, 1);
    EXPECT_EQ(this->core.releases, 1);
    EXPECT_EQ(this->core.released, nullptr);
}

// Plans are independent. Those of up to 32 points are not written by a run and may be shared.
TYPED_TEST(Dct4Test, ThreadsWithPlansOfTheirOwnDoNotDisturbEachOther) {
    const auto x = this->randomElements(4096), small = this->randomElements(32);
    Planned<TypeParam> shared(32), model(4096);
    const auto due = model.run(x), dueSmall = shared.run(small);
    std::vector<std::thread> threads;
    std::vector<int> wrong(4);
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            Planned<TypeParam> own(4096);
            for (int i = 0; i < 50; ++i) {
                wrong[static_cast<std::size_t>(t)] += own.run(x) != due;
                wrong[static_cast<std::size_t>(t)] += shared.run(small) != dueSmall;
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(wrong, std::vector<int>(4));
}

}  // namespace
}  // namespace test
