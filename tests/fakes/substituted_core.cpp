#include "tests/fakes/substituted_core.h"

#include <cstdio>
#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace test {
namespace {

FakeCore* load() {
#ifdef _WIN32
    const HMODULE core = LoadLibraryA(ZULG_FAKE_CORE);
    const auto call =
        core ? reinterpret_cast<FakeCore*(__stdcall*)()>(reinterpret_cast<void*>(GetProcAddress(core, "fakeCore")))
             : nullptr;
#else
    void* const core = dlopen(ZULG_FAKE_CORE, RTLD_NOW | RTLD_GLOBAL);
    const auto call = core ? reinterpret_cast<FakeCore* (*)()>(dlsym(core, "fakeCore")) : nullptr;
#endif
    if (call == nullptr) std::puts("the substituted core library does not load"), std::exit(1);
    return call();
}

}  // namespace

FakeCore& substitutedCore() {
    static FakeCore* const core = load();
    return *core;
}

}  // namespace test
