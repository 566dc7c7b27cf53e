// The loop that both first passes share: `count` skew transforms of one length, one after the other.
#pragma once

#include "dct4/bodies/fold_16.h"
#include "dct4/bodies/fold_2.h"
#include "dct4/bodies/fold_32.h"
#include "dct4/bodies/fold_4.h"
#include "dct4/bodies/fold_64.h"
#include "dct4/bodies/fold_8.h"
#include "dct4/ports.h"
#include "frame/kernel.h"

namespace zulg {

// Where the folded sequences stand. Sequence c goes forward from forward + shift c in steps of `step`, and its mirrored
// part back from mirrored - shift c.
template <class Element>
struct FoldedSequences {
    const Element* forward;
    const Element* mirrored;
    std::ptrdiff_t shift, step;
};

template <int points, class Element>
Status foldAll(const FoldedSequences<Element>& from, Element* transforms, std::int32_t count) {
    for (std::ptrdiff_t c = 0; c < count; ++c) {
        Dct4Fold<points>::run(FoldPorts<Element, points>{
            {}, from.forward + from.shift * c, from.mirrored - from.shift * c, from.step, {transforms + c, count}});
    }
    return StatusOk;
}

// By the kind of a FoldStage or FoldStep, 1 to 6.
template <class Element>
Status foldByKind(std::int32_t kind, const FoldedSequences<Element>& from, Element* transforms, std::int32_t count) {
    switch (kind) {
        case 1: return foldAll<2>(from, transforms, count);
        case 2: return foldAll<4>(from, transforms, count);
        case 3: return foldAll<8>(from, transforms, count);
        case 4: return foldAll<16>(from, transforms, count);
        case 5: return foldAll<32>(from, transforms, count);
        case 6: return foldAll<64>(from, transforms, count);
        default: return StatusPlanKindError;
    }
}

}  // namespace zulg
