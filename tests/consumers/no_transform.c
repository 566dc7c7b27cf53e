/* What a program is without a transform, to compare with. */
#include "zulgenpx.h"

int main(void) {
    Zulg64f x[66] = {1};
    return x[0] == 1 ? 42 : 2;
}
