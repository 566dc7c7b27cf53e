// What differs from one target to the next for the library's own sources, besides entries.S. The calling convention
// ZULG_CALL comes from the public header.
#pragma once

#include "include/zulgenpx.h"

// Of data that another source of this library defines: it is read at its own address. Without the mark, ELF code would
// first read that address from a table, in case another library defined the same name.
#ifdef _WIN32
#define ZULG_HIDDEN
#else
#define ZULG_HIDDEN [[gnu::visibility("hidden")]]
#endif

// Each kernel is one routine: all that it calls must be inlined, whatever the optimiser thinks of the size.
#define ZULG_INLINE [[gnu::always_inline]] inline
