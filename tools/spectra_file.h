// Reads the tables that transform writes: CSV, and arrays of NumPy. Frames come one by one.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "options.h"
#include "transform.h"

namespace spectrum {

class SpectraFile {
public:
    virtual ~SpectraFile() = default;

    // The bins of the next frame; returns false at the end. Throws UserError, and DamagedInput when the file ends
    // within a frame.
    virtual bool next(Bins& bins) = 0;

    std::string name;
    // What the file tells of itself, once the first frame, or for the hop the second, has been read.
    std::optional<double> rate;
    std::optional<int> hop;
};

// The first bytes decide which of the two it is. Throws UserError.
std::unique_ptr<SpectraFile> openSpectra(const std::string& path, const Framing& framing);

}  // namespace spectrum
