// The memory routines that the library imports from zulcore, its core library.
#pragma once

#include <cstdint>

#include "kernel/platform.h"

#ifdef _WIN32
#define ZULG_IMPORT __declspec(dllimport)
#else
#define ZULG_IMPORT
#endif

extern "C" {
// Gives a block of that many bytes, aligned to 64, or null.
ZULG_IMPORT void* ZULG_CALL zulMalloc(std::uint32_t bytes);
// Takes such a block back; null is allowed.
ZULG_IMPORT void ZULG_CALL zulFree(void* block);
}
