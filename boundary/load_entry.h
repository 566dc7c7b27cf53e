// The load entry. Windows calls it in this form; on ELF platforms load_elf.cpp calls it.
#pragma once

#include <cstdint>

#include "kernel/platform.h"

inline constexpr std::uint32_t processAttach = 1;

extern "C" std::int32_t ZULG_CALL zulgLoadEntry(void* module, std::uint32_t reason, void* reserved);
