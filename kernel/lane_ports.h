// Ports of texts that hold complex numbers in lanes. `Numbers` says how such a register is read and stored: the
// target's header value.h gives it.
#pragma once

#include "kernel/doubles.h"
#include "kernel/in_memory.h"
#include "kernel/lanes.h"

namespace zulg {

template <class Numbers, class Element>
struct LaneArrays {
    using Place = typename InMemory<Element>::Type;

    const Place* source;
    Place* destination;
    double scale;
};

// Complex to complex, or, with exchanged registers, the inverse: the forward text with the parts of every element
// exchanged on both sides. Registers are multiplied by `scale` as a whole and rounded once, at the store.
template <class Numbers, class Element, bool exchanged>
struct LanePorts : LaneArrays<Numbers, Element> {
    using Value = Lanes<Numbers, 1, exchanged>;
    using Pair = Lanes<Numbers, 2, exchanged>;
    using Lines = Lanes<Numbers, 4, exchanged>;
    template <class Graph>
    using Constants = typename Numbers::template LaneConstants<Graph>;

    ZULG_INLINE Pair pair(int n) const { return Pair(Numbers::template pair<Element>(this->source + 2 * n)); }
    ZULG_INLINE void pair(int k, Pair value) const {
        Numbers::template store<Element>(this->destination + 2 * k, value.vector * this->scale);
    }

    ZULG_INLINE Lines pairs(int n, int m) const {
        return Lines(Numbers::template pairs<Element>(this->source + 2 * n, this->source + 2 * m, m - n == 1));
    }
    ZULG_INLINE void pairs(int k, int l, Lines value) const {
        Numbers::template store<Element>(this->destination + 2 * k, this->destination + 2 * l, l - k == 1,
                                         value.vector * this->scale);
    }

    ZULG_INLINE void finish() const {}
};

}  // namespace zulg
