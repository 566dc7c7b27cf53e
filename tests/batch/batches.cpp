#include "tests/batch/batches.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

namespace test {

void* batchAddress(const std::string& name) {
    const char* const other = std::getenv("ZULG_TEST_BATCH_LIBRARY");  // one level by itself: tests/levels
    static void* const library = dlopen(other != nullptr ? other : ZULG_BATCH_LIBRARY, RTLD_NOW);
    if (library == nullptr) return std::puts(dlerror()), std::exit(1), nullptr;
    void* const address = dlsym(library, name.c_str());
    if (address == nullptr) std::printf("%s is not exported\n", name.c_str()), std::exit(1);
    return address;
}

}  // namespace test
