// The whole matrix of every transform: each unit vector goes in, and each output is compared with its coefficient to 50
// digits. Nothing is left out: all kernels of the DFT and Hartley families, the Walsh-Hadamard orders with a buffer and
// without, and the DCT-IV up to 2048 points.
//
//     32f    within 0.51 of a unit of the last place of the coefficient, or within 8 * 2^-53
//     64f    within 8 * 2^-53 of the largest coefficient of the matrix
//     Walsh-Hadamard    exact
//     DCT-IV    as the table below says, by length
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>

#include "tests/matrix/exact_turns.h"
#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

constexpr double doubleUnit = 0x1p-53;

// The bounds of the DCT-IV by length, in units of 2^-24 and 2^-53: the steps grow with the length, and above 32 points
// single values are rounded once more when they are written to the plan.
const std::map<int, std::pair<double, double>> boundsOfDct4 = {
    {2, {0.5, 0.25}}, {4, {1, 2}},     {8, {1.25, 1.5}}, {16, {1.5, 2.5}},   {32, {2, 3}},     {64, {3, 3}},
    {128, {3, 4}},    {256, {3.5, 5}}, {512, {3.5, 5}},  {1024, {3.5, 5.5}}, {2048, {3.5, 6}},
};
// Plans have tables of the machine's own sine and cosine. Those of 64-bit Windows have given 6.18 at 2048 points.
#ifdef _WIN64
constexpr double byTables = 0.5;
#else
constexpr double byTables = 0;
#endif

// The distance of two neighbouring singles around x.
double placeOfSingle(double x) { return std::ldexp(1.0, std::max(std::ilogb(x), -126) - 23); }

const std::vector<ExactTurn>& turnsOf(int parts) {
    static std::map<int, std::vector<ExactTurn>> tables;
    auto& table = tables[parts];
    if (table.empty()) table = exactTurns(parts);
    return table;
}

Exact negative(const Exact& x) { return {-x.high, -x.low}; }
Exact doubled(const Exact& x) { return {2 * x.high, 2 * x.low}; }

// What input `i` adds to output `k` of a transform.
class Coefficients {
public:
    explicit Coefficients(const Transform& of)
        : transform(of), N(of.length), turns(of.order > 0 ? turnsOf(1) : turnsOf(isDct4() ? 8 * N : N)) {
        for (Layout layout : allLayouts) {
            if (transform.family.find(layoutName(layout)) != std::string::npos) slots.layout = layout;
        }
        slots.length = N;
        bin.resize(static_cast<std::size_t>(N + 2), {-1, false});
        for (int k = 0; 2 * k <= N; ++k) {
            bin[static_cast<std::size_t>(slots.re(k))] = {k, false};
            if (slots.im(k) >= 0 && 2 * k % N != 0) bin[static_cast<std::size_t>(slots.im(k))] = {k, true};
        }
    }

    Exact at(int i, int k) const {
        const std::string& family = transform.family;
        if (family.ends_with("CToC")) return complexAt(i, k, transform.direction == Direction::Forward ? -1 : 1);
        if (family.starts_with("DFTFwd")) return binAt(i, bin[static_cast<std::size_t>(k)]);
        if (family.starts_with("DFTInv")) {
            const Part part = bin[static_cast<std::size_t>(i)];
            const Exact once = binAt(k, part);
            return 2 * part.bin % N == 0 ? once : doubled(once);  // the bin and its conjugate
        }
        if (transform.order > 0) return {static_cast<double>(walshHadamardSign(i, k)), 0};
        if (isDct4()) return turn((2LL * i + 1) * (2 * k + 1), 8 * N).cosine;
        return turn(1LL * i * k, N).cas;
    }

    bool isDct4() const { return transform.takes == Takes::Plan; }

private:
    struct Part {
        int bin;  // -1 where a layout has a zero
        bool isImaginary;
    };

    const ExactTurn& turn(long long j, int parts) const { return turns[static_cast<std::size_t>(j % parts)]; }

    Exact complexAt(int i, int k, int sign) const {
        const ExactTurn& factor = turn(1LL * (i / 2) * (k / 2), N);
        if (i % 2 == k % 2) return factor.cosine;
        return (i % 2 == 0) == (sign > 0) ? factor.sine : negative(factor.sine);
    }
    Exact binAt(int n, Part part) const {
        if (part.bin < 0) return {0, 0};
        const ExactTurn& factor = turn(1LL * n * part.bin, N);
        return part.isImaginary ? negative(factor.sine) : factor.cosine;
    }

    const Transform& transform;
    int N;
    const std::vector<ExactTurn>& turns;
    LayoutSlots slots{Layout::CCS, 2};
    std::vector<Part> bin;  // of each slot of a half spectrum
};

// The greatest error that has been seen, in the unit of its bound, for each group of transforms.
std::map<std::string, double> seen;

class MatrixTest : public KernelTest {
protected:
    static void TearDownTestSuite() {
        for (const auto& [group, error] : seen) std::printf("%-40s %.4f\n", group.c_str(), error);
    }

    void record(const std::string& group, double error) { seen[group] = std::max(seen[group], error); }

    // The whole of one column, checked by check(found, due).
    template <class Element, class Check>
    void eachCoefficient(Subject<Element>& subject, const Coefficients& coefficients, const Check& check) {
        auto source = subject.zeroSource();
        auto found = subject.destination();
        for (int i = 0; i < transform.sourceElements; ++i) {
            source[static_cast<std::size_t>(i)] = 1;
            ASSERT_EQ(subject.call(source.data(), found.data(), NoDivByAny), StatusOk);
            source[static_cast<std::size_t>(i)] = 0;
            for (int k = 0; k < transform.destinationElements; ++k) {
                const auto due = coefficients.at(i, k);
                if (!check(found[static_cast<std::size_t>(k)], due)) {
                    FAIL() << "input " << i << ", output " << k << ": " << found[static_cast<std::size_t>(k)]
                           << " is not near to " << due.high;
                }
            }
        }
    }
};

TEST_P(MatrixTest, EveryCoefficientIsTheExactOne) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const Coefficients coefficients(transform);
        if (transform.order > 0) {
            return eachCoefficient(subject, coefficients,
                                   [](Element found, const Exact& due) { return found == due.high; });
        }
        if (coefficients.isDct4()) {
            const auto [single, twice] = boundsOfDct4.at(transform.length);
            const double bound = perType<Element>(single, twice) + (transform.length > 32 ? byTables : 0);
            return eachCoefficient(subject, coefficients, [&](Element found, const Exact& due) {
                const double error = std::abs(due.errorOf(found)) / subject.unit;
                const std::string unit = perType<Element>(", times 2^-24", ", times 2^-53");
                char points[24];
                std::snprintf(points, sizeof points, "DCT-IV, %4d points", transform.length);
                record(points + unit, error);
                return error <= bound;
            });
        }
        if constexpr (isSingle<Element>) {
            return eachCoefficient(subject, coefficients, [&](Element found, const Exact& due) {
                const double error = std::abs(due.errorOf(found));
                if (error <= 8 * doubleUnit) return true;
                record("DFT and Hartley, 32f, of a last place", error / placeOfSingle(due.high));
                return due.high != 0 && error <= 0.51 * placeOfSingle(due.high);
            });
        } else {
            double largest = 0;
            for (int i = 0; i < transform.sourceElements; ++i) {
                for (int k = 0; k < transform.destinationElements; ++k)
                    largest = std::max(largest, std::abs(coefficients.at(i, k).high));
            }
            return eachCoefficient(subject, coefficients, [&](Element found, const Exact& due) {
                const double error = std::abs(due.errorOf(found)) / (doubleUnit * largest);
                record("DFT and Hartley, 64f, times 2^-53", error);
                return error <= 8;
            });
        }
    });
}

std::vector<Transform> wholeMatrices() {
    std::vector<Transform> transforms = allTransforms();
    std::erase_if(transforms, [](const Transform& t) { return t.takes == Takes::Plan && t.length > 2048; });
    return transforms;
}

INSTANTIATE_TEST_SUITE_P(All, MatrixTest, testing::ValuesIn(wholeMatrices()), testName);

// 1134 kernels; 13 orders and 11 lengths of the DCT-IV for each of two elements, the orders with a buffer and without.
TEST(Matrices, AreThoseOfEveryTransform) { EXPECT_EQ(wholeMatrices().size(), 1134u + 2 * 2 * 13 + 2 * 11); }

// The references themselves, at angles whose cosines are known: a third, a fifth, an eighth and a twelfth of a turn.
TEST(ExactTurns, AgreeWithRootsThatAreKnown) {
    const auto expectNear = [](const Exact& found, long double due) {
        EXPECT_NEAR(static_cast<double>(found.high - due + found.low), 0, 0x1p-62);
    };
    expectNear(exactTurns(3)[1].cosine, -0.5L);
    expectNear(exactTurns(3)[1].sine, std::sqrt(3.0L) / 2);
    expectNear(exactTurns(5)[1].cosine, (std::sqrt(5.0L) - 1) / 4);
    expectNear(exactTurns(8)[1].cas, std::sqrt(2.0L));
    expectNear(exactTurns(12)[5].cosine, -std::sqrt(3.0L) / 2);
    expectNear(exactTurns(12)[7].sine, -0.5L);
}

}  // namespace
}  // namespace test
