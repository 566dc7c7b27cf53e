#include <stdio.h>
#include "zulgenpx.h"

int main(void) {
    float x[64] = {1}, y[64];
    ZulgDCT4Plan_32f *plan;

    if (zulgDCT4InitAlloc_32f(&plan, 64) != StatusOk) return 1;
    if (zulgDCT4_32f(x, y, plan) != StatusOk) return 1;
    printf("%.4f\n", y[0]);      /* prints 0.9999 */
    if (zulgDCT4_32f(y, y, plan) != StatusOk) return 1;
    printf("%.4f\n", y[0]);      /* prints 32.0000 */
    zulgDCT4Free_32f(plan);
    return 0;
}
