// A core library that replaces the real one in tests. It counts calls, notes sizes, and refuses when it is told to.
#include "tests/fakes/zulcore.h"

#include <cstdlib>
#include <cstring>

#ifdef _WIN32
#define FAKE_EXPORT
#else
#define FAKE_EXPORT [[gnu::visibility("default")]]
#endif

namespace {

test::FakeCore state;

// A block, after the address at which its memory begins.
void* allocate(std::uint32_t bytes) {
    constexpr std::uintptr_t step = 64;
    const std::size_t all = bytes + 3 * step;
    void* const memory = all <= state.reserveBytes ? state.reserve : std::malloc(all);
    if (memory == nullptr) return nullptr;
    const std::uintptr_t start = reinterpret_cast<std::uintptr_t>(memory) / step * step + 2 * step + state.remainder;
    auto* const block = reinterpret_cast<unsigned char*>(start);
    std::memcpy(block - sizeof memory, &memory, sizeof memory);
    if (state.fills) std::memset(block, state.filling, bytes);
    return block;
}

void release(void* block) {
    void* memory;
    std::memcpy(&memory, static_cast<unsigned char*>(block) - sizeof memory, sizeof memory);
    if (memory != state.reserve) std::free(memory);
}

}  // namespace

extern "C" {

FAKE_EXPORT test::FakeCore* FAKE_CALL fakeCore() { return &state; }

FAKE_EXPORT void* FAKE_CALL zulMalloc(std::uint32_t bytes) {
    ++state.allocations;
    state.bytes = bytes;
    return state.block = state.refuses ? nullptr : allocate(bytes);
}

FAKE_EXPORT void FAKE_CALL zulFree(void* block) {
    ++state.releases;
    state.released = block;
    if (block == nullptr) return;
    std::memcpy(&state.firstWord, block, sizeof state.firstWord);
    release(block);
}

#ifdef _WIN32
// Callers that this object is linked with reach an imported routine through a pointer of this name.
#ifdef _WIN64
extern const auto importedMalloc __asm__("__imp_zulMalloc") = &zulMalloc;
extern const auto importedFree __asm__("__imp_zulFree") = &zulFree;
#else
extern const auto importedMalloc __asm__("__imp__zulMalloc@4") = &zulMalloc;
extern const auto importedFree __asm__("__imp__zulFree@4") = &zulFree;
#endif
#endif
}
