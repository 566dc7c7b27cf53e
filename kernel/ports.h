// Ports: how a graph reads its inputs and stores its outputs. A graph knows neither arrays nor widths; seen through
// another pair of ports it is another kernel.
//
// `Numbers` says what a kernel computes with and how an element becomes such a number and such a number an element: the
// target's header value.h gives it. Every output is multiplied by `scale` before it is rounded, once, at the store.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>

#include "kernel/in_memory.h"
#include "kernel/platform.h"

namespace zulg {

template <class Numbers, class Element>
struct Arrays {
    using Value = typename Numbers::Value;
    template <class Graph>
    using Constants = typename Numbers::template Constants<Graph>;

    PlacesToRead<Element> source;
    PlacesToWrite<Element> destination;
    Value scale;

    ZULG_INLINE Value load(int place) const { return Numbers::template widened<Element>(source[place]); }
    ZULG_INLINE void store(int place, Value value) const {
        destination[place] = Numbers::template rounded<Element>(value * scale);
    }

    // Where a graph holds minus a result, the sign is turned after the scale: minus a zero is a negative zero.
    ZULG_INLINE void storeMinus(int place, Value value) const {
        destination[place] = Numbers::template rounded<Element>(-(value * scale));
    }

    // After the last step of the graph.
    ZULG_INLINE void finish() const {}
};

// Complex to complex: real part first.
template <class Numbers, class Element>
struct ComplexPorts : Arrays<Numbers, Element> {
    using Value = typename Numbers::Value;

    ZULG_INLINE Value re(int n) const { return this->load(2 * n); }
    ZULG_INLINE Value im(int n) const { return this->load(2 * n + 1); }
    ZULG_INLINE void re(int k, Value value) const { this->store(2 * k, value); }
    ZULG_INLINE void im(int k, Value value) const { this->store(2 * k + 1, value); }
};

// The inverse: the forward graph with the parts of every element exchanged on both sides, since the inverse transform
// of x is the forward one of the exchanged x, exchanged.
template <class Numbers, class Element>
struct ExchangedPorts : Arrays<Numbers, Element> {
    using Value = typename Numbers::Value;

    ZULG_INLINE Value re(int n) const { return this->load(2 * n + 1); }
    ZULG_INLINE Value im(int n) const { return this->load(2 * n); }
    ZULG_INLINE void re(int k, Value value) const { this->store(2 * k + 1, value); }
    ZULG_INLINE void im(int k, Value value) const { this->store(2 * k, value); }
};

// Real values to real values.
template <class Numbers, class Element>
struct RealPorts : Arrays<Numbers, Element> {
    using Value = typename Numbers::Value;

    ZULG_INLINE Value in(int n) const { return this->load(n); }
    ZULG_INLINE void out(int k, Value value) const { this->store(k, value); }
};

// The three layouts of a half spectrum, as the slots of the parts of bin k, 0 <= k <= length/2.
//
//     length 4   CCS   R0 0 R1 I1 R2 0      Pack  R0 R1 I1 R2      Perm  R0 R2 R1 I1
//     length 5   CCS   R0 0 R1 I1 R2 I2     Pack  R0 R1 I1 R2 I2   Perm  the same
enum class Layout { CCS, Pack, Perm };

ZULG_INLINE constexpr int slotOfRe(Layout layout, int length, int k) {
    if (layout == Layout::CCS || k == 0) return 2 * k;
    if (layout == Layout::Perm && length % 2 == 0) return 2 * k == length ? 1 : 2 * k;
    return 2 * k - 1;
}

template <Layout layout, int length>
struct Slots {
    ZULG_INLINE static constexpr int re(int k) { return slotOfRe(layout, length, k); }
    ZULG_INLINE static constexpr int im(int k) { return re(k) + 1; }
};

// CCS keeps the imaginary parts of the real bins, always +0.0. They are no results: stored as integers, so that they
// take no floating-point register and leave the rest of the kernel as it is in the other layouts. Word by word: a zero
// of eight bytes would claim space in the frame on 32-bit targets.
template <Layout layout, int length, class Element>
ZULG_INLINE void storeImaginaryZeros(PlacesToWrite<Element> bins) {
    if constexpr (layout == Layout::CCS) {
        for (int slot : {1, length + 1}) {
            if (slot > 1 && length % 2 != 0) continue;
            const std::uint32_t zero = 0;
            auto* const bytes = reinterpret_cast<char*>(&bins[slot]);
            for (std::size_t i = 0; i < sizeof(Element); i += sizeof zero) std::memcpy(bytes + i, &zero, sizeof zero);
        }
    }
}

// Real values to half spectrum.
template <class Numbers, class Element, Layout layout, int length>
struct RealForwardPorts : Arrays<Numbers, Element> {
    using Value = typename Numbers::Value;
    using Slot = Slots<layout, length>;

    ZULG_INLINE Value in(int n) const { return this->load(n); }
    ZULG_INLINE void re(int k, Value value) const { this->store(Slot::re(k), value); }
    ZULG_INLINE void im(int k, Value value) const { this->store(Slot::im(k), value); }
    ZULG_INLINE void minusRe(int k, Value value) const { this->storeMinus(Slot::re(k), value); }
    ZULG_INLINE void minusIm(int k, Value value) const { this->storeMinus(Slot::im(k), value); }

    ZULG_INLINE void finish() const { storeImaginaryZeros<layout, length, Element>(this->destination); }
};

// The 2 of the doubled bins, stored in the width of the element. Only kernel/two.cpp knows its value: a compiler that
// knew it would form x + x in place of the product.
template <class Element>
struct ZULG_HIDDEN Stored {
    static const Element two;
};
extern template struct Stored<float>;
extern template struct Stored<double>;

// Half spectrum to real values. The imaginary parts of the real bins, which CCS has slots for, are never read.
template <class Numbers, class Element, Layout layout, int length>
struct RealInversePorts : Arrays<Numbers, Element> {
    using Value = typename Numbers::Value;
    using Slot = Slots<layout, length>;

    ZULG_INLINE static Value two() { return Numbers::template widened<Element>(Stored<Element>::two); }
    ZULG_INLINE Value re(int k) const { return this->load(Slot::re(k)); }
    ZULG_INLINE Value im(int k) const { return this->load(Slot::im(k)); }
    ZULG_INLINE void out(int n, Value value) const { this->store(n, value); }
};

}  // namespace zulg
