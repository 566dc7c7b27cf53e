// How the blocks of a large order go over its arrays. The element and the type that a block works in are arguments, so
// that the loops that ship can also be run on a type that counts.
//
//     orders 8 to 11   first pass:  source to buffer, blocks of neighbours
//                      second pass: buffer to destination, blocks at a stride
//
//     orders 12, 13    for each outer block, the same two passes:
//                      first pass:  source to scratch area, blocks of neighbours
//                      second pass: scratch area to main area, blocks at a stride
//                      then once, over all outer blocks:
//                      last pass:   main area to destination, blocks at a stride
//
// The stages of an earlier pass have lower strides than those of a later one, so that all stages come in rising stride.
// Only the pass that writes the destination scales. Between passes values are rounded to the element.
#pragma once

#include "kernel/ports.h"
#include "wht/bodies/wht_16.h"
#include "wht/bodies/wht_32.h"
#include "wht/bodies/wht_64.h"
#include "wht/bodies/wht_8.h"
#include "wht/wht.h"

namespace zulg {

// The ports of one block. Point n is element n * stride, in the source and in the destination.
template <class Element, class Numbers, int stride>
struct WhtPorts {
    using Value = typename Numbers::Value;

    PlacesToRead<Element> source;
    PlacesToWrite<Element> destination;

    ZULG_INLINE Value in(int n) const { return Numbers::template widened<Element>(source[n * stride]); }
    ZULG_INLINE void out(int k, Value value) const {
        destination[k * stride] = Numbers::template rounded<Element>(value);
    }
};

template <class Element, class Numbers, int stride>
struct WhtScaledPorts : WhtPorts<Element, Numbers, stride> {
    using Value = typename Numbers::Value;

    Value scale;

    ZULG_INLINE void out(int k, Value value) const {
        this->destination[k * stride] = Numbers::template rounded<Element>(value * scale);
    }
};

// The loops of a pass, one block after the other.
template <class Numbers>
struct WhtBlockByBlock {
    using Scale = typename Numbers::Value;

    // Over `blocks` blocks of `points` neighbours each.
    template <int blocks, int points, class Element>
    ZULG_INLINE static void passOfNeighbours(const Element* from, Element* to) {
        for (int i = 0; i < blocks * points; i += points) {
            WhtBlock<points>::run(WhtPorts<Element, Numbers, 1>{from + i, to + i});
        }
    }

    // Over `stride` blocks of `points` points, which are `stride` elements apart.
    template <int stride, int points, class Element>
    ZULG_INLINE static void passAtStride(const Element* from, Element* to) {
        for (int j = 0; j < stride; ++j) WhtBlock<points>::run(WhtPorts<Element, Numbers, stride>{from + j, to + j});
    }

    template <int stride, int points, class Element>
    ZULG_INLINE static void scaledPassAtStride(const Element* from, Element* to, Scale scale) {
        for (int j = 0; j < stride; ++j) {
            WhtBlock<points>::run(WhtScaledPorts<Element, Numbers, stride>{{from + j, to + j}, scale});
        }
    }
};

// The points of a block in the first and in the second pass. Their product is 2^order.
template <int order>
struct WhtSplit;
template <>
struct WhtSplit<8> {
    static constexpr int first = 16, second = 16;
};
template <>
struct WhtSplit<9> {
    static constexpr int first = 16, second = 32;
};
template <>
struct WhtSplit<10> {
    static constexpr int first = 16, second = 64;
};
template <>
struct WhtSplit<11> {
    static constexpr int first = 64, second = 32;
};

// The order whose two passes an outer block takes, and the points of a block in the last pass.
template <int order>
struct WhtOuter;
template <>
struct WhtOuter<12> {
    static constexpr int innerOrder = 8, last = 16;
};
template <>
struct WhtOuter<13> {
    static constexpr int innerOrder = 10, last = 8;
};

// All passes of an order. `Loops` is WhtBlockByBlock, or has the same three passes in another way.
template <int order, class Loops, class Element>
ZULG_INLINE void whtPasses(const Element* pSrc, Element* pDst, Element* pBuffer, typename Loops::Scale scale) {
    if constexpr (order <= 11) {
        using Split = WhtSplit<order>;
        Loops::template passOfNeighbours<Split::second, Split::first>(pSrc, pBuffer);
        Loops::template scaledPassAtStride<Split::first, Split::second>(pBuffer, pDst, scale);
    } else {
        using Outer = WhtOuter<order>;
        using Split = WhtSplit<Outer::innerOrder>;
        constexpr int elements = 1 << order, outerElements = 1 << Outer::innerOrder;
        static_assert(outerElements == whtScratchElements(order) && outerElements * Outer::last == elements);
        Element* const scratch = pBuffer + elements;
        for (int b = 0; b < elements; b += outerElements) {
            Loops::template passOfNeighbours<Split::second, Split::first>(pSrc + b, scratch);
            Loops::template passAtStride<Split::first, Split::second>(scratch, pBuffer + b);
        }
        Loops::template scaledPassAtStride<outerElements, Outer::last>(pBuffer, pDst, scale);
    }
}

}  // namespace zulg
