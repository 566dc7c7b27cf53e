/* Calls every exported routine with sources that are set as far as the header says and no further, destinations,
   buffers and plan blocks that are not set at all, and looks at each byte of the results. It is C, so that the memory
   sanitizer needs no C++ library of its own: a value that nothing has set, in whatever way it comes to a decision or a
   result, is reported by it, and by valgrind's memcheck. */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "include/zulgenpx.h"

enum { mostBytes = (1 << 13) * 8 + 64, longestPlan = 4096 };

static const int32_t flags[] = {DivFwdByN, DivInvByN, DivBySqrtN, NoDivByAny};
static int calls, faults;

static void fail(const char* name, const char* what) {
    printf("%s: %s\n", name, what);
    ++faults;
}

/* Memory that is not set. */
static void* unset(size_t bytes) {
    void* const memory = malloc(bytes);
    if (memory == NULL) puts("there is no memory"), exit(1);
    return memory;
}

/* The same, with numbers at its beginning. */
static void* numbers(size_t bytes, size_t elementBytes) {
    char* const memory = unset(mostBytes);
    for (size_t i = 0; i * elementBytes < bytes; ++i) {
        const double wide = (double)((i * 37 + 11) % 64) - 31.5;
        const float narrow = (float)wide;
        memcpy(memory + i * elementBytes, elementBytes == 4 ? (const void*)&narrow : (const void*)&wide, elementBytes);
    }
    return memory;
}

/* A decision on each byte. */
static void look(const char* name, const void* result, size_t bytes) {
    const unsigned char* const at = result;
    size_t set = 0;
    for (size_t i = 0; i < bytes; ++i) {
        if (at[i] != 0) ++set;
    }
    if (set == 0) fail(name, "the results are all zero");
    ++calls;
}

/* The length or order in a name; 0 in that of a dispatcher. */
static int numberIn(const char* name) {
    const char* const suffix = strrchr(name, '_');
    const char* at = suffix;
    while (at > name && at[-1] >= '0' && at[-1] <= '9') --at;
    return at == suffix ? 0 : atoi(at);
}

/* Numbers that a transform of this length reads and writes. */
static size_t readBy(const char* name, int length) {
    const size_t n = (size_t)length;
    return strstr(name, "CToC") != NULL ? 2 * n : strstr(name, "CCSToR") != NULL ? n + 1 : n;
}
static size_t writtenBy(const char* name, int length) {
    const size_t n = (size_t)length;
    return strstr(name, "CToC") != NULL ? 2 * n : strstr(name, "RToCCS") != NULL ? n / 2 * 2 + 2 : n;
}

/* Calls CALL, which uses pSrc, pDst and flag, on separate arrays and in place. */
#define EACH_WAY(name, Element, Number, length, CALL)                                           \
    for (int i = 0; i < 8; ++i) {                                                               \
        const int32_t flag = flags[i % 4];                                                      \
        Element* const source = numbers(readBy(name, length) * sizeof(Number), sizeof(Number)); \
        const Element* const pSrc = source;                                                     \
        Element* const pDst = i < 4 ? (Element*)unset(mostBytes) : source;                      \
        if ((CALL) != StatusOk) fail(name, "refused");                                          \
        look(name, pDst, writtenBy(name, length) * sizeof(Number));                             \
        if (pDst != source) free(pDst);                                                         \
        free(source);                                                                           \
    }

#define KERNELS(suffix, Element, Number)                                                                               \
    static void kernel_##suffix(const char* name, ZulgStatus(ZULG_CALL* routine)(const Element*, Element*, int32_t)) { \
        const int length = numberIn(name);                                                                             \
        EACH_WAY(name, Element, Number, length, routine(pSrc, pDst, flag))                                             \
    }                                                                                                                  \
    static void dispatcher_##suffix(const char* name,                                                                  \
                                    ZulgStatus(ZULG_CALL* routine)(const Element*, Element*, int32_t, int32_t)) {      \
        for (int32_t length = 2; length <= 64; ++length)                                                               \
            EACH_WAY(name, Element, Number, length, routine(pSrc, pDst, length, flag))                                 \
    }
KERNELS(32fc, Zulg32fc, float)
KERNELS(64fc, Zulg64fc, double)
KERNELS(32f, float, float)
KERNELS(64f, double, double)

/* Walsh-Hadamard: with a buffer that is not set, of the size that is told. */
#define ORDERS(suffix, Element)                                                                                   \
    static void order_##suffix(const char* name,                                                                  \
                               ZulgStatus(ZULG_CALL* routine)(const Element*, Element*, int32_t, Element*)) {     \
        const int32_t order = numberIn(name);                                                                     \
        int32_t bytes = 0;                                                                                        \
        if (zulgWHTGetBufferSize_##suffix(order, &bytes) != StatusOk) fail(name, "its buffer has no size");       \
        EACH_WAY(name, Element, Element, 1 << order, routine(pSrc, pDst, flag, NULL))                             \
        Element* const buffer = unset((size_t)bytes + 1);                                                         \
        EACH_WAY(name, Element, Element, 1 << order, routine(pSrc, pDst, flag, buffer))                           \
        free(buffer);                                                                                             \
    }                                                                                                             \
    static void orders_##suffix(                                                                                  \
        const char* name, ZulgStatus(ZULG_CALL* routine)(const Element*, Element*, int32_t, int32_t, Element*)) { \
        for (int32_t order = 1; order <= 13; ++order)                                                             \
            EACH_WAY(name, Element, Element, 1 << order, routine(pSrc, pDst, order, flag, NULL))                  \
    }
ORDERS(32f, float)
ORDERS(64f, double)

/* Plans in blocks that are not set, of the size that is told. */
#define PLANS(suffix, Element)                                                                                   \
    static void init_##suffix(const char* name,                                                                  \
                              ZulgStatus(ZULG_CALL* routine)(ZulgDCT4Plan_##suffix**, int32_t, uint8_t*)) {      \
        for (int32_t length = 2; length <= longestPlan; length *= 2) {                                           \
            int32_t bytes = 0;                                                                                   \
            ZulgDCT4Plan_##suffix* plan = NULL;                                                                  \
            if (zulgDCT4GetSize_##suffix(length, &bytes) != StatusOk) fail(name, "a length has no size");        \
            uint8_t* const block = unset((size_t)bytes);                                                         \
            if (routine(&plan, length, block) != StatusOk) fail(name, "refused");                                \
            EACH_WAY(name, Element, Element, length, ((void)flag, zulgDCT4_##suffix(pSrc, pDst, plan)))          \
            free(block);                                                                                         \
        }                                                                                                        \
    }                                                                                                            \
    static void run_##suffix(const char* name,                                                                   \
                             ZulgStatus(ZULG_CALL* routine)(const Element*, Element*, ZulgDCT4Plan_##suffix*)) { \
        for (int32_t length = 2; length <= longestPlan; length *= 2) {                                           \
            ZulgDCT4Plan_##suffix* plan = NULL;                                                                  \
            if (zulgDCT4InitAlloc_##suffix(&plan, length) != StatusOk) fail(name, "there is no plan");           \
            EACH_WAY(name, Element, Element, length, ((void)flag, routine(pSrc, pDst, plan)))                    \
            if (zulgDCT4Free_##suffix(plan) != StatusOk) fail(name, "a plan is not given back");                 \
        }                                                                                                        \
    }                                                                                                            \
    static void initAlloc_##suffix(const char* name,                                                             \
                                   ZulgStatus(ZULG_CALL* routine)(ZulgDCT4Plan_##suffix**, int32_t)) {           \
        ZulgDCT4Plan_##suffix* plan = NULL;                                                                      \
        if (routine(&plan, 12) != StatusSizeError || plan != NULL) fail(name, "12 points are not refused");      \
        ++calls;                                                                                                 \
    }                                                                                                            \
    static void free_##suffix(const char* name, ZulgStatus(ZULG_CALL* routine)(ZulgDCT4Plan_##suffix*)) {        \
        if (routine(NULL) != StatusNullPointer) fail(name, "a null pointer is not refused");                     \
        ++calls;                                                                                                 \
    }
PLANS(32f, float)
PLANS(64f, double)

/* What tells the size of a buffer or of a plan. */
static void size(const char* name, ZulgStatus(ZULG_CALL* routine)(int32_t, int32_t*)) {
    int32_t bytes = -1;
    if (routine(8, &bytes) != StatusOk || bytes < 0) fail(name, "there is no size");
    if (routine(INT32_MIN, &bytes) != StatusSizeError) fail(name, "a length is not refused");
    ++calls;
}

/* How a routine is called, by its type. */
#define CALLER(name)                                                                                 \
    _Generic(&name, ZulgStatus(ZULG_CALL*)(const Zulg32fc*, Zulg32fc*, int32_t)                      \
             : kernel_32fc, ZulgStatus(ZULG_CALL*)(const Zulg64fc*, Zulg64fc*, int32_t)              \
             : kernel_64fc, ZulgStatus(ZULG_CALL*)(const float*, float*, int32_t)                    \
             : kernel_32f, ZulgStatus(ZULG_CALL*)(const double*, double*, int32_t)                   \
             : kernel_64f, ZulgStatus(ZULG_CALL*)(const Zulg32fc*, Zulg32fc*, int32_t, int32_t)      \
             : dispatcher_32fc, ZulgStatus(ZULG_CALL*)(const Zulg64fc*, Zulg64fc*, int32_t, int32_t) \
             : dispatcher_64fc, ZulgStatus(ZULG_CALL*)(const float*, float*, int32_t, int32_t)       \
             : dispatcher_32f, ZulgStatus(ZULG_CALL*)(const double*, double*, int32_t, int32_t)      \
             : dispatcher_64f, ZulgStatus(ZULG_CALL*)(const float*, float*, int32_t, float*)         \
             : order_32f, ZulgStatus(ZULG_CALL*)(const double*, double*, int32_t, double*)           \
             : order_64f, ZulgStatus(ZULG_CALL*)(const float*, float*, int32_t, int32_t, float*)     \
             : orders_32f, ZulgStatus(ZULG_CALL*)(const double*, double*, int32_t, int32_t, double*) \
             : orders_64f, ZulgStatus(ZULG_CALL*)(const float*, float*, ZulgDCT4Plan_32f*)           \
             : run_32f, ZulgStatus(ZULG_CALL*)(const double*, double*, ZulgDCT4Plan_64f*)            \
             : run_64f, ZulgStatus(ZULG_CALL*)(ZulgDCT4Plan_32f**, int32_t, uint8_t*)                \
             : init_32f, ZulgStatus(ZULG_CALL*)(ZulgDCT4Plan_64f**, int32_t, uint8_t*)               \
             : init_64f, ZulgStatus(ZULG_CALL*)(ZulgDCT4Plan_32f**, int32_t)                         \
             : initAlloc_32f, ZulgStatus(ZULG_CALL*)(ZulgDCT4Plan_64f**, int32_t)                    \
             : initAlloc_64f, ZulgStatus(ZULG_CALL*)(ZulgDCT4Plan_32f*)                              \
             : free_32f, ZulgStatus(ZULG_CALL*)(ZulgDCT4Plan_64f*)                                   \
             : free_64f, ZulgStatus(ZULG_CALL*)(int32_t, int32_t*)                                   \
             : size)

int main(int argc, char** argv) {
    int exports = 1;
    if (argc > 1 && strcmp(argv[1], "unset") == 0) { /* what the tool must report */
        double* const x = unset(8 * sizeof(double));
        double y[8];
        zulgHartley_8_64f(x, y, NoDivByAny);
        look("zulgHartley_8_64f", y, sizeof y);
        return 0;
    }
#define ENTRY(name, parameters, arguments, routine) CALLER(name)(#name, &name), ++exports;
#include "boundary/cpp_entries.inc"
#undef ENTRY
    const LibVersion* const version = zulgenGetLibVersion();
    if (strcmp(version->name, "zulgenpx-7.0.dll") != 0) fail("zulgenGetLibVersion", "another name");
    printf("%d exports, %d results, %d faults\n", exports, calls, faults);
    return faults == 0 && exports == 1193 ? 0 : 1;
}
