// The frames of an input. Samples that the last full frame covers do not make another frame: a frame that is filled up
// with zeros exists only for samples that no other frame holds.
#include "frames.h"

#include <algorithm>

#include "user_error.h"

namespace spectrum {

Frames::Frames(Source& from, int length, int hopSamples, std::int64_t first)
    : source(from), hop(static_cast<std::size_t>(hopSamples)), frame(static_cast<std::size_t>(length)) {
    if (first > 0) count = source.skip(first * hopSamples);
    const std::size_t got = fill(0);
    if (first == 0 && got < frame.size()) {
        throw UserError(source.name + ": too few samples: " + std::to_string(count) + ", and one frame takes " +
                        std::to_string(length));
    }
    ended = got < frame.size();
}

bool Frames::next() {
    if (ended) return false;
    std::size_t kept = 0;
    if (hop < frame.size()) {
        std::copy(frame.begin() + static_cast<std::ptrdiff_t>(hop), frame.end(), frame.begin());
        kept = frame.size() - hop;
    } else if (!skip(static_cast<std::int64_t>(hop - frame.size()))) {
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

bool Frames::skip(std::int64_t most) {
    const std::int64_t got = source.skip(most);
    count += got;
    return got == most;
}

std::int64_t frameCount(std::int64_t samples, int length, int hop) {
    // After each frame but the last begins another: at a sample that exists, and that no frame before holds.
    const std::int64_t beyondFirst = hop > length ? samples - 1 : samples - length + hop - 1;
    return 1 + beyondFirst / hop;
}

}  // namespace spectrum
