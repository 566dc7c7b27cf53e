// Rader's construction of the primes from 11 up: the complex block and the two forms with a single real channel.
#pragma once

#include "rules/half_spectrum.h"
#include "rules/tables.h"

namespace gen {

Signal raderComplex(const Signal& x, int a);
HalfSpectrum raderReal(const RealSignal& x, int a, const Recipe& recipe);
RealSignal raderSpectrum(const HalfSpectrum& bins, int a, const Recipe& recipe);

}  // namespace gen
