// Loading of shared libraries, for each platform.
#include "tests/hook/loading.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#ifdef _WIN32
#include <windows.h>

#include <algorithm>
#else
#include <dlfcn.h>
#include <link.h>
#endif

namespace test {
namespace {

template <class Handle>
Handle* orEnd(Handle* handle, const std::string& path) {
    if (handle == nullptr) std::printf("%s does not load\n", path.c_str()), std::exit(1);
    return handle;
}

}  // namespace

#ifdef _WIN32

LoadedLibrary::LoadedLibrary(const std::string& path) {
    std::string windowsPath = path;
    std::replace(windowsPath.begin(), windowsPath.end(), '/', '\\');
    handle = orEnd(LoadLibraryA(windowsPath.c_str()), path);
}

void LoadedLibrary::release() const { FreeLibrary(static_cast<HMODULE>(handle)); }

void* LoadedLibrary::address(const char* name) const {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle), name));
}

namespace {

// The sections of a loaded library by the characteristic that is asked for.
struct Sections {
    explicit Sections(void* module) : base(static_cast<std::byte*>(module)) {
        const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
        const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
        first = IMAGE_FIRST_SECTION(headers);
        last = first + headers->FileHeader.NumberOfSections;
    }
    const IMAGE_SECTION_HEADER* begin() const { return first; }
    const IMAGE_SECTION_HEADER* end() const { return last; }

    std::byte* base;
    const IMAGE_SECTION_HEADER *first, *last;
};

bool named(const IMAGE_SECTION_HEADER& section, const char* name) {
    return std::strncmp(reinterpret_cast<const char*>(section.Name), name, sizeof section.Name) == 0;
}

}  // namespace

// The loader writes to the imports, and this toolchain's resources are marked as writable.
LoadedLibrary::Memory LoadedLibrary::writableData() const {
    Memory data = {nullptr, 0};
    const Sections sections(handle);
    for (const IMAGE_SECTION_HEADER& section : sections) {
        if (!(section.Characteristics & IMAGE_SCN_MEM_WRITE) || named(section, ".idata") || named(section, ".rsrc")) {
            continue;
        }
        data.start = sections.base + section.VirtualAddress;
        data.bytes += section.Misc.VirtualSize;
    }
    return data;
}

bool LoadedLibrary::hasCodeAt(const void* address) const {
    const Sections sections(handle);
    for (const IMAGE_SECTION_HEADER& section : sections) {
        const std::byte* const start = sections.base + section.VirtualAddress;
        if (section.Characteristics & IMAGE_SCN_MEM_EXECUTE && address >= start &&
            address < start + section.Misc.VirtualSize) {
            return true;
        }
    }
    return false;
}

int releaseCompanion() {
    int references = 0;
    while (const HMODULE companion = GetModuleHandleA("libtmalloc.dll")) FreeLibrary(companion), ++references;
    return references;
}

#else

LoadedLibrary::LoadedLibrary(const std::string& path) {
    handle = orEnd(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL), path);
}

void LoadedLibrary::release() const { dlclose(handle); }

void* LoadedLibrary::address(const char* name) const { return dlsym(handle, name); }

namespace {

// Calls seen(address of its first byte, program header) for each segment of a loaded library.
template <class Seen>
void forEachSegment(void* handle, Seen seen) {
    struct Search {
        ElfW(Addr) base;
        Seen& seen;
    };
    link_map* map = nullptr;
    dlinfo(handle, RTLD_DI_LINKMAP, &map);
    Search search = {map->l_addr, seen};
    const auto visit = [](dl_phdr_info* info, std::size_t, void* data) {
        const auto& [base, each] = *static_cast<Search*>(data);
        if (info->dlpi_addr != base) return 0;
        for (int i = 0; i < info->dlpi_phnum; ++i) {
            each(static_cast<std::uintptr_t>(base + info->dlpi_phdr[i].p_vaddr), info->dlpi_phdr[i]);
        }
        return 1;
    };
    dl_iterate_phdr(visit, &search);
}

}  // namespace

// After what is read-only after relocation.
LoadedLibrary::Memory LoadedLibrary::writableData() const {
    std::uintptr_t start = 0, end = 0;
    forEachSegment(handle, [&](std::uintptr_t address, const ElfW(Phdr) & header) {
        if (header.p_type == PT_LOAD && header.p_flags & PF_W) end = address + header.p_memsz;
        if (header.p_type == PT_GNU_RELRO) start = address + header.p_memsz;
    });
    return {reinterpret_cast<void*>(start), end - start};
}

bool LoadedLibrary::hasCodeAt(const void* address) const {
    bool found = false;
    const auto sought = reinterpret_cast<std::uintptr_t>(address);
    forEachSegment(handle, [&](std::uintptr_t start, const ElfW(Phdr) & header) {
        found |=
            header.p_type == PT_LOAD && header.p_flags & PF_X && sought >= start && sought < start + header.p_memsz;
    });
    return found;
}

int releaseCompanion() {
    int references = 0;
    while (void* const companion = dlopen("libtmalloc.so", RTLD_NOW | RTLD_NOLOAD)) {
        dlclose(companion), dlclose(companion);  // the one of this question, and one that stood before it
        ++references;
    }
    return references;
}

#endif

}  // namespace test
