// Runs a finished plan.
#pragma once

#include "dct4/records.h"

namespace zulg {

// The plan's kind must be one of the six. A run writes the plan's scratch vectors and changes nothing else in the plan.
template <class Element>
void runPlan(const DctPlan& plan, const Element* pSrc, Element* pDst);

}  // namespace zulg
