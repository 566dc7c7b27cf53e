/* A program that links with the installed library. It names every exported routine, so that the linker finds each one
   and the loader as well, and calls a few with arguments of different size. It ends with the code 42, which neither a
   loader nor a fault gives. With FREESTANDING it needs no library but the system's ExitProcess. */
#include "zulgenpx.h"

typedef void (*Routine)(void);

#define SLOT(name, routine, bytes) (Routine) name,
static const Routine routines[] = {
#include "boundary/slots.inc"
    (Routine)zulgenGetLibVersion,
};
#undef SLOT

static int consumer(void) {
    unsigned i;
    Zulg32f singles[2] = {1, 2};
    Zulg64f doubles[2] = {1, 2};
    for (i = 0; i < sizeof routines / sizeof routines[0]; ++i) {
        if (routines[i] == 0) return 1;
    }
    if (zulgenGetLibVersion()->major != 7 || zulgenGetLibVersion()->build != 544) return 2;
    if (zulgHartley_2_32f(singles, singles, NoDivByAny) != StatusOk) return 3;
    if (singles[0] != 3 || singles[1] != -1) return 4;
    if (zulgHartley_64f(doubles, doubles, 2, NoDivByAny) != StatusOk) return 5;
    if (doubles[0] != 3 || doubles[1] != -1) return 6;
    if (zulgHartley_64f(doubles, doubles, 65, NoDivByAny) != StatusSizeError) return 7;
    return 42;
}

#ifdef FREESTANDING

int _fltused; /* the compiler asks for it wherever there is floating-point arithmetic */

void __stdcall ExitProcess(unsigned code);

void start(void);
void start(void) { ExitProcess((unsigned)consumer()); }

#else

int main(void) { return consumer(); }

#endif
