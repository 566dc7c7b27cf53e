// What differs from one target or compiler to the next for the library's own sources, besides entries.S. The calling
// convention ZULG_CALL comes from the public header.
#pragma once

#include "include/zulgenpx.h"

// Whether the sources may use what GNU's C++ has beyond the standard: vectors, types of any alignment, assembler
// statements. A target can do without where the compiler has them: it defines ZULG_STANDARD_CPP. Attributes in double
// brackets are standard, and a compiler ignores those that it does not know.
#if defined(__GNUC__) && !defined(ZULG_STANDARD_CPP)
#define ZULG_GNU_CPP
#endif

// Of data that another source of this library defines: it is read at its own address. Without the mark, ELF code would
// first read that address from a table, in case another library defined the same name.
#ifdef _WIN32
#define ZULG_HIDDEN
#else
#define ZULG_HIDDEN [[gnu::visibility("hidden")]]
#endif

// Of what a library exports.
#ifdef _WIN32
#define ZULG_EXPORT
#else
#define ZULG_EXPORT [[gnu::visibility("default")]]
#endif

// Each kernel is one routine: all that it calls must be inlined, whatever the optimiser thinks of the size.
#define ZULG_INLINE [[gnu::always_inline]] inline

// The same for a lambda, after its arguments. There the standard has no place for it.
#ifdef ZULG_GNU_CPP
#define ZULG_INLINE_LAMBDA __attribute__((always_inline))
#else
#define ZULG_INLINE_LAMBDA
#endif
