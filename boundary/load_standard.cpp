// Calls the load entry where neither the linker nor the system can be told its name: as an initializer, the only one of
// the library. No other static waits for one, since all others are constinit.
#include "boundary/load_entry.h"

namespace {

[[maybe_unused]] const std::int32_t loaded = zulgLoadEntry(nullptr, processAttach, nullptr);

}  // namespace
