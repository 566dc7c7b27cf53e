// Dynamic loading on Windows.
#include "boundary/shared_library.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace zulg {

SharedLibrary openCompanion() { return LoadLibraryA("libtmalloc.dll"); }

const void* findSymbol(SharedLibrary library, const char* name) {
    return reinterpret_cast<const void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void releaseLibrary(SharedLibrary library) { FreeLibrary(static_cast<HMODULE>(library)); }

}  // namespace zulg
