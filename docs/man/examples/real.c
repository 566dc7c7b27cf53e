#include <stdio.h>
#include "zulgenpx.h"

int main(void) {
    double x[6] = {1, 2, 3, 4, 5, 6}, back[6];
    double ccs[ZULG_CCS_LENGTH(6)], perm[ZULG_PERM_LENGTH(6)];

    if (zulgDFTFwd_RToCCS_6_64f(x, ccs, NoDivByAny) != StatusOk) return 1;
    if (zulgDFTFwd_RToPerm_6_64f(x, perm, NoDivByAny) != StatusOk) return 1;
    printf("%.0f %.0f\n", ccs[0], ccs[6]);          /* prints 21 -3 */
    printf("%.0f %.0f\n", perm[0], perm[1]);        /* prints 21 -3 */
    printf("%.3f %.3f\n", ccs[2], ccs[3]);          /* prints -3.000 5.196 */

    if (zulgDFTInv_PermToR_6_64f(perm, back, DivInvByN) != StatusOk) return 1;
    printf("%.3f %.3f\n", back[0], back[5]);        /* prints 1.000 6.000 */
    return 0;
}
