// Every entry is the cosine or sine of pi times a fraction, computed by its own call of the mathematics library.
// Fraction and product are each rounded once, to double, whatever the caller's control word says. In a plan of single
// values the fraction is rounded to single as well. That matters only at the lengths 2^k + 1, since elsewhere the
// fraction is a short binary one. The tables are in the order in which the passes read them.
#include "dct4/tables.h"

#include <cmath>

#include "dct4/rounded_once.h"
#include "dct4/tree.h"

namespace zulg {

namespace {

constexpr double pi = 3.141592653589793;

// Not inlined: the call passes the fraction through memory. This rounds it to the element where registers are wider.
template <class Element>
[[gnu::noinline]] Element cospi(Element x) {
    return static_cast<Element>(std::cos(productRoundedOnce(x, pi)));
}

template <class Element>
[[gnu::noinline]] Element sinpi(Element x) {
    return static_cast<Element>(std::sin(productRoundedOnce(x, pi)));
}

template <class Element, class Stage>
Element* drawTable(Stage& stage) {
    const std::int32_t bytes = tableBytes<Stage>(stage.rows, stage.radix, sizeof(Element));
    stage.table = arenaAlloc(stage.head.arena, bytes);
    return static_cast<Element*>(stage.table.get());
}

}  // namespace

template <class Element>
double angleEntry(const AngleSource& source, std::int32_t row, std::int32_t index) {
    const std::int32_t i = wrapSum(wrapProduct(source.rowStride, row), index);
    const std::int32_t h = i / 2, q = h / source.radix, p = h % source.radix;
    const std::int32_t a = wrapProduct(wrapSum(wrapProduct(4, q), 2), wrapSum(wrapProduct(2, p), 1));
    const auto f = static_cast<Element>(quotientRoundedOnce(a, source.denominator));
    return i % 2 != 0 ? sinpi<Element>(f) : cospi<Element>(f);
}

namespace {

// The input of an output body whose entry is number `place` in its row. Inputs come in pairs of p and its mirror
// radix - 1 - p. From pair to pair p rises by 1, except in the body of radix 32: there p = a + 4b + 16c, and c rises
// first, then b, then a.
std::int32_t inputAtPlace(std::int32_t place, std::int32_t radix) {
    const std::int32_t i = place / 2;
    const std::int32_t p = radix == 32 ? i % 2 * 16 + i / 2 % 4 * 4 + i / 8 : i;
    return place % 2 == 0 ? p : radix - 1 - p;
}

}  // namespace

template <class Element>
void buildOutputTable(OutputStage& stage) {
    Element* at = drawTable<Element>(stage);
    const AngleSource& source = *stage.source;
    const auto entry = source.head.init.as<AngleOperation>();
    for (std::int32_t row = 0; row < stage.rows; ++row) {
        for (std::int32_t place = 0; place < stage.radix; ++place) {
            const std::int32_t p = inputAtPlace(place, stage.radix);
            *at++ = static_cast<Element>(entry(source, row, 2 * p));
            *at++ = static_cast<Element>(entry(source, row, 2 * p + 1));
        }
    }
}

double rowAngle(const RowAngleSource& source, std::int32_t row, std::int32_t) {
    return (row + 0.5) / (source.skewLength / source.radix);
}

namespace {

template <class Element>
Element* storePair(Element* at, double fraction) {
    const auto x = static_cast<Element>(fraction);
    at[0] = cospi<Element>(x);
    at[1] = sinpi<Element>(x);
    return at + 2;
}

double rowAngleOf(const CombineStage& stage, std::int32_t row) {
    const RowAngleSource& source = *stage.source;
    return source.head.init.as<RowAngleOperation>()(source, row, 0);
}

// For each row, which has the angle t, the twiddles of a DFT of `inner` points: 2tc/inner, c from 1 to inner - 1.
template <class Element>
void storeInner(Element* at, const CombineStage& stage, std::int32_t inner) {
    for (std::int32_t row = 0; row < stage.rows; ++row) {
        const double t = rowAngleOf(stage, row);
        for (std::int32_t c = 1; c < inner; ++c) at = storePair(at, 2.0 / inner * c * t);
    }
}

// For each row and each of its sub-rows j, the twiddles of the outer DFT of 4 points: 2(t + j)c/radix, c from 1 to 3.
template <class Element>
void storeOuter(Element* at, const CombineStage& stage, std::int32_t inner) {
    for (std::int32_t row = 0; row < stage.rows; ++row) {
        const double t = rowAngleOf(stage, row);
        for (std::int32_t j = 0; j < inner; ++j) {
            for (std::int32_t c = 1; c < 4; ++c) at = storePair(at, 2.0 / stage.radix * c * (t + j));
        }
    }
}

}  // namespace

template <class Element>
void buildCombineTable(CombineStage& stage) {
    Element* const table = drawTable<Element>(stage);
    const CombineSections sections = combineSections(stage.radix, sizeof(Element));
    storeInner(table + sections.innerStart(stage.rows), stage, sections.innerPoints);
    if (sections.outerEntries != 0) storeOuter(table + sections.outerStart(stage.rows), stage, sections.innerPoints);
}

template double angleEntry<float>(const AngleSource&, std::int32_t, std::int32_t);
template double angleEntry<double>(const AngleSource&, std::int32_t, std::int32_t);
template void buildOutputTable<float>(OutputStage&);
template void buildOutputTable<double>(OutputStage&);
template void buildCombineTable<float>(CombineStage&);
template void buildCombineTable<double>(CombineStage&);

}  // namespace zulg
