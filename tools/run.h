// A run over one input: its spectra into one output, and the report of --check.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "options.h"

namespace spectrum {

struct RunReport {
    std::string inputName;
    bool isSound = false;
    double rate = 1;
    std::int64_t samples = 0, frames = 0;
    double relativeError = 0;           // of the inverse transform, with check
    std::vector<std::string> warnings;  // about damage that is allowed
};

// With --channel each, one run for each channel of the file, whose outputs have the number of the channel before their
// suffix. Otherwise the run that is given. Throws UserError.
std::vector<Options> runsOf(const Options& options);

// Throws UserError, and then the output is as it was before.
RunReport runSpectra(const Options& options, bool showsProgress);

// For runs of many processes over one long input. What a run would be, as far as it is known before it is made: the
// number of frames is 0 when only a run over all can tell it.
struct RunShape {
    std::int64_t frames, samples;
    std::int64_t step;  // pieces begin at multiples of it
};
RunShape shapeOf(const Options& options);

// What the frames from `first` on give, `count` of them.
std::string runPiece(const Options& options, std::int64_t first, std::int64_t count);

// Puts the pieces of a run together, in their order.
class PieceCollector {
public:
    explicit PieceCollector(const Options& options);
    ~PieceCollector();
    void add(std::string_view piece, std::int64_t frames);
    void close();

private:
    struct State;
    std::unique_ptr<State> state;
};

}  // namespace spectrum
