// The twiddle tables. Their entries are pairs: the cosine and the sine of one angle. The sizes and the source of a
// stage must be set before its table is built.
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

// Draws the table of the stage and fills it.
template <class Element>
void buildOutputTable(OutputStage& stage);
template <class Element>
void buildCombineTable(CombineStage& stage);

}  // namespace zulg
