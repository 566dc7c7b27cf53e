// A core library that replaces the real one in tests. It counts calls, notes sizes, and refuses when it is told to.
#include "tests/fakes/zulcore.h"

#include <cstdlib>

#ifdef _WIN32
#define FAKE_CALL __stdcall
#define FAKE_EXPORT
#else
#define FAKE_CALL
#define FAKE_EXPORT [[gnu::visibility("default")]]
#endif

namespace {
test::FakeCore state;
}

extern "C" {

FAKE_EXPORT test::FakeCore* FAKE_CALL fakeCore() { return &state; }

FAKE_EXPORT void* FAKE_CALL zulMalloc(std::uint32_t bytes) {
    ++state.allocations;
    state.bytes = bytes;
    return state.block = state.refuses ? nullptr : std::malloc(bytes);
}

FAKE_EXPORT void FAKE_CALL zulFree(void* block) {
    ++state.releases;
    state.released = block;
    std::free(block);
}
}
