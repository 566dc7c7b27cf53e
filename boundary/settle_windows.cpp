// Settles slots on Windows. The table has pages of its own, which nothing else of the library shares.
#include <cstring>

#include "boundary/settle.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace zulg {

bool settle(const void* slots, const void* slotsOfLevel, std::size_t bytes) {
    void* const table = const_cast<void*>(slots);
    DWORD readOnly, writable;
    if (!VirtualProtect(table, bytes, PAGE_READWRITE, &readOnly)) return false;
    std::memcpy(table, slotsOfLevel, bytes);
    return VirtualProtect(table, bytes, readOnly, &writable);
}

}  // namespace zulg
