#include "benchmarks/library.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

void* Library::address(const std::string& exportedName) const { return dlsym(handle, exportedName.c_str()); }

void* Library::batchAddress(const std::string& exportedName) const {
    return batchHandle == nullptr ? nullptr : dlsym(batchHandle, exportedName.c_str());
}

std::vector<Library>& libraries() {
    static std::vector<Library> all;
    return all;
}

bool& peersTakePart() {
    static bool takePart = true;
    return takePart;
}

Library openLibrary(const std::string& name, const std::string& path) {
    void* const handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) std::fprintf(stderr, "%s\n", dlerror()), std::exit(1);
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    return {name, handle, dlopen((folder + "libzulgenpx-batch-7.0.so").c_str(), RTLD_NOW | RTLD_LOCAL)};
}

}  // namespace bench
