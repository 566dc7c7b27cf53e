// reach LIBRARY: which outputs of each transform come from which inputs, as digests, one line for each family and
// length:
//
//     DFTFwd_CToC_15 reach 1f3b...
//
// A not-a-number and both infinities are put into each input in turn. The outputs that are no finite numbers then must
// be the same for the three, and the same in single and in double. taint_test holds them to the graphs where there is a
// generator; the digests are the same on every target. Transforms of up to 512 points.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <map>
#include <string>

#include "tests/same_bits/digest.h"
#include "tests/transforms/transform.h"

namespace test {
namespace {

template <class Element>
std::vector<bool> reachedFrom(const Call<Element>& call, std::vector<Element> source, std::size_t input, Element value,
                              std::size_t outputs) {
    source[input] = value;
    std::vector<Element> found(outputs);
    if (call(source.data(), found.data(), NoDivByAny) != StatusOk) std::exit(1);
    std::vector<bool> reached;
    for (Element x : found) reached.push_back(!std::isfinite(x));
    return reached;
}

template <class Element>
std::uint64_t reachOf(const Transform& transform) {
    const Call<Element> call = callOf<Element>(transform);
    std::mt19937 random(1);
    const auto source = randomElements<Element>(transform.sourceElements, random);
    const auto outputs = static_cast<std::size_t>(transform.destinationElements);
    constexpr Element infinity = std::numeric_limits<Element>::infinity();
    Digest digest;
    for (std::size_t input = 0; input < source.size(); ++input) {
        const auto reached = reachedFrom(call, source, input, std::numeric_limits<Element>::quiet_NaN(), outputs);
        for (Element value : {infinity, -infinity}) {
            if (reachedFrom(call, source, input, value, outputs) == reached) continue;
            std::fprintf(stderr, "%s: an infinity at %d reaches other outputs than a not-a-number\n",
                         transform.kernelName().c_str(), static_cast<int>(input));
            std::exit(1);
        }
        for (bool isReached : reached) digest.add(&isReached, sizeof isReached);
    }
    return digest.value();
}

}  // namespace
}  // namespace test

int main(int argc, char** argv) {
    if (argc != 2) return std::fputs("reach LIBRARY\n", stderr), 1;
#ifdef _WIN32
    _putenv_s("ZULG_TEST_LIBRARY", argv[1]);
#else
    setenv("ZULG_TEST_LIBRARY", argv[1], 1);
#endif
    std::map<std::string, std::uint64_t> known;
    for (const test::Transform& transform : test::allTransforms()) {
        if (transform.length > 512 || transform.takes == test::Takes::FlagAndNullBuffer) continue;
        const std::string name = transform.family + "_" + std::to_string(transform.number());
        const std::uint64_t reach =
            transform.isSingle() ? test::reachOf<float>(transform) : test::reachOf<double>(transform);
        const auto [place, isNew] = known.try_emplace(name, reach);
        if (place->second == reach) continue;
        std::fprintf(stderr, "%s: single and double differ\n", name.c_str());
        return 1;
    }
    for (const auto& [name, reach] : known)
        std::printf("%s reach %016llx\n", name.c_str(), static_cast<unsigned long long>(reach));
}
