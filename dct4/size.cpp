// Sums wrap around at 32 bits. A length is refused where one of the sums that are checked is negative; a sum that wraps
// twice is accepted. The size is a little more than what a build draws: it counts a node for each element of a list,
// whereas a build stores the first element in the head.
#include "dct4/size.h"

#include <iterator>

#include "dct4/tree.h"

namespace zulg {

namespace {

// The bytes of a record and the heads of its lists.
template <class Record>
constexpr std::int32_t recordBytes = wrapSum(roundUp32(sizeof(Record)),
                                             listBytes(static_cast<std::int32_t>(std::size(Record::lists))));

// The bytes of a level of this length and of all below it.
template <class Records>
std::int32_t levelBytes(std::int32_t length, std::int32_t width);

// The bytes of a fold record and of all below it.
template <class Fold>
std::int32_t foldBytes(std::int32_t skewLength, std::int32_t width) {
    if (foldKind(skewLength) != FoldKind::Split) return recordBytes<Fold>;
    const std::int32_t split = levelBytes<SplitLevel>(skewLength, width);
    if (split < 0) return split;
    // The split is an element of two lists.
    return wrapSum(split, recordBytes<Fold>, listBytes(2));
}

template <class Records>
std::int32_t levelBytes(std::int32_t length, std::int32_t width) {
    using SecondPass = typename Records::SecondPass;
    Level level;
    if (takeApart(length, &level) != StatusOk) return StatusSizeError;
    const std::int32_t table = tableBytes<SecondPass>(level.rows, level.radix, width);
    const std::int32_t secondPass = wrapSum(roundUp32(table), recordBytes<SecondPass>);
    if (secondPass < 0) return secondPass;
    const std::int32_t firstPass = foldBytes<typename Records::FirstPass>(level.below, width);
    if (firstPass < 0) return firstPass;
    // The two passes and the source are elements of `owned`, and each pass is that of another list.
    return wrapSum(secondPass, firstPass, roundUp32(scratchBytes(length, width)), recordBytes<typename Records::Owner>,
                   roundUp32(sizeof(typename Records::Source)), listBytes(3 + 2));
}

}  // namespace

std::int32_t planBytes(std::int32_t length, std::int32_t width) {
    const std::int32_t tree =
        planKind(length) == PlanKind::Composite ? levelBytes<PlanLevel>(length, width) : recordBytes<DctPlan>;
    // This check comes before the bytes for cursor and alignment are added, which would make a small negative number
    // positive.
    if (tree < 0) return tree;
    return wrapSum(tree, 2 * roundUp32(1));
}

}  // namespace zulg
