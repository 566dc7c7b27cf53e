// The fold passes of a plan: each takes several folded sequences out of the source and leaves their skew transforms
// side by side.
#pragma once

#include "dct4/ports.h"
#include "dct4/records.h"

namespace zulg {

// Where a folded sequence is in the source: its first half rises from one place, its second half is read with its sign
// turned and falls, counted from the place that mirrors the first.
template <class Element>
struct FoldSource {
    using Place = typename InMemory<Element>::Type;

    const Place* forward;
    const Place* mirrored;

    // The sequence that begins `shift` elements later.
    ZULG_INLINE FoldSource next(std::ptrdiff_t shift) const { return {forward + shift, mirrored - shift}; }
};

// The pass of a whole transform: r sequences of M values, from x to T. A `kind` out of range is refused with
// StatusPlanKindError, which nobody looks at, and leaves T as it is.
template <class Element>
Status foldPass(const FoldStage& stage, Element* transforms, const Element* x);

// The pass of a split: r' sequences of M' values, every r'-th value of one longer sequence each, from the source to S.
// A `kind` out of range leaves S as it is.
template <class Element>
Status foldPass(const FoldStep& step, Element* transforms, const FoldSource<Element>& from);

}  // namespace zulg
