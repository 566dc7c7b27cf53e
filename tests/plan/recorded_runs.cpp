#include "tests/plan/recorded_runs.h"

#include "dct4/run.h"

namespace zulg {

template <class Element>
void runPlan(const DctPlan& plan, const Element* pSrc, Element* pDst) {
    test::runs.push_back({&plan, pSrc, pDst, sizeof(Element)});
}
template void runPlan<float>(const DctPlan&, const float*, float*);
template void runPlan<double>(const DctPlan&, const double*, double*);

}  // namespace zulg
