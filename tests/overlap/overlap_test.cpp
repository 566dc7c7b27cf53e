// Source and destination that overlap, in every family: at any distance the result is that of separate arrays, and of
// the source only what the destination covers is changed.
#include <gtest/gtest.h>

#include <cstring>

#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

std::mt19937 seeded() { return std::mt19937(static_cast<unsigned>(GTEST_FLAG_GET(random_seed))); }

// call(pSrc, pDst) is a whole transform. Distances go forward and backward, by single bytes and by elements, up to the
// last one at which a byte is still shared.
template <class Element, class Call>
void expectAnyOverlapToWork(const std::string& name, int sourceElements, int destinationElements, const Call& call) {
    auto random = seeded();
    const auto source = randomElements<Element>(sourceElements, random);
    std::vector<Element> due(static_cast<std::size_t>(destinationElements));
    call(source.data(), due.data());

    const auto sourceBytes = static_cast<std::ptrdiff_t>(source.size() * sizeof(Element)),
               destinationBytes = static_cast<std::ptrdiff_t>(due.size() * sizeof(Element));
    const std::ptrdiff_t element = sizeof(Element), room = std::max(sourceBytes, destinationBytes);
    for (const std::ptrdiff_t distance :
         {std::ptrdiff_t{0}, std::ptrdiff_t{1}, std::ptrdiff_t{3}, element, 2 * element, 3 * element, 16 * element,
          sourceBytes / 4, sourceBytes / 2, sourceBytes / 2 + element, sourceBytes - element, sourceBytes - 1}) {
        for (const std::ptrdiff_t shift : {distance, -distance}) {
            if (shift >= sourceBytes || shift <= -destinationBytes) continue;
            std::vector<std::byte> memory(static_cast<std::size_t>(3 * room), pattern);
            std::byte* const from = memory.data() + room;
            std::memcpy(from, source.data(), static_cast<std::size_t>(sourceBytes));
            std::vector<std::byte> memoryDue = memory;
            std::memcpy(memoryDue.data() + room + shift, due.data(), static_cast<std::size_t>(destinationBytes));
            call(reinterpret_cast<const Element*>(from), reinterpret_cast<Element*>(from + shift));
            EXPECT_EQ(memory, memoryDue) << name << ", destination " << shift << " bytes after the source";
        }
    }
}

class KernelOverlap : public KernelTest {};

TEST_P(KernelOverlap, OfAnyDistanceIsHarmless) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto kernel = exported<Kernel<Element>>(transform.kernelName());
        expectAnyOverlapToWork<Element>(
            transform.kernelName(), transform.sourceElements, transform.destinationElements,
            [&](const Element* pSrc, Element* pDst) { ASSERT_EQ(kernel(pSrc, pDst, DivBySqrtN), StatusOk); });
    });
}
INSTANTIATE_TEST_SUITE_P(All, KernelOverlap, testing::ValuesIn(allTransforms()), testName);

template <class Element>
class Overlap : public testing::Test {};
TYPED_TEST_SUITE(Overlap, Elements, ElementNames);

TYPED_TEST(Overlap, OfWalshHadamardIsHarmless) {
    std::vector<TypeParam> buffer((1 << 13) + 1024);
    for (int order = 1; order <= 13; ++order) {
        const std::string name = exportedName<TypeParam>("zulgWHT_" + std::to_string(order));
        const auto kernel = exported<WhtKernel<TypeParam>>(name);
        for (TypeParam* pBuffer : {buffer.data(), static_cast<TypeParam*>(nullptr)}) {
            expectAnyOverlapToWork<TypeParam>(name, 1 << order, 1 << order,
                                              [&](const TypeParam* pSrc, TypeParam* pDst) {
                                                  ASSERT_EQ(kernel(pSrc, pDst, DivBySqrtN, pBuffer), StatusOk);
                                              });
        }
    }
}

// From 64 points on the first pass reads the source into the plan, and the second one writes the destination from
// there; 131072 is the first length with two levels of parts.
TYPED_TEST(Overlap, OfDct4IsHarmless) {
    using InitAlloc = ZulgStatus(ZULG_CALL*)(void**, std::int32_t);
    using RunPlan = ZulgStatus(ZULG_CALL*)(const TypeParam*, TypeParam*, void*);
    using Free = ZulgStatus(ZULG_CALL*)(void*);
    const auto run = exported<RunPlan>(exportedName<TypeParam>("zulgDCT4"));
    for (int length = 2; length <= 131072; length *= 2) {
        void* plan = nullptr;
        ASSERT_EQ(exported<InitAlloc>(exportedName<TypeParam>("zulgDCT4InitAlloc"))(&plan, length), StatusOk);
        expectAnyOverlapToWork<TypeParam>(
            "length " + std::to_string(length), length, length,
            [&](const TypeParam* pSrc, TypeParam* pDst) { ASSERT_EQ(run(pSrc, pDst, plan), StatusOk); });
        EXPECT_EQ(exported<Free>(exportedName<TypeParam>("zulgDCT4Free"))(plan), StatusOk);
    }
}

}  // namespace
}  // namespace test
