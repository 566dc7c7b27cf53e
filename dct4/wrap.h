// Sums and products of 32-bit signed numbers that wrap. Sizes of absurd lengths do wrap, and which lengths are accepted
// hangs on it; in signed arithmetic that would be undefined, so it is done unsigned and converted.
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
