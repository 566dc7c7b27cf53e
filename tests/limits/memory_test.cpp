// What a core library may do: refuse, give blocks at any address, and give blocks that are full of whatever. Results
// depend on none of it, and a refusal leaves everything as it was.
#include <cstring>

#include "tests/dct4/planned.h"
#include "tests/fakes/core_fixture.h"
#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

template <class Element>
class CoreMemory : public CoreTest<Element> {
protected:
    // The bits of a transform by a plan of InitAlloc.
    static std::vector<Element> runAllocated(int length, const std::vector<Element>& x) {
        zulg::DctPlan* plan = nullptr;
        EXPECT_EQ(dct4Routines<Element>().initAlloc(&plan, length), StatusOk);
        std::vector<Element> y(x.size());
        EXPECT_EQ(dct4Routines<Element>().run(x.data(), y.data(), plan), StatusOk);
        EXPECT_EQ(dct4Routines<Element>().free(plan), StatusOk);
        return y;
    }
};
TYPED_TEST_SUITE(CoreMemory, Elements, ElementNames);

// Bytes of 0xFF are no numbers in either element, those of 0x7F are great ones, and those of 0x01 small ones.
constexpr unsigned char poisons[] = {0xFF, 0x7F, 0x01, 0x00};

TYPED_TEST(CoreMemory, WhatABlockHoldsHasNoEffect) {
    for (int length : {2, 32, 64, 2048, 8192}) {
        const auto x = this->randomElements(length);
        const auto due = Planned<TypeParam>(length).run(x);
        for (unsigned char poison : poisons) {
            for (std::uintptr_t remainder : {0, 1, 33, 63}) {
                this->core.fills = true;
                this->core.filling = poison;
                this->core.remainder = remainder;
                EXPECT_TRUE(sameBits(this->runAllocated(length, x), due)) << length << ", " << int{poison};
            }
        }
    }
    for (int order = 8; order <= 13; ++order) {
        const auto routine =
            exported<WhtKernel<TypeParam>>(exportedName<TypeParam>("zulgWHT_" + std::to_string(order)));
        const auto x = this->randomElements(1 << order);
        std::vector<TypeParam> buffer(static_cast<std::size_t>(bufferElements(order))), due(x.size()), found(x.size());
        ASSERT_EQ(routine(x.data(), due.data(), NoDivByAny, buffer.data()), StatusOk);
        for (unsigned char poison : poisons) {
            this->core.filling = poison;
            ASSERT_EQ(routine(x.data(), found.data(), NoDivByAny, nullptr), StatusOk);
            EXPECT_TRUE(sameBits(found, due)) << order << ", " << int{poison};
        }
    }
    EXPECT_EQ(this->core.allocations, this->core.releases);
    EXPECT_GT(this->core.allocations, 0);
}

// Whichever of many allocations fails: that call says so, the others are as they would have been, and nothing is lost.
TYPED_TEST(CoreMemory, TheNthRefusalIsTheNthStatus) {
    constexpr int plans = 6;
    const auto x = this->randomElements(256);
    const auto due = Planned<TypeParam>(256).run(x);
    for (int refused = 0; refused < plans; ++refused) {
        this->core = {};
        for (int i = 0; i < plans; ++i) {
            this->core.refuses = i == refused;
            zulg::DctPlan* const nothing = reinterpret_cast<zulg::DctPlan*>(0x1234);
            zulg::DctPlan* plan = nothing;
            const ZulgStatus status = dct4Routines<TypeParam>().initAlloc(&plan, 256);
            EXPECT_EQ(status, i == refused ? StatusNullPointer : StatusOk);
            if (status != StatusOk) {
                EXPECT_EQ(plan, nothing);
                continue;
            }
            std::vector<TypeParam> y(x.size());
            EXPECT_EQ(dct4Routines<TypeParam>().run(x.data(), y.data(), plan), StatusOk);
            EXPECT_TRUE(sameBits(y, due));
            EXPECT_EQ(dct4Routines<TypeParam>().free(plan), StatusOk);
        }
        EXPECT_EQ(this->core.allocations, plans);
        EXPECT_EQ(this->core.releases, plans) << "what was refused is given back as a null pointer, which does nothing";
    }
}

}  // namespace
}  // namespace test
