// Puts the counting core library in the place of the real one, for this whole process.
#pragma once

#include "tests/fakes/zulcore.h"

namespace test {

// To be called before the library is loaded: a library of that name that is there already is the one that it imports.
// Returns the state of the substitute, the same at each call.
FakeCore& substitutedCore();

}  // namespace test
