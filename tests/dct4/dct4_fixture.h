// What the suites over the exported DCT-IV share: its routines, plans in blocks of their own, random input, and the
// definition.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "dct4/records.h"
#include "tests/elements.h"
#include "tests/exports.h"
#include "tests/fakes/substituted_core.h"
#include "tests/reference.h"

namespace test {

template <class Element>
struct Routines {
    static std::string name(const char* stem) { return exportedName<Element>(stem); }

    using Plan = zulg::DctPlan;
    ZulgStatus(ZULG_CALL* getSize)(std::int32_t, std::int32_t*) = exported<decltype(getSize)>(name("zulgDCT4GetSize"));
    ZulgStatus(ZULG_CALL* init)(Plan**, std::int32_t, std::uint8_t*) = exported<decltype(init)>(name("zulgDCT4Init"));
    ZulgStatus(ZULG_CALL* initAlloc)(Plan**, std::int32_t) = exported<decltype(initAlloc)>(name("zulgDCT4InitAlloc"));
    ZulgStatus(ZULG_CALL* free)(Plan*) = exported<decltype(free)>(name("zulgDCT4Free"));
    ZulgStatus(ZULG_CALL* run)(const Element*, Element*, Plan*) = exported<decltype(run)>(name("zulgDCT4"));
};

template <class Element>
const Routines<Element>& routines() {
    static const Routines<Element> found;
    return found;
}

// A plan in a block of exactly the reported size, at an address that is a multiple of 32.
template <class Element>
class Planned {
public:
    explicit Planned(std::int32_t length) {
        std::int32_t bytes = 0;
        EXPECT_EQ(routines<Element>().getSize(length, &bytes), StatusOk) << length;
        memory.resize(static_cast<std::size_t>(bytes) + 32);
        const auto first = reinterpret_cast<std::uintptr_t>(memory.data());
        EXPECT_EQ(routines<Element>().init(&plan, length, memory.data() + (32 - first % 32) % 32), StatusOk) << length;
    }

    std::vector<Element> run(const std::vector<Element>& source) {
        std::vector<Element> result(source.size(), std::numeric_limits<Element>::quiet_NaN());
        EXPECT_EQ(routines<Element>().run(source.data(), result.data(), plan), StatusOk);
        return result;
    }

    zulg::DctPlan* plan = nullptr;

private:
    std::vector<std::uint8_t> memory;
};

// The record in a list of one.
template <class Record>
Record& recordIn(const zulg::PlanListNode* list) {
    return reinterpret_cast<Record&>(*list->value.get());
}

template <class Element>
class Dct4Test : public ElementTest<Element> {
protected:
    static void SetUpTestSuite() { substitutedCore(); }
    void SetUp() override { core = {}; }

    FakeCore& core = substitutedCore();
    const Routines<Element>& dct4 = routines<Element>();

    // Relative L2 error over all bins, or over some of them where the length is great.
    double relativeError(int length, int rounds) {
        Planned<Element> planned(length);
        Wide errors = 0, squares = 0;
        for (int round = 0; round < rounds; ++round) {
            const auto x = this->randomElements(length);
            const auto y = planned.run(x);
            const int step = std::max(1, length / 512) | 1;
            const Values due = dct4Transform({x.begin(), x.end()}, {round % step, step});
            for (std::size_t i = 0, k = static_cast<std::size_t>(round % step); i < due.size();
                 ++i, k += static_cast<std::size_t>(step)) {
                errors += (y[k] - due[i]) * (y[k] - due[i]);
                squares += due[i] * due[i];
            }
        }
        return static_cast<double>(std::sqrt(errors / squares));
    }
};

}  // namespace test
