// Ports that a text in lanes can run through, over any kind of number: what a target holds in one register is an array
// here. And the same over the registers of kernel/lanes.h.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "kernel/doubles.h"
#include "kernel/lanes.h"
#include "kernel/text.h"
#include "tests/counted.h"
#include "tests/texts/texts_test.h"

namespace test {

template <int width, class V>
struct ArrayOfLanes {
    std::array<V, width> lanes;

    ArrayOfLanes() = default;
    template <class... Number>
    explicit ArrayOfLanes(Number... number) : lanes{V(number)...} {}
};

template <int width, class V, class Step>
ArrayOfLanes<width, V> eachLane(const Step& step) {
    ArrayOfLanes<width, V> result;
    for (std::size_t i = 0; i < width; ++i) result.lanes[i] = step(i);
    return result;
}
template <int width, class V>
ArrayOfLanes<width, V> operator+(const ArrayOfLanes<width, V>& a, const ArrayOfLanes<width, V>& b) {
    return eachLane<width, V>([&](std::size_t i) { return a.lanes[i] + b.lanes[i]; });
}
template <int width, class V>
ArrayOfLanes<width, V> operator-(const ArrayOfLanes<width, V>& a, const ArrayOfLanes<width, V>& b) {
    return eachLane<width, V>([&](std::size_t i) { return a.lanes[i] - b.lanes[i]; });
}
template <int width, class V>
ArrayOfLanes<width, V> operator*(const ArrayOfLanes<width, V>& a, const ArrayOfLanes<width, V>& b) {
    return eachLane<width, V>([&](std::size_t i) { return a.lanes[i] * b.lanes[i]; });
}
template <int width, class V>
ArrayOfLanes<width, V> operator*(double factor, const ArrayOfLanes<width, V>& x) {
    return eachLane<width, V>([&](std::size_t i) { return V(factor) * x.lanes[i]; });
}

template <int... isFlipped, int width, class V>
ArrayOfLanes<width, V> flipped(const ArrayOfLanes<width, V>& x) {
    constexpr bool flips[] = {isFlipped != 0 ...};
    return eachLane<width, V>([&](std::size_t i) { return flips[i] ? -x.lanes[i] : x.lanes[i]; });
}
template <int... places, int width, class V>
ArrayOfLanes<width, V> shuffled(const ArrayOfLanes<width, V>& a, const ArrayOfLanes<width, V>& b) {
    constexpr int from[] = {places...};
    return eachLane<width, V>([&](std::size_t i) {
        const auto place = static_cast<std::size_t>(from[i]);
        return place < width ? a.lanes[place] : b.lanes[place - width];
    });
}
template <int... places, int width, class V>
ArrayOfLanes<width, V> shuffled(const ArrayOfLanes<width, V>& a) {
    return shuffled<places...>(a, a);
}
template <int width, class V>
ArrayOfLanes<2 * width, V> joined(const ArrayOfLanes<width, V>& a, const ArrayOfLanes<width, V>& b) {
    return eachLane<2 * width, V>([&](std::size_t i) { return i < width ? a.lanes[i] : b.lanes[i - width]; });
}
template <int half, int width, class V>
ArrayOfLanes<width / 2, V> part(const ArrayOfLanes<width, V>& x) {
    return eachLane<width / 2, V>([&](std::size_t i) { return x.lanes[half * width / 2 + i]; });
}

template <class V>
class LaneTextPorts {
public:
    using Value = ArrayOfLanes<1, V>;
    using Pair = ArrayOfLanes<2, V>;
    using Lines = ArrayOfLanes<4, V>;
    template <class Graph>
    using Constants = zulg::Doubles::Constants<Graph>;

    Pair pair(int n) const { return Pair(input(2 * n), input(2 * n + 1)); }
    Lines pairs(int n, int m) const { return joined(pair(n), pair(m)); }
    void pair(int k, const Pair& x) const {
        outputs.emplace(OutputPlace{"re", k}, x.lanes[0]);
        outputs.emplace(OutputPlace{"im", k}, x.lanes[1]);
    }
    void pairs(int k, int l, const Lines& x) const {
        pair(k, part<0>(x));
        pair(l, part<1>(x));
    }

    mutable std::map<OutputPlace, V> outputs = {};

    static double input(int i) { return TextPorts<KindOfNumber<double>>::input(i); }
};

// The registers as they are, or exchanged: then the imaginary part of a number is the first in memory.
template <bool exchanged>
class RegisterPorts {
public:
    using Value = zulg::Lanes<zulg::PortableRegisters, 1, exchanged>;
    using Pair = zulg::Lanes<zulg::PortableRegisters, 2, exchanged>;
    using Lines = zulg::Lanes<zulg::PortableRegisters, 4, exchanged>;
    template <class Graph>
    using Constants = zulg::Doubles::Constants<Graph>;

    Pair pair(int n) const {
        return Pair(LaneTextPorts<double>::input(2 * n), LaneTextPorts<double>::input(2 * n + 1));
    }
    Lines pairs(int n, int m) const { return joined(pair(n), pair(m)); }
    void pair(int k, Pair x) const {
        outputs.emplace(OutputPlace{"re", k}, x.vector[exchanged ? 1 : 0]);
        outputs.emplace(OutputPlace{"im", k}, x.vector[exchanged ? 0 : 1]);
    }
    void pairs(int k, int l, Lines x) const {
        pair(k, part<0>(x));
        pair(l, part<1>(x));
    }

    mutable std::map<OutputPlace, double> outputs = {};
};

struct LaneTextResults {
    std::map<OutputPlace, double> scalar, lanes, registers, exchanged;
    std::map<OutputPlace, Interval> intervals;
    int counted = 0, stated = 0;  // steps without `scale`
};

// `Scalar` is the text of the same graph with one number to a register.
template <class Text, class Scalar>
LaneTextResults runLaneText() {
    LaneTextResults results;
    results.scalar = outputsOf<KindOfNumber<double>, Scalar>();
    const auto run = [](const auto& ports) {
        Text::run(ports);
        return ports.outputs;
    };
    results.lanes = run(LaneTextPorts<double>());
    results.registers = run(RegisterPorts<false>());
    results.exchanged = run(RegisterPorts<true>());
    results.intervals = run(LaneTextPorts<Interval>());
    operationCounts = {};
    run(LaneTextPorts<Counted>());
    results.counted = operationCounts.sums() + operationCounts.multiplications;
    results.stated = Text::steps - static_cast<int>(results.lanes.size());
    return results;
}

struct LaneTextRun {
    std::string name;
    std::function<LaneTextResults()> run;
};
inline std::vector<LaneTextRun>& laneTextRuns() {
    static std::vector<LaneTextRun> runs;
    return runs;
}
struct AddedLaneText {
    AddedLaneText(const char* name, LaneTextResults (*run)()) { laneTextRuns().push_back({name, run}); }
};

}  // namespace test
