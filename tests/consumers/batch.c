/* A program that links with the batch library, and calls the main one as well. It ends with the code 42. */
#include "zulgenpx_batch.h"

int main(void) {
    Zulg64f x[4] = {1, 2, 3, 4};
    if (zulgBatchHartley_64f(x, 1, 2, x, 1, 2, 2, NoDivByAny, 2) != StatusOk) return 1;
    if (x[0] != 3 || x[1] != -1 || x[2] != 7 || x[3] != -1) return 2;
    return zulgHartley_2_64f(x, x, 0) == StatusFlagError ? 42 : 3;
}
