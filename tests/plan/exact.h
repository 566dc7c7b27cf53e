// Numbers of 113 bits, computed without the processor's floating-point unit. FOR TESTS ONLY.
#pragma once

#include <cfloat>

namespace test {

// Products of two doubles are exact in it, and quotients of 32-bit numbers are too near to the exact ones for a second
// rounding to show.
#if LDBL_MANT_DIG == 113
using Exact = long double;
#else
__extension__ typedef __float128 Exact;
#endif

// Not inlined: a compiler that sees both ends makes the product of two doubles of it, in the processor's own registers.
[[gnu::noinline]] inline double roundedOnce(Exact x) { return static_cast<double>(x); }

}  // namespace test
