// Dynamic loading of ELF platforms.
#include <dlfcn.h>

#include <cstdlib>

#include "boundary/shared_library.h"

namespace zulg {

// A companion that lacks something of its own is refused here, and not when it is first called.
SharedLibrary openCompanion() { return dlopen("libtmalloc.so", RTLD_NOW | RTLD_LOCAL); }

const void* findSymbol(SharedLibrary library, const char* name) { return dlsym(library, name); }

void releaseLibrary(SharedLibrary library) { dlclose(library); }

// The table is constant by its declaration: on AArch64 the compiler puts one of its own making into writable memory.
AllocatorSlots runtimeRoutines() {
    static constexpr AllocatorSlots routines = {std::malloc, std::calloc, std::realloc, std::free};
    return routines;
}

}  // namespace zulg
