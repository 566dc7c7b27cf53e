/* A DCT-IV of 1024 points with a plan in memory of the caller's, and the same once more as its own inverse. */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>

#include "zulgenpx.h"

enum { N = 1024, alignment = 32 };

int main(void) {
    int32_t bytes;
    if (zulgDCT4GetSize_64f(N, &bytes) != StatusOk) return 1;
    uint8_t* const memory = malloc((size_t)bytes + alignment - 1);
    if (memory == NULL) return 1;
    uint8_t* const block = memory + (alignment - (uintptr_t)memory % alignment) % alignment; /* must not be moved */

    ZulgDCT4Plan_64f* plan;
    ZulgStatus status = zulgDCT4Init_64f(&plan, N, block);
    if (status != StatusOk) {
        fprintf(stderr, "plan: status %d\n", (int)status);
        return 1;
    }

    static double x[N], spectrum[N], again[N];
    for (int n = 0; n < N; ++n) x[n] = 3 * cos(3.141592653589793 * (n + 0.5) * (5 + 0.5) / N);
    status = zulgDCT4_64f(x, spectrum, plan);
    if (status == StatusOk) status = zulgDCT4_64f(spectrum, again, plan); /* a plan runs any number of times */
    free(memory); /* the plan is in the block: nothing else is to be freed */
    if (status != StatusOk) return 1;

    double largest = 0;
    for (int n = 0; n < N; ++n) largest = fmax(largest, fabs(again[n] * 2 / N - x[n])); /* twice gives N/2 times x */
    printf("a plan of %d bytes; bin 5 is %.3f; twice gives N/2 times the input to within %.1e\n", (int)bytes,
           spectrum[5], largest);
    return largest < 1e-13 ? 0 : 1;
}
