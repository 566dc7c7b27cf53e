// The exported routines of the DCT-IV, and plans in blocks of their own.
#pragma once

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "tests/elements.h"
#include "tests/exports.h"

namespace zulg {
struct DctPlan;
}

namespace test {

template <class Element>
struct Dct4Routines {
    static std::string name(const char* stem) { return exportedName<Element>(stem); }

    using Plan = zulg::DctPlan;
    ZulgStatus(ZULG_CALL* getSize)(std::int32_t, std::int32_t*) = exported<decltype(getSize)>(name("zulgDCT4GetSize"));
    ZulgStatus(ZULG_CALL* init)(Plan**, std::int32_t, std::uint8_t*) = exported<decltype(init)>(name("zulgDCT4Init"));
    ZulgStatus(ZULG_CALL* initAlloc)(Plan**, std::int32_t) = exported<decltype(initAlloc)>(name("zulgDCT4InitAlloc"));
    ZulgStatus(ZULG_CALL* free)(Plan*) = exported<decltype(free)>(name("zulgDCT4Free"));
    ZulgStatus(ZULG_CALL* run)(const Element*, Element*, Plan*) = exported<decltype(run)>(name("zulgDCT4"));
};

template <class Element>
const Dct4Routines<Element>& dct4Routines() {
    static const Dct4Routines<Element> found;
    return found;
}

// A plan in a block of exactly the reported size, at an address that is a multiple of 32.
template <class Element>
class Planned {
public:
    explicit Planned(std::int32_t length) {
        std::int32_t bytes = 0;
        EXPECT_EQ(dct4Routines<Element>().getSize(length, &bytes), StatusOk) << length;
        memory.resize(static_cast<std::size_t>(bytes) + 32);
        const auto first = reinterpret_cast<std::uintptr_t>(memory.data());
        EXPECT_EQ(dct4Routines<Element>().init(&plan, length, memory.data() + (32 - first % 32) % 32), StatusOk)
            << length;
    }

    std::vector<Element> run(const std::vector<Element>& source) {
        std::vector<Element> result(source.size(), std::numeric_limits<Element>::quiet_NaN());
        EXPECT_EQ(dct4Routines<Element>().run(source.data(), result.data(), plan), StatusOk);
        return result;
    }

    zulg::DctPlan* plan = nullptr;

private:
    std::vector<std::uint8_t> memory;
};

}  // namespace test
