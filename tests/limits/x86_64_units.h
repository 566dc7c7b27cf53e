// The floating-point units of x86-64, which both of its conventions look at in the same way.
#pragma once

#include <cstdint>
#include <string>

#include "tests/limits/surroundings.h"

namespace test {

// What a call leaves in the units.
struct Units {
    std::uint32_t mxcsr;
    std::uint16_t control, tags;  // of the x87 unit
};

// Sets both units, and cleans the upper halves of the vector registers.
void setUnits(Units due);
// Notes whether the upper halves are in use, sets the units as usual, and names what a call has changed.
std::string unitsChanged(Units due, Units found, std::uint64_t flags);

// A call under this setting, by the convention of the machine.
Looked callUnder(Units due, void* routine, Arguments arguments);

}  // namespace test
