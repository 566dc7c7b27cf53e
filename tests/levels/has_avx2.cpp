// Prints whether the processor has what the level of AVX2 needs: "yes" or "no".
#include "targets/x86_64/has_avx2.h"

#include <cstdio>

int main() {
    std::puts(zulg::hasAVX2() ? "yes" : "no");
    return 0;
}
