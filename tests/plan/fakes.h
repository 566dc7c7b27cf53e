// Fakes of the core library's allocator and of the routine that runs a plan, linked into the tests of plans only. Both
// record how they were called.
#pragma once

#include <cstdint>
#include <vector>

#include "dct4/records.h"

namespace test {

struct CoreCalls {
    std::vector<std::uint32_t> asked;  // bytes of each zulMalloc
    std::vector<void*> given;          // its results
    std::vector<void*> freed;          // what zulFree was given
    std::uintptr_t cursorAtFree = 0;   // the first word of the block freed last
    bool refusing = false;
};
inline CoreCalls core;

struct Run {
    const zulg::DctPlan* plan;
    const void* pSrc;
    void* pDst;
    std::size_t width;
};
inline std::vector<Run> runs;

}  // namespace test
