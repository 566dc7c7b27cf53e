// Our library as any program can reach it: by path and exported name. Several builds of it can take part in one run,
// each with a name of its own.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "include/zulgenpx.h"

namespace bench {

struct Library {
    std::string name;  // of its participants
    void* handle;
    void* batchHandle;  // the batch library beside it, or null

    void* address(const std::string& exportedName) const;  // null if there is none
    void* batchAddress(const std::string& exportedName) const;
    template <class Routine>
    Routine routine(const std::string& exportedName) const {
        return reinterpret_cast<Routine>(address(exportedName));
    }
};

// Ends the program if there is none.
Library openLibrary(const std::string& name, const std::string& path);

// All that take part; the first is that of this build. Filled before contests are made.
std::vector<Library>& libraries();

// Whether the other libraries take part, too.
bool& peersTakePart();

template <class Element>
using Kernel = ZulgStatus(ZULG_CALL*)(const Element*, Element*, std::int32_t flag);
template <class Element>
using Dispatcher = ZulgStatus(ZULG_CALL*)(const Element*, Element*, std::int32_t length, std::int32_t flag);
template <class Element>
using Batch = ZulgStatus (*)(const Element*, std::int64_t step, std::int64_t distance, Element*, std::int64_t dstStep,
                             std::int64_t dstDistance, std::int32_t length, std::int32_t flag, std::int64_t count);
template <class Element>
using BufferedKernel = ZulgStatus(ZULG_CALL*)(const Element*, Element*, std::int32_t flag, void* buffer);
using SizeQuery = ZulgStatus(ZULG_CALL*)(std::int32_t order, std::int32_t* pSize);
using PlanInit = ZulgStatus(ZULG_CALL*)(void** pPlan, std::int32_t length);
template <class Element>
using PlanRun = ZulgStatus(ZULG_CALL*)(const Element*, Element*, void* plan);

}  // namespace bench
