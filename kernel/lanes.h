// Registers of several lanes: complex numbers side by side, the parts of each in neighbouring lanes.
//
// The sums, differences and products of such registers are those of each lane by itself. A change of sign and a shuffle
// round nothing. `exchanged` registers hold the imaginary part of each number first: they are what an inverse transform
// reads and stores, and the text that runs on them is the same.
#pragma once

#include <cstdint>
#include <utility>

#include "kernel/platform.h"

namespace zulg {

template <int width>
struct Vectors {
    typedef double Type __attribute__((vector_size(8 * width)));
    typedef std::int64_t Bits __attribute__((vector_size(8 * width)));
};

template <int width, bool exchanged>
struct Lanes {
    using Vector = typename Vectors<width>::Type;

    Vector vector;

    Lanes() = default;
    ZULG_INLINE explicit Lanes(Vector from) : vector(from) {}

    // The numbers of the lanes as the text counts them.
    ZULG_INLINE Lanes(double a, double b) requires(width == 2) : vector(exchanged ? Vector{b, a} : Vector{a, b}) {}
    ZULG_INLINE Lanes(double a, double b, double c, double d) requires(width == 4)
        : vector(exchanged ? Vector{b, a, d, c} : Vector{a, b, c, d}) {}

    // Where the lane of a text is in the register.
    static constexpr int place(int lane) { return exchanged ? lane ^ 1 : lane; }
};

template <int width, bool exchanged>
ZULG_INLINE Lanes<width, exchanged> operator+(Lanes<width, exchanged> a, Lanes<width, exchanged> b) {
    return Lanes<width, exchanged>(a.vector + b.vector);
}
template <int width, bool exchanged>
ZULG_INLINE Lanes<width, exchanged> operator-(Lanes<width, exchanged> a, Lanes<width, exchanged> b) {
    return Lanes<width, exchanged>(a.vector - b.vector);
}
template <int width, bool exchanged>
ZULG_INLINE Lanes<width, exchanged> operator*(Lanes<width, exchanged> a, Lanes<width, exchanged> b) {
    return Lanes<width, exchanged>(a.vector * b.vector);
}
template <int width, bool exchanged>
ZULG_INLINE Lanes<width, exchanged> operator*(double factor, Lanes<width, exchanged> x) {
    return Lanes<width, exchanged>((typename Vectors<width>::Type{} + factor) * x.vector);
}

// The signs of these lanes changed.
template <int... isFlipped, int width, bool exchanged>
ZULG_INLINE Lanes<width, exchanged> flipped(Lanes<width, exchanged> x) {
    using Bits = typename Vectors<width>::Bits;
    static_assert(sizeof...(isFlipped) == width);
    constexpr std::int64_t signs[] = {isFlipped * INT64_MIN...};
    const Bits mask = [&]<int... lane>(std::integer_sequence<int, lane...>) {
        return Bits{signs[Lanes<width, exchanged>::place(lane)]...};
    }
    (std::make_integer_sequence<int, width>{});
    return Lanes<width, exchanged>((typename Vectors<width>::Type)((Bits)x.vector ^ mask));
}

// These lanes of a, or of a and, counted on, of b.
template <int... places, int width, bool exchanged>
ZULG_INLINE Lanes<width, exchanged> shuffled(Lanes<width, exchanged> a, Lanes<width, exchanged> b) {
    using L = Lanes<width, exchanged>;
    static_assert(sizeof...(places) == width);
    constexpr int from[] = {places...};
    return [&]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
        return L(__builtin_shufflevector(a.vector, b.vector, L::place(from[L::place(lane)])...));
    }
    (std::make_integer_sequence<int, width>{});
}
template <int... places, int width, bool exchanged>
ZULG_INLINE Lanes<width, exchanged> shuffled(Lanes<width, exchanged> a) {
    return shuffled<places...>(a, a);
}

// The lanes of a, then those of b.
template <bool exchanged>
ZULG_INLINE Lanes<4, exchanged> joined(Lanes<2, exchanged> a, Lanes<2, exchanged> b) {
    return Lanes<4, exchanged>(__builtin_shufflevector(a.vector, b.vector, 0, 1, 2, 3));
}
template <bool exchanged>
ZULG_INLINE Lanes<2, exchanged> joined(Lanes<1, exchanged> a, Lanes<1, exchanged> b) {
    return Lanes<2, exchanged>(a.value, b.value);
}

// One half of the lanes: the low one is 0.
template <int half, bool exchanged>
ZULG_INLINE Lanes<2, exchanged> part(Lanes<4, exchanged> x) {
    return Lanes<2, exchanged>(__builtin_shufflevector(x.vector, x.vector, 2 * half, 2 * half + 1));
}
template <int lane, bool exchanged>
ZULG_INLINE Lanes<1, exchanged> part(Lanes<2, exchanged> x) {
    return Lanes<1, exchanged>{x.vector[Lanes<2, exchanged>::place(lane)]};
}

// One number by itself.
template <bool exchanged>
struct Lanes<1, exchanged> {
    double value;
};
template <bool exchanged>
ZULG_INLINE Lanes<1, exchanged> operator+(Lanes<1, exchanged> a, Lanes<1, exchanged> b) {
    return {a.value + b.value};
}
template <bool exchanged>
ZULG_INLINE Lanes<1, exchanged> operator-(Lanes<1, exchanged> a, Lanes<1, exchanged> b) {
    return {a.value - b.value};
}
template <bool exchanged>
ZULG_INLINE Lanes<1, exchanged> operator*(double factor, Lanes<1, exchanged> x) {
    return {factor * x.value};
}
template <int isFlipped, bool exchanged>
ZULG_INLINE Lanes<1, exchanged> flipped(Lanes<1, exchanged> x) {
    return {isFlipped ? -x.value : x.value};
}

}  // namespace zulg
