// Samples into a sound file, through libsndfile, or into text with a number to a line.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "options.h"
#include "output_file.h"

namespace spectrum {

class SampleFile {
public:
    virtual ~SampleFile() = default;
    virtual void write(std::span<const double> samples) = 0;
    virtual void finish() = 0;

    std::int64_t clipped = 0;  // samples beyond full scale that were cut off
};

// What --encoding may be, for the help.
std::string encodingNames();

// `rate` is that of a sound; text has none. The file must outlive what is returned. Throws UserError.
std::unique_ptr<SampleFile> makeSampleFile(const InverseOptions& options, double rate, OutputFile& file);

}  // namespace spectrum
