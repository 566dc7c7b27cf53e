// The allocator hook: trampolines, and the binding that they run at the first use. The companion exports six variables;
// a symbol's address is that of a word, and the word counts. Whatever is amiss with the companion leads, in silence, to
// all four routines of the language's runtime.
//
// There is no lock: two threads that allocate for the first time at once may both bind, with the same outcome but for
// one more reference on the companion.
#include "boundary/allocator_hook.h"

#include <atomic>

#include "boundary/shared_library.h"

namespace zulg {
namespace {

// A companion that demands more of its users than this is refused.
constexpr std::int32_t greatestMinVersion = 1;

// Where the companion keeps its words; null for a name that it does not export.
struct CompanionWords {
    decltype(AllocatorSlots::mallocLike) const* mallocWord;
    decltype(AllocatorSlots::callocLike) const* callocWord;
    decltype(AllocatorSlots::reallocLike) const* reallocWord;
    decltype(AllocatorSlots::freeLike) const* freeWord;
    const std::int32_t* version;
    const std::int32_t* minVersion;

    bool haveAllRoutines() const {
        return mallocWord && callocWord && reallocWord && freeWord && *mallocWord && *callocWord && *reallocWord &&
               *freeWord;
    }
    AllocatorSlots routines() const { return {*mallocWord, *callocWord, *reallocWord, *freeWord}; }
};

template <class Word>
void lookUp(const Word*& word, SharedLibrary companion, const char* name) {
    word = static_cast<const Word*>(findSymbol(companion, name));
}

// A missing name is not yet an error, and the names after it are looked up all the same.
CompanionWords wordsOf(SharedLibrary companion) {
    CompanionWords words;
    lookUp(words.mallocWord, companion, "t_malloc_dll");
    lookUp(words.callocWord, companion, "t_calloc_dll");
    lookUp(words.reallocWord, companion, "t_realloc_dll");
    lookUp(words.freeWord, companion, "t_free_dll");
    lookUp(words.version, companion, "t_version_dll");
    lookUp(words.minVersion, companion, "t_min_version_dll");
    return words;
}

void bind() {
    const SharedLibrary companion = openCompanion();
    if (companion == nullptr) {
        allocatorHook.slots = runtimeRoutines();
        return;
    }
    const CompanionWords words = wordsOf(companion);
    if (words.version) allocatorHook.hookVersion = *words.version;
    if (words.minVersion) allocatorHook.hookMinVersion = *words.minVersion;

    const bool accepted = words.haveAllRoutines() && allocatorHook.hookMinVersion <= greatestMinVersion;
    allocatorHook.slots = accepted ? words.routines() : runtimeRoutines();

    // Also right after its routines were taken: a companion that states a version keeps itself loaded. One that states
    // none stays loaded through this reference, which is never given back.
    if (allocatorHook.hookVersion > 0) releaseLibrary(companion);
}

// The flag is a plain word. The fences emit nothing: they keep the compiler from setting it before the slots are
// filled, and from reading a slot before the flag.
void bindAtFirstUse() {
    if (allocatorHook.boundFlag == 0) {
        bind();
        std::atomic_signal_fence(std::memory_order_seq_cst);
        allocatorHook.boundFlag = 1;
    }
    std::atomic_signal_fence(std::memory_order_seq_cst);
}

void* mallocTrampoline(std::size_t size) {
    bindAtFirstUse();
    return allocatorHook.slots.mallocLike(size);
}

void* callocTrampoline(std::size_t count, std::size_t size) {
    bindAtFirstUse();
    return allocatorHook.slots.callocLike(count, size);
}

void* reallocTrampoline(void* block, std::size_t size) {
    bindAtFirstUse();
    return allocatorHook.slots.reallocLike(block, size);
}

void freeTrampoline(void* block) {
    bindAtFirstUse();
    allocatorHook.slots.freeLike(block);
}

}  // namespace

constinit AllocatorHook allocatorHook = {};
constinit const AllocatorSlots trampolines = {mallocTrampoline, callocTrampoline, reallocTrampoline, freeTrampoline};

}  // namespace zulg
