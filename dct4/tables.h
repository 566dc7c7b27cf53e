// The twiddle tables, made of pairs: the cosine and the sine of one angle. A stage's sizes and source must be set.
#pragma once

#include "dct4/records.h"

namespace zulg {

// What `init` of an AngleSource holds: the entry at an index of a row, rounded to the element type.
template <class Element>
double angleEntry(const AngleSource& source, std::int32_t row, std::int32_t index);
using AngleOperation = double(const AngleSource& source, std::int32_t row, std::int32_t index);

// What `init` of a RowAngleSource holds: t of a row, not rounded. The second number is not looked at.
double rowAngle(const RowAngleSource& source, std::int32_t row, std::int32_t);
using RowAngleOperation = double(const RowAngleSource& source, std::int32_t row, std::int32_t);

// Draws the table of the stage and fills it.
template <class Element>
void buildOutputTable(OutputStage& stage);
template <class Element>
void buildCombineTable(CombineStage& stage);

}  // namespace zulg
