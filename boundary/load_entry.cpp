// The library's load entry. It starts the allocator hook and does nothing else: nothing in the library waits for an
// initializer to run, and nothing is undone when the library is unloaded.
#include "boundary/load_entry.h"

#include "boundary/allocator_hook.h"

extern "C" std::int32_t ZULG_CALL zulgLoadEntry(void*, std::uint32_t reason, void*) {
    if (reason == processAttach) zulg::allocatorHook.slots = zulg::trampolines;
    return 1;
}
