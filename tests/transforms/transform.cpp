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
    std::array<double, most + 1> table{};
    for (int n = 1; n <= most; ++n) table[static_cast<std::size_t>(n)] = 1.0 / __builtin_sqrt(static_cast<double>(n));
    return table;
}();

Values forward(const Values& x) { return complexTransform(x, -1); }
Values inverse(const Values& x) { return complexTransform(x, +1); }

}  // namespace

std::vector<int> allLengths() {
    std::vector<int> lengths;
    for (int length = 2; length <= 64; ++length) lengths.push_back(length);
    return lengths;
}

int largestPrimeFactor(int length) {
    int largest = 1;
    for (int p = 2; length > 1; ++p) {
        while (length % p == 0) length /= largest = p;
    }
    return largest;
}

const char* layoutName(Layout layout) {
    return layout == Layout::CCS ? "CCS" : layout == Layout::Pack ? "Pack" : "Perm";
}

int LayoutSlots::re(int k) const {
    if (layout == Layout::CCS) return 2 * k;
    if (k == 0) return 0;
    if (2 * k == length) return layout == Layout::Pack ? length - 1 : 1;
    return layout == Layout::Perm && length % 2 == 0 ? 2 * k : 2 * k - 1;
}

int LayoutSlots::im(int k) const {
    const bool isReal = 2 * k % length == 0;
    return isReal && layout != Layout::CCS ? -1 : re(k) + 1;
}

int LayoutSlots::elements() const { return layout == Layout::CCS ? length / 2 * 2 + 2 : length; }

int expectedNegations(int length) {
    constexpr int negations[] = {
        0,  1,  1,  1, 1,  1,  3,  3,  3,  1,  3,  2,  3,  3,  6,  5,  4,  4,  5,  6,  5,
        4,  5,  6,  7, 8,  7,  8,  9,  6,  10, 8,  8,  8,  10, 8,  12, 11, 11, 9,  10, 9,
        11, 11, 11, 9, 14, 11, 18, 16, 14, 14, 13, 14, 14, 16, 14, 10, 18, 14, 21, 18, 19};  // of lengths 2 to 64
    return negations[length - 2];
}

std::vector<Transform> complexTransforms() {
    std::vector<Transform> transforms;
    for (int length : allLengths()) {
        const double bound = largestPrimeFactor(length) < 11 ? 2.0 : 4.0;
        for (const char* suffix : {"32fc", "64fc"}) {
            transforms.push_back(
                {"DFTFwd_CToC", suffix, length, Direction::Forward, 2 * length, 2 * length, bound, forward});
            transforms.push_back(
                {"DFTInv_CToC", suffix, length, Direction::Inverse, 2 * length, 2 * length, bound, inverse});
        }
    }
    return transforms;
}

std::vector<Transform> realForwardTransforms() {
    std::vector<Transform> transforms;
    for (int length : allLengths()) {
        for (Layout layout : allLayouts) {
            const LayoutSlots slots{layout, length};
            const auto definition = [slots](const Values& x) {
                const Values bins = realTransform(x);
                Values result(static_cast<std::size_t>(slots.elements()));
                for (int k = 0; 2 * k <= slots.length; ++k) {
                    result[static_cast<std::size_t>(slots.re(k))] = bins[static_cast<std::size_t>(2 * k)];
                    if (slots.im(k) >= 0)
                        result[static_cast<std::size_t>(slots.im(k))] = bins[static_cast<std::size_t>(2 * k + 1)];
                }
                return result;
            };
            for (const char* suffix : {"32f", "64f"}) {
                transforms.push_back({std::string("DFTFwd_RTo") + layoutName(layout), suffix, length,
                                      Direction::Forward, length, slots.elements(), 3.0, definition});
            }
        }
    }
    return transforms;
}

std::vector<Transform> realInverseTransforms() {
    std::vector<Transform> transforms;
    for (int length : allLengths()) {
        for (Layout layout : allLayouts) {
            const LayoutSlots slots{layout, length};
            const auto definition = [slots](const Values& packed) {
                Values bins(static_cast<std::size_t>(slots.length / 2 * 2 + 2));
                for (int k = 0; 2 * k <= slots.length; ++k) {
                    bins[static_cast<std::size_t>(2 * k)] = packed[static_cast<std::size_t>(slots.re(k))];
                    if (2 * k % slots.length != 0) {
                        bins[static_cast<std::size_t>(2 * k + 1)] = packed[static_cast<std::size_t>(slots.im(k))];
                    }
                }
                return inverseRealTransform(bins, slots.length);
            };
            // The last slot that an inverse CCS kernel reads is N, at either parity.
            const int elements = layout == Layout::CCS ? length + 1 : length;
            for (const char* suffix : {"32f", "64f"}) {
                transforms.push_back({std::string("DFTInv_") + layoutName(layout) + "ToR", suffix, length,
                                      Direction::Inverse, elements, length, 3.0, definition});
            }
        }
    }
    return transforms;
}

std::vector<Transform> hartleyTransforms() {
    std::vector<Transform> transforms;
    for (int length : allLengths()) {
        for (const char* suffix : {"32f", "64f"}) {
            transforms.push_back({"Hartley", suffix, length, Direction::Both, length, length, 3.5, hartleyTransform});
        }
    }
    return transforms;
}

std::vector<Transform> allTransforms() {
    std::vector<Transform> all;
    for (const auto& family :
         {complexTransforms(), realForwardTransforms(), realInverseTransforms(), hartleyTransforms()}) {
        all.insert(all.end(), family.begin(), family.end());
    }
    return all;
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
