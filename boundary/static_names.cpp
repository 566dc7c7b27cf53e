// The public names of the static library. It has no slots and no entries: each name is an indirect function, which is
// called once, before the program starts, and gives the routine that calls of the name go to. The build takes this
// object apart, one name to an object (cmake/split_archive.cmake).
#include "boundary/dispatch.h"
#include "dct4/dct4.h"
#include "levels.h"
#include "wht/wht.h"

// A function within a namespace of that name, so that it may differ from the routine that the public header declares.
#define SLOT(name, routine, bytes)                                        \
    namespace name {                                                      \
    [[gnu::used, gnu::visibility("default")]] auto resolver() asm(#name); \
    auto resolver() {                                                     \
        asm(".type " #name ", @gnu_indirect_function");                   \
        return chosen(routine);                                           \
    }                                                                     \
    }

namespace zulg {
#include "boundary/slots.inc"
}  // namespace zulg
