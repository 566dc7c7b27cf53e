#include "benchmarks/core_probe.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>

namespace bench {
namespace {

// A multiplication of 64-bit integers takes 3 cycles on every x86-64 core of the last fifteen years, and each of these
// waits for the one before it.
constexpr int turns = 200, products = 30, cyclesOfProduct = 3;

void dependentProducts() {
    std::uint64_t x = 3;
    for (int i = 0; i < turns; ++i) asm volatile(".rept 30\n\timul %0, %0\n\t.endr" : "+r"(x));
}

// Eight chains side by side keep two adders of up to 4 cycles busy.
constexpr int sums = 64;

void independentSums() {
    for (int i = 0; i < turns; ++i)
        asm volatile(
            ".rept 8\n\t"
            "addsd %%xmm0, %%xmm0\n\taddsd %%xmm1, %%xmm1\n\taddsd %%xmm2, %%xmm2\n\taddsd %%xmm3, %%xmm3\n\t"
            "addsd %%xmm4, %%xmm4\n\taddsd %%xmm5, %%xmm5\n\taddsd %%xmm6, %%xmm6\n\taddsd %%xmm7, %%xmm7\n\t"
            ".endr" ::
                : "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7");
}

// The best of several: an interrupt only ever makes one longer.
template <class Work>
double nanoseconds(Work work) {
    using Clock = std::chrono::steady_clock;
    double best = 1e9;
    for (int attempt = 0; attempt < 4; ++attempt) {
        const auto start = Clock::now();
        work();
        best = std::min(best, std::chrono::duration<double, std::nano>(Clock::now() - start).count());
    }
    return best;
}

// The time between two readings in a row, since reading the clock takes time itself.
double ofReading() {
    static const double value = nanoseconds([] {});
    return value;
}

}  // namespace

CoreProbe probeCore() {
    const double clock = turns * products * cyclesOfProduct / (nanoseconds(dependentProducts) - ofReading());
    return {clock, turns * sums / ((nanoseconds(independentSums) - ofReading()) * clock)};
}

void report(benchmark::State& state, const CoreProbe& before, const CoreProbe& after) {
    state.counters["clock"] = (before.clock + after.clock) / 2;
    state.counters["drift"] = std::abs(after.clock - before.clock) / before.clock;
    state.counters["width"] = std::min(before.width, after.width);
}

}  // namespace bench
