// The three layouts are built from the same pieces: the real bin 0, the pairs of real and imaginary parts in rising
// order, and, at even lengths, the real bin in the middle.
#include "layout.h"

#include <algorithm>
#include <vector>

#include "json.h"
#include "user_error.h"

namespace spectrum {
namespace {

struct Layout {
    const char* name;
    std::vector<std::string> slots;
};

std::vector<std::string> joined(std::initializer_list<std::vector<std::string>> pieces) {
    std::vector<std::string> all;
    for (const auto& piece : pieces) all.insert(all.end(), piece.begin(), piece.end());
    return all;
}

std::vector<Layout> layoutsOf(int length) {
    std::vector<std::string> pairs, middle, middleAndZero;
    for (int k = 1; 2 * k < length; ++k) {
        pairs.push_back("R" + std::to_string(k));
        pairs.push_back("I" + std::to_string(k));
    }
    if (length % 2 == 0) {
        middle = {"R" + std::to_string(length / 2)};
        middleAndZero = {middle[0], "0"};
    }
    return {{"CCS", joined({{"R0", "0"}, pairs, middleAndZero})},
            {"Pack", joined({{"R0"}, pairs, middle})},
            {"Perm", joined({{"R0"}, middle, pairs})}};
}

// One line of the slots from `first` on, in columns.
std::string line(const std::string& name, const std::vector<std::string>& slots, std::size_t first, std::size_t count) {
    constexpr std::size_t nameWidth = 6, slotWidth = 4;
    std::string text = name;
    for (std::size_t i = 0; i < count && first + i < slots.size(); ++i) {
        text.resize(nameWidth + i * slotWidth, ' ');
        text += slots[first + i];
    }
    return text + '\n';
}

void expectLength(int length) {
    if (length < 2 || length > longestLayout) {
        throw UsageError("layout " + std::to_string(length) + ": lengths are 2 to " + std::to_string(longestLayout));
    }
}

}  // namespace

std::string layoutText(int length) {
    expectLength(length);
    const std::vector<Layout> layouts = layoutsOf(length);
    const std::size_t most = layouts[0].slots.size();  // none has more slots than CCS
    std::vector<std::string> numbers;
    for (std::size_t slot = 0; slot < most; ++slot) numbers.push_back(std::to_string(slot));

    constexpr std::size_t slotsToALine = 16;
    std::string text;
    for (std::size_t first = 0; first < most; first += slotsToALine) {
        text += (first > 0 ? "\n" : "") + line("slot", numbers, first, slotsToALine);
        for (const Layout& layout : layouts) {
            if (first < layout.slots.size()) text += line(layout.name, layout.slots, first, slotsToALine);
        }
    }
    return text;
}

std::string layoutJson(int length) {
    expectLength(length);
    Json json{{"length", length}};
    for (const Layout& layout : layoutsOf(length)) json[layout.name] = layout.slots;
    return jsonText(json);
}

}  // namespace spectrum
