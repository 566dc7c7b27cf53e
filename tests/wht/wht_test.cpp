// What is the Walsh-Hadamard routines' own: exact values, buffers, refusals, and what they ask of the core library.
// That they hold the promises of every transform is tested in tests/transforms.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

#include "tests/exports.h"
#include "tests/fakes/core_fixture.h"
#include "tests/memory.h"
#include "tests/reference.h"
#include "tests/transforms/kernel_fixture.h"

#ifdef _WIN32
#include <process.h>
#else
#include <sys/wait.h>
#endif

namespace test {
namespace {

using BufferSize = ZulgStatus(ZULG_CALL*)(std::int32_t order, std::int32_t* pSize);

template <class Element>
WhtKernel<Element> kernelOf(int order) {
    return exported<WhtKernel<Element>>(exportedName<Element>("zulgWHT_" + std::to_string(order)));
}

// The stored factor of an order and a flag, which no direction of the transform changes.
template <class Element>
Element storedFactor(int order, int flag) {
    if (flag == NoDivByAny) return 1;
    return flag == DivBySqrtN ? storedInverseRoot<Element>(1 << order) : storedInverse<Element>(1 << order);
}

template <class Element>
class WhtTest : public CoreTest<Element> {
protected:
    std::vector<Element> sourceOf(int order) { return this->randomElements(1 << order); }

    std::vector<Element> run(int order, const std::vector<Element>& source, int flag) {
        std::vector<Element> destination(source.size()), buffer(static_cast<std::size_t>(bufferElements(order)) + 1);
        EXPECT_EQ(kernelOf<Element>(order)(source.data(), destination.data(), flag, buffer.data()), StatusOk);
        return destination;
    }
};

TYPED_TEST_SUITE(WhtTest, Elements, ElementNames);

TYPED_TEST(WhtTest, OrderOneIsASingleButterfly) {
    const std::vector<TypeParam> source = {TypeParam(3), TypeParam(-0.75)};
    for (int flag : allFlags) {
        const Wide scale = storedFactor<TypeParam>(1, flag);
        const auto found = this->run(1, source, flag);
        EXPECT_EQ(found[0], rounded<TypeParam>(scale * Wide{2.25})) << flag;
        EXPECT_EQ(found[1], rounded<TypeParam>(scale * Wide{3.75})) << flag;
    }
}

TYPED_TEST(WhtTest, ScaleAtSqrtNIsTheStoredOne) {
    const std::vector<TypeParam> impulse = {1, 0};
    EXPECT_EQ(this->run(1, impulse, DivBySqrtN)[0],
              static_cast<TypeParam>(perType<TypeParam>(0.7071067690849304, 0.7071067811865475)));
}

// An impulse at j gives scale times column j. Every column is checked up to order 6, and more than 60 of them above.
TYPED_TEST(WhtTest, RowsAreInNaturalOrder) {
    for (int order = 1; order <= 13; ++order) {
        const int count = 1 << order;
        for (int j = 0; j < count; j += std::max(1, count / 61)) {
            for (int flag : allFlags) {
                std::vector<TypeParam> source(static_cast<std::size_t>(count));
                source[static_cast<std::size_t>(j)] = 1;
                const auto found = this->run(order, source, flag);
                const auto scale = storedFactor<TypeParam>(order, flag);
                for (int k = 0; k < count; ++k) {
                    const bool isMinus = walshHadamardSign(j, k) < 0;
                    ASSERT_EQ(found[static_cast<std::size_t>(k)], isMinus ? -scale : scale) << order << ", " << k;
                }
            }
        }
    }
}

TYPED_TEST(WhtTest, IntegersAreExactWhileTheValuesFit) {
    for (int order = 1; order <= 13; ++order) {
        // 24 or 53 bits hold every sum of 2^order such numbers.
        const int most = (1 << perType<TypeParam>(24, 30)) >> order;
        std::uniform_int_distribution<int> uniform(-most, most);
        std::vector<TypeParam> source;
        for (int i = 0; i < 1 << order; ++i) source.push_back(static_cast<TypeParam>(uniform(this->seed.random)));
        const Values due = walshHadamardTransform({source.begin(), source.end()});
        const auto found = this->run(order, source, NoDivByAny);
        for (std::size_t k = 0; k < due.size(); ++k) ASSERT_EQ(Wide{found[k]}, due[k]) << order << ", " << k;
    }
}

TYPED_TEST(WhtTest, AnAllEqualInputGivesOneValueAndExactZeros) {
    for (int order = 1; order <= 13; ++order) {
        for (int flag : allFlags) {
            const std::vector<TypeParam> source(std::size_t{1} << order, TypeParam(3));
            const auto found = this->run(order, source, flag);
            const Wide due = 3 * std::exp2(Wide(order)) * storedFactor<TypeParam>(order, flag);
            EXPECT_EQ(found[0], rounded<TypeParam>(due)) << order << ", " << flag;
            for (std::size_t k = 1; k < found.size(); ++k) ASSERT_EQ(found[k], 0) << order << ", " << k;
        }
    }
}

TYPED_TEST(WhtTest, TwiceGivesTheInputBack) {
    const std::pair<int, int> pairs[] = {
        {DivBySqrtN, DivBySqrtN}, {NoDivByAny, DivFwdByN}, {NoDivByAny, DivInvByN}, {DivInvByN, NoDivByAny}};
    for (int order = 1; order <= 13; ++order) {
        const auto source = this->sourceOf(order);
        for (const auto& [first, second] : pairs) {
            const auto twice = this->run(order, this->run(order, source, first), second);
            for (std::size_t n = 0; n < source.size(); ++n) ASSERT_NEAR(twice[n], source[n], 40 * this->unit) << order;
        }
    }
}

TYPED_TEST(WhtTest, ReportsTheBufferOfEachOrder) {
    const auto bufferSize = exported<BufferSize>(exportedName<TypeParam>("zulgWHTGetBufferSize"));
    const int sizes32[] = {0, 0, 0, 0, 0, 0, 0, 1024, 2048, 4096, 8192, 17408, 36864};
    for (int order = 1; order <= 13; ++order) {
        std::int32_t size = -1;
        EXPECT_EQ(bufferSize(order, &size), StatusOk);
        EXPECT_EQ(size, sizes32[order - 1] * perType<TypeParam>(1, 2)) << order;
    }
}

TYPED_TEST(WhtTest, RefusesAnOrderOutOfRangeBeforeAnythingElse) {
    const auto dispatcher = exported<WhtDispatcher<TypeParam>>(exportedName<TypeParam>("zulgWHT"));
    const auto bufferSize = exported<BufferSize>(exportedName<TypeParam>("zulgWHTGetBufferSize"));
    TypeParam data[2] = {7, 7};
    for (int order : {0, 14, -1, -13, 64, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        std::int32_t size = 77;
        EXPECT_EQ(bufferSize(order, &size), StatusSizeError) << order;
        EXPECT_EQ(size, 77) << order;
        EXPECT_EQ(bufferSize(order, nullptr), StatusSizeError) << order;
        EXPECT_EQ(dispatcher(data, data, order, NoDivByAny, nullptr), StatusSizeError) << order;
        EXPECT_EQ(dispatcher(nullptr, nullptr, order, 3, nullptr), StatusSizeError) << order;
    }
    EXPECT_EQ(data[0], 7);
}

TYPED_TEST(WhtTest, ChecksPointersThenFlagAndAllocatesNothingOnFailure) {
    const auto dispatcher = exported<WhtDispatcher<TypeParam>>(exportedName<TypeParam>("zulgWHT"));
    for (int order = 1; order <= 13; ++order) {
        const auto kernel = kernelOf<TypeParam>(order);
        auto data = this->sourceOf(order);
        const auto before = data;
        for (int flag : {0, 3, 5, 16, -1, 8}) {
            EXPECT_EQ(kernel(nullptr, data.data(), flag, nullptr), StatusNullPointer);
            EXPECT_EQ(kernel(data.data(), nullptr, flag, nullptr), StatusNullPointer);
            EXPECT_EQ(kernel(nullptr, nullptr, flag, nullptr), StatusNullPointer);
            EXPECT_EQ(dispatcher(nullptr, data.data(), order, flag, nullptr), StatusNullPointer);
            if (flag == 8) continue;
            EXPECT_EQ(kernel(data.data(), data.data(), flag, nullptr), StatusFlagError) << flag;
            EXPECT_EQ(dispatcher(data.data(), data.data(), order, flag, nullptr), StatusFlagError) << flag;
        }
        EXPECT_EQ(data, before);
    }
    EXPECT_EQ(this->core.allocations, 0);
    EXPECT_EQ(this->core.releases, 0);
}

TYPED_TEST(WhtTest, AsksTheCoreLibraryForNothingWhenABufferIsGiven) {
    for (int order = 1; order <= 13; ++order) this->run(order, this->sourceOf(order), DivBySqrtN);
    EXPECT_EQ(this->core.allocations, 0);
    EXPECT_EQ(this->core.releases, 0);
}

TYPED_TEST(WhtTest, WithoutABufferTakesOneOfTheReportedSizeAndGivesItBack) {
    const auto bufferSize = exported<BufferSize>(exportedName<TypeParam>("zulgWHTGetBufferSize"));
    for (int order = 1; order <= 13; ++order) {
        this->core = {};
        const auto source = this->sourceOf(order);
        std::vector<TypeParam> found(source.size());
        EXPECT_EQ(kernelOf<TypeParam>(order)(source.data(), found.data(), NoDivByAny, nullptr), StatusOk);
        EXPECT_EQ(found, this->run(order, source, NoDivByAny)) << order;
        const int calls = order < 8 ? 0 : 1;
        EXPECT_EQ(this->core.allocations, calls) << order;
        EXPECT_EQ(this->core.releases, calls) << order;
        std::int32_t size = 0;
        bufferSize(order, &size);
        EXPECT_EQ(this->core.bytes, static_cast<std::uint32_t>(size)) << order;
        EXPECT_EQ(this->core.block, this->core.released) << order;
    }
}

TYPED_TEST(WhtTest, WithoutABufferTakesOneAtAnyAddress) {
    for (int order = 8; order <= 13; ++order) {
        const auto source = this->sourceOf(order);
        const auto due = this->run(order, source, NoDivByAny);
        for (std::uintptr_t remainder = 0; remainder < 64; ++remainder) {
            this->core.remainder = remainder;
            std::vector<TypeParam> found(source.size());
            EXPECT_EQ(kernelOf<TypeParam>(order)(source.data(), found.data(), NoDivByAny, nullptr), StatusOk);
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(this->core.block) % 64, remainder);
            EXPECT_EQ(found, due) << order << ", " << remainder;
        }
    }
}

// The buffer ends at an inaccessible page; every element of it is written.
TYPED_TEST(WhtTest, StaysInsideItsBufferAndWritesAllOfIt) {
    for (int order = 8; order <= 13; ++order) {
        const auto source = this->sourceOf(order);
        const auto due = this->run(order, source, NoDivByAny);
        const std::size_t bytes = static_cast<std::size_t>(bufferElements(order)) * sizeof(TypeParam);
        const GuardedPages pages(bytes);
        for (std::byte* place : {pages.atFront(), pages.atRear(bytes)}) {
            auto* const buffer = reinterpret_cast<TypeParam*>(place);
            std::memset(place, 0xFF, bytes);  // not-a-number throughout
            std::vector<TypeParam> found(source.size());
            EXPECT_EQ(kernelOf<TypeParam>(order)(source.data(), found.data(), NoDivByAny, buffer), StatusOk);
            EXPECT_EQ(found, due) << order;
            for (int i = 0; i < bufferElements(order); ++i) ASSERT_FALSE(std::isnan(buffer[i])) << order << ", " << i;
        }
    }
}

TYPED_TEST(WhtTest, ABufferNeedsNoAlignmentAtAll) {
    for (int order = 8; order <= 13; ++order) {
        const auto source = this->sourceOf(order);
        const auto due = this->run(order, source, NoDivByAny);
        const auto elements = static_cast<std::size_t>(bufferElements(order));
        std::vector<TypeParam> found(source.size());
        alignas(64) static std::byte memory[73728 + 128];
        for (std::size_t shift = 0; shift < 64; ++shift) {
            ASSERT_LE(shift + elements * sizeof(TypeParam), sizeof memory);
            auto* const buffer = reinterpret_cast<TypeParam*>(memory + shift);
            EXPECT_EQ(kernelOf<TypeParam>(order)(source.data(), found.data(), NoDivByAny, buffer), StatusOk);
            EXPECT_EQ(found, due) << order << ", " << shift;
        }
    }
}

TYPED_TEST(WhtTest, SmallOrdersIgnoreTheBuffer) {
    for (int order = 1; order <= 7; ++order) {
        const auto source = this->sourceOf(order);
        std::vector<TypeParam> found(source.size());
        for (auto* buffer : {static_cast<TypeParam*>(nullptr), reinterpret_cast<TypeParam*>(std::uintptr_t{1})}) {
            EXPECT_EQ(kernelOf<TypeParam>(order)(source.data(), found.data(), NoDivByAny, buffer), StatusOk);
            EXPECT_EQ(found, this->run(order, source, NoDivByAny));
        }
    }
}

int exitCodeOf(const char* program) {
#ifdef _WIN32
    return static_cast<int>(_spawnl(_P_WAIT, program, program, nullptr));
#else
    const int status = std::system(program);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
}

TEST(WhtAllocation, ARefusalFaultsInTheBufferThatWasNotGiven) { EXPECT_EQ(exitCodeOf(ZULG_REFUSED_ALLOCATION), 42); }

}  // namespace
}  // namespace test
