// The twiddle tables, which a build fills and a run reads. Their entries are pairs: the cosine and the sine of one
// angle. The sizes and the source of a stage must be set before its table is built.
#pragma once

#include "dct4/records.h"

namespace zulg {

// The routine in `init` of an AngleSource. It gives the entry at an index of a row, rounded to the element type.
template <class Element>
double angleEntry(const AngleSource& source, std::int32_t row, std::int32_t index);
using AngleOperation = double(const AngleSource& source, std::int32_t row, std::int32_t index);

// The routine in `init` of a RowAngleSource. It gives t of a row, not rounded, and ignores the last argument.
double rowAngle(const RowAngleSource& source, std::int32_t row, std::int32_t);
using RowAngleOperation = double(const RowAngleSource& source, std::int32_t row, std::int32_t);

// The layout of the table of a combine stage. Up to radix 8 a row is one DFT, and the table has one section. Above that
// a row has two steps: inner DFTs of a quarter of the radix, then outer ones of 4 points, one for each bin of an inner
// DFT. The table has a section for each step, which holds the entries of all rows.
struct CombineSections {
    std::int32_t innerPoints;   // of an inner DFT, or of the only one
    std::int32_t innerEntries;  // for each row
    std::int32_t outerEntries;  // for each row; 0 where there is one step only
    bool outerIsFirst;

    constexpr std::ptrdiff_t innerStart(std::ptrdiff_t rows) const { return outerIsFirst ? outerEntries * rows : 0; }
    constexpr std::ptrdiff_t outerStart(std::ptrdiff_t rows) const { return outerIsFirst ? 0 : innerEntries * rows; }
};

// The tables of radix 32 of the two element types have their sections in opposite order.
constexpr CombineSections combineSections(std::int32_t radix, std::int32_t width) {
    if (radix <= 8) return {radix, 2 * (radix - 1), 0, false};
    const std::int32_t inner = radix / 4;
    return {inner, 2 * (inner - 1), 2 * 3 * inner, radix == 32 && width == sizeof(float)};
}

// Draws the table of the stage and fills it.
template <class Element>
void buildOutputTable(OutputStage& stage);
template <class Element>
void buildCombineTable(CombineStage& stage);

}  // namespace zulg
