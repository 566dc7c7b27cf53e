// How complex elements in memory become registers of lanes and such registers elements, on x86-64. Each level has its
// own, since what is here depends on the instructions that the level may use.
#pragma once

#include "kernel/doubles.h"
#include "kernel/in_memory.h"
#include "kernel/lanes.h"

namespace zulg {
inline namespace ZULG_TARGET {

struct DoublesInLanes : PortableRegisters {
    using Two = Vectors<2>::Type;
    using Four = Vectors<4>::Type;
    typedef float Singles __attribute__((vector_size(16)));

#ifdef __AVX__
    template <class Graph>
    using LaneConstants = Doubles::Constants<Graph>;
#else
    // A constant that both lanes are multiplied by is an operand in memory. The compiler would read a single one and
    // copy it to the other lane, twice the instructions, and would then keep the copies in the frame.
    struct ConstantPair {
        double value;
        const Two* place;

        ZULG_INLINE operator double() const { return value; }
    };

    template <class Graph>
    class LaneConstants {
    public:
        ZULG_INLINE ConstantPair operator[](int i) const { return {Graph::constants[i], table + i - middle}; }

    private:
        static constexpr int count = static_cast<int>(sizeof Graph::constants / sizeof Graph::constants[0]);
        static constexpr int reach = 128 / static_cast<int>(sizeof(Two));  // of a short displacement
        static constexpr int middle = count / 2 < reach ? count / 2 : reach;
        struct Pairs {
            Two at[count];
        };
        static constexpr Pairs pairs = [] {
            Pairs both{};
            for (int i = 0; i < count; ++i) both.at[i] = Two{Graph::constants[i], Graph::constants[i]};
            return both;
        }();

        ZULG_INLINE static const Two* inRegister(const Two* place) {
            asm("" : "+r"(place));
            return place;
        }
        const Two* const table = inRegister(pairs.at + middle);
    };
#endif

    // The lanes of the widest register that the level has.
#ifdef __AVX__
    static constexpr int widest = 4;
#else
    static constexpr int widest = 2;
#endif

    // Neighbours in memory, as many as a register has lanes.
    template <int width, class Element>
    ZULG_INLINE static typename Vectors<width>::Type neighbours(const typename InMemory<Element>::Type* place) {
        if constexpr (width == 2) {
            return pair<Element>(place);
        } else {
            return inDoubles(four<Element>(place));
        }
    }
    template <int width, class Element>
    ZULG_INLINE static void storeNeighbours(typename InMemory<Element>::Type* place,
                                            typename Vectors<width>::Type value) {
        if constexpr (width == 2) {
            store<Element>(place, value);
        } else {
            storeFour<Element>(place, value);
        }
    }

    // A complex element.
    template <class Element>
    ZULG_INLINE static Two pair(const typename InMemory<Element>::Type* place) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            return *reinterpret_cast<const TwoDoubles*>(place);
        } else {
            return lowInDoubles((Singles)Two{*reinterpret_cast<const EightBytes*>(place), 0});
        }
    }
    template <class Element>
    ZULG_INLINE static void store(typename InMemory<Element>::Type* place, Two value) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            *reinterpret_cast<TwoDoubles*>(place) = value;
        } else {
            *reinterpret_cast<EightBytes*>(place) = ((Two)lowInSingles(value))[0];
        }
    }

    // Two real numbers, which may be neighbours.
    template <class Element>
    ZULG_INLINE static Two reals(const typename InMemory<Element>::Type* x, int a, int b) {
        if (b == a + 1) return pair<Element>(x + a);
        if constexpr (sizeof(Element) == sizeof(double)) {
            return Two{x[a], x[b]};
        } else {
            return lowInDoubles(Singles{x[a], x[b]});
        }
    }
    template <class Element>
    ZULG_INLINE static void storeReals(typename InMemory<Element>::Type* x, int a, int b, Two value) {
        if (b == a + 1) return store<Element>(x + a, value);
        if constexpr (sizeof(Element) == sizeof(double)) {
            x[a] = value[0];
            x[b] = value[1];
        } else {
            const Singles singles = lowInSingles(value);
            x[a] = singles[0];
            x[b] = singles[1];
        }
    }

    // The instructions by the names that the compiler has for them: its headers of all such names take longer to read
    // than most kernels take to compile.
#ifdef __clang__
    ZULG_INLINE static Two lowInDoubles(Singles x) {
        return __builtin_convertvector(__builtin_shufflevector(x, x, 0, 1), Two);
    }
#else
    ZULG_INLINE static Two lowInDoubles(Singles x) { return __builtin_ia32_cvtps2pd(x); }
#endif
    ZULG_INLINE static Singles lowInSingles(Two x) { return __builtin_ia32_cvtpd2ps(x); }

#ifdef __AVX__
#ifdef __clang__
    ZULG_INLINE static Four inDoubles(Singles elements) { return __builtin_convertvector(elements, Four); }
    ZULG_INLINE static Singles inSingles(Four value) { return __builtin_convertvector(value, Singles); }
#else
    ZULG_INLINE static Four inDoubles(Singles elements) { return __builtin_ia32_cvtps2pd256(elements); }
    ZULG_INLINE static Singles inSingles(Four value) { return __builtin_ia32_cvtpd2ps256(value); }

    // The compiler's own choice is a permutation of four lanes for the first of these, a copy more for the second and
    // one that crosses halves for the third.
    ZULG_INLINE static Two upper(Four x) { return __builtin_ia32_vextractf128_pd256(x, 1); }
    ZULG_INLINE static Four together(Two low, Two high) {
        return __builtin_ia32_vinsertf128_pd256(__builtin_ia32_pd256_pd(low), high, 1);
    }
    template <int fromB>
    ZULG_INLINE static Four blended(Four a, Four b) {
        return __builtin_ia32_blendpd256(a, b, fromB);
    }
#endif
    ZULG_INLINE static Four inDoubles(Four elements) { return elements; }
    ZULG_INLINE static Two lower(Four x) { return __builtin_shufflevector(x, x, 0, 1); }

    // Two complex elements, which may be neighbours.
    template <class Element>
    ZULG_INLINE static Four pairs(const typename InMemory<Element>::Type* low,
                                  const typename InMemory<Element>::Type* high, bool areNeighbours) {
        if (areNeighbours) return inDoubles(four<Element>(low));
        if constexpr (sizeof(Element) == sizeof(double)) {
            return together(pair<double>(low), pair<double>(high));
        } else {
            const Two elements = {*reinterpret_cast<const EightBytes*>(low),
                                  *reinterpret_cast<const EightBytes*>(high)};
            return inDoubles((Singles)elements);
        }
    }
    template <class Element>
    ZULG_INLINE static void store(typename InMemory<Element>::Type* low, typename InMemory<Element>::Type* high,
                                  bool areNeighbours, Four value) {
        if (areNeighbours) return storeFour<Element>(low, value);
        if constexpr (sizeof(Element) == sizeof(double)) {
            store<double>(low, lower(value));
            store<double>(high, upper(value));
        } else {
            const Two elements = (Two)inSingles(value);
            *reinterpret_cast<EightBytes*>(low) = elements[0];
            *reinterpret_cast<EightBytes*>(high) = elements[1];
        }
    }

    // Four real numbers of an array of `length`. Each comes with the four neighbours among which it is in its lane;
    // where these would not be in the array, by itself.
    template <class Element, int length>
    ZULG_INLINE static Four reals(const typename InMemory<Element>::Type* x, int a, int b, int c, int d) {
        return inDoubles(inTheirLanes<Element, length>(x, a, b, c, d));
    }
    template <class Element>
    ZULG_INLINE static void storeReals(typename InMemory<Element>::Type* x, int a, int b, int c, int d, Four value) {
        if (areInRow(a, b, c, d)) return storeFour<Element>(x + a, value);
        if constexpr (sizeof(Element) == sizeof(double)) {
            storeReals<double>(x, a, b, lower(value));
            storeReals<double>(x, c, d, upper(value));
        } else {
            const Singles singles = inSingles(value);
            x[a] = singles[0];
            x[b] = singles[1];
            x[c] = singles[2];
            x[d] = singles[3];
        }
    }
#endif

private:
#ifdef __AVX__
    static constexpr bool areInRow(int a, int b, int c, int d) { return b == a + 1 && c == b + 1 && d == c + 1; }

    // Four neighbours, as they are in memory.
    template <class Element>
    ZULG_INLINE static auto four(const typename InMemory<Element>::Type* place) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            return Four(*reinterpret_cast<const FourDoubles*>(place));
        } else {
            return Singles(*reinterpret_cast<const FourSingles*>(place));
        }
    }
    template <class Element>
    ZULG_INLINE static void storeFour(typename InMemory<Element>::Type* place, Four value) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            *reinterpret_cast<FourDoubles*>(place) = value;
        } else {
            *reinterpret_cast<FourSingles*>(place) = inSingles(value);
        }
    }

    template <class Element, int length>
    ZULG_INLINE static auto inTheirLanes(const typename InMemory<Element>::Type* x, int a, int b, int c, int d) {
        using Vector = decltype(four<Element>(x));
        if (areInRow(a, b, c, d)) return four<Element>(x + a);
        if (areInRow(d, c, b, a)) {
            const Vector rising = four<Element>(x + d);
            return Vector(__builtin_shufflevector(rising, rising, 3, 2, 1, 0));
        }
        const auto inLane = [=](int place, int lane) __attribute__((always_inline)) {
            const int first = place - lane;
            if (first >= 0 && first + 4 <= length) return four<Element>(x + first);
            return Vector{x[place], x[place], x[place], x[place]};
        };
        const Vector low = __builtin_shufflevector(inLane(a, 0), inLane(b, 1), 0, 5, 2, 3);
        const Vector high = __builtin_shufflevector(inLane(c, 2), inLane(d, 3), 0, 1, 2, 7);
        return Vector(__builtin_shufflevector(low, high, 0, 1, 6, 7));
    }
#endif

    // At any address, and under whatever name the caller knows the elements. Eight bytes are two singles.
    typedef double TwoDoubles __attribute__((vector_size(16), aligned(1), may_alias));
    typedef double FourDoubles __attribute__((vector_size(32), aligned(1), may_alias));
    typedef float FourSingles __attribute__((vector_size(16), aligned(1), may_alias));
    typedef double EightBytes __attribute__((aligned(1), may_alias));
};

#ifndef __AVX__
template <class Registers, bool exchanged>
ZULG_INLINE Lanes<Registers, 2, exchanged> operator*(DoublesInLanes::ConstantPair factor,
                                                     Lanes<Registers, 2, exchanged> x) {
    return Lanes<Registers, 2, exchanged>(*factor.place * x.vector);
}
#endif

}  // namespace ZULG_TARGET
}  // namespace zulg
