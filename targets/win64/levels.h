// The levels of the library on 64-bit Windows. Each has a table of slots, and ZULG_LEVEL names it. The table that the
// entries jump through is that of the first level; the load entry replaces what is in it where the processor has AVX2.
#pragma once

#ifndef ZULG_LEVEL
#define ZULG_LEVEL x86_64
#define ZULG_SLOT_PLACE [[gnu::section(".slots")]]
#endif

#include "targets/x86_64/has_avx2.h"
#include "targets/x86_64/one_level.h"

namespace zulg {

inline bool processorHasLastLevel() { return hasAVX2(); }

}  // namespace zulg
