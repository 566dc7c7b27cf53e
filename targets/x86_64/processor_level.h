// The level of the processor.
#pragma once

#include <cstdint>

namespace zulg {

enum Level : std::uintptr_t { levelX86_64 = 1, levelX86_64_v3 };

// Resolvers call it, when nothing of the library but its relative addresses is settled.
[[gnu::visibility("hidden")]] Level processorLevel() noexcept;

}  // namespace zulg
