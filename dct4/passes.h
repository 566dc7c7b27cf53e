// The passes of a plan. Each switches on its record's kind before it does anything; a kind out of range is refused with
// StatusPlanKindError, which those who run a pass do not look at.
#pragma once

#include "dct4/ports.h"
#include "dct4/records.h"

namespace zulg {

// First pass: the r skew transforms of length M, from x into the layout of r transforms.
template <class Element>
Status firstPass(const FoldStage& stage, Element* transforms, const Element* x);

// Second pass: row by row, from the layout of r transforms to the result.
template <class Element>
Status secondPass(const OutputStage& stage, Element* y, const Element* transforms);

// Where a group of neighbouring sequences to be folded stands: as many as a line holds, the first of them from
// `forward` on and the others behind it, the mirror of the last of them from `mirrored` back and the others behind it.
template <class Element>
struct GroupSource {
    using Place = typename InMemory<Element>::Type;

    const Place* forward;
    const Place* mirrored;
};

// The skew transforms of a group, by a SkewSplit, to the bins of the first of them and its neighbours; nothing for a
// split that is not active.
template <class Element>
Status runSplit(const SkewSplit& split, const GroupSource<Element>& from, const SkewBins<Element>& bins);

}  // namespace zulg
