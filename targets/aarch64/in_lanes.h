// How complex elements in memory become registers of two lanes and such registers elements, on AArch64.
#pragma once

#include "kernel/doubles.h"
#include "kernel/in_memory.h"
#include "kernel/lanes.h"

namespace zulg {
inline namespace ZULG_TARGET {

struct DoublesInLanes : PortableRegisters {
    using Two = Vectors<2>::Type;

    // The lanes of the widest register.
    static constexpr int widest = 2;

    // Constants in a table that a register points to. A product takes a single one for both lanes, and its load reaches
    // the whole table, where a constant by itself needs an instruction more for its address.
    template <class Graph>
    class LaneConstants {
    public:
        ZULG_INLINE double operator[](int i) const { return table[i]; }

    private:
        ZULG_INLINE static const double* inRegister(const double* place) {
            asm("" : "+r"(place));
            return place;
        }
        const double* const table = inRegister(Graph::constants);
    };

    // Neighbours in memory, as many as a register has lanes.
    template <int width, class Element>
    ZULG_INLINE static Two neighbours(const typename InMemory<Element>::Type* place) {
        static_assert(width == 2);
        return pair<Element>(place);
    }
    template <int width, class Element>
    ZULG_INLINE static void storeNeighbours(typename InMemory<Element>::Type* place, Two value) {
        static_assert(width == 2);
        store<Element>(place, value);
    }

    // A complex element.
    template <class Element>
    ZULG_INLINE static Two pair(const typename InMemory<Element>::Type* place) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            return *reinterpret_cast<const TwoDoubles*>(place);
        } else {
            return inDoubles(*reinterpret_cast<const TwoSingles*>(place));
        }
    }
    template <class Element>
    ZULG_INLINE static void store(typename InMemory<Element>::Type* place, Two value) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            *reinterpret_cast<TwoDoubles*>(place) = value;
        } else {
            *reinterpret_cast<TwoSingles*>(place) = inSingles(value);
        }
    }

    // Two real numbers, which may be neighbours.
    template <class Element>
    ZULG_INLINE static Two reals(const typename InMemory<Element>::Type* x, int a, int b) {
        if (b == a + 1) return pair<Element>(x + a);
        if constexpr (sizeof(Element) == sizeof(double)) {
            return Two{x[a], x[b]};
        } else {
            return inDoubles(Singles{x[a], x[b]});
        }
    }
    template <class Element>
    ZULG_INLINE static void storeReals(typename InMemory<Element>::Type* x, int a, int b, Two value) {
        if (b == a + 1) return store<Element>(x + a, value);
        if constexpr (sizeof(Element) == sizeof(double)) {
            x[a] = value[0];
            x[b] = value[1];
        } else {
            const Singles singles = inSingles(value);
            x[a] = singles[0];
            x[b] = singles[1];
        }
    }

private:
    typedef float Singles __attribute__((vector_size(8)));

    // At any address, and under whatever name the caller knows the elements.
    typedef double TwoDoubles __attribute__((vector_size(16), aligned(1), may_alias));
    typedef float TwoSingles __attribute__((vector_size(8), aligned(1), may_alias));

    // GCC makes two instructions of a conversion to doubles, unless it is given the name of the one that does both.
    ZULG_INLINE static Two inDoubles(Singles elements) {
#ifdef __clang__
        return __builtin_convertvector(elements, Two);
#else
        return __builtin_aarch64_float_extend_lo_v2df(elements);
#endif
    }
    ZULG_INLINE static Singles inSingles(Two value) { return __builtin_convertvector(value, Singles); }
};

}  // namespace ZULG_TARGET
}  // namespace zulg
