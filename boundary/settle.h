// Slots that the load entry settles: where the loader of a platform does not know what a processor's level is, a
// library has a table of slots for each level.
#pragma once

#include <cstddef>
#include <cstdint>

#include "boundary/load_entry.h"
#include "levels.h"

namespace zulg {

// Copies the slots of a level to the table that the entries jump through, which is read-only before and after that.
// False if the system refuses to have it written.
bool settle(const void* slots, const void* slotsOfLevel, std::size_t bytes);

// The same at the time of loading, with the slots of the last level, where the processor has it. Where this is false,
// the library must not load.
inline bool settleAtLoad(std::uint32_t reason, const void* slots, const void* slotsOfLastLevel, std::size_t bytes) {
    return reason != processAttach || !processorHasLastLevel() || settle(slots, slotsOfLastLevel, bytes);
}

}  // namespace zulg
