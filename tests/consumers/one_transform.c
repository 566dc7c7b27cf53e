/* A program that uses one transform. It ends with the code 42. */
#include "zulgenpx.h"

int main(void) {
    Zulg64f x[66] = {1};
    if (zulgDFTFwd_RToCCS_64_64f(x, x, NoDivByAny) != StatusOk) return 1;
    return x[0] == 1 && x[1] == 0 && x[64] == 1 ? 42 : 2;
}
