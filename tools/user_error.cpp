// What may be printed of a text that comes from outside.
#include "user_error.h"

#include <cerrno>
#include <cstring>

namespace spectrum {
namespace {

bool continues(char letter) { return (static_cast<unsigned char>(letter) & 0xc0) == 0x80; }

// The bytes of the character at the front when it is well-formed UTF-8 and no control character, and otherwise 0.
std::size_t printableBytes(std::string_view text) {
    const unsigned first = static_cast<unsigned char>(text[0]);
    if (first < 0x80) return first >= 0x20 && first != 0x7f ? 1 : 0;
    const std::size_t bytes = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    if (first < 0xc2 || first > 0xf4 || text.size() < bytes) return 0;
    for (std::size_t i = 1; i < bytes; ++i) {
        if (!continues(text[i])) return 0;
    }
    const unsigned second = static_cast<unsigned char>(text[1]),
                   third = bytes > 2 ? static_cast<unsigned char>(text[2]) : 0;
    if (first == 0xc2 && second < 0xa0) return 0;   // more control characters
    if (first == 0xe0 && second < 0xa0) return 0;   // longer than need be
    if (first == 0xed && second >= 0xa0) return 0;  // half of a pair of UTF-16
    if (first == 0xf0 && second < 0x90) return 0;   // longer than need be
    if (first == 0xf4 && second >= 0x90) return 0;  // beyond the last character
    const bool turnsLines = first == 0xe2 && ((second == 0x80 && third >= 0xa8 && third <= 0xae) ||
                                              (second == 0x81 && third >= 0xa6 && third <= 0xa9));
    return turnsLines ? 0 : bytes;  // these end lines or reverse the direction of writing
}

}  // namespace

std::string printable(std::string_view text, std::size_t most) {
    std::string shown;
    while (!text.empty() && shown.size() < most) {
        const std::size_t bytes = printableBytes(text);
        shown += bytes == 0 ? "?" : text.substr(0, bytes);
        text.remove_prefix(bytes == 0 ? 1 : bytes);
    }
    return text.empty() ? shown : shown + "...";
}

std::string systemReason() { return std::strerror(errno); }

}  // namespace spectrum
