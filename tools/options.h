// What the user asked for, checked as far as it can be without the library and without any file.
// Lengths and numeric flags are left to the library, which has the last word on both.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "family.h"
#include "input.h"
#include "window.h"

namespace spectrum {

enum class Format { Text, Csv, JsonLines, Npy, Png, Svg, Wav, Flac };
constexpr bool isPicture(Format format) { return format == Format::Png || format == Format::Svg; }
enum class Precision { Single, Double };
// What a table holds of each bin: its value and its magnitude, or the magnitude alone.
enum class Content { Bins, Magnitudes };

// A transform, and how frames are cut for it.
struct Framing {
    const Family* family;
    int length, hop;    // the length is 0 where 2^order is no int
    std::int32_t size;  // what the library is asked for: the length, or the order where the family counts in orders
    bool byOrder;       // the size comes from --order, not from --length
    std::int32_t flag;
    Window window;
    Precision precision;
};

struct PictureOptions {
    int columns = 0;  // at most; 0 where nothing is said
    std::string colours = "dusk";
    double decibels = 80;  // below the strongest bin
};

// A run that makes spectra.
struct Options {
    InputOptions input;
    std::string output;  // "-" for standard output
    Framing framing;
    Content content;
    Format format;
    PictureOptions picture;
    bool writesSpectrum;
    bool check;
    bool json;  // the report
};

// A run that makes samples of spectra.
struct InverseOptions {
    std::string input, output;
    Framing framing;
    bool hopGiven;
    double rate;  // 0 where nothing is said
    std::optional<std::int64_t> samples;
    Format format;
    std::string encoding;
    bool json;
};

// A run over many files. The output of a file is in the folder, under the file's own path and the suffix of the format.
struct BatchOptions {
    std::vector<std::string> inputs;
    std::string folder;
    std::vector<std::string> patterns;
    Options each;       // but for input path and output
    std::string words;  // the options of `each` as a text, to see whether an earlier run had the same
    bool startsAgain;
    bool json;
};

// The scale as NumPy's `norm` argument calls it.
std::string flagName(std::int32_t flag);

// Such as ".csv", and "csv".
std::string suffixOf(Format format);
std::string formatName(Format format);

}  // namespace spectrum
