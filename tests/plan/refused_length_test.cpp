// What Init writes into the block before it refuses a length: records and tables of the levels above the one that
// fails. Scratch vectors come last at each level, so that none is drawn.
#include <limits>

#include "tests/plan/plan_fixture.h"

namespace test {
namespace {

template <class Element>
class RefusedLength : public ElementTest<Element> {
protected:
    // Bytes from the beginning of the block to the last one that Init has written.
    static std::ptrdiff_t writtenBytes(std::int32_t length, std::size_t remainder, std::size_t room) {
        std::vector<std::uint8_t> memory(room + 32, guardByte);
        const std::size_t first = reinterpret_cast<std::uintptr_t>(memory.data()) % 32;
        std::uint8_t* const block = memory.data() + (remainder + 32 - first) % 32;
        DctPlan* plan = nullptr;
        EXPECT_EQ(zulg::dct4Init<Element>(&plan, length, block), StatusSizeError) << length;
        EXPECT_EQ(plan, nullptr) << length;
        std::uint8_t* end = memory.data() + memory.size();
        while (end > block && end[-1] == guardByte) --end;
        return end - block;
    }

    static void expectBound(std::int32_t length) {
        const std::int32_t elements = std::max(length, 0);
        const auto bytes = static_cast<std::ptrdiff_t>(elements) * static_cast<std::ptrdiff_t>(sizeof(Element));
        const std::ptrdiff_t bound = length < 1 ? 256 : bytes / 4 * 5 + 2048;
        for (const std::size_t remainder : {0, 1, 31}) {
            const auto room = static_cast<std::size_t>(2 * bound + 4096);
            EXPECT_LE(writtenBytes(length, remainder, room), bound) << length << " at " << remainder;
        }
    }
};
TYPED_TEST_SUITE(RefusedLength, Elements, ElementNames);

TYPED_TEST(RefusedLength, WritesNoMoreThanIsSaid) {
    for (std::int32_t length = 1; length <= 2100; ++length) {
        if (reportedSize<TypeParam>(length) < 0) this->expectBound(length);
    }
    // Three times a power of two goes through all levels, and so does one with two bits far apart.
    for (std::int32_t power = 1 << 10; power <= 1 << 17; power *= 2) {
        for (const std::int32_t length : {3 * power, power + 32, power + 512, power + 2, 5 * power, power - 1}) {
            this->expectBound(length);
        }
    }
}

TYPED_TEST(RefusedLength, WritesLittleForNoLengthAtAll) {
    for (const std::int32_t length : {0, -1, -2, -6, -64, -4096, std::numeric_limits<std::int32_t>::min()}) {
        this->expectBound(length);
    }
}

// Levels of tables lie under one another: what is said is not far from what is written.
TYPED_TEST(RefusedLength, IsBuiltInPart) {
    EXPECT_GT(this->writtenBytes(3 << 16, 0, (3 << 16) * sizeof(TypeParam) * 2),
              static_cast<std::ptrdiff_t>((3 << 16) * sizeof(TypeParam)));
    EXPECT_GT(this->writtenBytes(24, 0, 8192), 1024);
}

}  // namespace
}  // namespace test
