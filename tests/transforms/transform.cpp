#include "tests/transforms/transform.h"

#include <array>

namespace test {
namespace {

constexpr int most = 8192;

// Tables made by the compiler, which rounds each quotient once to its type whatever the target's registers hold.
template <class Element>
constexpr auto inverses = [] {
    std::array<Element, most + 1> table{};
    for (int n = 1; n <= most; ++n) table[static_cast<std::size_t>(n)] = Element{1} / static_cast<Element>(n);
    return table;
}();

constexpr auto inverseRoots = [] {
    std::array<double, 65> table{};
    for (int n = 1; n <= 64; ++n) table[static_cast<std::size_t>(n)] = 1.0 / __builtin_sqrt(static_cast<double>(n));
    return table;
}();

Values forward(const Values& x) { return complexTransform(x, -1); }
Values inverse(const Values& x) { return complexTransform(x, +1); }

}  // namespace

std::vector<int> availableLengths() {
    std::vector<int> lengths;
    for (int length = 2; length <= 64; ++length) {
        int rest = length;
        for (int p : {2, 3, 5, 7}) {
            while (rest % p == 0) rest /= p;
        }
        if (rest == 1) lengths.push_back(length);
    }
    return lengths;
}

std::vector<Transform> complexTransforms() {
    std::vector<Transform> transforms;
    for (int length : availableLengths()) {
        for (const char* suffix : {"32fc", "64fc"}) {
            transforms.push_back(
                {"DFTFwd_CToC", suffix, length, Direction::Forward, 2 * length, 2 * length, 2.0, forward});
            transforms.push_back(
                {"DFTInv_CToC", suffix, length, Direction::Inverse, 2 * length, 2 * length, 2.0, inverse});
        }
    }
    return transforms;
}

std::ostream& operator<<(std::ostream& out, const Transform& transform) { return out << transform.kernelName(); }

std::string testName(const testing::TestParamInfo<Transform>& test) {
    return test.param.family + "_" + std::to_string(test.param.length) + "_" + test.param.suffix;
}

template <>
float storedInverse<float>(int length) {
    return inverses<float>[static_cast<std::size_t>(length)];
}
template <>
double storedInverse<double>(int length) {
    return inverses<double>[static_cast<std::size_t>(length)];
}
template <>
float storedInverseRoot<float>(int length) {
    return static_cast<float>(inverseRoots[static_cast<std::size_t>(length)]);
}
template <>
double storedInverseRoot<double>(int length) {
    return inverseRoots[static_cast<std::size_t>(length)];
}

}  // namespace test
