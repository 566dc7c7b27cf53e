// The Walsh-Hadamard transform in natural order: n stages of butterflies for 2^n points.
#pragma once

#include "rules/half_spectrum.h"

namespace gen {

// out[k] = sum over j of (-1)^popcount(j and k) x[j]. Stage t joins the positions j and j + 2^t, bit t of j clear; no
// stage is merged with another.
RealSignal walshHadamard(RealSignal x);

}  // namespace gen
