// What a call costs in C and through the C++ headers, for benchmarks/face.py, which counts instructions:
//
//     face WAY CALLS     runs one of the ways below that many times; prints their names if there is no such way
#include <array>
#include <complex>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "zulgenpx.hpp"

namespace {

using Complexes = std::array<std::complex<double>, 15>;

// All that a way may use. The compiler knows the sizes of arrays in their types, and no others.
struct Arrays {
    Complexes x{}, y{};
    std::vector<std::complex<double>> from = std::vector<std::complex<double>>(15), to = from;
};

Zulg64fc* inC(std::complex<double>* x) { return reinterpret_cast<Zulg64fc*>(x); }

struct Way {
    std::string_view name;
    void (*run)(Arrays&);
};
const Way ways[] = {
    {"fixed-c", [](Arrays& a) { zulgDFTFwd_CToC_15_64fc(inC(a.x.data()), inC(a.y.data()), DivInvByN); }},
    {"fixed-cpp", [](Arrays& a) { zulgenpx::dft<15>(a.x, a.y); }},
    {"checked-c",
     [](Arrays& a) {
         if (zulgDFTFwd_CToC_15_64fc(inC(a.from.data()), inC(a.to.data()), DivInvByN) != StatusOk) std::abort();
     }},
    {"vectors-cpp", [](Arrays& a) { zulgenpx::dft<15>(a.from, a.to); }},
    {"any-length-c",
     [](Arrays& a) {
         const auto length = static_cast<std::int32_t>(a.from.size());
         if (zulgDFTFwd_CToC_64fc(inC(a.from.data()), inC(a.to.data()), length, DivInvByN) != StatusOk) std::abort();
     }},
    {"any-length-cpp", [](Arrays& a) { zulgenpx::dft(a.from, a.to); }},
    {"returned-cpp", [](Arrays& a) { a.y = zulgenpx::dft(a.x); }},
};

}  // namespace

int main(int argc, char** argv) {
    static Arrays arrays;
    for (const Way& way : ways) {
        if (argc != 3 || way.name != argv[1]) continue;
        for (int left = std::atoi(argv[2]); left > 0; --left) way.run(arrays);
        return 0;
    }
    for (const Way& way : ways) std::printf("%s\n", way.name.data());
    return 2;
}
