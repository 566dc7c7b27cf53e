// Numbers of a text held in one double each. A target's own header says what is special there.
#pragma once

#include "kernel/in_memory.h"
#include "kernel/platform.h"

namespace zulg {

struct Doubles {
    using Value = double;

    // An element is widened when it is read. A value is rounded to the element once, when it is stored.
    template <class Element>
    ZULG_INLINE static Value widened(const typename InMemory<Element>::Type& place) {
        return place;
    }
    template <class Element>
    ZULG_INLINE static Element rounded(Value value) {
        return static_cast<Element>(value);
    }

    template <class Graph>
    struct Constants {
        ZULG_INLINE constexpr Value operator[](int i) const { return Graph::constants[i]; }
    };

    // The same in the width of an element.
    template <class Graph, class Element>
    struct RoundedConstants {
        ZULG_INLINE constexpr Value operator[](int i) const { return static_cast<Element>(Graph::constants[i]); }
    };
};

}  // namespace zulg
