// zulcore, the small core library beside zulgenpx: memory for those routines that are called without a buffer.
// It is a library of its own and is imported by name, so that another library of that name can replace it.
#include <cstdint>
#include <cstdlib>

#ifdef _WIN32
#include <malloc.h>
#define ZULG_CALL __stdcall
#define ZULG_EXPORT
#else
#define ZULG_CALL
#define ZULG_EXPORT [[gnu::visibility("default")]]
#endif

namespace {

constexpr std::size_t alignment = 64;  // a cache line

}  // namespace

extern "C" {

// Gives a block of `bytes` bytes, aligned to 64, or null. 0 bytes give a block as well.
ZULG_EXPORT void* ZULG_CALL zulMalloc(std::uint32_t bytes) {
#ifdef _WIN32
    return _aligned_malloc(bytes, alignment);
#else
    void* block = nullptr;
    return posix_memalign(&block, alignment, bytes) == 0 ? block : nullptr;
#endif
}

// Gives a block of zulMalloc back; null is allowed.
ZULG_EXPORT void ZULG_CALL zulFree(void* block) {
#ifdef _WIN32
    _aligned_free(block);
#else
    std::free(block);
#endif
}

}  // extern "C"
