// Arrays that are too short, in a program that is built with the address sanitizer: misuse_of_memory CASE. The checked
// library must stop it before the library touches anything.
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "zulgenpx.h"

namespace {

std::vector<float> source(4096), destination(4096);

const std::map<std::string, void (*)()> cases = {
    {"a short destination",
     [] {
         std::vector<Zulg32fc> from(15), to(14);
         zulgDFTFwd_CToC_15_32fc(from.data(), to.data(), NoDivByAny);
     }},
    {"a short source",
     [] {
         const std::vector<float> from(30);
         zulgHartley_32f(from.data(), destination.data(), 31, NoDivByAny);
     }},
    {"a short half spectrum",
     [] {
         std::vector<float> to(16);
         zulgDFTFwd_RToCCS_16_32f(source.data(), to.data(), NoDivByAny);
     }},
    {"a short buffer",
     [] {
         std::vector<float> buffer(4096);
         zulgWHT_12_32f(source.data(), destination.data(), NoDivByAny, buffer.data());
     }},
    {"a short block",
     [] {
         std::vector<uint8_t> block(1183);
         ZulgDCT4Plan_32f* plan;
         zulgDCT4Init_32f(&plan, 64, block.data());
     }},
};

}  // namespace

int main(int argc, char** argv) {
    if (argc == 1) {
        for (const auto& [name, misuse] : cases) std::puts(name.c_str());
        return zulgDFTInv_CCSToR_16_32f(source.data(), destination.data(), DivInvByN);
    }
    const auto found = cases.find(argv[1]);
    if (found == cases.end()) return 2;
    found->second();
    return 0;
}
