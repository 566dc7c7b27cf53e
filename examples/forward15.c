/* The spectrum of 15 complex points, and back. */
#include <math.h>
#include <stdio.h>

#include "zulgenpx.h"

int main(void) {
    Zulg64fc x[15], spectrum[15];
    for (int n = 0; n < 15; ++n) {
        x[n].re = cos(2 * 3.141592653589793 * 4 * n / 15); /* a cosine that goes round four times */
        x[n].im = 0;
    }

    ZulgStatus status = zulgDFTFwd_CToC_15_64fc(x, spectrum, DivFwdByN);
    if (status != StatusOk) {
        fprintf(stderr, "forward: status %d\n", (int)status);
        return 1;
    }
    for (int k = 0; k < 15; ++k) printf("X[%2d] = %6.3f %+6.3f i\n", k, spectrum[k].re, spectrum[k].im);

    /* In place, with the length as an argument. */
    status = zulgDFTInv_CToC_64fc(spectrum, spectrum, 15, DivFwdByN);
    double largest = 0;
    for (int n = 0; n < 15; ++n) largest = fmax(largest, fabs(spectrum[n].re - x[n].re));
    printf("restored to within %.1e\n", largest);
    return status == StatusOk && largest < 1e-15 ? 0 : 1;
}
