// For long kernels, whose constants stand in a table.
#pragma once

#include "frame/platform.h"

namespace zulg {

// The same pointer, kept in a register: what is read through it takes a short displacement where an address of its own
// would take four bytes.
ZULG_INLINE const double* inRegister(const double* table) {
    asm("" : "+r"(table));
    return table;
}

}  // namespace zulg
