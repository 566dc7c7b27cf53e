// The state of the core library's substitute: what was asked of it, and what it is told to do. It is one source, which
// is built as a shared library under the name of the real one (substituted_core.h) and linked into the tests of plans.
#pragma once

#include <cstddef>
#include <cstdint>

#ifdef _WIN32
#define FAKE_CALL __stdcall
#else
#define FAKE_CALL
#endif

namespace test {

struct FakeCore {
    int allocations, releases;
    std::uint32_t bytes;       // asked for last
    void* block;               // given or refused last
    void* released;            // given back last
    std::uintptr_t firstWord;  // of the block given back last

    // Options.
    bool refuses;              // zulMalloc gives a null pointer
    std::uintptr_t remainder;  // where a block begins, modulo 64
    bool fills;                // a block is given full of the byte `filling`
    unsigned char filling;
    unsigned char* reserve;  // memory for one block at a time, so that the C library is not called
    std::size_t reserveBytes;
};

}  // namespace test

// The state, which is the same at each call.
extern "C" test::FakeCore* FAKE_CALL fakeCore();
