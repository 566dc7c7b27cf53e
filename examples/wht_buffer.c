/* A Walsh-Hadamard transform of 4096 points in a buffer of the caller's: which +1/-1 patterns is a signal made of? */
#include <stdio.h>
#include <stdlib.h>

#include "zulgenpx.h"

enum { order = 12, count = 1 << order };

/* Row k of the matrix at column j: -1 where k and j have an odd number of set bits in common. */
static int pattern(int k, int j) {
    int sign = 1;
    for (int both = k & j; both != 0; both &= both - 1) sign = -sign;
    return sign;
}

int main(void) {
    static float x[count], spectrum[count];
    for (int j = 0; j < count; ++j) x[j] = (float)(3 * pattern(5, j) - 2 * pattern(4000, j));

    int32_t bytes;
    if (zulgWHTGetBufferSize_32f(order, &bytes) != StatusOk) return 1;
    float* const buffer = malloc((size_t)bytes);
    if (buffer == NULL) return 1;
    const ZulgStatus status = zulgWHT_32f(x, spectrum, order, DivFwdByN, buffer); /* or zulgWHT_12_32f */
    free(buffer);
    if (status != StatusOk) return 1;

    int found = 0;
    for (int k = 0; k < count; ++k) {
        if (spectrum[k] != 0) printf("pattern %4d: %g\n", k, spectrum[k]), ++found;
    }
    return found == 2 && spectrum[5] == 3 && spectrum[4000] == -2 ? 0 : 1;
}
