// Replaces the core library by one that counts, for this whole process.
#pragma once

#include "tests/fakes/zulcore.h"

namespace test {

// To be called before the library is loaded, which then imports from the library of that name that is loaded already.
// Returns the state of the substitute, which is the same at each call.
FakeCore& substitutedCore();

}  // namespace test
