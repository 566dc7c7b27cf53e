#include "wht/in_lanes.h"

#include <utility>

#include "kernel/lanes.h"
#include "kernel/upper_halves.h"
#include "wht/bodies/wht_2.h"
#include "wht/bodies/wht_4.h"
#include "wht/checks.h"
#include "wht/passes.h"

namespace zulg {
inline namespace ZULG_TARGET {
namespace {

constexpr int width = TargetNumbers::widest;
using Register = Lanes<TargetNumbers, width, false>;

// The stage of this stride within a register: lane j and lane j + stride give their sum and their difference, which is
// the sum of the one and minus the other.
template <int stride>
ZULG_INLINE Register stageWithin(Register x) {
    return [x]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
        return shuffled<(lane ^ stride)...>(x) + flipped<(lane / stride % 2)...>(x);
    }
    (std::make_integer_sequence<int, width>{});
}

// The stages of a block of neighbours that are within registers. These come first, since their strides are the lowest.
ZULG_INLINE Register stagesWithin(Register x) {
    x = stageWithin<1>(x);
    if constexpr (width == 4) x = stageWithin<2>(x);
    return x;
}

// The ports of as many blocks as a register has lanes: the first one's point n is element n * stride, and the blocks
// begin at neighbours.
template <class Element, int stride>
struct BlocksInLanes {
    using Value = Register;
    using Place = typename InMemory<Element>::Type;

    const Place* source;
    Place* destination;

    ZULG_INLINE Value in(int n) const {
        return Value(TargetNumbers::template neighbours<width, Element>(source + n * stride));
    }
    ZULG_INLINE void out(int k, Value value) const {
        TargetNumbers::template storeNeighbours<width, Element>(destination + k * stride, value.vector);
    }
};

// The ports of one block of neighbours, whose text is that of a block of fewer points: a point is a register.
template <class Element>
struct BlockOfRegisters : BlocksInLanes<Element, width> {
    ZULG_INLINE Register in(int n) const { return stagesWithin(BlocksInLanes<Element, width>::in(n)); }
};

template <class Ports>
struct Scaled : Ports {
    Register scale;

    ZULG_INLINE void out(int k, Register value) const { Ports::out(k, value * scale); }
};

struct LoopsInLanes {
    using Scale = Register;

    template <int blocks, int points, class Element>
    ZULG_INLINE static void passOfNeighbours(const Element* from, Element* to) {
        for (int i = 0; i < blocks * points; i += points) {
            WhtBlock<points / width>::run(BlockOfRegisters<Element>{{from + i, to + i}});
        }
    }

    template <int stride, int points, class Element>
    ZULG_INLINE static void passAtStride(const Element* from, Element* to) {
        for (int j = 0; j < stride; j += width) {
            WhtBlock<points>::run(BlocksInLanes<Element, stride>{from + j, to + j});
        }
    }

    template <int stride, int points, class Element>
    ZULG_INLINE static void scaledPassAtStride(const Element* from, Element* to, Scale scale) {
        for (int j = 0; j < stride; j += width) {
            WhtBlock<points>::run(Scaled<BlocksInLanes<Element, stride>>{{from + j, to + j}, scale});
        }
    }
};

}  // namespace

template <int order, class Element>
Status ZULG_CALL whtInLanes(const Element* pSrc, Element* pDst, std::int32_t flag, Element* pBuffer) {
    return whtChecked<order>(
        pSrc, pDst, flag, [=](Element scale) __attribute__((always_inline)) {
            constexpr int points = 1 << order;
            if constexpr (points <= width) {
                WhtBlock<points>::run(WhtScaledPorts<Element, TargetNumbers, 1>{{pSrc, pDst}, scale});
            } else if constexpr (order < lowestBufferedOrder) {
                WhtBlock<points / width>::run(Scaled<BlockOfRegisters<Element>>{{{pSrc, pDst}}, Register(scale)});
                cleanUpperHalves();
            } else {
                withBuffer<order>(
                    pBuffer, [=](Element * buffer) __attribute__((always_inline)) {
                        whtPasses<order, LoopsInLanes>(pSrc, pDst, buffer, Register(scale));
                        cleanUpperHalves();
                    });
            }
        });
}

// clang-format off
template Status ZULG_CALL whtInLanes<1, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<2, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<3, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<4, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<5, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<6, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<7, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<8, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<9, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<10, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<11, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<12, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<13, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL whtInLanes<1, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<2, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<3, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<4, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<5, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<6, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<7, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<8, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<9, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<10, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<11, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<12, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL whtInLanes<13, double>(const double*, double*, std::int32_t, double*);
// clang-format on

}  // namespace ZULG_TARGET
}  // namespace zulg
