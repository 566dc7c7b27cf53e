// What the user is told when a run cannot go on. The text is one line without a final stop; main puts the name of the
// program in front of it.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace spectrum {

class UserError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// File names and words from files may hold anything, but a message must be one short line.
inline std::string printable(std::string_view text, std::size_t most = 200) {
    std::string shown(text.substr(0, most));
    for (char& letter : shown) {
        if (static_cast<unsigned char>(letter) < 0x20 || letter == 0x7f) letter = '?';
    }
    return text.size() > most ? shown + "..." : shown;
}

}  // namespace spectrum
