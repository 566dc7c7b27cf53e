// The shapes of a batch, which of them are refused, and which are slow.
#pragma once

#include <cstdint>
#include <limits>

#include "kernel/platform.h"

namespace zulg {

// Element k of transform j is at k * step + j * distance.
struct Shape {
    std::int64_t step;
    std::int64_t distance;
};

constexpr std::uint64_t magnitude(std::int64_t x) {
    return x < 0 ? 0 - static_cast<std::uint64_t>(x) : static_cast<std::uint64_t>(x);
}

// Whether a product or a sum is a number of 64 bits, and that number.
constexpr bool hasProduct(std::int64_t a, std::int64_t b, std::int64_t* pProduct) {
#ifdef ZULG_GNU_CPP
    return !__builtin_mul_overflow(a, b, pProduct);
#else
    const bool isNegative = (a < 0) != (b < 0);
    const std::uint64_t limit =
        magnitude(isNegative ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max());
    if (a != 0 && magnitude(b) > limit / magnitude(a)) return false;
    const std::uint64_t product = magnitude(a) * magnitude(b);
    *pProduct = static_cast<std::int64_t>(isNegative ? 0 - product : product);
    return true;
#endif
}
constexpr bool hasSum(std::int64_t a, std::int64_t b, std::int64_t* pSum) {
#ifdef ZULG_GNU_CPP
    return !__builtin_add_overflow(a, b, pSum);
#else
    *pSum = static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
    return ((a ^ *pSum) & (b ^ *pSum)) >= 0;
#endif
}

// Whether every place, counted in bytes, is a number of 64 bits. Elements and transforms are one at least. Usual shapes
// are seen without a product: with less than 2^31 elements of 16 bytes at most, no place is above 2^60.
constexpr bool fits(Shape shape, std::int64_t elements, std::int64_t count, std::int64_t elementBytes) {
    constexpr std::uint64_t usual = std::uint64_t{1} << 24;
    if (magnitude(shape.step) < usual && magnitude(shape.distance) < usual && count >> 31 == 0) return true;
    std::int64_t last, first, place, bytes;
    return hasProduct(shape.step, elements - 1, &last) && hasProduct(shape.distance, count - 1, &first) &&
           hasSum(last, first, &place) && hasProduct(place, elementBytes, &bytes) &&
           hasProduct(last, elementBytes, &bytes) && hasProduct(first, elementBytes, &bytes);
}

constexpr std::uint64_t greatestDivisor(std::uint64_t a, std::uint64_t b) {
    while (b != 0) {
        const std::uint64_t rest = a % b;
        a = b;
        b = rest;
    }
    return a;
}

// Whether no two elements are in one place. The shape fits. Usual shapes are seen without a division: one transform
// ends before the next begins, or the elements k of all transforms end before the elements k + 1 begin. In others two
// elements are in one place if their numbers differ by distance/g within a transform and by step/g from transform to
// transform, with g the greatest common divisor, or by multiples of these.
constexpr bool isDistinct(Shape shape, std::int64_t elements, std::int64_t count) {
    const std::uint64_t step = magnitude(shape.step), distance = magnitude(shape.distance);
    const auto within = static_cast<std::uint64_t>(elements - 1), across = static_cast<std::uint64_t>(count - 1);
    if (step != 0 && distance > within * step) return true;
    if (distance != 0 && step > across * distance) return true;
    const std::uint64_t g = greatestDivisor(step, distance);
    if (g == 0) return within == 0 && across == 0;
    return distance / g > within || step / g > across;
}

// The check of all that has a shape. A batch of no transforms has no place.
constexpr bool isAccepted(Shape source, std::int64_t sourceElements, Shape destination,
                          std::int64_t destinationElements, std::int64_t count, std::int64_t elementBytes) {
    if (count <= 0) return count == 0;
    return fits(source, sourceElements, count, elementBytes) &&
           fits(destination, destinationElements, count, elementBytes) &&
           isDistinct(destination, destinationElements, count);
}

// Steps are bad where the elements of a transform share so few sets of the first cache that a line is gone before the
// next transforms of that line come: where they are large powers of two, or multiples of these. The cache has 32 KB or
// more, in ways of 4 KB.
constexpr bool isBadStep(std::int64_t step, std::int64_t elementBytes, int length) {
    constexpr std::uint64_t cacheBytes = 32768, wayBytes = 4096;
    const std::uint64_t apart = magnitude(step) * static_cast<std::uint64_t>(elementBytes);
    const std::uint64_t power = apart & (0 - apart);  // the largest power of two that divides it
    return (power < wayBytes ? power : wayBytes) * static_cast<std::uint64_t>(length) > cacheBytes;
}

}  // namespace zulg
