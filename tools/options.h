// What the user asked for, checked as far as it can be without the library and without any file.
// Lengths and numeric flags are left to the library, which has the last word on both.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "family.h"

namespace spectrum {

enum class Format { Text, Csv, Png };
enum class Window { None, Hann };
enum class Precision { Single, Double };

// A run that makes spectra.
struct Options {
    std::string input, output;  // "-" for the standard streams
    const Family* family;
    int length, hop;    // the length is 0 where 2^order is no int
    std::int32_t size;  // what the library is asked for: the length, or the order where the family counts in orders
    bool byOrder;       // the size comes from --order, not from --length
    std::int32_t flag;
    int channel;
    Window window;
    Precision precision;
    Format format;
    bool writesSpectrum;
    bool check;
};

// The command `layout`: the slots of the layouts of one length.
struct LayoutOptions {
    int length;
};

// Nothing remains to be done after --help and --version.
using Command = std::variant<std::monostate, LayoutOptions, Options>;

// Throws UserError.
Command readCommand(int argc, char** argv);

// The scale as NumPy's `norm` argument calls it.
std::string flagName(std::int32_t flag);

}  // namespace spectrum
