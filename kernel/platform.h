// What differs from one target to the next for the library's own sources, besides entries.S. The calling convention
// ZULG_CALL comes from the public header.
#pragma once

#include "include/zulgenpx.h"

// Each kernel is one routine: all that it calls must be inlined, whatever the optimiser thinks of the size.
#define ZULG_INLINE [[gnu::always_inline]] inline
