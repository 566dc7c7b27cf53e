// This recursion alone decides which lengths are accepted. Its divisions truncate, so that 2^k + 1 is accepted as well
// as 2^k. Sums wrap around at 32 bits. A length is refused where a sum becomes negative; a sum that wraps twice is
// accepted. The size is a little more than what a build draws: it counts a node for each element of a list, whereas a
// build stores the first element in the head.
#include "dct4/size.h"

#include "dct4/radix.h"
#include "dct4/records.h"

namespace zulg {

namespace {

template <class Record>
constexpr std::int32_t charge = roundUp32(sizeof(Record));

constexpr std::int32_t headBytes = charge<PlanListNode>;

// What each level with two passes has besides its stages: the heads of three lists, five nodes, and the angle source.
// `owned` has three of the nodes, and each of the two views has one.
template <class AngleRecord>
constexpr std::int32_t levelBytes = wrapSum(3 * headBytes, listBytes(2), charge<AngleRecord>, listBytes(1),
                                            listBytes(2));

// The bytes of a fold record of `skewLength` and of all below it.
std::int32_t foldBytes(std::int32_t skewLength, std::int32_t recordBytes, std::int32_t width) {
    const std::int32_t own = roundUp32(recordBytes) + 2 * headBytes;
    if (foldKind(skewLength) != FoldKind::Split) return own;

    std::int32_t radix;
    if (pickRadix(&radix, skewLength / 2) != StatusOk) return StatusSizeError;
    const std::int32_t rows = skewLength / (2 * radix);
    const std::int32_t combine =
        wrapSum(roundUp32(combineTableBytes(rows, radix, width)), charge<CombineStage>, headBytes);
    if (combine < 0) return combine;
    const std::int32_t step = foldBytes(skewLength / radix, sizeof(FoldStep), width);
    if (step < 0) return step;
    const std::int32_t split = wrapSum(combine, step, roundUp32(wrapProduct(skewLength, width)), charge<SkewSplit>,
                                       levelBytes<RowAngleSource>);
    if (split < 0) return split;
    return wrapSum(split, own, listBytes(2));
}

std::int32_t topBytes(std::int32_t length, std::int32_t width) {
    if (planKind(length) != PlanKind::Composite) return charge<DctPlan> + 3 * headBytes;

    std::int32_t radix;
    if (pickRadix(&radix, length / 2) != StatusOk) return StatusSizeError;
    const std::int32_t rows = length / (2 * radix);
    const std::int32_t output =
        wrapSum(roundUp32(outputTableBytes(rows, radix, width)), charge<OutputStage>, headBytes);
    if (output < 0) return output;
    const std::int32_t fold = foldBytes(length / radix, sizeof(FoldStage), width);
    if (fold < 0) return fold;
    return wrapSum(output, fold, roundUp32(wrapProduct(length, width)), charge<DctPlan>, levelBytes<AngleSource>);
}

}  // namespace

std::int32_t outputTableBytes(std::int32_t rows, std::int32_t radix, std::int32_t width) {
    return wrapProduct(rows, 2 * radix, width);
}

std::int32_t combineTableBytes(std::int32_t rows, std::int32_t radix, std::int32_t width) {
    return wrapProduct(rows, radix - 1, 2 * width);
}

std::int32_t planBytes(std::int32_t length, std::int32_t width) {
    const std::int32_t top = topBytes(length, width);
    // This check comes before the bytes for cursor and alignment are added, which would make a small negative number
    // positive.
    if (top < 0) return top;
    return wrapSum(top, 2 * roundUp32(1));
}

}  // namespace zulg
