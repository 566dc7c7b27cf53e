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

template <int... isMinus, int width, class V>
ArrayOfLanes<width, V> negated(const ArrayOfLanes<width, V>& x) {
    return flipped<isMinus...>(x);
}

// What a text stores: a register, or one with minus signs to be taken away.
template <class Register>
Register stored(const Register& x) {
    return x;
}
template <class Register, int... isMinus>
Register stored(zulg::Negated<Register, isMinus...> x) {
    return flipped<isMinus...>(x.of);
}

template <class V>
V number(const ArrayOfLanes<1, V>& x) {
    return x.lanes[0];
}
template <bool exchanged>
double number(zulg::Lanes<zulg::PortableRegisters, 1, exchanged> x) {
    return x.vector;
}

// `Registers` are those of one, two and four lanes.
template <template <int> class Registers, class V>
class LaneTextPorts {
public:
    using Value = Registers<1>;
    using Pair = Registers<2>;
    using Lines = Registers<4>;
    template <class Graph>
    using Constants = zulg::Doubles::Constants<Graph>;

    Value in(int n) const { return Value(input(n)); }
    Pair in(int a, int b) const { return Pair(input(a), input(b)); }
    Lines in(int a, int b, int c, int d) const { return Lines(input(a), input(b), input(c), input(d)); }
    Value re(int n) const { return in(2 * n); }
    Value im(int n) const { return in(2 * n + 1); }
    Pair pair(int n) const { return in(2 * n, 2 * n + 1); }
    Lines pairs(int n, int m) const { return in(2 * n, 2 * n + 1, 2 * m, 2 * m + 1); }

    void out(int k, const auto& x) const { store({{"out", k}}, x); }
    void out(int a, int b, const auto& x) const { store({{"out", a}, {"out", b}}, x); }
    void out(int a, int b, int c, int d, const auto& x) const {
        store({{"out", a}, {"out", b}, {"out", c}, {"out", d}}, x);
    }
    void re(int k, const auto& x) const { store({{"re", k}}, x); }
    void im(int k, const auto& x) const { store({{"im", k}}, x); }
    void pair(int k, const auto& x) const { store({{"re", k}, {"im", k}}, x); }
    void pairs(int k, int l, const auto& x) const { store({{"re", k}, {"im", k}, {"re", l}, {"im", l}}, x); }

    mutable std::map<OutputPlace, V> outputs = {};

private:
    static double input(int i) { return TextPorts<KindOfNumber<double>>::input(i); }

    void store(const std::vector<OutputPlace>& places, const auto& x) const { storeLanes(places.data(), stored(x)); }
    void storeLanes(const OutputPlace* place, const Value& x) const { outputs.emplace(*place, number(x)); }
    void storeLanes(const OutputPlace* places, const Pair& x) const {
        storeLanes(places, part<0>(x));
        storeLanes(places + 1, part<1>(x));
    }
    void storeLanes(const OutputPlace* places, const Lines& x) const {
        storeLanes(places, part<0>(x));
        storeLanes(places + 2, part<1>(x));
    }
};

template <class V>
struct LaneArrays {
    template <int width>
    using Of = ArrayOfLanes<width, V>;
    using Ports = LaneTextPorts<Of, V>;
};

// The registers as they are, or exchanged: then the imaginary part of a number is the first in memory.
template <bool exchanged>
struct LaneRegisters {
    template <int width>
    using Of = zulg::Lanes<zulg::PortableRegisters, width, exchanged>;
    using Ports = LaneTextPorts<Of, double>;
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
    results.lanes = run(LaneArrays<double>::Ports());
    results.registers = run(LaneRegisters<false>::Ports());
    results.exchanged = run(LaneRegisters<true>::Ports());
    results.intervals = run(LaneArrays<Interval>::Ports());
    operationCounts = {};
    run(LaneArrays<Counted>::Ports());
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
