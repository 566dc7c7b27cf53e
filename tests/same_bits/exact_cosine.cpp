#include "tests/same_bits/exact_cosine.h"

#include <bit>
#include <cstdint>

namespace test {
namespace {

constexpr int limbs = 5, limbBits = 32, fractionBits = 152;

// A number from -128 to 128: an integer of 160 bits, the lowest limb first, in units of 2^-152.
struct Fixed {
    std::uint32_t limb[limbs] = {};

    static Fixed of(double x) {
        Fixed fixed;
        if (x == 0) return fixed;
        const auto bits = std::bit_cast<std::uint64_t>(x);
        const int exponent = static_cast<int>(bits >> 52) - 1075;  // of the last place
        const std::uint64_t significand = (bits & 0xFFFFFFFFFFFFF) | std::uint64_t{1} << 52;
        for (int bit = 0; bit < 53; ++bit) {
            const int place = fractionBits + exponent + bit;
            if (place >= 0 && (significand >> bit & 1) != 0) {
                fixed.limb[place / limbBits] |= std::uint32_t{1} << place % limbBits;
            }
        }
        return fixed;
    }

    bool isNegative() const { return limb[limbs - 1] >> (limbBits - 1) != 0; }

    bool isZero() const {
        for (const std::uint32_t each : limb) {
            if (each != 0) return false;
        }
        return true;
    }

    bool bit(int place) const { return place >= 0 && (limb[place / limbBits] >> place % limbBits & 1) != 0; }
};

Fixed sum(const Fixed& a, const Fixed& b, bool subtracts) {
    Fixed result;
    std::uint64_t carry = subtracts ? 1 : 0;
    for (int i = 0; i < limbs; ++i) {
        carry += std::uint64_t{a.limb[i]} + (subtracts ? ~b.limb[i] : b.limb[i]);
        result.limb[i] = static_cast<std::uint32_t>(carry);
        carry >>= limbBits;
    }
    return result;
}

// Of numbers that are not negative; what is below the last place is dropped.
Fixed product(const Fixed& a, const Fixed& b) {
    std::uint32_t whole[2 * limbs] = {};
    for (int i = 0; i < limbs; ++i) {
        std::uint64_t carry = 0;
        for (int j = 0; j < limbs; ++j) {
            carry += std::uint64_t{a.limb[i]} * b.limb[j] + whole[i + j];
            whole[i + j] = static_cast<std::uint32_t>(carry);
            carry >>= limbBits;
        }
        whole[i + limbs] = static_cast<std::uint32_t>(carry);
    }
    constexpr int skipped = fractionBits / limbBits, shift = fractionBits % limbBits;
    Fixed result;
    for (int i = 0; i < limbs; ++i) {
        const std::uint64_t two = std::uint64_t{whole[i + skipped + 1]} << limbBits | whole[i + skipped];
        result.limb[i] = static_cast<std::uint32_t>(two >> shift);
    }
    return result;
}

Fixed quotient(const Fixed& a, std::uint32_t divisor) {
    Fixed result;
    std::uint64_t rest = 0;
    for (int i = limbs - 1; i >= 0; --i) {
        rest = rest << limbBits | a.limb[i];
        result.limb[i] = static_cast<std::uint32_t>(rest / divisor);
        rest %= divisor;
    }
    return result;
}

// To nearest. No cosine or sine of a double but 0 and 1 is a double or halfway between two.
double rounded(Fixed fixed) {
    const bool isNegative = fixed.isNegative();
    if (isNegative) fixed = sum(Fixed{}, fixed, true);
    if (fixed.isZero()) return 0;
    int top = limbs * limbBits - 1;
    while (!fixed.bit(top)) --top;
    std::uint64_t significand = 0;
    for (int i = 0; i < 53; ++i) significand = significand << 1 | fixed.bit(top - i);
    if (fixed.bit(top - 53)) ++significand;
    const auto exponent = static_cast<std::uint64_t>(top - fractionBits + 1023);
    // A significand that was rounded up to the next power of two carries into the exponent.
    const std::uint64_t bits = (exponent << 52) + (significand - (std::uint64_t{1} << 52));
    return std::bit_cast<double>(bits | std::uint64_t{isNegative} << 63);
}

// The sum of (-1)^k x^n / n! over n = first, first + 2, ...
double series(double x, std::uint32_t first) {
    const Fixed argument = Fixed::of(x), square = product(argument, argument);
    Fixed term = first == 0 ? Fixed::of(1) : argument, total = term;
    bool subtracts = true;
    for (std::uint32_t n = first; !term.isZero(); n += 2, subtracts = !subtracts) {
        term = product(quotient(term, (n + 1) * (n + 2)), square);
        total = sum(total, term, subtracts);
    }
    return rounded(total);
}

}  // namespace

double exactCosine(double x) { return series(x, 0); }
double exactSine(double x) { return series(x, 1); }

}  // namespace test
