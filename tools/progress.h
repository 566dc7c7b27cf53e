// A line on standard error that tells how far a long run is, for people at a terminal. It appears after the first
// second and is removed at the end.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace spectrum {

class Progress {
public:
    Progress(bool enabled, std::optional<std::int64_t> total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void at(std::int64_t samples);

private:
    using Clock = std::chrono::steady_clock;

    bool enabled;
    std::optional<std::int64_t> total;
    bool shown = false;
    int calls = 0;
    Clock::time_point due;
};

}  // namespace spectrum
