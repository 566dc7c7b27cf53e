// Cuts an input into frames of equal length, one after the other. Holds one frame; frames may overlap, follow each
// other, or leave samples out between them.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "input.h"
#include "options.h"

namespace spectrum {

class Frames {
public:
    // Reads the first frame. Throws UserError when the input is shorter.
    Frames(Source& source, int length, int hop);

    std::span<const double> samples() const { return frame; }
    std::int64_t samplesRead() const { return count; }

    // Goes on to the next frame; returns false when there is none. A last frame that is partial is filled up with
    // zeros.
    bool next();

private:
    std::size_t fill(std::size_t from);
    bool skip(std::size_t most);

    Source& source;
    std::size_t hop;
    std::vector<double> frame;
    std::int64_t count = 0;
    bool ended = false;
};

std::vector<double> windowWeights(Window window, int length);

}  // namespace spectrum
