#include <stdio.h>
#include <stdlib.h>
#include "zulgenpx.h"

int main(void) {
    static double x[512];
    x[3] = 8;

    int32_t bytes;
    if (zulgWHTGetBufferSize_64f(9, &bytes) != StatusOk) return 1;
    double *buffer = malloc((size_t)bytes);
    if (buffer == NULL) return 1;

    if (zulgWHT_9_64f(x, x, NoDivByAny, buffer) != StatusOk) return 1;
    printf("%.0f %.0f %.0f\n", x[0], x[1], x[3]);  /* prints 8 -8 8 */
    if (zulgWHT_64f(x, x, 9, DivInvByN, buffer) != StatusOk) return 1;
    printf("%.0f %.0f\n", x[0], x[3]);             /* prints 0 8 */
    free(buffer);
    return 0;
}
