/* One batch on all cores: each thread does a part of the transforms. Compiled without OpenMP it runs on one core. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "zulgenpx_batch.h"

enum { length = 60, count = 20000, part = 500 };

int main(void) {
    const size_t bytes = sizeof(Zulg64fc) * length * count;
    Zulg64fc* const x = (Zulg64fc*)malloc(bytes);
    Zulg64fc* const y = (Zulg64fc*)malloc(bytes);
    Zulg64fc* const due = (Zulg64fc*)malloc(bytes);
    if (x == NULL || y == NULL || due == NULL) return 1;
    for (int i = 0; i < length * count; ++i) {
        x[i].re = i % 17 - 8;
        x[i].im = i % 23 - 11;
    }

    int refused = 0;
#pragma omp parallel for schedule(static) reduction(+ : refused)
    for (int first = 0; first < count; first += part) {
        const ZulgStatus status = zulgBatchDFTFwd_CToC_64fc(x + (size_t)first * length, 1, length,
                                                            y + (size_t)first * length, 1, length, length, NoDivByAny,
                                                            part);
        refused += status != StatusOk;
    }

    /* One call gives the same bits. */
    const ZulgStatus status = zulgBatchDFTFwd_CToC_64fc(x, 1, length, due, 1, length, length, NoDivByAny, count);
    const int same = status == StatusOk && refused == 0 && memcmp(y, due, bytes) == 0;
    printf("%d transforms of %d points: %s\n", count, length, same ? "the same bits from all cores" : "wrong");
    free(x);
    free(y);
    free(due);
    return same ? 0 : 1;
}
