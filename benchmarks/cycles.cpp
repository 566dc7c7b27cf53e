// Times every kernel of the library in cycles of the core, with nothing but the time stamp counter: for the 32-bit DLL,
// where neither Google Benchmark nor the peers are packaged. Prints one line for each kernel: name, cycles.
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

// Median over samples of about a tenth of a millisecond: what an interrupt meets is left out.
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

template <class Element>
void timeKernel(const std::string& name, int elements) {
    const auto routine = reinterpret_cast<test::Kernel<Element>>(test::exportedAddress(name));
    if (routine == nullptr) return;
    const auto count = static_cast<std::size_t>(elements);
    std::vector<Element> source(count), destination(count);
    std::mt19937 random(1);
    std::normal_distribution<double> normal;
    for (Element& value : source) value = static_cast<Element>(normal(random));
    const double cycles = cyclesOf([&] { routine(source.data(), destination.data(), NoDivByAny); });
    std::printf("%s %.1f\n", name.c_str(), cycles);
}

}  // namespace

int main(int argc, char** argv) {
    const std::regex pattern(argc > 1 ? argv[1] : "");
    for (const char* family : {"DFTFwd_CToC", "DFTInv_CToC", "DFTFwd_RToCCS", "DFTFwd_RToPack", "DFTFwd_RToPerm",
                               "DFTInv_CCSToR", "DFTInv_PackToR", "DFTInv_PermToR", "Hartley"}) {
        const std::string name = std::string("zulg") + family + "_";
        const char* const ending = name.find("CToC") != std::string::npos ? "fc" : "f";
        for (int length = 2; length <= 64; ++length) {
            const std::string stem = name + std::to_string(length);
            if (std::regex_search(stem + "_64" + ending, pattern))
                timeKernel<double>(stem + "_64" + ending, 2 * length + 2);
            if (std::regex_search(stem + "_32" + ending, pattern))
                timeKernel<float>(stem + "_32" + ending, 2 * length + 2);
        }
    }
}
