#include "dct4/run.h"

#include "dct4/bodies/direct_16.h"
#include "dct4/bodies/direct_2.h"
#include "dct4/bodies/direct_32.h"
#include "dct4/bodies/direct_4.h"
#include "dct4/bodies/direct_8.h"
#include "dct4/fold.h"
#include "dct4/output.h"
#include "dct4/ports.h"

namespace zulg {
namespace {

template <int points, class Element>
void runDirect(const Element* pSrc, Element* pDst) {
    Dct4Direct<points>::run(DirectPorts<TargetNumbers, Element>{{}, pSrc, pDst});
}

}  // namespace

template <class Element>
void runPlan(const DctPlan& plan, const Element* pSrc, Element* pDst) {
    switch (plan.kind) {
        case PlanKind::Direct2: return runDirect<2>(pSrc, pDst);
        case PlanKind::Direct4: return runDirect<4>(pSrc, pDst);
        case PlanKind::Direct8: return runDirect<8>(pSrc, pDst);
        case PlanKind::Direct16: return runDirect<16>(pSrc, pDst);
        case PlanKind::Direct32: return runDirect<32>(pSrc, pDst);
        default: break;
    }
    Element* const transforms = static_cast<Element*>(plan.scratch.get());
    foldPass(firstOf<FoldStage>(plan.pre), transforms, pSrc);
    outputPass(firstOf<OutputStage>(plan.post), pDst, transforms);
}

template void runPlan<float>(const DctPlan&, const float*, float*);
template void runPlan<double>(const DctPlan&, const double*, double*);

}  // namespace zulg
