// What the user asked for, checked as far as it can be without the library and without any file.
// Lengths and numeric flags are left to the library, which has the last word on both.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "family.h"

namespace spectrum {

enum class Format { Text, Csv, Png };
enum class Window { None, Hann };
enum class Precision { Single, Double };

struct Options {
    std::string input, output;  // "-" for the standard streams
    const Family* family;
    int length, hop;
    std::int32_t flag;
    int channel;
    Window window;
    Precision precision;
    Format format;
    bool writesSpectrum;
    bool check;
};

// Nothing when the run ends here, as after --help: `exitCode` then is the program's. Throws UserError.
std::optional<Options> readOptions(int argc, char** argv, int& exitCode);

// The scale as NumPy's `norm` argument calls it.
std::string flagName(std::int32_t flag);

}  // namespace spectrum
