#include "dct4/in_lanes.h"
#include "dct4/run.h"

namespace zulg {
inline namespace ZULG_TARGET {

template <class Element>
Status ZULG_CALL dct4InLanes(const Element* pSrc, Element* pDst, DctPlan* plan) {
    if (pSrc == nullptr || pDst == nullptr || plan == nullptr) return StatusNullPointer;
    if (!isKnown(plan->kind)) return StatusPlanKindError;
    const bool isPowerOfTwo = (plan->length & (plan->length - 1)) == 0;
    if (plan->kind == PlanKind::Composite && isPowerOfTwo) {
        Element* const transforms = static_cast<Element*>(plan->scratch.get());
        foldPassInLanes(firstOf<FoldStage>(plan->pre), transforms, pSrc);
        outputPassInLanes(firstOf<OutputStage>(plan->post), pDst, transforms);
    } else {
        runPlan<Element>(*plan, pSrc, pDst);
    }
    return StatusOk;
}

template Status ZULG_CALL dct4InLanes<float>(const float*, float*, DctPlan*);
template Status ZULG_CALL dct4InLanes<double>(const double*, double*, DctPlan*);

}  // namespace ZULG_TARGET
}  // namespace zulg
