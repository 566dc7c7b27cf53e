// What the suites over kernels share: the fixture, the flags, and how results are compared.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

#include "tests/transforms/transform.h"

namespace test {

inline constexpr int allFlags[] = {DivFwdByN, DivInvByN, DivBySqrtN, NoDivByAny};
inline constexpr std::byte pattern{0xA5};

class KernelTest : public testing::TestWithParam<Transform> {
protected:
    const Transform& transform = GetParam();
    // The same at every run, unless the command line asks for another one.
    const unsigned seed = static_cast<unsigned>(GTEST_FLAG_GET(random_seed));
    testing::ScopedTrace trace{__FILE__, __LINE__, "--gtest_random_seed=" + std::to_string(seed)};
    std::mt19937 random{seed};

    // Calls `body` with a zero of the kernel's element type.
    template <class Body>
    void withElement(const Body& body) {
        if (transform.isSingle()) {
            body(float{});
        } else {
            body(double{});
        }
    }

    template <class Element>
    std::vector<Element> randomSource() {
        return randomElements<Element>(transform.sourceElements, random);
    }
};

}  // namespace test
