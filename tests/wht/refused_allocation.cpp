// A child process of the tests: calls a large order without a buffer while the core library refuses. The transform runs
// all the same, and the first store of its first pass faults near address 0. Exit code 42 means that it did, 0 that the
// call returned.
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "tests/exports.h"
#include "tests/fakes/substituted_core.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>

#include <csignal>
#endif

namespace {

constexpr std::uintptr_t bufferBytes = 36864;  // a fault within the buffer that was refused

#ifdef _WIN32
LONG WINAPI onFault(EXCEPTION_POINTERS* fault) {
    const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
    const bool expected = record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION && record.ExceptionInformation[0] == 1 &&
                          record.ExceptionInformation[1] < bufferBytes;
    TerminateProcess(GetCurrentProcess(), expected ? 42 : 43);
    return EXCEPTION_EXECUTE_HANDLER;
}
void catchFaults() { SetUnhandledExceptionFilter(onFault); }
#else
void onFault(int, siginfo_t* fault, void*) {
    _exit(reinterpret_cast<std::uintptr_t>(fault->si_addr) < bufferBytes ? 42 : 43);
}
void catchFaults() {
    struct sigaction action {};
    action.sa_sigaction = onFault;
    action.sa_flags = SA_SIGINFO;
    sigaction(SIGSEGV, &action, nullptr);
}
#endif

}  // namespace

int main() {
    test::substitutedCore().refuses = true;
    using Routine = ZulgStatus(ZULG_CALL*)(const float*, float*, std::int32_t, float*);
    const auto routine = test::exported<Routine>("zulgWHT_13_32f");
    std::vector<float> data(8192, 1.0f);
    catchFaults();
    routine(data.data(), data.data(), NoDivByAny, nullptr);
    return 0;
}
