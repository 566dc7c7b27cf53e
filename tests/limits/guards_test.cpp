// Arrays at every byte offset of a cache line, beside pages that cannot be accessed: source, which cannot be written
// either, destination, buffer and the block of a plan. A byte that is read or written beside one of them is a fault
// where the page is next to it, and is seen where it is not. Batches are in tests/batch, overlaps in tests/overlap.
#include <cstring>

#include "tests/dct4/planned.h"
#include "tests/memory.h"
#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

constexpr std::size_t offsets = 64;

// An array in memory of its own, at the front or at the rear of it.
class Place {
public:
    explicit Place(std::size_t arrayBytes) : bytes(arrayBytes), pages(arrayBytes + offsets) {}

    // The array begins `offset` bytes after the front guard, or ends as many before the rear one.
    std::byte* at(std::size_t offset, bool rear) const {
        return rear ? pages.atRear(bytes + offset) : pages.atFront() + offset;
    }
    // What is between the guard and the array.
    std::byte* gap(std::size_t offset, bool rear) const { return rear ? at(offset, rear) + bytes : pages.atFront(); }

    std::size_t bytes;
    GuardedPages pages;
};

class GuardsTest : public KernelTest {};

// A call with everything that it takes between guards.
template <class Element>
class Guarded {
public:
    explicit Guarded(const Transform& of)
        : transform(of),
          source(static_cast<std::size_t>(of.sourceElements) * sizeof(Element)),
          destination(static_cast<std::size_t>(of.destinationElements) * sizeof(Element)),
          other(otherBytes()) {}

    // The block of a plan moves with the arrays: a plan is built at each offset.
    ZulgStatus call(std::size_t offset, bool rear) {
        const auto* const pSrc = reinterpret_cast<const Element*>(source.at(offset, rear));
        auto* const pDst = reinterpret_cast<Element*>(destination.at(offset, rear));
        auto* const rest = other.at(offset, rear);
        switch (transform.takes) {
            case Takes::Flag: return exported<Kernel<Element>>(transform.kernelName())(pSrc, pDst, NoDivByAny);
            case Takes::FlagAndBuffer:
                return exported<WhtKernel<Element>>(transform.kernelName())(pSrc, pDst, NoDivByAny,
                                                                            reinterpret_cast<Element*>(rest));
            case Takes::FlagAndNullBuffer: break;
            case Takes::Plan: {
                zulg::DctPlan* plan = nullptr;
                const auto& routines = dct4Routines<Element>();
                const auto status = routines.init(&plan, transform.length, reinterpret_cast<std::uint8_t*>(rest));
                return status == StatusOk ? routines.run(pSrc, pDst, plan) : status;
            }
        }
        return exported<WhtKernel<Element>>(transform.kernelName())(pSrc, pDst, NoDivByAny, nullptr);
    }

    const Transform& transform;
    Place source, destination, other;

private:
    std::size_t otherBytes() const {
        if (transform.takes == Takes::FlagAndBuffer)
            return static_cast<std::size_t>(bufferElements(transform.order)) * sizeof(Element);
        std::int32_t bytes = 0;
        if (transform.takes == Takes::Plan) {
            EXPECT_EQ(dct4Routines<Element>().getSize(transform.length, &bytes), StatusOk);
        }
        return static_cast<std::size_t>(bytes);
    }
};

TEST_P(GuardsTest, NothingBesideTheArraysIsTouchedAtAnyOffset) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto values = subject.randomSource();
        const auto due = subject.run(values, NoDivByAny);
        Guarded<Element> guarded(transform);
        // Long transforms at some offsets only.
        const std::size_t step = transform.length > 2048 ? 21 : 1;
        for (std::size_t offset = 0; offset < offsets; offset += step) {
            for (bool rear : {false, true}) {
                std::byte* const gap = guarded.destination.gap(offset, rear);
                std::memset(gap, static_cast<int>(pattern), offset);
                std::memcpy(guarded.source.at(offset, rear), values.data(), guarded.source.bytes);
                const ReadOnly protection(guarded.source.pages);
                ASSERT_EQ(guarded.call(offset, rear), StatusOk);
                ASSERT_EQ(std::memcmp(guarded.destination.at(offset, rear), due.data(), guarded.destination.bytes), 0)
                    << "offset " << offset << (rear ? " before the rear" : " after the front");
                for (std::size_t i = 0; i < offset; ++i) ASSERT_EQ(gap[i], pattern) << "written beside the array";
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(All, GuardsTest, testing::ValuesIn(allTransforms()), testName);

}  // namespace
}  // namespace test
