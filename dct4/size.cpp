// The decision which lengths are accepted is this recursion and nothing else: it lets through what its truncating
// divisions let through, among them 2^k + 1. Sums wrap at 32 bits and are refused where one turns negative; a sum that
// wraps twice passes. A little more is counted than a build draws: the lists of each level as if no first element
// went into the head.
#include "dct4/size.h"

#include "dct4/radix.h"
#include "dct4/records.h"

namespace zulg {

namespace {

template <class Record>
constexpr std::int32_t charge = roundUp32(sizeof(Record));

constexpr std::int32_t headBytes = charge<PlanListNode>;

// What each level with two passes has: a list of two for the second pass and the angle source, of one for each view.
template <class AngleRecord>
constexpr std::int32_t levelBytes = wrapSum(3 * headBytes, listBytes(2), charge<AngleRecord>, listBytes(1),
                                            listBytes(2));

// The bytes of a fold record of `skewLength` and of all below it.
std::int32_t foldBytes(std::int32_t skewLength, std::int32_t recordBytes, std::int32_t width) {
    const std::int32_t own = roundUp32(recordBytes) + 2 * headBytes;
    if (foldKind(skewLength) != splitFold) return own;

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
    if (planKind(length) != compositePlan) return charge<DctPlan> + 3 * headBytes;

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
    // Looked at before the room for cursor and alignment is added: a small negative number would turn positive by it.
    if (top < 0) return top;
    return wrapSum(top, 2 * roundUp32(1));
}

}  // namespace zulg
