// The tree of a plan: how a length is taken apart level by level, and what each level needs. Sizes, builds and
// releases go by it; a run goes by the records that a build leaves.
//
// A level takes a transform of `length` values apart, N of a plan or M of a split, and does it in two passes. The first
// pass makes `radix` skew transforms of `below` values each. If these are too long for one body, a level more, a split,
// does them one after the other. The second pass combines their results row by row.
//
// A level draws its memory in this order: the owner and the heads of its lists; the second pass, the source, the heads
// of the lists of the second pass, its table; the first pass and the heads of its lists; the split below; the scratch
// vector. A plan of a direct kind has no level: it is a DctPlan and the heads of its lists.
#pragma once

#include "dct4/records.h"
#include "dct4/wrap.h"

namespace zulg {

struct Level {
    std::int32_t length;
    std::int32_t radix;  // r of a plan, r' of a split
    std::int32_t below;  // length/radix, which is M of a plan and M' of a split
    std::int32_t rows;   // of the second pass: length/(2 radix)
};

// The records of a level.
struct PlanLevel {
    using Owner = DctPlan;
    using Source = AngleSource;
    using SecondPass = OutputStage;
    using FirstPass = FoldStage;
};
struct SplitLevel {
    using Owner = SkewSplit;
    using Source = RowAngleSource;
    using SecondPass = CombineStage;
    using FirstPass = FoldStep;
};

// Picks the radix for n, which is half a length. Where there is none, returns StatusSizeError and leaves the radix
// unchanged.
Status pickRadix(std::int32_t* pRadix, std::int32_t n);

// Takes a length apart. A length whose half has no radix is refused with StatusSizeError. All divisions truncate, so
// that 2^k + 1 goes the way of 2^k.
Status takeApart(std::int32_t length, Level* pLevel);

// The bytes of a table and of a scratch vector of elements of `width` bytes. These products wrap around like all sizes.
template <class Stage>
constexpr std::int32_t tableBytes(std::int32_t rows, std::int32_t radix, std::int32_t width) {
    return wrapProduct(rows, Stage::rowEntries(radix), width);
}
constexpr std::int32_t scratchBytes(std::int32_t length, std::int32_t width) { return wrapProduct(length, width); }

}  // namespace zulg
