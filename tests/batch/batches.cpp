#include "tests/batch/batches.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include <cstdio>
#include <cstdlib>

namespace test {

void* batchAddress(const std::string& name) {
    const char* const other = std::getenv("ZULG_TEST_BATCH_LIBRARY");  // one level by itself: tests/levels
    static const char* const path = other != nullptr ? other : ZULG_BATCH_LIBRARY;
#ifdef _WIN32
    static const HMODULE library = LoadLibraryA(path);
    if (library == nullptr) return std::printf("%s does not load\n", path), std::exit(1), nullptr;
    void* const address = reinterpret_cast<void*>(GetProcAddress(library, name.c_str()));
#else
    static void* const library = dlopen(path, RTLD_NOW);
    if (library == nullptr) return std::puts(dlerror()), std::exit(1), nullptr;
    void* const address = dlsym(library, name.c_str());
#endif
    if (address == nullptr) std::printf("%s is not exported\n", name.c_str()), std::exit(1);
    return address;
}

}  // namespace test
