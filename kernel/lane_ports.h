// Ports of texts that hold several numbers in a register. `Numbers` says how such a register is read and stored: the
// target's header value.h gives it.
#pragma once

#include "kernel/lanes.h"
#include "kernel/ports.h"

namespace zulg {

// Of complex arrays the slots are those of CCS, element k in the place of bin k. With `exchanged` registers the parts
// of every element are exchanged on both sides, which makes a forward text the inverse one. A text uses the ports of
// its family: in and out for real numbers, the others for complex ones.
template <class Numbers, class Element, Layout layout, int length, bool exchanged, bool isRealForward>
struct LanePorts : Arrays<Numbers, Element> {
    using Value = Lanes<Numbers, 1, exchanged>;
    using Pair = Lanes<Numbers, 2, exchanged>;
    using Lines = Lanes<Numbers, 4, exchanged>;
    using Slot = Slots<layout, length>;
    template <class Graph>
    using Constants = typename Numbers::template LaneConstants<Graph>;

    // Real numbers from anywhere in the array, one for each lane.
    ZULG_INLINE Value in(int n) const { return Value(this->load(n)); }
    ZULG_INLINE Pair in(int a, int b) const { return Pair(Numbers::template reals<Element>(this->source, a, b)); }
    ZULG_INLINE Lines in(int a, int b, int c, int d) const {
        return Lines(Numbers::template reals<Element, length>(this->source, a, b, c, d));
    }

    template <class Register>
    ZULG_INLINE void out(int n, Register value) const {
        this->destination[n] = Numbers::template rounded<Element>(scaled(value));
    }
    template <class Register>
    ZULG_INLINE void out(int a, int b, Register value) const {
        Numbers::template storeReals<Element>(this->destination, a, b, scaled(value));
    }
    template <class Register>
    ZULG_INLINE void out(int a, int b, int c, int d, Register value) const {
        Numbers::template storeReals<Element>(this->destination, a, b, c, d, scaled(value));
    }

    // Real bins, and complex numbers, one or two of these.
    ZULG_INLINE Value re(int k) const { return in(Slot::re(k)); }
    ZULG_INLINE Pair pair(int k) const { return Pair(Numbers::template pair<Element>(this->source + Slot::re(k))); }
    ZULG_INLINE Lines pairs(int k, int l) const {
        return Lines(
            Numbers::template pairs<Element>(this->source + Slot::re(k), this->source + Slot::re(l), l - k == 1));
    }

    template <class Register>
    ZULG_INLINE void re(int k, Register value) const {
        out(Slot::re(k), value);
    }
    template <class Register>
    ZULG_INLINE void pair(int k, Register value) const {
        Numbers::template store<Element>(this->destination + Slot::re(k), scaled(value));
    }
    template <class Register>
    ZULG_INLINE void pairs(int k, int l, Register value) const {
        Numbers::template store<Element>(this->destination + Slot::re(k), this->destination + Slot::re(l), l - k == 1,
                                         scaled(value));
    }

    ZULG_INLINE void finish() const {
        if constexpr (isRealForward) storeImaginaryZeros<layout, length, Element>(this->destination);
    }

private:
    // Registers are multiplied by `scale` as a whole and rounded once, at the store. Where lanes hold minus their
    // results, the scale has the minus.
    template <class Register>
    ZULG_INLINE auto scaled(Register value) const {
        return value.vector * this->scale;
    }
    template <class Register, int... isMinus>
    ZULG_INLINE auto scaled(Negated<Register, isMinus...> value) const {
        return value.of.vector * flipped<isMinus...>(Register(this->scale)).vector;
    }
};

}  // namespace zulg
