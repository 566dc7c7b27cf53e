/* The spectrum of eight real values in the layouts CCS, Pack and Perm, and the way back from each. */
#include <math.h>
#include <stdio.h>

#include "zulgenpx.h"

static double distance(const double* a, const double* b, int count) {
    double sum = 0;
    for (int i = 0; i < count; ++i) sum += fabs(a[i] - b[i]);
    return sum;
}

int main(void) {
    /* The signal, and its bins 0 to 4: the real and the imaginary part of each. */
    double x[8], back[3][8], ccs[ZULG_CCS_LENGTH(8)], pack[ZULG_PACK_LENGTH(8)], perm[ZULG_PERM_LENGTH(8)];
    const double bins[ZULG_CCS_LENGTH(8)] = {3, 0, 1, 0, 0, 2, 0, 0, 5, 0};
    for (int n = 0; n < 8; ++n) {
        const double turn = 2 * 3.141592653589793 * n / 8;
        x[n] = 3 + 2 * cos(turn) - 4 * sin(2 * turn) + 5 * cos(4 * turn);
    }

    if (zulgDFTFwd_RToCCS_8_64f(x, ccs, DivFwdByN) != StatusOk) return 1;
    if (zulgDFTFwd_RToPack_8_64f(x, pack, DivFwdByN) != StatusOk) return 1;
    if (zulgDFTFwd_RToPerm_8_64f(x, perm, DivFwdByN) != StatusOk) return 1;
    printf("slot    CCS   Pack   Perm\n");
    for (int i = 0; i < 8; ++i) printf("%4d %6.3f %6.3f %6.3f\n", i, ccs[i], pack[i], perm[i]);
    for (int i = 8; i < ZULG_CCS_LENGTH(8); ++i) printf("%4d %6.3f\n", i, ccs[i]);

    /* Here the length is an argument. Every routine with a length in its name can be called in this way too. */
    if (zulgDFTInv_CCSToR_64f(ccs, back[0], 8, DivFwdByN) != StatusOk) return 1;
    if (zulgDFTInv_PackToR_64f(pack, back[1], 8, DivFwdByN) != StatusOk) return 1;
    if (zulgDFTInv_PermToR_64f(perm, back[2], 8, DivFwdByN) != StatusOk) return 1;
    double error = distance(ccs, bins, ZULG_CCS_LENGTH(8));
    for (int i = 0; i < 3; ++i) error += distance(x, back[i], 8);
    printf("right to within %.1e\n", error);
    return error < 1e-13 && pack[7] == ccs[8] && perm[1] == ccs[8] ? 0 : 1; /* the real part of bin 4 in each layout */
}
