// Dynamic loading on Windows.
#include <cstdlib>

#include "boundary/shared_library.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

// A symbol of C begins with an underscore on 32-bit Windows only.
#ifdef _WIN64
#define IMPORTED(name) "__imp_" name
#else
#define IMPORTED(name) "__imp__" name
#endif

// The words of the import table. The name of an imported routine itself leads to a jump inside this library.
extern "C" {
extern decltype(&std::malloc) importedMalloc __asm__(IMPORTED("malloc"));
extern decltype(&std::calloc) importedCalloc __asm__(IMPORTED("calloc"));
extern decltype(&std::realloc) importedRealloc __asm__(IMPORTED("realloc"));
extern decltype(&std::free) importedFree __asm__(IMPORTED("free"));
}

namespace zulg {

SharedLibrary openCompanion() { return LoadLibraryA("libtmalloc.dll"); }

const void* findSymbol(SharedLibrary library, const char* name) {
    return reinterpret_cast<const void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void releaseLibrary(SharedLibrary library) { FreeLibrary(static_cast<HMODULE>(library)); }

AllocatorSlots runtimeRoutines() { return {importedMalloc, importedCalloc, importedRealloc, importedFree}; }

}  // namespace zulg
