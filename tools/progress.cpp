// The progress line. A carriage return lets the next line overwrite it, a few times in a second at most.
// The clock is read only now and then, since reading it takes longer than a frame.
#include "progress.h"

#include <cstdio>

namespace spectrum {

Progress::Progress(bool wanted, std::optional<std::int64_t> samples)
    : enabled(wanted), total(samples), due(Clock::now() + std::chrono::seconds(1)) {}

Progress::~Progress() {
    if (shown) std::fputs("\r\033[K", stderr);
}

void Progress::at(std::int64_t samples) {
    if (!enabled || ++calls % 64 != 0) return;
    const Clock::time_point now = Clock::now();
    if (now < due) return;
    due = now + std::chrono::milliseconds(250);
    shown = true;
    if (total && *total > 0) {
        const double share = 100.0 * static_cast<double>(samples) / static_cast<double>(*total);
        std::fprintf(stderr, "\rzulspectrum: %.0f %% of %lld samples\033[K", share, static_cast<long long>(*total));
    } else {
        std::fprintf(stderr, "\rzulspectrum: %lld samples\033[K", static_cast<long long>(samples));
    }
}

}  // namespace spectrum
