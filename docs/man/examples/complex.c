#include <math.h>
#include <stdio.h>
#include "zulgenpx.h"

int main(void) {
    Zulg32fc wave[12];
    for (int n = 0; n < 12; ++n) {
        double angle = 6.283185307179586 * 2 * n / 12;  /* two periods in 12 values */
        wave[n].re = (float)cos(angle);
        wave[n].im = (float)sin(angle);
    }

    /* In place; 1/N on the way forward. */
    if (zulgDFTFwd_CToC_12_32fc(wave, wave, DivFwdByN) != StatusOk) return 1;
    for (int k = 0; k < 12; ++k) {
        if (fabsf(wave[k].re) > 0.5f) printf("bin %d: %.3f\n", k, wave[k].re);  /* prints bin 2: 1.000 */
    }

    if (zulgDFTInv_CToC_12_32fc(wave, wave, DivFwdByN) != StatusOk) return 1;
    printf("%.3f\n", wave[6].re);  /* prints 1.000 */
    return 0;
}
