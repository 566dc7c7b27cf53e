// Cuts an input into frames of equal length, one after the other. Holds one frame; frames may overlap, follow each
// other, or leave samples out between them.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "input.h"

namespace spectrum {

class Frames {
public:
    // Reads the first frame, or the frame of that number. Throws UserError when the input is shorter than one frame.
    Frames(Source& source, int length, int hop, std::int64_t first = 0);

    std::span<const double> samples() const { return frame; }
    std::int64_t samplesRead() const { return count; }

    // Goes on to the next frame; returns false when there is none. A last frame that is partial is filled up with
    // zeros.
    bool next();

private:
    std::size_t fill(std::size_t from);
    bool skip(std::int64_t most);

    Source& source;
    std::size_t hop;
    std::vector<double> frame;
    std::int64_t count = 0;
    bool ended = false;
};

// How many frames there are in so many samples, which are at least one frame.
std::int64_t frameCount(std::int64_t samples, int length, int hop);

}  // namespace spectrum
