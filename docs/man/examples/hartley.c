#include <stdio.h>
#include "zulgenpx.h"

int main(void) {
    float x[7] = {3, 1, 4, 1, 5, 9, 2}, bins[7];

    if (zulgHartley_7_32f(x, bins, DivBySqrtN) != StatusOk) return 1;
    if (zulgHartley_32f(bins, bins, 7, DivBySqrtN) != StatusOk) return 1;
    printf("%.3f %.3f\n", bins[0], bins[5]);  /* prints 3.000 9.000 */
    return 0;
}
