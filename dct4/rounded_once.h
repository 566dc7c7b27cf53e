// Quotients and products that are rounded once, to double. Where registers are wider than a double, an operator rounds
// to the register first, or to what the caller's control word says, and a second time when the value is stored; tables
// would then depend on the caller's settings in some of their last bits.
#pragma once

#include <cstdint>

namespace zulg {

double quotientRoundedOnce(std::int32_t dividend, std::int32_t divisor);

// Of two normal numbers whose product is normal.
double productRoundedOnce(double a, double b);

}  // namespace zulg
