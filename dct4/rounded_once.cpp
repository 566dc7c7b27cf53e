#include "dct4/rounded_once.h"

#include <bit>
#include <cfloat>

namespace zulg {
namespace {

// Whether an operator on doubles rounds once, to double.
constexpr bool operatorsRoundOnce = FLT_EVAL_METHOD == 0;

constexpr int fractionBits = 52, bias = 1023;
constexpr std::uint64_t unitBit = std::uint64_t{1} << fractionBits, signBit = std::uint64_t{1} << 63;

// significand * 2^exponent, rounded to nearest, ties to even. At least 63 bits of the significand are in use; `isMore`
// says that the exact value is a little greater.
double nearest(std::uint64_t sign, std::uint64_t significand, bool isMore, int exponent) {
    const int shift = std::countl_zero(significand), dropped = 63 - fractionBits;
    significand <<= shift;
    const std::uint64_t tail = significand & ((1 << dropped) - 1), half = 1 << (dropped - 1);
    std::uint64_t kept = significand >> dropped;
    if (tail > half || (tail == half && (isMore || kept % 2 != 0))) ++kept;
    // A significand that was rounded up to the next power of two carries into the exponent, as it should.
    const auto biased = static_cast<std::uint64_t>(exponent - shift + dropped + fractionBits + bias);
    return std::bit_cast<double>(sign | ((biased << fractionBits) + (kept - unitBit)));
}

std::uint32_t magnitude(std::int32_t n) {
    const auto bits = static_cast<std::uint32_t>(n);
    return n < 0 ? 0 - bits : bits;
}

// A double as sign, exponent and a significand whose highest bit is set.
struct Unpacked {
    explicit Unpacked(double x) : sign(std::bit_cast<std::uint64_t>(x) & signBit) {
        const std::uint64_t bits = std::bit_cast<std::uint64_t>(x) & ~signBit;
        exponent = static_cast<int>(bits >> fractionBits) - bias - 63;
        significand = ((bits & (unitBit - 1)) | unitBit) << (63 - fractionBits);
    }

    std::uint64_t sign, significand;
    int exponent;
};

}  // namespace

double quotientRoundedOnce(std::int32_t dividend, std::int32_t divisor) {
    if (operatorsRoundOnce || dividend == 0 || divisor == 0) return static_cast<double>(dividend) / divisor;
    const std::uint32_t a = magnitude(dividend), b = magnitude(divisor);
    const int aShift = std::countl_zero(a), bShift = std::countl_zero(b);
    const std::uint64_t b64 = b << bShift;
    // Two digits to the base 2^32; with its highest bit set, neither number makes the first digit longer than that.
    const std::uint64_t first = std::uint64_t{a << aShift} << 31;
    const std::uint64_t second = first % b64 << 32;
    const std::uint64_t sign = (dividend < 0) != (divisor < 0) ? signBit : 0;
    return nearest(sign, (first / b64 << 32) + second / b64, second % b64 != 0, bShift - aShift - 63);
}

double productRoundedOnce(double a, double b) {
    if (operatorsRoundOnce) return a * b;
    const Unpacked x(a), y(b);
    const std::uint64_t low32 = 0xFFFFFFFF;
    const std::uint64_t xHigh = x.significand >> 32, xLow = x.significand & low32;
    const std::uint64_t yHigh = y.significand >> 32, yLow = y.significand & low32;
    const std::uint64_t low = xLow * yLow, middle1 = xHigh * yLow + (low >> 32),
                        middle2 = xLow * yHigh + (middle1 & low32);
    const std::uint64_t high = xHigh * yHigh + (middle1 >> 32) + (middle2 >> 32);
    const bool isMore = (middle2 & low32) != 0 || (low & low32) != 0;
    return nearest(x.sign ^ y.sign, high, isMore, x.exponent + y.exponent + 64);
}

}  // namespace zulg
