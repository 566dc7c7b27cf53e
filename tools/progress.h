// A line on standard error that tells how far a long run is, for people at a terminal: a bar, the rate, and the time
// that remains. It appears after the first second and is removed at the end.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace spectrum {

class Progress {
public:
    explicit Progress(bool enabled);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // `samplesInSecond` is the rate of a sound, or 0 for numbers.
    void expect(std::optional<std::int64_t> samples, double samplesInSecond);
    void at(std::int64_t samples);

private:
    using Clock = std::chrono::steady_clock;

    bool enabled;
    std::optional<std::int64_t> total;
    double rate = 0;
    bool shown = false;
    int calls = 0;
    Clock::time_point begun, due;
};

// The line without the name of the program: of `done` out of `total` after so many seconds.
std::string progressLine(std::int64_t done, std::optional<std::int64_t> total, double rate, double seconds);

// Such as 0:07 or 1:02:03.
std::string clockTime(double seconds);

}  // namespace spectrum
