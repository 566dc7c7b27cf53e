// What the core does at this moment, measured with chains of instructions of known length. One figure is its clock,
// which may change between two measurements. The other is the number of additions in a cycle that we get, which falls
// when another thread shares the core.
#pragma once

#include <benchmark/benchmark.h>

namespace bench {

struct CoreProbe {
    double clock;  // in GHz
    double width;  // scalar additions per cycle; 2 at best
};

CoreProbe probeCore();

// Puts into the record of one repetition: `clock`, the mean of before and after; `drift`, the change of the clock as a
// fraction of it; `width`, the lower of the two.
void report(benchmark::State& state, const CoreProbe& before, const CoreProbe& after);

}  // namespace bench
