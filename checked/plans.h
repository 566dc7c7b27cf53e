// The plans of the DCT-IV that there are: where each one's block is, and who built it.
#pragma once

#include <cstdint>
#include <optional>

#include "checked/memory.h"

namespace zulg::checked {

struct PlanRecord {
    const void* plan;
    Range block;
    std::int32_t length;
    bool isSingle;
    bool isOfCoreLibrary;  // built by InitAlloc
};

// A block that is used anew holds no older plan any more.
void rememberPlan(const PlanRecord& record);
void forgetPlan(const void* plan);
std::optional<PlanRecord> planAt(const void* plan);

}  // namespace zulg::checked
