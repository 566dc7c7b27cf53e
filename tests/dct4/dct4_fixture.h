// What the suites over the exported DCT-IV share: the fixture, and the way into a plan's records.
#pragma once

#include "dct4/records.h"
#include "tests/dct4/planned.h"
#include "tests/fakes/core_fixture.h"
#include "tests/reference.h"

namespace test {

// The record in a list of one.
template <class Record>
Record& recordIn(const zulg::PlanListNode* list) {
    return reinterpret_cast<Record&>(*list->value.get());
}

template <class Element>
class Dct4Test : public CoreTest<Element> {
protected:
    const Dct4Routines<Element>& dct4 = dct4Routines<Element>();
};

}  // namespace test
