// The state of the substituted core library, which counts its calls and can refuse.
#pragma once

#include <cstdint>

namespace test {

struct FakeCore {
    int allocations, releases;
    std::uint32_t bytes;  // asked for last
    void* block;          // given or refused last
    void* released;       // given back last
    bool refuses;
};

}  // namespace test
