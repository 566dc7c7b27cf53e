// Reading and writing of numbers, always with a decimal point, whatever the language of the user is.
#include "numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "user_error.h"

namespace spectrum {
namespace {

// A plus sign in front is no part of what std::from_chars reads.
template <typename Number>
std::errc readAll(std::string_view word, Number& number) {
    if (word.size() > 1 && word[0] == '+' && word[1] != '-') word.remove_prefix(1);
    const char* const end = word.data() + word.size();
    const auto [rest, error] = std::from_chars(word.data(), end, number);
    return rest == end ? error : std::errc::invalid_argument;
}

template <typename T>
std::string fewestDigits(T value) {
    char digits[40];
    return std::string(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

}  // namespace

std::errc readWhole(std::string_view word, double& number) { return readAll(word, number); }

std::string shownWord(const std::string& word) {
    return word.find_first_not_of(' ') == std::string::npos ? "'" + word + "'" : printable(word, 60);
}

std::int64_t wholeNumber(const std::string& option, const std::string& word, std::int64_t least, std::int64_t most) {
    std::int64_t number = 0;
    const std::errc error = readAll(word, number);
    const std::string start = option + " " + shownWord(word) + ": ";
    if (error == std::errc::invalid_argument) throw UsageError(start + "not a whole number");
    if (error == std::errc{} && number >= least && number <= most) return number;
    const bool isLow = error == std::errc{} ? number < least : word[0] == '-';
    throw UsageError(start + (isLow ? "the least is " + std::to_string(least) : "the most is " + std::to_string(most)));
}

double realNumber(const std::string& option, const std::string& word) {
    double number = 0;
    if (readWhole(word, number) != std::errc{} || !std::isfinite(number)) {
        throw UsageError(option + " " + shownWord(word) + ": not a number");
    }
    return number;
}

std::string shortest(double value) { return fewestDigits(value); }
std::string shortest(float value) { return fewestDigits(value); }

}  // namespace spectrum
