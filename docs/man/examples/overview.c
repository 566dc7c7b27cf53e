#include <stdio.h>
#include "zulgenpx.h"

int main(void) {
    Zulg64fc x[45] = {{0, 0}}, spectrum[15];
    x[1].re = 1;

    zulgDFTFwd_CToC_15_64fc(x, spectrum, NoDivByAny);
    zulgDFTInv_CToC_15_64fc(spectrum, x, DivInvByN);
    printf("%.4f %.4f\n", spectrum[5].re, x[1].re);  /* prints -0.5000 1.0000 */

    ZulgStatus status = zulgDFTFwd_CToC_64fc(x, x, 45, DivBySqrtN);
    if (status != StatusOk) return 1;
    printf("%.4f %.4f\n", x[5].re, x[5].im);         /* prints 0.1142 -0.0958 */

    status = zulgDFTFwd_CToC_64fc(x, x, 65, DivBySqrtN);
    printf("%d\n", (int)status);                     /* prints -6 */
    return 0;
}
