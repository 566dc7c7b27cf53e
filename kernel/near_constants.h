// For long kernels, whose constants are in a table.
#pragma once

#include "kernel/platform.h"

namespace zulg {

// Returns the same pointer, kept in a register. An instruction that reads a constant through it holds a displacement,
// which is one byte near the pointer, instead of an address of four bytes.
ZULG_INLINE const double* inRegister(const double* table) {
    asm("" : "+r"(table));
    return table;
}

}  // namespace zulg
