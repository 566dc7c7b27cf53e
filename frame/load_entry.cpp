// The library's load entry on Windows, in place of the stock start files: loading does no work, and nothing here or
// elsewhere in the library waits for an initializer to run.
#include <cstdint>

#include "frame/platform.h"

extern "C" std::int32_t ZULG_CALL zulgLoadEntry(void*, std::uint32_t, void*) { return 1; }
