// Runs a harness without a fuzzer: over so many inputs drawn at random, and over the files that are named. A harness
// that is not content aborts. replay COUNT [FILE ...]
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    const int count = argc > 1 ? std::atoi(argv[1]) : 0;
    std::mt19937 random(1);
    for (int i = 0; i < count; ++i) {
        std::vector<std::uint8_t> input(random() % 400);
        for (auto& byte : input) byte = static_cast<std::uint8_t>(random());
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    for (int i = 2; i < argc; ++i) {
        std::ifstream file(argv[i], std::ios::binary);
        const std::vector<char> text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    }
    std::printf("%d random inputs, %d files\n", count, argc > 2 ? argc - 2 : 0);
}
