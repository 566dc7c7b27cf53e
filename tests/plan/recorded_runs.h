// Replaces the routine that runs a plan in the tests of plans. It records how it was called.
#pragma once

#include <cstddef>
#include <vector>

#include "dct4/records.h"

namespace test {

struct Run {
    const zulg::DctPlan* plan;
    const void* pSrc;
    void* pDst;
    std::size_t width;
};
inline std::vector<Run> runs;

}  // namespace test
