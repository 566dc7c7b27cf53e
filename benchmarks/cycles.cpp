// Times every transform of the library in cycles of the core, with the time stamp counter alone. It is for the 32-bit
// DLL, since neither Google Benchmark nor the peers are packaged there. Prints one line for each: name, cycles.
//
//     cycles [PATTERN]    a regular expression on the exported name
//
// The counter's rate is no core's clock: a chain of dependent multiplications of known length, timed beside each
// kernel, tells how many cycles a tick is.
#include <x86intrin.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "tests/exports.h"

namespace {

// 32-bit multiplications that wait for one another: 3 cycles each on every core of the last fifteen years.
double cyclesPerTick() {
    constexpr int turns = 100, products = 30, cyclesOfProduct = 3;
    std::uint64_t best = ~std::uint64_t{0};
    for (int attempt = 0; attempt < 4; ++attempt) {
        std::uint32_t x = 3;
        const std::uint64_t start = __rdtsc();
        for (int i = 0; i < turns; ++i) asm volatile(".rept 30\n\timul %0, %0\n\t.endr" : "+r"(x));
        best = std::min<std::uint64_t>(best, __rdtsc() - start);
    }
    return turns * products * cyclesOfProduct / static_cast<double>(best);
}

// The median over samples of about a tenth of a millisecond, so that the few samples with an interrupt do not count.
template <class Call>
double cyclesOf(Call call) {
    constexpr int samples = 31;
    constexpr double ticksOfSample = 200000;
    int calls = 1;
    for (;; calls *= 2) {
        const std::uint64_t start = __rdtsc();
        for (int i = 0; i < calls; ++i) call();
        if (static_cast<double>(__rdtsc() - start) > ticksOfSample) break;
    }
    std::vector<double> cycles;
    for (int sample = 0; sample < samples; ++sample) {
        const double before = cyclesPerTick();
        const std::uint64_t start = __rdtsc();
        for (int i = 0; i < calls; ++i) call();
        const auto ticks = static_cast<double>(__rdtsc() - start);
        cycles.push_back(ticks * (before + cyclesPerTick()) / 2 / calls);
    }
    std::nth_element(cycles.begin(), cycles.begin() + samples / 2, cycles.end());
    return cycles[samples / 2];
}

// One line of the output, unless the pattern leaves it out.
template <class Call>
void report(const std::regex& pattern, const std::string& name, Call call) {
    if (std::regex_search(name, pattern)) std::printf("%s %.1f\n", name.c_str(), cyclesOf(call));
}

template <class Element>
std::vector<Element> randomValues(int count) {
    std::mt19937 random(1);
    std::normal_distribution<double> normal;
    std::vector<Element> values;
    for (int i = 0; i < count; ++i) values.push_back(static_cast<Element>(normal(random)));
    return values;
}

template <class Element>
void timeKernels(const std::regex& pattern, const std::string& family, const std::string& ending) {
    for (int length = 2; length <= 64; ++length) {
        const std::string name = "zulg" + family + "_" + std::to_string(length) + "_" + ending;
        const auto routine = test::exported<test::Kernel<Element>>(name);
        const std::vector<Element> source = randomValues<Element>(2 * length + 2);
        std::vector<Element> destination(source.size());
        report(pattern, name, [&] { routine(source.data(), destination.data(), NoDivByAny); });
    }
}

template <class Element>
void timeWalshHadamard(const std::regex& pattern, const std::string& ending) {
    using Routine = ZulgStatus(ZULG_CALL*)(const Element*, Element*, std::int32_t flag, void* buffer);
    for (int order = 1; order <= 13; ++order) {
        const std::string name = "zulgWHT_" + std::to_string(order) + "_" + ending;
        const auto routine = test::exported<Routine>(name);
        const std::vector<Element> source = randomValues<Element>(1 << order);
        std::vector<Element> destination(source.size()), buffer(2 * source.size());
        report(pattern, name, [&] { routine(source.data(), destination.data(), NoDivByAny, buffer.data()); });
    }
}

template <class Element>
void timeDct4(const std::regex& pattern, const std::string& ending) {
    using Init = ZulgStatus(ZULG_CALL*)(void** pPlan, std::int32_t length);
    using Run = ZulgStatus(ZULG_CALL*)(const Element*, Element*, void* plan);
    using Free = ZulgStatus(ZULG_CALL*)(void* plan);
    if (test::exportedAddress("zulgDCT4_" + ending) == nullptr) return;
    for (int length = 2; length <= 65536; length *= 2) {
        void* plan = nullptr;
        if (test::exported<Init>("zulgDCT4InitAlloc_" + ending)(&plan, length) != StatusOk) continue;
        const auto run = test::exported<Run>("zulgDCT4_" + ending);
        const std::vector<Element> source = randomValues<Element>(length);
        std::vector<Element> destination(source.size());
        report(pattern, "zulgDCT4_" + ending + "/" + std::to_string(length),
               [&] { run(source.data(), destination.data(), plan); });
        test::exported<Free>("zulgDCT4Free_" + ending)(plan);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::regex pattern(argc > 1 ? argv[1] : "");
    for (int i = 0; i < 1000; ++i) cyclesPerTick();  // until the core has reached its clock
    for (const char* family : {"DFTFwd_CToC", "DFTInv_CToC"}) {
        timeKernels<double>(pattern, family, "64fc");
        timeKernels<float>(pattern, family, "32fc");
    }
    for (const char* family : {"DFTFwd_RToCCS", "DFTFwd_RToPack", "DFTFwd_RToPerm", "DFTInv_CCSToR", "DFTInv_PackToR",
                               "DFTInv_PermToR", "Hartley"}) {
        timeKernels<double>(pattern, family, "64f");
        timeKernels<float>(pattern, family, "32f");
    }
    timeWalshHadamard<double>(pattern, "64f");
    timeWalshHadamard<float>(pattern, "32f");
    timeDct4<double>(pattern, "64f");
    timeDct4<float>(pattern, "32f");
}
