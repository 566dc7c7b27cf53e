// The upper halves of vector registers, which a routine has to leave clean: otherwise the caller's instructions for two
// lanes wait for them. The compiler does that by itself, but not where it optimises for size.
#pragma once

#include "kernel/platform.h"

namespace zulg {

ZULG_INLINE void cleanUpperHalves() {
#ifdef __AVX__
    __builtin_ia32_vzeroupper();
#endif
}

}  // namespace zulg
