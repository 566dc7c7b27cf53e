#include "benchmarks/cold.h"

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <numeric>

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

// The memory is larger than the last cache of any machine that this is meant for. It is written, so that it replaces
// every line of the caches.
void emptyCaches() {
    static std::vector<long> memory(std::size_t{96} << 20 >> 3);
    for (long& value : memory) ++value;
    benchmark::DoNotOptimize(memory.data());
    benchmark::ClobberMemory();
}

}  // namespace

void timeCold(benchmark::State& state, const Participant& participant, const std::function<void()>& fill) {
    const Prepared call = participant.prepare();
    fill();
    for (auto _ : state) {
        emptyCaches();
        const auto start = Clock::now();
        call.once();
        state.SetIterationTime(secondsSince(start));
    }
}

void timeFirst(benchmark::State& state, const Participant& participant, const std::function<void()>& fill) {
    for (auto _ : state) {
        int ends[2];
        double seconds = 0;
        if (pipe(ends) != 0) return state.SkipWithError("no pipe");
        const pid_t child = fork();
        if (child == 0) {
            fill();
            const auto start = Clock::now();
            participant.prepare().once();
            seconds = secondsSince(start);
            _exit(write(ends[1], &seconds, sizeof seconds) == sizeof seconds ? 0 : 1);
        }
        close(ends[1]);
        const bool isRead = child > 0 && read(ends[0], &seconds, sizeof seconds) == sizeof seconds;
        close(ends[0]);
        if (child > 0) waitpid(child, nullptr, 0);
        if (!isRead) return state.SkipWithError("no time from the process");
        state.SetIterationTime(seconds);
    }
}

void timeLoading(benchmark::State& state, const std::string& path) {
    for (auto _ : state) {
        void* const handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (handle == nullptr) return state.SkipWithError(dlerror());
        dlclose(handle);
    }
}

}  // namespace bench
