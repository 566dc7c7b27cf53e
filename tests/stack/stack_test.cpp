// The stack that the routines take, against what the header says of each family. The run of a DCT-IV is held where its
// other promises are.
#include <gtest/gtest.h>

#include <memory>

#include "tests/dct4/planned.h"
#include "tests/fakes/substituted_core.h"
#include "tests/stack_depth.h"
#include "tests/transforms/transform.h"

namespace test {
namespace {

// Writes the lowest byte of a frame of so many bytes.
[[gnu::noinline]] void takeStack(std::size_t bytes) {
    auto* const frame = static_cast<volatile char*>(__builtin_alloca(bytes));
    frame[0] = 1;
}

TEST(StackDepth, IsThatOfTheDeepestByteWritten) {
    const auto empty = stackDepth([] {});
    EXPECT_LE(empty, 100);
    for (const std::ptrdiff_t bytes : {1000, 4096, 20000, 300000}) {
        const auto depth = stackDepth([=] { takeStack(static_cast<std::size_t>(bytes)); });
        EXPECT_GE(depth, bytes);
        EXPECT_LE(depth, bytes + empty + 100);
    }
    EXPECT_EQ(stackDepth([] {}), empty) << "the paint of an earlier call is seen";
}

// What is measured holds what the routine that makes the call saves as well, so that a bound that is held here is true.
void expectAtMost(std::ptrdiff_t bound, std::ptrdiff_t depth, const std::string& name) {
    EXPECT_LE(depth, bound) << name;
}

template <class Element>
void expectBoundOfKernel(const Transform& transform) {
    const auto elements = static_cast<std::size_t>(std::max(transform.sourceElements, transform.destinationElements));
    const std::vector<Element> source(elements, Element{1});
    std::vector<Element> destination(elements);
    const std::ptrdiff_t bound = transform.family.ends_with("CToC") ? 2048 : 1024;
    const auto kernel = exported<Kernel<Element>>(transform.kernelName());
    expectAtMost(bound, stackDepth([&] { kernel(source.data(), destination.data(), NoDivByAny); }),
                 transform.kernelName());
    const auto dispatcher = exported<Dispatcher<Element>>(transform.dispatcherName());
    const int length = transform.length;
    expectAtMost(bound, stackDepth([&] { dispatcher(source.data(), destination.data(), length, NoDivByAny); }),
                 transform.dispatcherName() + ", length " + std::to_string(length));
}

// Memory comes from the substituted core library in all tests, which has it already: what the system would take of the
// stack to find some is none of the library's.
class Stack : public testing::Test {
protected:
    static void SetUpTestSuite() { substitutedCore(); }
    void SetUp() override {
        substitutedCore().reserve = reserve.get();
        substitutedCore().reserveBytes = reserveBytes;
    }
    void TearDown() override {
        substitutedCore().reserve = nullptr;
        substitutedCore().reserveBytes = 0;
    }

    static constexpr std::size_t reserveBytes = 192 << 20;  // a plan of 2^22 points fits
    const std::unique_ptr<unsigned char[]> reserve{new unsigned char[reserveBytes]};
};

TEST_F(Stack, OfKernelsAndTheirDispatchers) {
    for (const Transform& transform : dftTransforms()) {
        if (transform.isSingle()) {
            expectBoundOfKernel<float>(transform);
        } else {
            expectBoundOfKernel<double>(transform);
        }
    }
}

template <class Element>
class StackOfElement : public Stack {};
TYPED_TEST_SUITE(StackOfElement, Elements, ElementNames);

TYPED_TEST(StackOfElement, OfWalshHadamard) {
    std::vector<TypeParam> source(1 << 13), destination(1 << 13), buffer((1 << 13) + 1024);
    const auto dispatcher = exported<WhtDispatcher<TypeParam>>(exportedName<TypeParam>("zulgWHT"));
    for (int order = 1; order <= 13; ++order) {
        const std::string name = exportedName<TypeParam>("zulgWHT_" + std::to_string(order));
        const auto kernel = exported<WhtKernel<TypeParam>>(name);
        const auto depth = stackDepth([&] { kernel(source.data(), destination.data(), NoDivByAny, buffer.data()); });
        expectAtMost(2048, depth, name);
        const auto dispatched =
            stackDepth([&] { dispatcher(source.data(), destination.data(), order, NoDivByAny, nullptr); });
        expectAtMost(2048, dispatched, name + " by its dispatcher, without a buffer");
    }
}

TYPED_TEST(StackOfElement, OfPlans) {
    const auto& dct4 = dct4Routines<TypeParam>();
    for (std::int32_t length = 2; length <= 1 << 22; length *= 2) {
        const std::string name = "length " + std::to_string(length);
        std::int32_t bytes = 0;
        expectAtMost(2048, stackDepth([&] { dct4.getSize(length, &bytes); }), "GetSize, " + name);
        std::vector<std::uint8_t> block(static_cast<std::size_t>(bytes) + 32);
        zulg::DctPlan* plan = nullptr;
        expectAtMost(2048, stackDepth([&] { dct4.init(&plan, length, block.data()); }), "Init, " + name);
        expectAtMost(2048, stackDepth([&] { dct4.initAlloc(&plan, length); }), "InitAlloc, " + name);
        expectAtMost(2048, stackDepth([&] { dct4.free(plan); }), "Free, " + name);
    }
}

}  // namespace
}  // namespace test
