#include "checked/plans.h"

#include <mutex>
#include <vector>

namespace zulg::checked {
namespace {

std::mutex lock;
std::vector<PlanRecord>& records() {
    static auto& all = *new std::vector<PlanRecord>;  // lives as long as any thread may call
    return all;
}

}  // namespace

void rememberPlan(const PlanRecord& record) {
    const std::scoped_lock guard(lock);
    std::erase_if(records(), [&](const PlanRecord& other) { return other.block.overlaps(record.block); });
    records().push_back(record);
}

void forgetPlan(const void* plan) {
    const std::scoped_lock guard(lock);
    std::erase_if(records(), [&](const PlanRecord& record) { return record.plan == plan; });
}

std::optional<PlanRecord> planAt(const void* plan) {
    const std::scoped_lock guard(lock);
    for (const PlanRecord& record : records()) {
        if (record.plan == plan) return record;
    }
    return std::nullopt;
}

}  // namespace zulg::checked
