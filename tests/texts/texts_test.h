// Ports that a text of any family can run through, over any kind of number, and what comes out.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "kernel/text.h"
#include "tests/counted.h"

namespace test {

// A number known to lie between two doubles. Each step widens it by more than one rounding.
struct Interval {
    double low = 0, high = 0;

    Interval() = default;
    Interval(double x) : low(x), high(x) {}
    Interval(double a, double b) : low(a), high(b) {}
};
inline Interval widened(double low, double high) {
    const double slack = 4e-16 * (low < 0 ? -low : low) + 4e-16 * (high < 0 ? -high : high);
    return {low - slack, high + slack};
}
inline Interval operator+(Interval a, Interval b) { return widened(a.low + b.low, a.high + b.high); }
inline Interval operator-(Interval a, Interval b) { return widened(a.low - b.high, a.high - b.low); }
inline Interval operator-(Interval a) { return {-a.high, -a.low}; }
inline Interval operator*(Interval a, Interval b) {
    const double products[] = {a.low * b.low, a.low * b.high, a.high * b.low, a.high * b.high};
    Interval range(products[0]);
    for (double product : products) {
        if (product < range.low) range.low = product;
        if (product > range.high) range.high = product;
    }
    return widened(range.low, range.high);
}

// Several numbers to a register.
typedef double PairOfDoubles __attribute__((vector_size(16)));
typedef double FourDoubles __attribute__((vector_size(32)));
typedef float FourSingles __attribute__((vector_size(16)));

// An output, by the name of its port and its number.
using OutputPlace = std::pair<std::string, int>;

// What kind of number a text runs on: how it is made of a double, and what a constant is to it.
template <class V, class Constant = V>
struct KindOfNumber {
    using Value = V;
    using Factor = Constant;
};

template <class Kind>
class TextPorts {
public:
    using Value = typename Kind::Value;
    using Factor = typename Kind::Factor;

    template <class Graph>
    struct Constants {
        Factor operator[](int i) const { return Factor(static_cast<Factor>(Graph::constants[i])); }
    };
    static Value two() { return value(2); }

    Value in(int n) const { return value(input(n)); }
    Value re(int n) const { return value(input(2 * n)); }
    Value im(int n) const { return value(input(2 * n + 1)); }
    Value table(int i) const { return value(input(200 + i)); }
    Value inner(int i) const { return value(input(300 + i)); }
    Value outer(int i) const { return value(input(400 + i)); }

    void out(int k, Value x) const { store("out", k, x); }
    void re(int k, Value x) const { store("re", k, x); }
    void im(int k, Value x) const { store("im", k, x); }
    void minusRe(int k, Value x) const { store("re", k, -x); }
    void minusIm(int k, Value x) const { store("im", k, -x); }
    void rising(int k, Value x) const { store("rising", k, x); }
    void falling(int k, Value x) const { store("falling", k, x); }

    mutable std::map<OutputPlace, Value> outputs = {};

    // Around 1, each another one.
    static double input(int i) { return 0.5 + (i * 37 % 101) / 128.0 - (i % 3) * 0.75; }

private:
    static Value value(double x) {
        if constexpr (requires(Value v) { v[0]; }) {
            return Value{} + static_cast<Factor>(x);
        } else {
            return Value(x);
        }
    }
    void store(const char* port, int k, Value x) const { outputs.emplace(OutputPlace{port, k}, x); }
};

struct TextResults {
    std::map<OutputPlace, double> doubles, pairs, fours, singles;
    std::map<OutputPlace, Interval> intervals;
    int counted = 0;  // sums, differences and products, without `scale`
    int stated = 0;   // the same as the text states it, or 0
};

// All lanes must agree; a NaN shows where they do not.
template <class Value>
std::map<OutputPlace, double> lanes(const std::map<OutputPlace, Value>& outputs) {
    std::map<OutputPlace, double> result;
    for (const auto& [place, value] : outputs) {
        double lane = static_cast<double>(value[0]);
        for (std::size_t i = 1; i < sizeof value / sizeof value[0]; ++i) {
            if (static_cast<double>(value[i]) != lane) lane = __builtin_nan("");
        }
        result.emplace(place, lane);
    }
    return result;
}

template <class Kind, class Graph>
auto outputsOf() {
    const TextPorts<Kind> ports;
    Graph::run(ports);
    return ports.outputs;
}

template <class Graph>
TextResults runText() {
    TextResults results;
    results.doubles = outputsOf<KindOfNumber<double>, Graph>();
    results.pairs = lanes(outputsOf<KindOfNumber<PairOfDoubles, double>, Graph>());
    results.fours = lanes(outputsOf<KindOfNumber<FourDoubles, double>, Graph>());
    results.singles = lanes(outputsOf<KindOfNumber<FourSingles, float>, Graph>());
    results.intervals = outputsOf<KindOfNumber<Interval>, Graph>();
    operationCounts = {};
    outputsOf<KindOfNumber<Counted>, Graph>();
    results.counted = operationCounts.sums() + operationCounts.multiplications;
    if constexpr (requires { Graph::steps; }) {
        results.stated = Graph::steps - static_cast<int>(results.doubles.size());
    }
    return results;
}

struct TextRun {
    std::string name;
    std::function<TextResults()> run;
};

// Every text that is linked into the test.
inline std::vector<TextRun>& textRuns() {
    static std::vector<TextRun> runs;
    return runs;
}

struct AddedText {
    AddedText(const char* name, TextResults (*run)()) { textRuns().push_back({name, run}); }
};

}  // namespace test
