// Options from the words of the command line. All throw UsageError.
#pragma once

#include <span>

#include "command_line.h"
#include "options.h"

namespace spectrum {

Framing framingOf(const Words& words);
const Family& familyNamed(const std::string& word);
// Of that length, without a window and without a scale.
Framing plainFraming(const Family& family, int length);
InputOptions inputOf(const Words& words, const std::string& path);
PictureOptions pictureOf(const Words& words);

// The named format, or that of the suffix of --output; without either, the first that is allowed. A command without
// --output has a standard format.
Format formatOf(const Words& words, std::span<const Format> allowed);

// The formats of spectrograms, the usual one first.
inline constexpr Format pictureFormats[] = {Format::Png,       Format::Svg, Format::Csv,
                                            Format::JsonLines, Format::Npy, Format::Text};

// The word of an operand that must be there, and that of --output.
const std::string& inputPath(const Words& words, const char* operand);
const std::string& outputPath(const Words& words);

}  // namespace spectrum
