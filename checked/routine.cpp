#include "checked/routine.h"

#include <dlfcn.h>

#include <cstdlib>
#include <string>
#include <string_view>

#include "checked/stop.h"

namespace zulg::checked {
namespace {

int same(int length) { return length; }
int parts(int length) { return 2 * length; }
int halfSpectrum(int length) { return length / 2 * 2 + 2; }
int readOfHalfSpectrum(int length) { return length + 1; }

// The library is in the folder of this one.
void* openLibrary() {
    Dl_info self;
    if (dladdr(reinterpret_cast<void*>(&addressInLibrary), &self) == 0) stop("load", "this library is not found");
    const std::string path(self.dli_fname);
    const auto slash = path.rfind('/');
    const std::string library =
        (slash == std::string::npos ? std::string() : path.substr(0, slash + 1)) + "libzulgenpx-7.0.so";
    void* const handle = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) stop("load", "%s", dlerror());
    return handle;
}

}  // namespace

void* addressInLibrary(const char* name) {
    static void* const library = openLibrary();
    void* const address = dlsym(library, name);
    if (address == nullptr) stop(name, "the library has no such routine");
    return address;
}

Routine::Routine(const char* exportedName) : name(exportedName), address(addressInLibrary(exportedName)) {
    const std::string_view whole(name);
    if (whole.find("_64f") != std::string_view::npos) elementBytes = 8;
    const bool isWht = whole.starts_with("zulgWHT_");
    if (!isWht && !whole.starts_with("zulgDFT") && !whole.starts_with("zulgHartley_")) return;
    transform = isWht ? Transform::WalshHadamard : Transform::Dft;
    sourceElements = destinationElements = same;
    const auto has = [&](const char* path) { return whole.find(path) != std::string_view::npos; };
    if (has("_CToC_")) sourceElements = destinationElements = parts;
    if (has("_RToCCS_")) destinationElements = halfSpectrum;
    if (has("_CCSToR_")) sourceElements = readOfHalfSpectrum;
    const auto suffix = whole.rfind('_');
    const auto before = whole.rfind('_', suffix - 1);
    if (before != std::string_view::npos) number = std::atoi(name + before + 1);  // 0 where it is a path
}

std::size_t Routine::sourceBytes(int of) const {
    const int length = transform == Transform::WalshHadamard ? 1 << of : of;
    return static_cast<std::size_t>(sourceElements(length)) * elementBytes;
}

std::size_t Routine::destinationBytes(int of) const {
    const int length = transform == Transform::WalshHadamard ? 1 << of : of;
    return static_cast<std::size_t>(destinationElements(length)) * elementBytes;
}

}  // namespace zulg::checked
