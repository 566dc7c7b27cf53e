#include "tests/transforms/transform.h"

#include <array>
#include <cmath>
#include <memory>

#include "tests/dct4/planned.h"

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

// clang computes no square root while it compiles. On the processors that it is used for, no register is wider than the
// type.
#ifdef __clang__
const auto inverseRoots = [] {
#else
constexpr auto inverseRoots = [] {
#endif
    std::array<double, most + 1> table{};
    for (int n = 1; n <= most; ++n) table[static_cast<std::size_t>(n)] = 1.0 / __builtin_sqrt(static_cast<double>(n));
    return table;
}();

Values forward(const Values& x, Chosen) { return complexTransform(x, -1); }
Values inverse(const Values& x, Chosen) { return complexTransform(x, +1); }

// At length 2 an output is one sum of two singles, rounded once: about half of these sums lie exactly between two
// singles, so that 0.46 is the error of correct rounding, and no kernel can come below.
double boundOf(const std::string& suffix, int length, double bound64) {
    return !suffix.starts_with("32") ? bound64 : length == 2 ? 0.5 : 0.45;
}

template <class Element>
std::shared_ptr<std::vector<Element>> bufferOf(const Transform& transform) {
    if (transform.takes != Takes::FlagAndBuffer) return std::make_shared<std::vector<Element>>();
    return std::make_shared<std::vector<Element>>(static_cast<std::size_t>(bufferElements(transform.order)) + 1);
}

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
            const double due = boundOf(suffix, length, bound);
            transforms.push_back(
                {"DFTFwd_CToC", suffix, length, Direction::Forward, 2 * length, 2 * length, due, forward});
            transforms.push_back(
                {"DFTInv_CToC", suffix, length, Direction::Inverse, 2 * length, 2 * length, due, inverse});
        }
    }
    return transforms;
}

std::vector<Transform> realForwardTransforms() {
    std::vector<Transform> transforms;
    for (int length : allLengths()) {
        for (Layout layout : allLayouts) {
            const LayoutSlots slots{layout, length};
            const auto definition = [slots](const Values& x, Chosen) {
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
                                      Direction::Forward, length, slots.elements(), boundOf(suffix, length, 3.0),
                                      definition});
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
            const auto definition = [slots](const Values& packed, Chosen) {
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
                                      Direction::Inverse, elements, length, boundOf(suffix, length, 3.0), definition});
            }
        }
    }
    return transforms;
}

std::vector<Transform> hartleyTransforms() {
    const auto definition = [](const Values& x, Chosen) { return hartleyTransform(x); };
    std::vector<Transform> transforms;
    for (int length : allLengths()) {
        for (const char* suffix : {"32f", "64f"}) {
            transforms.push_back(
                {"Hartley", suffix, length, Direction::Both, length, length, boundOf(suffix, length, 3.5), definition});
        }
    }
    return transforms;
}

int bufferElements(int order) {
    if (order < 8) return 0;
    return (1 << order) + (order == 12 ? 256 : order == 13 ? 1024 : 0);
}

// In single, values are held in double inside a block, so that only what the buffer takes and the result are rounded:
// once to three times.
std::vector<Transform> walshHadamardTransforms() {
    const auto definition = [](const Values& x, Chosen) { return walshHadamardTransform(x); };
    std::vector<Transform> transforms;
    for (int order = 1; order <= 13; ++order) {
        const int length = 1 << order, roundings = order < 8 ? 1 : order < 12 ? 2 : 3;
        for (const char* suffix : {"32f", "64f"}) {
            const double bound = boundOf(suffix, length, 0.45 * std::sqrt(order + 1.0)) *
                                 (std::string(suffix) == "32f" ? std::sqrt(roundings) : 1.0);
            for (Takes takes : {Takes::FlagAndBuffer, Takes::FlagAndNullBuffer}) {
                transforms.push_back(
                    {"WHT", suffix, length, Direction::Both, length, length, bound, definition, takes, order});
            }
        }
    }
    return transforms;
}

// At six lengths the bound is near what is measured, at the others it is wide.
std::vector<Transform> dct4Transforms() {
    const struct {
        int length;
        double bound32, bound64;
    } rows[] = {{2, 5, 5},    {4, 5, 5},        {8, 5, 5},     {16, 1.0, 1.72},    {32, 5, 5},    {64, 1.6, 2.10},
                {128, 5, 5},  {256, 1.7, 2.38}, {512, 5, 5},   {1024, 1.5, 2.79},  {2048, 5, 5},  {4096, 1.7, 3.02},
                {8192, 5, 5}, {16384, 5, 5},    {32768, 5, 5}, {65536, 1.8, 3.54}, {131072, 5, 5}};
    std::vector<Transform> transforms;
    for (const auto& row : rows) {
        for (const char* suffix : {"32f", "64f"}) {
            const double bound = std::string(suffix) == "32f" ? row.bound32 : row.bound64;
            transforms.push_back({"DCT4", suffix, row.length, Direction::Both, row.length, row.length, bound,
                                  dct4Transform, Takes::Plan});
        }
    }
    return transforms;
}

namespace {

std::vector<Transform> joined(const std::vector<std::vector<Transform>>& families) {
    std::vector<Transform> all;
    for (const auto& family : families) all.insert(all.end(), family.begin(), family.end());
    return all;
}

}  // namespace

std::vector<Transform> dftTransforms() {
    return joined({complexTransforms(), realForwardTransforms(), realInverseTransforms(), hartleyTransforms()});
}
std::vector<Transform> flaggedTransforms() { return joined({dftTransforms(), walshHadamardTransforms()}); }
std::vector<Transform> allTransforms() { return joined({flaggedTransforms(), dct4Transforms()}); }

std::vector<int> Transform::flags() const {
    if (takes == Takes::Plan) return {NoDivByAny};
    return {std::begin(allFlags), std::end(allFlags)};
}

double Transform::boundAt(int flag) const {
    const bool isRounded = order % 2 == 1 && flag == DivBySqrtN && !isSingle();
    return isRounded ? std::hypot(bound, 0.45) : bound;
}

// The shortest transforms take more inputs. Two outputs of a real transform of 4 points are sums of two singles, so
// that the pooled error of correct rounding is 0.442 of a unit. Over 5000 inputs that comes out above the bound of 0.45
// in about one run of a hundred.
int Transform::inputs() const {
    if (length <= 4) return 200000 / length;
    if (length <= 64) return std::max(200, 20000 / length);
    return takes == Takes::Plan ? std::max(4, 32000 / length) : std::max(64, 20000 / length);
}

Chosen Transform::outputs(int round) const {
    if (takes != Takes::Plan) return {};
    const int count = static_cast<int>(std::min<long long>(1024, (1LL << 24) / length));
    const int step = std::max(1, length / count) | 1;
    return {round % step, step};
}

std::ostream& operator<<(std::ostream& out, const Transform& transform) {
    out << transform.family << "_" << transform.number() << "_" << transform.suffix;
    return out << (transform.takes == Takes::FlagAndNullBuffer ? "_without_buffer" : "");
}

std::string testName(const testing::TestParamInfo<Transform>& test) { return testing::PrintToString(test.param); }

template <class Element>
Call<Element> callOf(const Transform& transform) {
    if (transform.takes == Takes::Flag) return exported<Kernel<Element>>(transform.kernelName());
    if (transform.takes == Takes::Plan) {
        const auto planned = std::make_shared<Planned<Element>>(transform.length);
        return [planned](const Element* pSrc, Element* pDst, std::int32_t) {
            return dct4Routines<Element>().run(pSrc, pDst, planned->plan);
        };
    }
    const auto kernel = exported<WhtKernel<Element>>(transform.kernelName());
    return [kernel, buffer = bufferOf<Element>(transform)](const Element* pSrc, Element* pDst, std::int32_t flag) {
        return kernel(pSrc, pDst, flag, buffer->empty() ? nullptr : buffer->data());
    };
}

template <class Element>
Call<Element> dispatchedCallOf(const Transform& transform) {
    const int number = transform.number();
    if (transform.takes == Takes::Flag) {
        const auto dispatcher = exported<Dispatcher<Element>>(transform.dispatcherName());
        return
            [=](const Element* pSrc, Element* pDst, std::int32_t flag) { return dispatcher(pSrc, pDst, number, flag); };
    }
    const auto dispatcher = exported<WhtDispatcher<Element>>(transform.dispatcherName());
    return [=, buffer = bufferOf<Element>(transform)](const Element* pSrc, Element* pDst, std::int32_t flag) {
        return dispatcher(pSrc, pDst, number, flag, buffer->empty() ? nullptr : buffer->data());
    };
}

template Call<float> callOf(const Transform&);
template Call<double> callOf(const Transform&);
template Call<float> dispatchedCallOf(const Transform&);
template Call<double> dispatchedCallOf(const Transform&);

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
