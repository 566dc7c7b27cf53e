// What the library takes from its companion core library, zulcore: memory.
#pragma once

#include <cstdint>

#include "frame/platform.h"

#ifdef _WIN32
#define ZULG_IMPORT __declspec(dllimport)
#else
#define ZULG_IMPORT
#endif

extern "C" {
// A block of that many bytes, aligned to 64, or null.
ZULG_IMPORT void* ZULG_CALL zulMalloc(std::uint32_t bytes);
// Of such a block; null is allowed.
ZULG_IMPORT void ZULG_CALL zulFree(void* block);
}
