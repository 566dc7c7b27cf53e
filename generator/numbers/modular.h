// Integers modulo n.
#pragma once

namespace gen {

// x mod n in 0 .. n - 1, also for negative x.
int modulo(int x, int n);

}  // namespace gen
