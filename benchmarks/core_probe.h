// What the core does at this moment, from chains of instructions of known length: its clock, which no counter need
// tell and which may change between two measurements, and the number of additions per cycle it really gives us, which
// falls when another thread shares the core.
#pragma once

#include <benchmark/benchmark.h>

namespace bench {

struct CoreProbe {
    double clock;  // in GHz
    double width;  // scalar additions per cycle; 2 at best
};

CoreProbe probeCore();

// Leaves in the record of one repetition: `clock`, the mean before and after; `drift`, how much it changed, as a part
// of one; `width`, the lower of the two.
void report(benchmark::State& state, const CoreProbe& before, const CoreProbe& after);

}  // namespace bench
