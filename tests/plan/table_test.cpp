// The twiddle tables, compared with a model in long double. It knows their formulas and orders, but not the code.
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>

#include "dct4/tables.h"
#include "tests/plan/exact.h"
#include "tests/plan/plan_fixture.h"

namespace test {
namespace {

using namespace zulg;

// The cosine and the sine of pi times a fraction. The fraction is rounded to double and to the element, its product
// with pi to double; the rest is exact but for the last step.
template <class Element>
struct Angle {
    explicit Angle(double numerator, double denominator = 1) {
        x = rounded<Element>(roundedOnce(Exact{numerator} / denominator));
        argument = roundedOnce(Exact{x} * 3.141592653589793);
    }
    Element cosine() const { return rounded<Element>(std::cos(argument)); }
    Element sine() const { return rounded<Element>(std::sin(argument)); }

    Element x;
    Wide argument;
};

template <class Element>
std::int64_t ordinal(Element x) {
    if constexpr (isSingle<Element>) {
        std::int32_t bits;
        std::memcpy(&bits, &x, 4);
        return bits < 0 ? -std::int64_t{bits & 0x7FFFFFFF} : bits;
    } else {
        std::int64_t bits;
        std::memcpy(&bits, &x, 8);
        return bits < 0 ? -(bits & std::numeric_limits<std::int64_t>::max()) : bits;
    }
}

template <class Element>
std::int64_t ulpsBetween(Element a, Element b) {
    return std::abs(ordinal(a) - ordinal(b));
}

// Compares a table with pairs, from its first entry on, and remembers the largest difference.
template <class Element>
class Reader {
public:
    Reader(const void* table) : at(static_cast<const Element*>(table)) {}

    void expect(const Angle<Element>& angle) {
        worst = std::max({worst, ulpsBetween(at[0], angle.cosine()), ulpsBetween(at[1], angle.sine())});
        different += (at[0] != angle.cosine()) + (at[1] != angle.sine());
        at += 2;
        entries += 2;
    }

    // One unit is allowed, since the mathematics library of a target need not round correctly. In single values few
    // entries differ.
    void close(const void* end) const {
        EXPECT_LE(worst, 1);
        EXPECT_LE(different, isSingle<Element> ? 1 + entries / 1000 : entries);
        EXPECT_EQ(static_cast<const void*>(at), end);
    }

private:
    const Element* at;
    std::int64_t worst = 0, different = 0, entries = 0;
};

const std::map<std::int32_t, std::vector<std::int32_t>> orders = {
    {1, {0}},
    {2, {0, 1}},
    {4, {0, 3, 1, 2}},
    {8, {0, 7, 1, 6, 2, 5, 3, 4}},
    {16, {0, 15, 1, 14, 2, 13, 3, 12, 4, 11, 5, 10, 6, 9, 7, 8}},
    {32, {0, 31, 16, 15, 4, 27, 20, 11, 8, 23, 24, 7, 12, 19, 28, 3,
          1, 30, 17, 14, 5, 26, 21, 10, 9, 22, 25, 6, 13, 18, 29, 2}},
};

template <class Element>
void checkOutputTable(const OutputStage& stage) {
    const Element* const table = static_cast<const Element*>(stage.table.get());
    Reader<Element> reader(table);
    for (std::int32_t m = 0; m < stage.rows; ++m) {
        for (const std::int32_t p : orders.at(stage.radix)) {
            reader.expect(Angle<Element>((2.0 * m + 1) * (2 * p + 1), 4.0 * stage.length));
        }
    }
    reader.close(table + stage.rows * 2 * stage.radix);
}

template <class Element>
void expectSection(Reader<Element>& reader, std::int32_t rows, double blockLength, int subRows, int last, double step) {
    for (std::int32_t row = 0; row < rows; ++row) {
        for (int j = 0; j < subRows; ++j) {
            for (int c = 1; c <= last; ++c) reader.expect(Angle<Element>(((row + 0.5) / blockLength + j) * c * step));
        }
    }
}

template <class Element>
void checkCombineTable(const CombineStage& stage) {
    const Element* const table = static_cast<const Element*>(stage.table.get());
    Reader<Element> reader(table);
    const auto section = [&](int subRows, int last, double step) {
        expectSection(reader, stage.rows, stage.blockStride, subRows, last, step);
    };
    switch (stage.radix) {
        case 2: section(1, 1, 1); break;
        case 4: section(1, 3, 0.5); break;
        case 8: section(1, 7, 0.25); break;
        case 16: section(1, 3, 0.5), section(4, 3, 0.125); break;
        case 32:
            if (isSingle<Element>) {
                section(8, 3, 0.0625), section(1, 7, 0.25);
            } else {
                section(1, 7, 0.25), section(8, 3, 0.0625);
            }
            break;
        default: FAIL() << stage.radix;
    }
    reader.close(table + stage.rows * 2 * (stage.radix - 1));
}

const SkewSplit* splitOf(const PlanListNode* children) {
    return reinterpret_cast<const SkewSplit*>(listNth(children, 0));
}

template <class Element>
class Tables : public ElementTest<Element> {};
TYPED_TEST_SUITE(Tables, Elements, ElementNames);

TYPED_TEST(Tables, OfEveryLength) {
    for (const std::int32_t length : builtLengths()) {
        if (length <= 32 && length % 2 == 0) continue;
        SCOPED_TRACE(length);
        BuiltPlan<TypeParam> built(length);
        checkOutputTable<TypeParam>(firstOf<OutputStage>(built.plan->post));
        for (auto split = splitOf(firstOf<FoldStage>(built.plan->pre).children); split != nullptr;
             split = splitOf(firstOf<FoldStep>(split->pre).children)) {
            checkCombineTable<TypeParam>(firstOf<CombineStage>(split->post));
        }
    }
}

// A stage with its source in a block of its own, for the radices that no accepted length reaches.
template <class Element>
struct LoneStages {
    LoneStages() {
        output.source = &source, combine.source = &rowSource;
        output.head.arena = arena, combine.head.arena = arena;
        source.head.init.set(angleEntry<Element>), rowSource.head.init.set(rowAngle);
    }

    GuardedBlock block{1 << 16};
    PlanArena* arena = arenaInit(block.data());
    OutputStage& output = *drawRecord<OutputStage>(arena);
    AngleSource& source = *drawRecord<AngleSource>(arena);
    CombineStage& combine = *drawRecord<CombineStage>(arena);
    RowAngleSource& rowSource = *drawRecord<RowAngleSource>(arena);
};

TYPED_TEST(Tables, OfOutputRadixOne) {
    LoneStages<TypeParam> stages;
    OutputStage& output = stages.output;
    output.radix = 1, output.rows = 16, output.length = 32;
    stages.source.radix = 1, stages.source.rowStride = 2, stages.source.denominator = 8 * 32;
    buildOutputTable<TypeParam>(output);
    checkOutputTable<TypeParam>(output);
    EXPECT_EQ(stages.block.cursorOffset() - stages.block.offset(output.table.get()), 32 * perType<TypeParam>(4, 8));
}

TYPED_TEST(Tables, OfEveryCombineRadix) {
    for (const std::int32_t radix : {2, 4, 8, 16, 32}) {
        SCOPED_TRACE(radix);
        LoneStages<TypeParam> stages;
        CombineStage& combine = stages.combine;
        combine.radix = radix, combine.skewLength = radix * 16, combine.rows = 8, combine.blockStride = 16;
        stages.rowSource.radix = radix, stages.rowSource.skewLength = combine.skewLength;
        buildCombineTable<TypeParam>(combine);
        checkCombineTable<TypeParam>(combine);
        const int bytes = 8 * 2 * (radix - 1) * perType<TypeParam>(4, 8);
        EXPECT_EQ(stages.block.cursorOffset() - stages.block.offset(combine.table.get()), (bytes + 31) / 32 * 32);
    }
}

TYPED_TEST(Tables, FirstEntriesAtSixtyFour) {
    BuiltPlan<TypeParam> built(64);
    const auto* table = static_cast<const TypeParam*>(firstOf<OutputStage>(built.plan->post).table.get());
    const double expected[] = {0.999925, 0.012272, 0.983105, 0.18304, 0.999322, 0.036807};
    for (int i = 0; i < 6; ++i) EXPECT_NEAR(static_cast<double>(table[i]), expected[i], 5e-7) << i;
    const int ks[] = {1, 15, 3, 13, 5, 11, 7, 9};
    for (int i = 0; i < 8; ++i) {
        EXPECT_LE(ulpsBetween(table[2 * i], Angle<TypeParam>(ks[i] / 256.0).cosine()), 1) << i;
        EXPECT_LE(ulpsBetween(table[2 * i + 1], Angle<TypeParam>(ks[i] / 256.0).sine()), 1) << i;
    }
}

template <class Element>
void expectFractions(std::int32_t length, std::ptrdiff_t firstPair, const std::vector<double>& fractions) {
    SCOPED_TRACE(length);
    BuiltPlan<Element> built(length);
    const auto& split = firstOf<SkewSplit>(firstOf<FoldStage>(built.plan->pre).children);
    const auto& combine = firstOf<CombineStage>(split.post);
    const auto* at = static_cast<const Element*>(combine.table.get()) + 2 * firstPair;
    for (const double fraction : fractions) {
        EXPECT_LE(ulpsBetween(at[0], Angle<Element>(fraction).cosine()), 1) << fraction;
        EXPECT_LE(ulpsBetween(at[1], Angle<Element>(fraction).sine()), 1) << fraction;
        at += 2;
    }
}

TYPED_TEST(Tables, FirstEntriesOfCombineTables) {
    expectFractions<TypeParam>(4096, 0, {1 / 128.0, 1 / 64.0, 3 / 128.0, 1 / 32.0, 5 / 128.0, 3 / 64.0, 7 / 128.0});
    expectFractions<TypeParam>(8192, 0, {1 / 64.0, 1 / 32.0, 3 / 64.0});
    // The outer section comes after 8 rows of 3 pairs.
    expectFractions<TypeParam>(8192, 8 * 3, {1 / 256.0, 1 / 128.0, 3 / 256.0, 33 / 256.0});
}

TEST(TablesOfRadix32, HaveTheirSectionsInOppositeOrder) {
    expectFractions<float>(32768, 0, {1 / 1024.0, 1 / 512.0, 3 / 1024.0});
    expectFractions<float>(32768, 16 * 24, {1 / 256.0, 1 / 128.0, 3 / 256.0});
    expectFractions<double>(32768, 0, {1 / 256.0, 1 / 128.0, 3 / 256.0});
    expectFractions<double>(32768, 16 * 7, {1 / 1024.0, 1 / 512.0, 3 / 1024.0});
}

// For powers of two every fraction is exact in single. At 2^k + 1 it is not, and the entries of a table of single
// values are those of the rounded fraction, which differ from those of the exact one by units of the last place.
TEST(TablesOfSingleValues, RoundTheFractionFirst) {
    for (const std::int32_t N : {1025, 4097, 65537}) {
        SCOPED_TRACE(N);
        BuiltPlan<float> built(N);
        const auto& stage = firstOf<OutputStage>(built.plan->post);
        const auto* table = static_cast<const float*>(stage.table.get());
        std::int64_t fromExact = 0, fromRounded = 0;
        for (std::int32_t m = 0; m < stage.rows; ++m) {
            for (const std::int32_t p : orders.at(stage.radix)) {
                const double a = (2.0 * m + 1) * (2 * p + 1), d = 4.0 * N;
                const float exact =
                    rounded<float>(std::cos(std::acos(-1.0L) * static_cast<Wide>(a) / static_cast<Wide>(d)));
                fromExact = std::max(fromExact, ulpsBetween(*table, exact));
                fromRounded = std::max(fromRounded, ulpsBetween(*table, Angle<float>(a, d).cosine()));
                table += 2;
            }
        }
        EXPECT_LE(fromRounded, 1);
        EXPECT_GT(fromExact, 2);
    }
}

TEST(TablesOfSingleValues, PowersOfTwoHaveFractionsThatAreSingleValues) {
    const std::int32_t N = 65536;
    for (std::int32_t a = 1; a < 2 * N; a += 2) {
        const double fraction = a / (4.0 * N);
        ASSERT_EQ(static_cast<double>(Angle<float>(fraction).x), fraction);
    }
}

// The operation of a source, step by step: an index beyond its row continues in the next row, and divisions truncate.
TYPED_TEST(Tables, AngleEntryByItsSteps) {
    AngleSource source;
    source.rowLength = 16, source.denominator = 512, source.rows = 4, source.radix = 8, source.rowStride = 16;
    for (std::int32_t row = 0; row < 4; ++row) {
        for (std::int32_t index = 0; index < 32; ++index) {
            const std::int32_t m = row + index / 16, p = index % 16 / 2;
            const Angle<TypeParam> angle((2 * m + 1) * (2 * p + 1) / 256.0);
            const auto entry = rounded<TypeParam>(angleEntry<TypeParam>(source, row, index));
            EXPECT_LE(ulpsBetween(entry, index % 2 == 0 ? angle.cosine() : angle.sine()), 1) << row << " " << index;
        }
    }
}

TEST(RowAngle, CountsBlocksByIntegerDivisionAndIsNotRounded) {
    RowAngleSource source;
    source.skewLength = 128, source.radix = 8;
    EXPECT_EQ(rowAngle(source, 0, 0), 1.0 / 32);
    EXPECT_EQ(rowAngle(source, 5, 77), 5.5 / 16);
    source.skewLength = 27;  // 27/8 is 3
    const volatile double third = 1.5 / 3;
    EXPECT_EQ(rowAngle(source, 1, 0), third);
}

}  // namespace
}  // namespace test
