// Registers of several transforms: the same number, or pair of numbers, of each of `copies` transforms. A text that
// runs on them does as many transforms at once, and in each of them the steps of one transform by itself, in their
// order.
#pragma once

#include <cstdint>
#include <utility>

#include "kernel/platform.h"

namespace zulg {

// `width` lanes of each transform, those of one transform in neighbouring lanes. `exchanged` registers hold the
// imaginary part of each complex number first, as in Lanes.
template <class Real, int copies, int width, bool exchanged = false>
struct Many {
    static constexpr int lanes = copies * width;
    typedef Real Vector __attribute__((vector_size(sizeof(Real) * lanes)));

    Vector vector;

    Many() = default;
    ZULG_INLINE explicit Many(Vector from) : vector(from) {}
    // The same number in all lanes.
    ZULG_INLINE explicit Many(double all) : vector(filled(all, all)) {}
    // The numbers of the lanes of each transform, as the text counts them.
    ZULG_INLINE Many(double a, double b) requires(width == 2) : vector(exchanged ? filled(b, a) : filled(a, b)) {}

    // Where the lane of a text is in the register.
    static constexpr int place(int lane) { return exchanged ? lane ^ 1 : lane; }

    ZULG_INLINE friend Many operator+(Many a, Many b) { return Many(a.vector + b.vector); }
    ZULG_INLINE friend Many operator-(Many a, Many b) { return Many(a.vector - b.vector); }
    ZULG_INLINE friend Many operator-(Many a) { return Many(-a.vector); }
    ZULG_INLINE friend Many operator*(Many a, Many b) { return Many(a.vector * b.vector); }
    ZULG_INLINE friend Many operator*(double factor, Many x) { return Many(factor) * x; }

private:
    ZULG_INLINE static Vector filled(double even, double odd) {
        return [=]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
            return Vector{static_cast<Real>(lane % 2 == 0 ? even : odd)...};
        }
        (std::make_integer_sequence<int, lanes>{});
    }
};

// The signs of these lanes of each transform changed.
template <int... isFlipped, class Real, int copies, int width, bool exchanged>
ZULG_INLINE Many<Real, copies, width, exchanged> flipped(Many<Real, copies, width, exchanged> x) {
    using M = Many<Real, copies, width, exchanged>;
    static_assert(sizeof...(isFlipped) == width);
    constexpr int flips[] = {isFlipped...};
    return [&]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
        if constexpr (sizeof(Real) == 8) {
            typedef std::int64_t Bits __attribute__((vector_size(8 * M::lanes)));
            return M((typename M::Vector)((Bits)x.vector ^ Bits{flips[M::place(lane % width)] * INT64_MIN...}));
        } else {
            typedef std::int32_t Bits __attribute__((vector_size(4 * M::lanes)));
            return M((typename M::Vector)((Bits)x.vector ^ Bits{flips[M::place(lane % width)] * INT32_MIN...}));
        }
    }
    (std::make_integer_sequence<int, M::lanes>{});
}

// These lanes of a or, counted on, of b, in each transform.
template <int... places, class Real, int copies, int width, bool exchanged>
ZULG_INLINE Many<Real, copies, width, exchanged> shuffled(Many<Real, copies, width, exchanged> a,
                                                          Many<Real, copies, width, exchanged> b) {
    using M = Many<Real, copies, width, exchanged>;
    static_assert(sizeof...(places) == width);
    constexpr int of[] = {places...};
    return [&]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
        constexpr auto from = [](int at) {
            const int place = M::place(of[M::place(at % width)]);
            return at / width * width + place % width + place / width * M::lanes;
        };
        return M(__builtin_shufflevector(a.vector, b.vector, from(lane)...));
    }
    (std::make_integer_sequence<int, M::lanes>{});
}
template <int... places, class Real, int copies, int width, bool exchanged>
ZULG_INLINE Many<Real, copies, width, exchanged> shuffled(Many<Real, copies, width, exchanged> a) {
    return shuffled<places...>(a, a);
}

// Of each transform the number of a, then that of b; and one of two such numbers.
template <class Real, int copies, bool exchanged>
ZULG_INLINE Many<Real, copies, 2, exchanged> joined(Many<Real, copies, 1, exchanged> a,
                                                    Many<Real, copies, 1, exchanged> b) {
    return [&]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
        return Many<Real, copies, 2, exchanged>(
            __builtin_shufflevector(a.vector, b.vector, (lane / 2 + ((lane % 2 != 0) != exchanged ? copies : 0))...));
    }
    (std::make_integer_sequence<int, 2 * copies>{});
}
template <int which, class Real, int copies, bool exchanged>
ZULG_INLINE Many<Real, copies, 1, exchanged> part(Many<Real, copies, 2, exchanged> x) {
    return [&]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
        return Many<Real, copies, 1, exchanged>(
            __builtin_shufflevector(x.vector, x.vector, (2 * lane + (exchanged ? 1 - which : which))...));
    }
    (std::make_integer_sequence<int, copies>{});
}

// The real parts (0) or the imaginary parts (1) of two registers of complex numbers, in such an order of transforms
// that no number leaves its 16 bytes.
template <int which, class Real, int copies>
ZULG_INLINE Many<Real, 2 * copies, 1> partsOf(Many<Real, copies, 2> a, Many<Real, copies, 2> b) {
    constexpr int piece = 16 / sizeof(Real), lanes = 2 * copies;
    return [&]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
        constexpr auto from = [](int at) {
            const int place = 2 * (at % piece) + which;
            return at / piece * piece + place % piece + place / piece * lanes;
        };
        return Many<Real, lanes, 1>(__builtin_shufflevector(a.vector, b.vector, from(lane)...));
    }
    (std::make_integer_sequence<int, lanes>{});
}
// The first (0) or the second (1) of the two registers, from their real and their imaginary parts.
template <int which, class Real, int lanes>
ZULG_INLINE Many<Real, lanes / 2, 2> ofParts(Many<Real, lanes, 1> re, Many<Real, lanes, 1> im) {
    constexpr int piece = 16 / sizeof(Real);
    return [&]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
        constexpr auto from = [](int at) {
            return at / piece * piece + which * piece / 2 + at % piece / 2 + (at % 2 == 0 ? 0 : lanes);
        };
        return Many<Real, lanes / 2, 2>(__builtin_shufflevector(re.vector, im.vector, from(lane)...));
    }
    (std::make_integer_sequence<int, lanes>{});
}

}  // namespace zulg
