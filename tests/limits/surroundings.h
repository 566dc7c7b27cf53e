// How a test looks at what a call leaves as it was: the registers that a callee must keep, the stack pointer, the
// direction flag, and the settings of the floating-point units. Each calling convention has a source file of its own
// beside this one.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "include/zulgenpx.h"

namespace test {

using Arguments = std::vector<std::uintptr_t>;
constexpr std::size_t mostArguments = 5;

struct Looked {
    std::int32_t result = 0;
    std::string changed;  // the names of what is not as it was, each after a space
};

// There are so many ways of setting the processor up before a call, and of placing the stack.
int waysToCall();
Looked callAndLook(void* routine, const Arguments& arguments, int way);

// A call while no exceptions are masked but for inexact results and denormal operands. What would be raised ends the
// program, or where a processor cannot do that, is found in `changed`.
Looked callUnmasked(void* routine, const Arguments& arguments);

// Whether the processor takes the upper halves of the vector registers to be in use after the last call. Never true
// where that cannot be asked for.
bool upperHalvesWereInUse();

// What must be seen of a routine that changes what it must not.
extern "C" std::int32_t ZULG_CALL spoil();
extern const char* const whatSpoilChanges;

}  // namespace test
