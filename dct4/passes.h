// The passes of a plan. Each switches on its record's kind before it does anything; a kind out of range is refused with
// StatusPlanKindError, which those who run a pass do not look at.
#pragma once

#include "dct4/lines.h"
#include "dct4/ports.h"
#include "dct4/radix.h"
#include "dct4/records.h"

namespace zulg {

// The first pass leaves its r skew transforms side by side, all r in one or, where splits make them, in groups of as
// many as a line holds, one group behind the other. A group is dense in memory: bodies come back to its lines for each
// of the group, and lines that stand apart by the width of a row would fall into a fraction of the cache.
constexpr bool isGrouped(const FoldStage& stage) { return stage.kind == splitFold; }

// First pass: the r skew transforms of length M, from x.
template <class Element>
Status firstPass(const FoldStage& stage, Element* transforms, const Element* x);

// Second pass: row by row, from the skew transforms to the result.
template <class Element>
Status secondPass(const OutputStage& stage, Element* y, const Element* transforms, bool grouped);

// Where a group of neighbouring sequences to be folded stands: as many as a line holds, the first of them from
// `forward` on and the others behind it, the mirror of the last of them from `mirrored` back and the others behind it.
template <class Element>
struct GroupSource {
    using Place = typename InMemory<Element>::Type;

    const Place* forward;
    const Place* mirrored;

    // The group `shift` further on.
    GroupSource next(std::ptrdiff_t shift) const { return {forward + shift, mirrored - shift}; }
};

// The bins of the first of a group: from one to the next are two lines, forward or back.
template <class Element>
using GroupBins = SkewBins<Element, std::ptrdiff_t, FixedStep<lineLength<Element>>>;

// The skew transforms of a group, by a SkewSplit, to the bins of the first of them and its neighbours; nothing for a
// split that is not active.
template <class Element>
Status runSplit(const SkewSplit& split, const GroupSource<Element>& from, const GroupBins<Element>& bins);

}  // namespace zulg
