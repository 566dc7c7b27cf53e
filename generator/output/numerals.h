// Doubles as text.
#pragma once

#include <charconv>
#include <string>

namespace gen {

// The shortest text that reads back as this double.
inline std::string literal(double x) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, x).ptr;
    std::string digits(text, end);
    return digits.find_first_of(".e") == std::string::npos ? digits + ".0" : digits;
}

}  // namespace gen
