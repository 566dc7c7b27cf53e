// Slots that the load entry settles: where the loader of a platform does not know what a processor's level is, a
// library has a table of slots for each level.
#pragma once

#include <cstddef>

namespace zulg {

// Copies the slots of a level to the table that the entries jump through, which is read-only before and after that.
// False if the system refuses to have it written.
bool settle(const void* slots, const void* slotsOfLevel, std::size_t bytes);

}  // namespace zulg
