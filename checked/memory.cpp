#include "checked/memory.h"

#include <algorithm>
#include <mutex>
#include <thread>
#include <vector>

#include "checked/stop.h"

// Of the address sanitizer's run time, in programs that are built with it; null in all others. Tells the first byte of
// a region that is not to be accessed, or null.
extern "C" [[gnu::weak]] void* __asan_region_is_poisoned(void* first, std::size_t bytes);

namespace zulg::checked {
namespace {

struct InUse {
    Range range;
    const char* routine;
    std::thread::id thread;
};

std::mutex lock;
std::vector<InUse>& rangesInUse() {
    static auto& ranges = *new std::vector<InUse>;  // lives as long as any thread may call
    return ranges;
}

void expectAccessible(const char* routine, const Range& range) {
    if (__asan_region_is_poisoned == nullptr || range.bytes == 0) return;
    const void* const bad = __asan_region_is_poisoned(const_cast<void*>(range.first), range.bytes);
    if (bad == nullptr) return;
    stop(routine, "%s needs %zu bytes, and from byte %zu on they are not the program's", range.name, range.bytes,
         static_cast<std::size_t>(static_cast<const char*>(bad) - static_cast<const char*>(range.first)));
}

}  // namespace

Use::Use(const char* routine, std::span<const Range> ranges) : count(ranges.size()) {
    for (const Range& range : ranges) expectAccessible(routine, range);
    const auto self = std::this_thread::get_id();
    const std::scoped_lock guard(lock);
    for (const Range& range : ranges) {
        for (const InUse& other : rangesInUse()) {
            if (other.thread == self || !range.overlaps(other.range)) continue;
            if (range.isWritten || other.range.isWritten) {
                stop(routine, "%s is in use by another thread as %s of %s", range.name, other.range.name,
                     other.routine);
            }
        }
    }
    for (const Range& range : ranges) rangesInUse().push_back({range, routine, self});
}

Use::~Use() {
    const auto self = std::this_thread::get_id();
    const std::scoped_lock guard(lock);
    auto& all = rangesInUse();
    for (std::size_t i = 0; i < count; ++i) {
        const auto last = std::find_if(all.rbegin(), all.rend(), [&](const InUse& use) { return use.thread == self; });
        if (last != all.rend()) all.erase(std::next(last).base());
    }
}

void expectApart(const char* routine, const Range& a, const Range& b) {
    if (a.overlaps(b)) stop(routine, "%s overlaps %s", a.name, b.name);
}

}  // namespace zulg::checked
