// What the comment above a block in the emitted text says.
#pragma once

#include <string>

namespace gen {

inline std::string blockTitle(const std::string& kind, int length, int a) {
    const std::string title = kind + " block of " + std::to_string(length);
    return a == 1 ? title : title + ", multiplier " + std::to_string(a);
}

}  // namespace gen
