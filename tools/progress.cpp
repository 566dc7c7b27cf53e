// The progress line. A carriage return lets the next line overwrite it, a few times in a second at most.
// The clock is read only now and then, since reading it takes longer than a frame.
#include "progress.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace spectrum {

std::string clockTime(double seconds) {
    const long long whole = std::llround(std::max(0.0, seconds));
    char text[64];
    if (whole >= 3600) {
        std::snprintf(text, sizeof text, "%lld:%02lld:%02lld", whole / 3600, whole / 60 % 60, whole % 60);
    } else {
        std::snprintf(text, sizeof text, "%lld:%02lld", whole / 60, whole % 60);
    }
    return text;
}

std::string progressLine(std::int64_t done, std::optional<std::int64_t> total, double rate, double seconds) {
    const double speed = seconds > 0 ? static_cast<double>(done) / seconds : 0;
    char text[160];
    // How much faster than it is played, or how many numbers.
    if (rate > 0) {
        std::snprintf(text, sizeof text, "%.0f times real time", speed / rate);
    } else {
        std::snprintf(text, sizeof text, "%.2g million samples per second", speed / 1e6);
    }
    const std::string pace = text;
    if (!total || *total <= 0) return std::to_string(done) + " samples, " + pace;

    const double share = std::min(1.0, static_cast<double>(done) / static_cast<double>(*total));
    constexpr int width = 24;
    const int full = static_cast<int>(share * width);
    std::string line = "[" + std::string(static_cast<std::size_t>(full), '#') +
                       std::string(static_cast<std::size_t>(width - full), '.') + "] ";
    std::snprintf(text, sizeof text, "%.0f %%, ", 100 * share);
    line += text + pace;
    if (speed > 0) line += ", " + clockTime(static_cast<double>(*total - done) / speed) + " left";
    return line;
}

Progress::Progress(bool wanted) : enabled(wanted), begun(Clock::now()), due(begun + std::chrono::seconds(1)) {}

void Progress::expect(std::optional<std::int64_t> samples, double samplesInSecond) {
    total = samples;
    rate = samplesInSecond;
}

Progress::~Progress() {
    if (shown) std::fputs("\r\033[K", stderr);
}

void Progress::at(std::int64_t samples) {
    if (!enabled || ++calls % 64 != 0) return;
    const Clock::time_point now = Clock::now();
    if (now < due) return;
    due = now + std::chrono::milliseconds(250);
    shown = true;
    const double seconds = std::chrono::duration<double>(now - begun).count();
    std::fprintf(stderr, "\rzulspectrum: %s\033[K", progressLine(samples, total, rate, seconds).c_str());
}

}  // namespace spectrum
