// The frames of an input. Samples that the last full frame covers do not make another frame: a frame that is filled up
// with zeros exists only for samples that no other frame holds.
#include "frames.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "user_error.h"

namespace spectrum {

Frames::Frames(Source& from, int length, int hopSamples)
    : source(from), hop(static_cast<std::size_t>(hopSamples)), frame(static_cast<std::size_t>(length)) {
    if (fill(0) < frame.size()) {
        throw UserError(source.name + ": too few samples: " + std::to_string(count) + ", and one frame takes " +
                        std::to_string(length));
    }
}

bool Frames::next() {
    if (ended) return false;
    std::size_t kept = 0;
    if (hop < frame.size()) {
        std::copy(frame.begin() + static_cast<std::ptrdiff_t>(hop), frame.end(), frame.begin());
        kept = frame.size() - hop;
    } else if (!skip(hop - frame.size())) {
        return false;
    }
    const std::size_t got = fill(kept);
    ended = got < frame.size() - kept;
    std::fill(frame.begin() + static_cast<std::ptrdiff_t>(kept + got), frame.end(), 0.0);
    return got > 0;
}

std::size_t Frames::fill(std::size_t from) {
    const std::size_t got = source.read(std::span(frame).subspan(from));
    count += static_cast<std::int64_t>(got);
    return got;
}

bool Frames::skip(std::size_t most) {
    std::array<double, 4096> unused;
    while (most > 0) {
        const std::size_t got = source.read(std::span(unused).first(std::min(most, unused.size())));
        count += static_cast<std::int64_t>(got);
        most -= got;
        if (got == 0) return false;
    }
    return true;
}

std::vector<double> windowWeights(Window window, int length) {
    std::vector<double> weights(static_cast<std::size_t>(length), 1.0);
    if (window == Window::None) return weights;
    for (int i = 0; i < length; ++i) {
        const double turn = 2 * std::numbers::pi * i / length;
        weights[static_cast<std::size_t>(i)] = 0.5 - 0.5 * std::cos(turn);
    }
    return weights;
}

}  // namespace spectrum
