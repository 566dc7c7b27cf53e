// From words to options. Only this file knows the words of the values and their meaning.
#include "options.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <filesystem>
#include <limits>

#include "colour_map.h"
#include "numbers.h"
#include "option_words.h"
#include "user_error.h"

namespace spectrum {
namespace {

constexpr std::int64_t greatestInt = std::numeric_limits<int>::max(), leastInt = std::numeric_limits<int>::min();

constexpr std::pair<const char*, std::int32_t> flagNames[] = {
    {"forward", DivFwdByN}, {"backward", DivInvByN}, {"ortho", DivBySqrtN}, {"none", NoDivByAny}};

constexpr std::pair<const char*, Format> formatNames[] = {
    {"text", Format::Text}, {"csv", Format::Csv}, {"json", Format::JsonLines}, {"npy", Format::Npy},
    {"png", Format::Png},   {"svg", Format::Svg}, {"wav", Format::Wav},        {"flac", Format::Flac},
};

constexpr std::pair<const char*, Format> suffixes[] = {
    {".txt", Format::Text},        {".csv", Format::Csv}, {".json", Format::JsonLines},
    {".jsonl", Format::JsonLines}, {".npy", Format::Npy}, {".png", Format::Png},
    {".svg", Format::Svg},         {".wav", Format::Wav}, {".flac", Format::Flac},
};

int intOf(const Words& words, const std::string& option, std::int64_t least = leastInt,
          std::int64_t most = greatestInt) {
    return static_cast<int>(wholeNumber(option, words[option], least, most));
}

std::int32_t flagOf(const std::string& word) {
    for (const auto& [name, flag] : flagNames) {
        if (word == name) return flag;
    }
    std::int32_t flag = 0;
    const char* const end = word.data() + word.size();
    const auto [rest, error] = std::from_chars(word.data(), end, flag);
    if (error != std::errc{} || rest != end) {
        throw UsageError("--flag " + shownWord(word) + ": neither a number nor forward, backward, ortho or none");
    }
    return flag;
}

// 2^order, or 0 where that is no int. The library is asked about the order itself.
int lengthOfOrder(int order) { return order >= 0 && order < std::numeric_limits<int>::digits ? 1 << order : 0; }

// The order of a length, or 0, which is no order of any family, where the length is not 2^order.
int orderOfLength(int length) {
    const unsigned bits = static_cast<unsigned>(std::max(length, 0));
    return std::has_single_bit(bits) ? std::countr_zero(bits) : 0;
}

void refuseBoth(const Words& words, const char* one, const char* other) {
    if (!words.given(one) || !words.given(other)) return;
    throw UsageError(std::string(one) + " " + shownWord(words[one]) + " beside " + other + " " +
                     shownWord(words[other]) + ": one of them is enough");
}

void expectFittingOptions(const Words& words, const Family& family) {
    const std::string name(family.name);
    if (words.given("--order") && family.sizes != Sizes::Orders) {
        throw UsageError("--order " + shownWord(words["--order"]) + ": the " + name +
                         " family has no orders; say --length");
    }
    refuseBoth(words, "--order", "--length");
    refuseBoth(words, "--hop", "--noverlap");
    if (words.given("--flag") && !family.takesFlag) {
        throw UsageError("--flag " + shownWord(words["--flag"]) + ": the " + name + " family has no scale");
    }
}

int hopOf(const Words& words, int length) {
    if (words.given("--hop")) return intOf(words, "--hop", 1);
    if (!words.given("--noverlap")) return std::max(length, 1);
    return length - intOf(words, "--noverlap", 0, std::max(length - 1, 0));
}

Precision precisionOf(const Words& words) {
    const std::string& word = words["--precision"];
    if (word == "32") return Precision::Single;
    if (word == "64") return Precision::Double;
    throw UsageError("--precision " + shownWord(word) + ": neither 32 nor 64");
}

// Seconds or samples, or h:m:s.
std::optional<double> timeOf(const Words& words, const std::string& option) {
    if (!words.given(option)) return {};
    const std::string& word = words[option];
    double time = 0;
    for (std::size_t start = 0;;) {
        const std::size_t colon = word.find(':', start);
        const double part = realNumber(option, word.substr(start, colon - start));
        const bool fits = part >= 0 && (start == 0 || part < 60);
        if (!fits) throw UsageError(option + " " + shownWord(word) + ": a time is seconds, samples, or h:m:s");
        time = 60 * time + part;
        if (colon == std::string::npos) return time;
        start = colon + 1;
    }
}

Format formatNamed(const std::string& word, std::span<const Format> allowed) {
    std::string names;
    for (const auto& [name, format] : formatNames) {
        if (std::find(allowed.begin(), allowed.end(), format) == allowed.end()) continue;
        if (word == name) return format;
        names += (names.empty() ? "" : ", ") + std::string(name);
    }
    throw UsageError("--format " + shownWord(word) + ": no format of this command; it has " + names);
}

}  // namespace

const Family& familyNamed(const std::string& word) {
    for (const Family& family : allFamilies()) {
        if (word == family.name) return family;
    }
    throw UsageError("--family " + shownWord(word) + ": no such family; known: " + familyNames());
}

Framing plainFraming(const Family& family, int length) {
    const int order = orderOfLength(length);
    return Framing{
        .family = &family,
        .length = length,
        .hop = length,
        .size = family.sizes == Sizes::Orders ? order : length,
        .byOrder = false,
        .flag = NoDivByAny,
        .window = {},
        .precision = Precision::Double,
    };
}

Framing framingOf(const Words& words) {
    const Family& family = familyNamed(words["--family"]);
    expectFittingOptions(words, family);
    const bool byOrder = words.given("--order");
    const int given = byOrder ? intOf(words, "--order") : intOf(words, "--length");
    const int length = byOrder ? lengthOfOrder(given) : given;
    const int order = byOrder ? given : orderOfLength(given);
    return Framing{
        .family = &family,
        .length = length,
        .hop = hopOf(words, length),
        .size = family.sizes == Sizes::Orders ? order : length,
        .byOrder = byOrder,
        .flag = family.takesFlag ? flagOf(words["--flag"]) : NoDivByAny,
        .window = windowOf(words["--window"]),
        .precision = precisionOf(words),
    };
}

InputOptions inputOf(const Words& words, const std::string& path) {
    InputOptions input;
    input.path = path;
    const std::string& channel = words["--channel"];
    input.channel = channel == "mix" ? 0 : channel == "each" ? everyChannel : intOf(words, "--channel", 1);
    const std::string& mark = words["--decimal"];
    if (mark != "point" && mark != "comma")
        throw UsageError("--decimal " + shownWord(mark) + ": neither point nor comma");
    input.decimal = mark == "comma" ? DecimalMark::Comma : DecimalMark::Point;
    input.allowsDamage = words.given("--allow-damaged");
    input.start = timeOf(words, "--start");
    input.end = timeOf(words, "--end");
    if (input.end && *input.end <= input.start.value_or(0)) {
        throw UsageError("--end " + shownWord(words["--end"]) + ": it is not after the start");
    }
    return input;
}

PictureOptions pictureOf(const Words& words) {
    PictureOptions picture;
    if (words.given("--columns")) picture.columns = intOf(words, "--columns", 1, 4096);
    picture.colours = words["--colours"];
    coloursOf(picture.colours);
    picture.decibels = realNumber("--range", words["--range"]);
    if (picture.decibels < 1 || picture.decibels > 1000) {
        throw UsageError("--range " + shownWord(words["--range"]) + ": a picture shows 1 to 1000 decibels");
    }
    return picture;
}

Format formatOf(const Words& words, std::span<const Format> allowed) {
    const bool isNamed = words.given("--format") || !words.values.contains("--output");
    if (isNamed) return formatNamed(words["--format"], allowed);
    const std::string& output = words["--output"];
    const std::string suffix = std::filesystem::path(output).extension().string();
    if (suffix.empty() || output == "-") return allowed.front();
    for (const auto& [name, format] : suffixes) {
        if (suffix == name && std::find(allowed.begin(), allowed.end(), format) != allowed.end()) return format;
    }
    throw UsageError("--output " + printable(output) + ": no format of this command has the suffix " +
                     printable(suffix) + "; say which with --format");
}

const std::string& inputPath(const Words& words, const char* operand) {
    if (!words.given(operand)) throw UsageError(std::string(operand) + " is required: a file, or - for standard input");
    if (words[operand].empty()) throw UsageError(std::string(operand) + " '': a file has a name");
    return words[operand];
}

const std::string& outputPath(const Words& words) {
    if (words["--output"].empty()) throw UsageError("--output '': a file has a name");
    return words["--output"];
}

std::string flagName(std::int32_t flag) {
    for (const auto& [name, value] : flagNames) {
        if (value == flag) return name;
    }
    return std::to_string(flag);
}

std::string suffixOf(Format format) {
    for (const auto& [suffix, of] : suffixes) {
        if (of == format) return suffix;
    }
    return "";
}

std::string formatName(Format format) {
    for (const auto& [name, of] : formatNames) {
        if (of == format) return name;
    }
    return "";
}

}  // namespace spectrum
