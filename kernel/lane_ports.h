// Ports of texts that hold complex numbers in lanes. `Numbers` says how such a register is read and stored: the
// target's header value.h gives it.
#pragma once

#include "kernel/lanes.h"
#include "kernel/ports.h"

namespace zulg {

template <class Numbers, class Element, bool exchanged>
struct LaneArrays {
    using Place = typename InMemory<Element>::Type;
    using Value = Lanes<Numbers, 1, exchanged>;
    using Pair = Lanes<Numbers, 2, exchanged>;
    using Lines = Lanes<Numbers, 4, exchanged>;
    template <class Graph>
    using Constants = typename Numbers::template LaneConstants<Graph>;

    const Place* source;
    Place* destination;
    double scale;

    // Registers are multiplied by `scale` as a whole and rounded once, at the store. Where lanes hold minus their
    // results, the scale has the minus.
    template <class Register>
    ZULG_INLINE auto scaled(Register value) const {
        return value.vector * scale;
    }
    template <class Register, int... isMinus>
    ZULG_INLINE auto scaled(Negated<Register, isMinus...> value) const {
        return value.of.vector * flipped<isMinus...>(Register(scale)).vector;
    }

    ZULG_INLINE Value load(int place) const { return Value(Numbers::template widened<Element>(source[place])); }
    template <class Register>
    ZULG_INLINE void store(int place, Register value) const {
        destination[place] = Numbers::template rounded<Element>(scaled(value));
    }

    ZULG_INLINE Pair loadPair(int place) const { return Pair(Numbers::template pair<Element>(source + place)); }
    template <class Register>
    ZULG_INLINE void storePair(int place, Register value) const {
        Numbers::template store<Element>(destination + place, scaled(value));
    }

    ZULG_INLINE Lines loadPairs(int low, int high) const {
        return Lines(Numbers::template pairs<Element>(source + low, source + high, high - low == 2));
    }
    template <class Register>
    ZULG_INLINE void storePairs(int low, int high, Register value) const {
        Numbers::template store<Element>(destination + low, destination + high, high - low == 2, scaled(value));
    }

    // Real numbers from anywhere in an array of so many, one for each lane.
    template <int length>
    ZULG_INLINE Pair loadReals(int a, int b) const {
        return Pair(Numbers::template reals<Element>(source, a, b));
    }
    template <int length>
    ZULG_INLINE Lines loadReals(int a, int b, int c, int d) const {
        return Lines(Numbers::template reals<Element, length>(source, a, b, c, d));
    }
    template <class Register>
    ZULG_INLINE void storeReals(int a, int b, Register value) const {
        Numbers::template storeReals<Element>(destination, a, b, scaled(value));
    }
    template <class Register>
    ZULG_INLINE void storeReals(int a, int b, int c, int d, Register value) const {
        Numbers::template storeReals<Element>(destination, a, b, c, d, scaled(value));
    }

    ZULG_INLINE void finish() const {}
};

// Complex to complex, or, with exchanged registers, the inverse: the forward text with the parts of every element
// exchanged on both sides.
template <class Numbers, class Element, bool exchanged>
struct LanePorts : LaneArrays<Numbers, Element, exchanged> {
    using Base = LaneArrays<Numbers, Element, exchanged>;
    using typename Base::Lines, typename Base::Pair;

    ZULG_INLINE Pair pair(int n) const { return this->loadPair(2 * n); }
    template <class Register>
    ZULG_INLINE void pair(int k, Register value) const {
        this->storePair(2 * k, value);
    }
    ZULG_INLINE Lines pairs(int n, int m) const { return this->loadPairs(2 * n, 2 * m); }
    template <class Register>
    ZULG_INLINE void pairs(int k, int l, Register value) const {
        this->storePairs(2 * k, 2 * l, value);
    }
};

// Real values to half spectrum.
template <class Numbers, class Element, Layout layout, int length>
struct RealForwardLanePorts : LaneArrays<Numbers, Element, false> {
    using Base = LaneArrays<Numbers, Element, false>;
    using typename Base::Lines, typename Base::Pair, typename Base::Value;
    using Slot = Slots<layout, length>;

    ZULG_INLINE Value in(int n) const { return this->load(n); }
    template <class... Number>
    ZULG_INLINE auto in(int n, Number... others) const {
        return this->template loadReals<length>(n, others...);
    }
    template <class Register>
    ZULG_INLINE void re(int k, Register value) const {
        this->store(Slot::re(k), value);
    }
    template <class Register>
    ZULG_INLINE void im(int k, Register value) const {
        this->store(Slot::im(k), value);
    }
    template <class Register>
    ZULG_INLINE void pair(int k, Register value) const {
        this->storePair(Slot::re(k), value);
    }
    template <class Register>
    ZULG_INLINE void pairs(int k, int l, Register value) const {
        this->storePairs(Slot::re(k), Slot::re(l), value);
    }
    ZULG_INLINE void finish() const { storeImaginaryZeros<layout, length, Element>(this->destination); }
};

// Half spectrum to real values.
template <class Numbers, class Element, Layout layout, int length>
struct RealInverseLanePorts : LaneArrays<Numbers, Element, false> {
    using Base = LaneArrays<Numbers, Element, false>;
    using typename Base::Lines, typename Base::Pair, typename Base::Value;
    using Slot = Slots<layout, length>;

    ZULG_INLINE Value re(int k) const { return this->load(Slot::re(k)); }
    ZULG_INLINE Value im(int k) const { return this->load(Slot::im(k)); }
    ZULG_INLINE Pair pair(int k) const { return this->loadPair(Slot::re(k)); }
    ZULG_INLINE Lines pairs(int k, int l) const { return this->loadPairs(Slot::re(k), Slot::re(l)); }
    template <class Register>
    ZULG_INLINE void out(int n, Register value) const {
        this->store(n, value);
    }
    template <class Register>
    ZULG_INLINE void out(int n, int m, Register value) const {
        this->storeReals(n, m, value);
    }
    template <class Register>
    ZULG_INLINE void out(int a, int b, int c, int d, Register value) const {
        this->storeReals(a, b, c, d, value);
    }
};

// Real values to real values.
template <class Numbers, class Element, int length>
struct RealLanePorts : LaneArrays<Numbers, Element, false> {
    using Base = LaneArrays<Numbers, Element, false>;
    using typename Base::Lines, typename Base::Pair, typename Base::Value;

    ZULG_INLINE Value in(int n) const { return this->load(n); }
    template <class... Number>
    ZULG_INLINE auto in(int n, Number... others) const {
        return this->template loadReals<length>(n, others...);
    }
    template <class Register>
    ZULG_INLINE void out(int n, Register value) const {
        this->store(n, value);
    }
    template <class Register>
    ZULG_INLINE void out(int n, int m, Register value) const {
        this->storeReals(n, m, value);
    }
    template <class Register>
    ZULG_INLINE void out(int a, int b, int c, int d, Register value) const {
        this->storeReals(a, b, c, d, value);
    }
};

}  // namespace zulg
