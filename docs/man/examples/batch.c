#include <stdio.h>
#include "zulgenpx_batch.h"

int main(void) {
    static Zulg64fc m[12 * 20];  /* 12 rows of 20 columns */
    m[0].re = 1;

    if (zulgBatchDFTFwd_CToC_64fc(m, 1, 20, m, 1, 20, 20, NoDivByAny, 12) != StatusOk) return 1;
    if (zulgBatchDFTFwd_CToC_64fc(m, 20, 1, m, 20, 1, 12, NoDivByAny, 20) != StatusOk) return 1;
    printf("%.0f %.0f\n", m[0].re, m[239].re);  /* prints 1 1 */

    /* Two results in one place are refused. */
    printf("%d\n", (int)zulgBatchDFTFwd_CToC_64fc(m, 1, 20, m, 1, 10, 20, NoDivByAny, 12));  /* prints -6 */
    return 0;
}
