// What the writers of texts share.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "graph/graph.h"

namespace gen {

// text(item) of each item, with a separator between them.
template <class Items, class Text>
std::string joined(const Items& items, const Text& text, const std::string& separator = ", ") {
    std::string all;
    for (const auto& item : items) all += (all.empty() ? "" : separator) + text(item);
    return all;
}
inline std::string joined(const std::vector<std::string>& items, const std::string& separator = ", ") {
    return joined(
        items, [](const std::string& item) { return item; }, separator);
}

// The constants of a text, each once: those used most come first, and of equals the one that is used first.
inline std::vector<ConstantId> mostUsedFirst(const std::vector<ConstantId>& uses) {
    std::map<ConstantId, int> counts;
    std::vector<ConstantId> constants;
    for (ConstantId id : uses) {
        if (counts[id]++ == 0) constants.push_back(id);
    }
    std::ranges::stable_sort(constants, std::greater(), [&](ConstantId id) { return counts[id]; });
    return constants;
}

}  // namespace gen
