// Replaces the library's dynamic loading.
#include "tests/fakes/recorded_loading.h"

#include "boundary/shared_library.h"
#include "tests/hook/slots.h"

namespace test {

RecordedLoading recordedLoading;

}  // namespace test

namespace zulg {

using test::recordedLoading;

SharedLibrary openCompanion() {
    recordedLoading.events.push_back("open");
    recordedLoading.atOpening();
    return recordedLoading.present ? &recordedLoading : nullptr;
}

const void* findSymbol(SharedLibrary library, const char* name) {
    recordedLoading.events.push_back(library == &recordedLoading ? name : "a symbol of another library");
    const auto found = recordedLoading.symbols.find(name);
    return found == recordedLoading.symbols.end() ? nullptr : found->second;
}

void releaseLibrary(SharedLibrary library) {
    recordedLoading.events.push_back(library == &recordedLoading ? "release" : "release of another library");
    recordedLoading.atRelease();
}

AllocatorSlots runtimeRoutines() { return test::slotsOfTheRuntime(); }

}  // namespace zulg
