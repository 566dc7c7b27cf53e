// The tests' own platform layer: the library's loader and guard pages.
#include <cstdio>
#include <cstdlib>

#include "tests/exports.h"
#include "tests/memory.h"
#include "tests/tested_library.h"

#ifdef _WIN32
#include <windows.h>
#elif !defined(__wasm__)
#include <dlfcn.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace test {

#ifdef _WIN32

void* exportedAddress(const std::string& name) {
    static const char* const path = testedLibrary("zulgenpx-7.0.dll");
    static const HMODULE library = LoadLibraryA(path);
    if (library == nullptr) return std::printf("%s does not load\n", path), std::exit(1), nullptr;
    return reinterpret_cast<void*>(GetProcAddress(library, name.c_str()));
}

GuardedPages::GuardedPages(std::size_t bytes) {
    constexpr std::size_t page = 4096;
    innerBytes = (bytes + page - 1) / page * page + page;
    wholeBytes = innerBytes + 2 * page;
    whole = static_cast<std::byte*>(VirtualAlloc(nullptr, wholeBytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    inner = whole + page;
    DWORD previous;
    VirtualProtect(whole, page, PAGE_NOACCESS, &previous);
    VirtualProtect(inner + innerBytes, page, PAGE_NOACCESS, &previous);
}

GuardedPages::~GuardedPages() { VirtualFree(whole, 0, MEM_RELEASE); }

ReadOnly::ReadOnly(const GuardedPages& of) : pages(of) {
    DWORD previous;
    VirtualProtect(pages.inner, pages.innerBytes, PAGE_READONLY, &previous);
}
ReadOnly::~ReadOnly() {
    DWORD previous;
    VirtualProtect(pages.inner, pages.innerBytes, PAGE_READWRITE, &previous);
}

#elif defined(__wasm__)

// tests/module/run.js has the routines.
extern "C" __attribute__((import_module("library"), import_name("find"))) void* findRoutine(const char* letters,
                                                                                            std::size_t count);

void* exportedAddress(const std::string& name) { return findRoutine(name.data(), name.size()); }

std::byte* endOfMemory(std::size_t bytes) {
    constexpr std::size_t page = 65536;
    static std::size_t first = 0, last = 0;  // the pages that are kept for this
    const std::size_t count = (bytes + page - 1) / page;
    // An allocator may have taken more memory since the last time.
    if (last != __builtin_wasm_memory_size(0) || last - first < count) {
        first = __builtin_wasm_memory_grow(0, count);
        last = first + count;
    }
    return reinterpret_cast<std::byte*>(last * page);
}

#else

void* exportedAddress(const std::string& name) {
    static void* const library = dlopen(testedLibrary(ZULG_LIBRARY), RTLD_NOW);
    if (library == nullptr) return std::puts(dlerror()), std::exit(1), nullptr;
    return dlsym(library, name.c_str());
}

GuardedPages::GuardedPages(std::size_t bytes) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    innerBytes = (bytes + page - 1) / page * page + page;
    wholeBytes = innerBytes + 2 * page;
    whole =
        static_cast<std::byte*>(mmap(nullptr, wholeBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    inner = whole + page;
    mprotect(whole, page, PROT_NONE);
    mprotect(inner + innerBytes, page, PROT_NONE);
}

GuardedPages::~GuardedPages() { munmap(whole, wholeBytes); }

ReadOnly::ReadOnly(const GuardedPages& of) : pages(of) { mprotect(pages.inner, pages.innerBytes, PROT_READ); }
ReadOnly::~ReadOnly() { mprotect(pages.inner, pages.innerBytes, PROT_READ | PROT_WRITE); }

#endif

void* requiredAddress(const std::string& name) {
    void* const address = exportedAddress(name);
    if (address == nullptr) std::printf("%s is not exported\n", name.c_str()), std::exit(1);
    return address;
}

}  // namespace test
