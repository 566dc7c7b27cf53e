/* What the companion libraries of the tests record, so that a test sees which routine was called, and how. They give
   out no memory: each routine returns an address of its own. */
#ifndef LIBTMALLOC_H
#define LIBTMALLOC_H

#include <stddef.h>

typedef struct CompanionLog {
    int mallocCalls, callocCalls, reallocCalls, freeCalls;
    size_t count, size; /* of the last call */
    void* block;
    char mallocAnswer, callocAnswer, reallocAnswer;
} CompanionLog;

#endif
