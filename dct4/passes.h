// The passes of a plan. Each switches once on its record's kind and then runs its loop; a kind out of range is refused
// with StatusPlanKindError, which those who run a pass do not look at.
#pragma once

#include "dct4/records.h"

namespace zulg {

// First pass: the r skew transforms of length M, from x into the layout of r transforms.
template <class Element>
Status firstPass(const FoldStage& stage, Element* transforms, const Element* x);

// Second pass: row by row, from the layout of r transforms to the result.
template <class Element>
Status secondPass(const OutputStage& stage, Element* y, const Element* transforms);

// The same two for one skew transform of a SkewSplit. `position` and `mirrorOffset` tell which one: its values stand at
// position + ..., and their mirrors at position + mirrorOffset - ...; it becomes number `position` of the destination.
template <class Element>
Status splitFirstPass(const FoldStep& step, Element* parts, const Element* x, std::int32_t position,
                      std::int32_t mirrorOffset);
template <class Element>
Status splitSecondPass(const CombineStage& stage, Element* destination, const Element* parts, std::int32_t position);

// Both for a SkewSplit that is active; nothing for one that is not.
template <class Element>
void runSplit(const SkewSplit& split, Element* destination, const Element* x, std::int32_t position,
              std::int32_t foldPosition, std::int32_t mirrorOffset);

}  // namespace zulg
