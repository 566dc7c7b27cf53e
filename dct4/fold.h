// The fold passes of a plan: each takes several folded sequences out of the source and leaves their skew transforms
// side by side.
#pragma once

#include "dct4/ports.h"
#include "dct4/records.h"

namespace zulg {

// Where a folded sequence of M values is in the source. With i the distance between its values, value s is
// forward[i s] in the first half and -mirrored[-i s] in the second half. The body changes that sign.
template <class Element>
struct FoldSource {
    PlacesToRead<Element> forward;
    PlacesToRead<Element> mirrored;

    // The sequence that begins `shift` elements later.
    ZULG_INLINE FoldSource next(std::ptrdiff_t shift) const { return {forward + shift, mirrored - shift}; }
};

// The pass of a whole transform: r sequences of M values, from x to T. A `kind` out of range returns
// StatusPlanKindError, which the callers ignore, and leaves T unchanged.
template <class Element>
Status foldPass(const FoldStage& stage, Element* transforms, const Element* x);

// The pass of a split: r' sequences of M' values, from the source to S. Each has every r'-th value of one longer
// sequence. A `kind` out of range leaves S unchanged.
template <class Element>
Status foldPass(const FoldStep& step, Element* transforms, const FoldSource<Element>& from);

}  // namespace zulg
