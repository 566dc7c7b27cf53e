/* A companion library for the allocator hook. The build makes variants of it: -Dt_free_dll=renamed takes a name away,
   -Dfree_word=0 leaves a zero where the word is expected. Without such an option it is complete and is accepted. */
#include "libtmalloc.h"

#include <stdint.h>

#ifndef malloc_word
#define malloc_word tMalloc
#endif
#ifndef calloc_word
#define calloc_word tCalloc
#endif
#ifndef realloc_word
#define realloc_word tRealloc
#endif
#ifndef free_word
#define free_word tFree
#endif
#ifndef version_word
#define version_word 1
#endif
#ifndef min_version_word
#define min_version_word 1
#endif

#ifdef _WIN32
#define EXPORTED __declspec(dllexport)
#else
#define EXPORTED __attribute__((visibility("default")))
#endif

EXPORTED CompanionLog companionLog;

EXPORTED void* tMalloc(size_t size) {
    ++companionLog.mallocCalls;
    companionLog.size = size;
    return &companionLog.mallocAnswer;
}

EXPORTED void* tCalloc(size_t count, size_t size) {
    ++companionLog.callocCalls;
    companionLog.count = count;
    companionLog.size = size;
    return &companionLog.callocAnswer;
}

EXPORTED void* tRealloc(void* block, size_t size) {
    ++companionLog.reallocCalls;
    companionLog.block = block;
    companionLog.size = size;
    return &companionLog.reallocAnswer;
}

EXPORTED void tFree(void* block) {
    ++companionLog.freeCalls;
    companionLog.block = block;
}

EXPORTED void* (*t_malloc_dll)(size_t) = malloc_word;
EXPORTED void* (*t_calloc_dll)(size_t, size_t) = calloc_word;
EXPORTED void* (*t_realloc_dll)(void*, size_t) = realloc_word;
EXPORTED void (*t_free_dll)(void*) = free_word;
EXPORTED int32_t t_version_dll = version_word;
EXPORTED int32_t t_min_version_dll = min_version_word;
