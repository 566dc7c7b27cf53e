// Timings that a loop cannot make: of a call that finds nothing in the caches, of the first result in a new process,
// and of loading the library.
#pragma once

#include <benchmark/benchmark.h>

#include <string>

#include "benchmarks/contest.h"

namespace bench {

// Times calls, each after a walk through more memory than all caches hold.
void timeCold(benchmark::State& state, const Participant& participant, const std::function<void()>& fill);

// Times the way from nothing to the first result, each time in a process of its own: the plan is made anew, and no page
// of the code has been touched.
void timeFirst(benchmark::State& state, const Participant& participant, const std::function<void()>& fill);

// Times loading and unloading.
void timeLoading(benchmark::State& state, const std::string& path);

}  // namespace bench
