/* The public header compiles by itself as strict C11, also when it is included twice. */
#include "zulgenpx.h"
#include "zulgenpx.h"

_Static_assert(sizeof(Zulg32fc) == 8 && sizeof(Zulg64fc) == 16, "a complex element is two reals and nothing else");
_Static_assert(sizeof(ZulgStatus) == 4 && StatusFlagError == -16 && StatusPlanKindError == -5, "status codes");

ZulgStatus zulgHeaderTest(const Zulg32fc* x, Zulg32fc* y);
ZulgStatus zulgHeaderTest(const Zulg32fc* x, Zulg32fc* y) { return zulgDFTFwd_CToC_32fc(x, y, 15, DivBySqrtN); }
