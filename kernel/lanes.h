// Registers of several lanes: complex numbers side by side, the parts of each in neighbouring lanes.
//
// The sums, differences and products of such registers are those of each lane by itself. A change of sign and a shuffle
// round nothing. `exchanged` registers hold the imaginary part of each number first: they are what an inverse transform
// reads and stores, and the text that runs on them is the same.
#pragma once

#include <cstdint>

#include "kernel/platform.h"

namespace zulg {

template <int width>
struct Vectors {
    typedef double Type __attribute__((vector_size(8 * width)));
    typedef std::int64_t Bits __attribute__((vector_size(8 * width)));
};

// One number by itself.
template <>
struct Vectors<1> {
    typedef double Type;
};

// How registers are put together and taken apart. A target may know a better way. These are templates, so that a
// machine without such registers can read them.
struct PortableRegisters {
    template <class Two>
    ZULG_INLINE static auto together(Two low, Two high) {
        return __builtin_shufflevector(low, high, 0, 1, 2, 3);
    }
    template <class Four>
    ZULG_INLINE static auto upper(Four x) {
        return __builtin_shufflevector(x, x, 2, 3);
    }

    // Each lane in its place, from b where the bit is set.
    template <int fromB, class Four>
    ZULG_INLINE static Four blended(Four a, Four b) {
        return __builtin_shufflevector(a, b, fromB & 1 ? 4 : 0, fromB & 2 ? 5 : 1, fromB & 4 ? 6 : 2,
                                       fromB & 8 ? 7 : 3);
    }
};

// Operators are friends that need no deduction: a long text has thousands of them.
template <class Registers, int width, bool exchanged>
struct Lanes {
    using Vector = typename Vectors<width>::Type;

    Vector vector;

    Lanes() = default;
    ZULG_INLINE explicit Lanes(Vector from) : vector(from) {}
    // The same number in all lanes.
    ZULG_INLINE explicit Lanes(double all) requires(width == 2) : vector{all, all} {}
    ZULG_INLINE explicit Lanes(double all) requires(width == 4) : vector{all, all, all, all} {}

    // The numbers of the lanes as the text counts them.
    ZULG_INLINE Lanes(double a, double b) requires(width == 2) : vector(exchanged ? Vector{b, a} : Vector{a, b}) {}
    ZULG_INLINE Lanes(double a, double b, double c, double d) requires(width == 4)
        : vector(exchanged ? Vector{b, a, d, c} : Vector{a, b, c, d}) {}

    ZULG_INLINE friend Lanes operator+(const Lanes& a, const Lanes& b) { return Lanes(a.vector + b.vector); }
    ZULG_INLINE friend Lanes operator-(const Lanes& a, const Lanes& b) { return Lanes(a.vector - b.vector); }
    ZULG_INLINE friend Lanes operator*(const Lanes& a, const Lanes& b) { return Lanes(a.vector * b.vector); }
    ZULG_INLINE friend Lanes operator*(double factor, const Lanes& x) { return Lanes(factor) * x; }

    // Where the lane of a text is in the register.
    static constexpr int place(int lane) { return exchanged ? lane ^ 1 : lane; }
};

// The signs of these lanes changed.
template <int... isFlipped, class Registers, int width, bool exchanged>
ZULG_INLINE Lanes<Registers, width, exchanged> flipped(const Lanes<Registers, width, exchanged>& x) {
    using L = Lanes<Registers, width, exchanged>;
    using Bits = typename Vectors<width>::Bits;
    static_assert(sizeof...(isFlipped) == width);
    constexpr std::int64_t signs[] = {isFlipped * INT64_MIN...};
    Bits mask;
    if constexpr (width == 2) {
        mask = Bits{signs[L::place(0)], signs[L::place(1)]};
    } else {
        mask = Bits{signs[L::place(0)], signs[L::place(1)], signs[L::place(2)], signs[L::place(3)]};
    }
    return L((typename Vectors<width>::Type)((Bits)x.vector ^ mask));
}

// A register to be stored, some of whose lanes hold minus what is stored.
template <class Register, int... isMinus>
struct Negated {
    Register of;
};
template <int... isMinus, class Register>
ZULG_INLINE Negated<Register, isMinus...> negated(Register x) {
    return {x};
}

// Which of two registers each lane is from, if all lanes stay in their places: a bit for each that is from the second
// one. Otherwise -1.
template <int width>
constexpr int blendOf(const int (&from)[width]) {
    int bits = 0;
    for (int lane = 0; lane < width; ++lane) {
        if (from[lane] % width != lane) return -1;
        bits |= (from[lane] >= width) << lane;
    }
    return bits;
}

// These lanes of a, or of a and, counted on, of b.
template <int... places, class Registers, int width, bool exchanged>
ZULG_INLINE Lanes<Registers, width, exchanged> shuffled(const Lanes<Registers, width, exchanged>& a,
                                                        const Lanes<Registers, width, exchanged>& b) {
    using L = Lanes<Registers, width, exchanged>;
    static_assert(sizeof...(places) == width);
    constexpr int of[] = {places...};
    if constexpr (width == 2) {
        constexpr int from[] = {L::place(of[L::place(0)]), L::place(of[L::place(1)])};
        return L(__builtin_shufflevector(a.vector, b.vector, from[0], from[1]));
    } else {
        constexpr int from[] = {L::place(of[L::place(0)]), L::place(of[L::place(1)]), L::place(of[L::place(2)]),
                                L::place(of[L::place(3)])};
        constexpr int blend = blendOf(from);
        if constexpr (blend >= 0) {
            return L(Registers::template blended<blend>(a.vector, b.vector));
        } else {
            return L(__builtin_shufflevector(a.vector, b.vector, from[0], from[1], from[2], from[3]));
        }
    }
}
template <int... places, class Registers, int width, bool exchanged>
ZULG_INLINE Lanes<Registers, width, exchanged> shuffled(const Lanes<Registers, width, exchanged>& a) {
    return shuffled<places...>(a, a);
}

// The lanes of a, then those of b.
template <class Registers, bool exchanged>
ZULG_INLINE Lanes<Registers, 4, exchanged> joined(Lanes<Registers, 2, exchanged> a, Lanes<Registers, 2, exchanged> b) {
    return Lanes<Registers, 4, exchanged>(Registers::together(a.vector, b.vector));
}
template <class Registers, bool exchanged>
ZULG_INLINE Lanes<Registers, 2, exchanged> joined(Lanes<Registers, 1, exchanged> a, Lanes<Registers, 1, exchanged> b) {
    return Lanes<Registers, 2, exchanged>(a.vector, b.vector);
}

// One half of the lanes: the low one is 0.
template <int half, class Registers, bool exchanged>
ZULG_INLINE Lanes<Registers, 2, exchanged> part(Lanes<Registers, 4, exchanged> x) {
    if constexpr (half == 1) return Lanes<Registers, 2, exchanged>(Registers::upper(x.vector));
    return Lanes<Registers, 2, exchanged>(__builtin_shufflevector(x.vector, x.vector, 0, 1));
}
template <int lane, class Registers, bool exchanged>
ZULG_INLINE Lanes<Registers, 1, exchanged> part(Lanes<Registers, 2, exchanged> x) {
    return Lanes<Registers, 1, exchanged>(x.vector[Lanes<Registers, 2, exchanged>::place(lane)]);
}

template <int isFlipped, class Registers, bool exchanged>
ZULG_INLINE Lanes<Registers, 1, exchanged> flipped(Lanes<Registers, 1, exchanged> x) {
    return Lanes<Registers, 1, exchanged>(isFlipped ? -x.vector : x.vector);
}

}  // namespace zulg
