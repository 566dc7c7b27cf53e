// How complex elements in memory become registers of two lanes and such registers elements, in WebAssembly.
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

    // A constant is a part of the instruction that makes it.
    template <class Graph>
    using LaneConstants = Doubles::Constants<Graph>;

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
            return __builtin_convertvector(*reinterpret_cast<const TwoSingles*>(place), Two);
        }
    }
    template <class Element>
    ZULG_INLINE static void store(typename InMemory<Element>::Type* place, Two value) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            *reinterpret_cast<TwoDoubles*>(place) = value;
        } else {
            *reinterpret_cast<TwoSingles*>(place) = __builtin_convertvector(value, Singles);
        }
    }

    // Two real numbers, which may be neighbours.
    template <class Element>
    ZULG_INLINE static Two reals(const typename InMemory<Element>::Type* x, int a, int b) {
        if (b == a + 1) return pair<Element>(x + a);
        return Two{readOnce(x[a]), readOnce(x[b])};
    }
    template <class Element>
    ZULG_INLINE static void storeReals(typename InMemory<Element>::Type* x, int a, int b, Two value) {
        if (b == a + 1) return store<Element>(x + a, value);
        x[a] = static_cast<Element>(value[0]);
        x[b] = static_cast<Element>(value[1]);
    }

    // A number that was read. Where clang 14 needs it in both lanes of a register, it would read it again, even after a
    // store to the same place; it cannot see through the empty statement.
    ZULG_INLINE static double readOnce(double value) {
        asm("" : "+r"(value));
        return value;
    }

private:
    typedef float Singles __attribute__((vector_size(8)));

    // At any address, and under whatever name the caller knows the elements.
    typedef double TwoDoubles __attribute__((vector_size(16), aligned(1), may_alias));
    typedef float TwoSingles __attribute__((vector_size(8), aligned(1), may_alias));
};

}  // namespace ZULG_TARGET
}  // namespace zulg
