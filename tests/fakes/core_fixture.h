// The fixture of typed tests that count the calls of the core library.
#pragma once

#include "tests/elements.h"
#include "tests/fakes/substituted_core.h"

namespace test {

template <class Element>
class CoreTest : public ElementTest<Element> {
protected:
    static void SetUpTestSuite() { substitutedCore(); }
    void SetUp() override { core = {}; }

    FakeCore& core = substitutedCore();
};

}  // namespace test
