// Numbers as they are typed on the command line. A word is a number as a whole or it is refused, and the message names
// the option that it belongs to.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace spectrum {

// Whole numbers are decimal, with leading zeros too. Throws UsageError.
std::int64_t wholeNumber(const std::string& option, const std::string& word, std::int64_t least, std::int64_t most);

// A finite number. Throws UsageError.
double realNumber(const std::string& option, const std::string& word);

// What std::from_chars says of the whole word, which may have a plus sign in front: invalid_argument unless all of it
// is a number, result_out_of_range where that is beyond the range.
std::errc readWhole(std::string_view word, double& number);

// The word as the message about it shows it: quoted when nothing of it could be seen.
std::string shownWord(const std::string& word);

// The fewest digits that read back as the same number.
std::string shortest(double value);
std::string shortest(float value);

}  // namespace spectrum
