// The public header compiles by itself as strict C++17.
#include "zulgenpx.h"

static_assert(sizeof(LibVersion) == 20 + 3 * sizeof(void*) || sizeof(LibVersion) == 24 + 3 * sizeof(void*));

ZulgStatus zulgHeaderTestOfCpp(const Zulg64fc* x, Zulg64fc* y) { return zulgDFTInv_CToC_64_64fc(x, y, NoDivByAny); }
