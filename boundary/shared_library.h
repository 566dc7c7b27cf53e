// Dynamic loading as the platform offers it, the name of the allocator's companion on it, and the allocation routines
// of the language's runtime. Used by the allocator hook alone; one source for each platform.
#pragma once

#include "boundary/allocator_hook.h"

namespace zulg {

using SharedLibrary = void*;

SharedLibrary openCompanion();  // null if there is none
const void* findSymbol(SharedLibrary library, const char* name);
void releaseLibrary(SharedLibrary library);

// malloc, calloc, realloc and free at the addresses that the loader gives for them.
AllocatorSlots runtimeRoutines();

}  // namespace zulg
