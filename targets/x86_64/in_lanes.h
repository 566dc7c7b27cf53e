// How complex elements in memory become registers of lanes and such registers elements, on x86-64.
#pragma once

#include <immintrin.h>

#include "kernel/doubles.h"
#include "kernel/lanes.h"

namespace zulg {

struct DoublesInLanes {
    using Two = Vectors<2>::Type;
    using Four = Vectors<4>::Type;

    // A complex element.
    template <class Element>
    ZULG_INLINE static Two pair(const typename InMemory<Element>::Type* place) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            return *reinterpret_cast<const TwoDoubles*>(place);
        } else {
            return _mm_cvtps_pd((__m128)_mm_set_sd(*reinterpret_cast<const EightBytes*>(place)));
        }
    }
    template <class Element>
    ZULG_INLINE static void store(typename InMemory<Element>::Type* place, Two value) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            *reinterpret_cast<TwoDoubles*>(place) = value;
        } else {
            *reinterpret_cast<EightBytes*>(place) = ((Two)_mm_cvtpd_ps(value))[0];
        }
    }

#ifdef __AVX__
    // Two complex elements, which may be neighbours.
    template <class Element>
    ZULG_INLINE static Four pairs(const typename InMemory<Element>::Type* low,
                                  const typename InMemory<Element>::Type* high, bool areNeighbours) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            if (areNeighbours) return *reinterpret_cast<const FourDoubles*>(low);
            return __builtin_shufflevector(pair<double>(low), pair<double>(high), 0, 1, 2, 3);
        } else {
            if (areNeighbours) return _mm256_cvtps_pd(*reinterpret_cast<const FourSingles*>(low));
            const Two elements = {*reinterpret_cast<const EightBytes*>(low),
                                  *reinterpret_cast<const EightBytes*>(high)};
            return _mm256_cvtps_pd((__m128)elements);
        }
    }
    template <class Element>
    ZULG_INLINE static void store(typename InMemory<Element>::Type* low, typename InMemory<Element>::Type* high,
                                  bool areNeighbours, Four value) {
        if constexpr (sizeof(Element) == sizeof(double)) {
            if (areNeighbours) {
                *reinterpret_cast<FourDoubles*>(low) = value;
            } else {
                store<double>(low, __builtin_shufflevector(value, value, 0, 1));
                store<double>(high, __builtin_shufflevector(value, value, 2, 3));
            }
        } else {
            const __m128 singles = _mm256_cvtpd_ps(value);
            if (areNeighbours) {
                *reinterpret_cast<FourSingles*>(low) = singles;
            } else {
                *reinterpret_cast<EightBytes*>(low) = ((Two)singles)[0];
                *reinterpret_cast<EightBytes*>(high) = ((Two)singles)[1];
            }
        }
    }
#endif

private:
    // At any address, and under whatever name the caller knows the elements. Eight bytes are two singles.
    typedef double TwoDoubles __attribute__((vector_size(16), aligned(1), may_alias));
    typedef double FourDoubles __attribute__((vector_size(32), aligned(1), may_alias));
    typedef float FourSingles __attribute__((vector_size(16), aligned(1), may_alias));
    typedef double EightBytes __attribute__((aligned(1), may_alias));
};

}  // namespace zulg
