// Sums, products and differences of 32-bit signed numbers that wrap around. The sizes of very long lengths do wrap, and
// that decides which of these lengths are accepted. Since signed arithmetic must not overflow, the numbers are added
// and multiplied as unsigned ones and the result is converted.
#pragma once

#include <cstdint>

namespace zulg {

template <class... Number>
constexpr std::int32_t wrapSum(Number... terms) {
    return static_cast<std::int32_t>((static_cast<std::uint32_t>(terms) + ...));
}

template <class... Number>
constexpr std::int32_t wrapProduct(Number... factors) {
    return static_cast<std::int32_t>((static_cast<std::uint32_t>(factors) * ...));
}

constexpr std::int32_t wrapDifference(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

}  // namespace zulg
