// The DCT-IV in registers of several lanes: the passes of a plan over as many neighbouring sequences, or rows, as a
// register has lanes. The scratch vectors of the plan end with what one sequence after the other leaves in them.
#pragma once

#include "dct4/dct4.h"
#include "dct4/records.h"

namespace zulg {
inline namespace ZULG_TARGET {

template <class Element>
Status ZULG_CALL dct4InLanes(const Element* pSrc, Element* pDst, DctPlan* plan);

// The passes of a composite plan whose length is a power of two. Its radix is then a multiple of 8, and so are the rows
// of a second pass or at least a multiple of 4.
template <class Element>
void foldPassInLanes(const FoldStage& stage, Element* transforms, const Element* x);
template <class Element>
void outputPassInLanes(const OutputStage& stage, Element* y, const Element* transforms);

}  // namespace ZULG_TARGET
}  // namespace zulg
