// The shape of a plan: which radix a level takes.
#pragma once

#include <cstdint>

#include "kernel/kernel.h"

namespace zulg {

// Picks the radix for n, which is half a length. Where there is none, returns StatusSizeError and leaves the radix
// unchanged.
Status pickRadix(std::int32_t* pRadix, std::int32_t n);

}  // namespace zulg
