// How long calls take: the median of rounds, each long enough for the clock.
#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>

namespace spectrum {

// Seconds of one call. A round takes about `seconds`.
template <typename Call>
double secondsOf(Call&& call, double seconds) {
    using Clock = std::chrono::steady_clock;
    const auto timed = [&](std::int64_t calls) {
        const auto start = Clock::now();
        for (std::int64_t i = 0; i < calls; ++i) call();
        return std::chrono::duration<double>(Clock::now() - start).count();
    };
    std::int64_t calls = 1;
    double took = timed(calls);
    while (took < seconds / 4 && calls < std::int64_t{1} << 40) took = timed(calls *= 2);
    calls = std::max<std::int64_t>(
        1, static_cast<std::int64_t>(static_cast<double>(calls) * seconds / std::max(took, 1e-9)));
    std::array<double, 5> rounds;
    for (double& round : rounds) round = timed(calls) / static_cast<double>(calls);
    std::nth_element(rounds.begin(), rounds.begin() + 2, rounds.end());
    return rounds[2];
}

}  // namespace spectrum
