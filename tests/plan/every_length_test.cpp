// Every length there is, all 2^32 of them. The size that the library reports, or its refusal, is compared with a model
// that goes from the bottom of the tree up, adds without a limit and wraps each sum by itself. All of them take
// minutes, and are asked for by name (scripts/soak); otherwise these are the neighbours of the powers of two, where all
// accepted lengths are, and every 1009th of the others.
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <bit>
#include <cstdint>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include "tests/plan/plan_fixture.h"

namespace test {
namespace {

constexpr std::int64_t refused = -6;

// x as a 32-bit number would hold it.
constexpr std::int64_t wrapped(std::uint64_t x) { return static_cast<std::int32_t>(static_cast<std::uint32_t>(x)); }
constexpr std::uint64_t rounded(std::uint64_t bytes) { return (bytes % (std::uint64_t{1} << 32) + 31) / 32 * 32; }

// The exponent of the radix for half a length: the greatest for which 2^exponent divides `half` and `half` is at least
// `least[exponent]`.
int radixExponent(std::int64_t half) {
    if (half < 4 || half % 2 != 0) return 0;
    static constexpr std::array<std::int64_t, 6> least = {0, 4, 16, 32, 128, 512};
    std::size_t highest = 1;
    while (highest < 5 && half >= least[highest + 1]) ++highest;
    return std::min(static_cast<int>(highest), std::countr_zero(static_cast<std::uint64_t>(half)));
}

bool isPower(std::int64_t n, int lowest, int highest) {
    return (n & (n - 1)) == 0 && n >= 1 << lowest && n <= 1 << highest;
}

struct Level {
    std::uint64_t length, rows, radix;
};

// The size due, or `refused`.
std::int64_t modelSize(std::int64_t length, std::uint64_t width) {
    constexpr std::uint64_t node = 32;
    if (isPower(length, 1, 5)) return 64 + 3 * node + 64;

    std::array<Level, 40> levels;
    std::size_t depth = 0;
    for (std::int64_t n = length; depth == 0 || !isPower(n, 1, 6);) {
        const int exponent = radixExponent(n / 2);
        if (exponent == 0) return refused;
        const auto whole = static_cast<std::uint64_t>(n);
        levels[depth++] = {whole, whole >> (exponent + 1), std::uint64_t{1} << exponent};
        n >>= exponent;
    }

    std::uint64_t fold = 64 + 2 * node;
    while (--depth > 0) {
        const Level& split = levels[depth];
        const std::uint64_t combine = rounded(split.rows * (split.radix - 1) * 2 * width) + 96 + node;
        if (wrapped(combine) < 0) return refused;
        const std::uint64_t whole = combine + fold + rounded(split.length * width) + 64 + 8 * node + 32;
        if (wrapped(whole) < 0) return refused;
        fold = whole + 64 + 4 * node;
        if (wrapped(fold) < 0) return refused;
    }
    const std::uint64_t output = rounded(levels[0].rows * 2 * levels[0].radix * width) + 64 + node;
    if (wrapped(output) < 0) return refused;
    const std::uint64_t top = output + fold + rounded(levels[0].length * width) + 64 + 8 * node + 64;
    if (wrapped(top) < 0) return refused;
    return wrapped(top + 64);
}

// 2^k and, from 2^3 on, 2^k + 1, for k up to `last` and for those further exponents whose sums wrap more than once.
std::set<std::int64_t> acceptedLengths(int last, const std::vector<int>& wrapping) {
    std::set<std::int64_t> lengths;
    const auto add = [&](int k) {
        lengths.insert(std::int64_t{1} << k);
        if (k >= 3) lengths.insert((std::int64_t{1} << k) + 1);
    };
    for (int k = 1; k <= last; ++k) add(k);
    for (const int k : wrapping) add(k);
    return lengths;
}

struct Findings {
    std::mutex mutex;
    std::set<std::int64_t> accepted;
    std::uint64_t compared = 0, differing = 0;
    std::int64_t firstDiffering = 0;
};

template <class Element>
void compareRange(std::int64_t first, std::int64_t count, std::int64_t step, Findings& findings) {
    std::vector<std::int64_t> accepted;
    std::uint64_t differing = 0;
    std::int64_t firstDiffering = 0;
    for (std::int64_t n = first; n < first + count; n += step) {
        const std::int64_t size = reportedSize<Element>(static_cast<std::int32_t>(n));
        if (size != modelSize(n, sizeof(Element)) && differing++ == 0) firstDiffering = n;
        if (size >= 0) accepted.push_back(n);
    }
    const std::lock_guard lock(findings.mutex);
    findings.accepted.insert(accepted.begin(), accepted.end());
    findings.compared += static_cast<std::uint64_t>((count + step - 1) / step);
    if (findings.differing == 0) findings.firstDiffering = firstDiffering;
    findings.differing += differing;
}

template <class Element>
void compareAll(Findings& findings) {
    constexpr std::int64_t piece = 1 << 24, pieces = 1 << 8;
    std::atomic<std::int64_t> next{0};
    const auto work = [&] {
        for (std::int64_t i = next++; i < pieces; i = next++) {
            compareRange<Element>((i - pieces / 2) * piece, piece, 1, findings);
        }
    };
    std::thread other(work);
    work();
    other.join();
}

template <class Element>
void compareSome(Findings& findings) {
    constexpr std::int64_t bound = std::int64_t{1} << 31, near = 1024;
    for (int k = 10; k < 31; ++k) {
        for (std::int64_t power : {std::int64_t{1} << k, -(std::int64_t{1} << k)}) {
            compareRange<Element>(power - near, 2 * near, 1, findings);
        }
    }
    compareRange<Element>(-near, 2 * near, 1, findings);
    compareRange<Element>(-bound, near, 1, findings);
    compareRange<Element>(bound - near, near, 1, findings);
    compareRange<Element>(-bound, 2 * bound, 1009, findings);
}

template <class Element>
void expectAccepted(bool all, const std::set<std::int64_t>& expected) {
    Findings findings;
    if (all) {
        compareAll<Element>(findings);
        EXPECT_EQ(findings.compared, std::uint64_t{1} << 32);
    } else {
        compareSome<Element>(findings);
        EXPECT_GT(findings.compared, 4'000'000u);
    }
    EXPECT_EQ(findings.differing, 0u) << "first at length " << findings.firstDiffering;
    EXPECT_EQ(findings.accepted, expected);
    EXPECT_EQ(findings.accepted.size(), 54u);
}

void expectSingle(bool all) { expectAccepted<float>(all, acceptedLengths(27, {30})); }
void expectDouble(bool all) { expectAccepted<double>(all, acceptedLengths(26, {29, 30})); }

TEST(FourMillionLengths, Single) { expectSingle(false); }
TEST(FourMillionLengths, Double) { expectDouble(false); }
TEST(EveryLength, DISABLED_Single) { expectSingle(true); }
TEST(EveryLength, DISABLED_Double) { expectDouble(true); }

}  // namespace
}  // namespace test
