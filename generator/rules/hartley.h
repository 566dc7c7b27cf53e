// The Hartley transform around a real graph: out[k] = sum of in[j] (cos + sin)(2 pi j k/N) = Re X[k] - Im X[k].
//
// Form F: a forward real transform, then sums and differences of its bins. Form I: sums and differences of the inputs,
// then an inverse real transform, whose doubling of the bins does not take place: the transform's matrix is symmetric.
#pragma once

#include "rules/half_spectrum.h"

namespace gen {

RealSignal hartley(const RealSignal& x);

}  // namespace gen
