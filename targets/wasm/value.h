// Numbers in WebAssembly: in a register of 128 bits, one double or two.
#pragma once

// The namespace of what is compiled for this target.
#define ZULG_TARGET wasm

#include "kernel/doubles.h"
#include "targets/wasm/in_lanes.h"

namespace zulg {
inline namespace ZULG_TARGET {

struct TargetNumbers : Doubles, DoublesInLanes {
    template <class Element>
    ZULG_INLINE static Value widened(const typename InMemory<Element>::Type& place) {
        return readOnce(place);
    }
};

}  // namespace ZULG_TARGET
}  // namespace zulg
