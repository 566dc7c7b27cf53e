// What differs from one target to the next for the library's own sources, beside entries.S. The calling convention
// ZULG_CALL comes from the public header.
#pragma once

#include "include/zulgenpx.h"

// Kernels are one routine each: their parts must go into it whatever the optimiser thinks of the size.
#define ZULG_INLINE [[gnu::always_inline]] inline
