// Source and destination that overlap, in every family: at any distance the result is that of separate arrays, and of
// the source only what the destination covers is changed.
#include <gtest/gtest.h>

#include <cstring>

#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

class KernelOverlap : public KernelTest {};

// Distances go forward and backward, by single bytes and by elements, up to the last one at which a byte is still
// shared. From 64 points on the first pass of a plan reads the source into the plan, and the second one writes the
// destination from there.
TEST_P(KernelOverlap, OfAnyDistanceIsHarmless) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource(), due = subject.run(source, DivBySqrtN);
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
                ASSERT_EQ(subject.call(reinterpret_cast<const Element*>(from), reinterpret_cast<Element*>(from + shift),
                                       DivBySqrtN),
                          StatusOk);
                EXPECT_EQ(memory, memoryDue) << "destination " << shift << " bytes after the source";
            }
        }
    });
}
INSTANTIATE_TEST_SUITE_P(All, KernelOverlap, testing::ValuesIn(allTransforms()), testName);

}  // namespace
}  // namespace test
