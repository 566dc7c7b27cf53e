// Which file of the library a test program loads: the usual one, or the one that the environment names. That is one
// level by itself (tests/levels), the checked library, or one with a fault in it (tests/mutation).
#pragma once

#include <cstdlib>

namespace test {

inline const char* testedLibrary(const char* usual) {
    const char* const other = std::getenv("ZULG_TEST_LIBRARY");
    return other != nullptr ? other : usual;
}

}  // namespace test
