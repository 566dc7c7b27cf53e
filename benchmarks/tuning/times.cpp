// Times the same kernels from several modules in turn, and prints a line for each kernel, element and module: text,
// length, kernel, element, module, ticks of the time stamp counter.
//
//     tune_times COPY NAME=MODULE ...    COPY, 0 to 4: which copy of the timing loop is run
//
// The modules have to hold kernels of the first one; they need not hold all of them. Only times of one line's kernel
// and element are comparable: the counter's rate is no core's clock.
#include <dlfcn.h>
#include <x86intrin.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "benchmarks/tuning/timed_kernels.h"

namespace tune {
namespace {

struct Module {
    std::string name;
    std::span<const TimedKernel> kernels;
};

Module opened(const std::string& argument) {
    const std::size_t middle = argument.find('=');
    void* const handle =
        middle == argument.npos ? nullptr : dlopen(argument.c_str() + middle + 1, RTLD_NOW | RTLD_LOCAL);
    const void* const found = handle == nullptr ? nullptr : dlsym(handle, "timedKernels");
    if (found == nullptr) std::fprintf(stderr, "no kernels in %s\n", argument.c_str()), std::exit(1);
    const auto* kernels = static_cast<const TimedKernels*>(found);
    return {argument.substr(0, middle), {kernels->first, kernels->count}};
}

// Copies of the loop at different addresses within a page: the time of code that nearly fills the cache of decoded
// instructions depends on the address of its caller.
constexpr int copies = 5;

template <int copy, class Element>
[[gnu::noinline]] std::uint64_t ticksOf(zulg::KernelRoutine<Element> routine, const Element* source,
                                        Element* destination, int calls) {
    asm volatile(".skip %c0, 0x90" : : "i"((copy + 1) * 832));
    routine(source, destination, NoDivByAny);
    const std::uint64_t start = __rdtsc();
    for (int i = 0; i < calls; ++i) routine(source, destination, NoDivByAny);
    return __rdtsc() - start;
}

template <class Element>
using Loop = std::uint64_t (*)(zulg::KernelRoutine<Element>, const Element*, Element*, int);
template <class Element>
constexpr Loop<Element> loops[copies] = {ticksOf<0, Element>, ticksOf<1, Element>, ticksOf<2, Element>,
                                         ticksOf<3, Element>, ticksOf<4, Element>};

// The least time of a call in each module. An interrupt or another thread on the core only ever makes a time longer,
// and turns spread a slow moment over all.
template <class Element>
std::vector<double> leastTicks(const std::vector<zulg::KernelRoutine<Element>>& routines, int length, int copy) {
    constexpr int turns = 40;
    constexpr std::uint64_t ticksOfSample = 60000;
    alignas(64) static Element source[2 * zulg::longestLength + 2], destination[2 * zulg::longestLength + 2];
    std::mt19937 random(1);
    std::normal_distribution<double> normal;
    std::generate_n(source, 2 * length + 2, [&] { return static_cast<Element>(normal(random)); });
    const Loop<Element> loop = loops<Element>[copy];
    int calls = 1;
    while (loop(routines.front(), source, destination, calls) < ticksOfSample) calls *= 2;
    std::vector<double> least(routines.size(), 1e30);
    for (int turn = 0; turn < turns; ++turn)
        for (std::size_t i = 0; i < routines.size(); ++i)
            least[i] = std::min(least[i], static_cast<double>(loop(routines[i], source, destination, calls)) / calls);
    return least;
}

template <class Element>
void report(const TimedKernel& timed, const std::vector<Module>& modules,
            zulg::KernelRoutine<Element> TimedKernel::*routine, int copy) {
    std::vector<zulg::KernelRoutine<Element>> routines;
    std::vector<const char*> names;
    for (const Module& module : modules)
        for (const TimedKernel& kernel : module.kernels)
            if (kernel.length == timed.length && std::string_view(kernel.family) == timed.family &&
                std::string_view(kernel.level) == timed.level)
                routines.push_back(kernel.*routine), names.push_back(module.name.c_str());
    const std::vector<double> ticks = leastTicks(routines, timed.length, copy);
    for (std::size_t i = 0; i < ticks.size(); ++i)
        std::printf("%s %d %s.%s %s %s %.2f\n", timed.folder, timed.length, timed.family, timed.level,
                    sizeof(Element) == sizeof(double) ? "double" : "single", names[i], ticks[i]);
}

}  // namespace
}  // namespace tune

int main(int argc, char** argv) {
    using namespace tune;
    if (argc < 3) return std::fputs("usage: tune_times COPY NAME=MODULE ...\n", stderr), 2;
    const int copy = std::clamp(std::atoi(argv[1]), 0, copies - 1);
    std::vector<Module> modules;
    for (int i = 2; i < argc; ++i) modules.push_back(opened(argv[i]));
    for (const TimedKernel& timed : modules.front().kernels) {
        if (timed.level == std::string_view("x86_64_v3") && !__builtin_cpu_supports("avx2")) continue;
        report(timed, modules, &TimedKernel::single, copy);
        report(timed, modules, &TimedKernel::wide, copy);
    }
}
