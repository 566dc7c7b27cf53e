#include "output/bounds.h"

#include <cmath>
#include <cstdio>
#include <map>
#include <memory>

#include "errors/dct4_bound.h"
#include "errors/error_bound.h"
#include "output/catalogue.h"
#include "rules/transforms.h"

namespace gen {
namespace {

constexpr double unit = 0x1p-53, singleUnit = 0x1p-24;
constexpr double inSingleUnits = unit / singleUnit;
// A rounding to double after one to the wider registers of x87.
constexpr double roundingToDouble = 1 + 0x1p-11;

// A factor as it is stored, beside the exact one.
struct Factor {
    const char* name;
    Exact exact;
    double stored;

    double shift() const { return std::abs(nearest(Exact(stored) / exact - 1)); }
    bool isPowerOfTwo() const {
        int exponent;
        return std::frexp(stored, &exponent) == 0.5;
    }
};

std::vector<Factor> factorsOf(int points, bool isSingle) {
    const Exact N = points;
    const double root = storedInverseRoot(points);
    return {{"none", 1, 1},
            {"root", 1 / sqrt(N), isSingle ? static_cast<float>(root) : root},
            {"whole", 1 / N, isSingle ? 1 / static_cast<float>(points) : 1 / static_cast<double>(points)}};
}

// Every step in double, then the product with the factor.
double boundInDouble(const ErrorBound& bound, const Factor& factor) {
    const double shift = factor.shift() / unit, rounding = factor.isPowerOfTwo() ? 0 : roundingToDouble;
    return bound.total() + (shift + rounding) * (bound.greatest + bound.total() * unit) * (1 + 2 * unit);
}

// Every step in double, but `roundings` times to single on the way, each time every number on which an output depends.
// What such a rounding adds to an output is at most 2^-24 of the greatest value of that output.
double boundInSingle(const ErrorBound& bound, const Factor& factor, int roundings) {
    const double shift = factor.shift() / singleUnit,
                 product = factor.isPowerOfTwo() ? 0 : roundingToDouble * inSingleUnits;
    const double first = bound.total() * inSingleUnits + (shift + product + roundings) * bound.greatest;
    return first * (1 + 8 * singleUnit);  // the second order: at most six roundings follow one another
}

class Table {
public:
    void add(const char* family, const char* element, int length, const char* factor, double bound) {
        char line[96];
        // Rounded up in the last place that is printed.
        std::snprintf(line, sizeof line, "%s,%s,%d,%s,%.3f\n", family, element, length, factor,
                      std::ceil(bound * 1000) / 1000);
        lines += line;
    }
    const std::string& text() const { return lines; }

private:
    std::string lines;
};

void addKernel(Table& table, const char* family, const GraphEntry& entry, const ErrorBound& bound) {
    for (const Factor& factor : factorsOf(entry.length, false))
        table.add(family, "64f", entry.length, factor.name, boundInDouble(bound, factor));
    for (const Factor& factor : factorsOf(entry.length, true))
        table.add(family, "32f", entry.length, factor.name, boundInSingle(bound, factor, 1));
}

void addKernels(Table& table, const GraphEntry& entry) {
    const auto graph = entry.build();
    const LinearMap map(*graph, Width::Double);
    const std::string& family = entry.family->word;
    const ErrorBound bound = errorBound(map, family == "complex" || family == "real_forward");
    if (family != "complex") return addKernel(table, family.c_str(), entry, bound);
    addKernel(table, "complex_forward", entry, bound);
    addKernel(table, "complex_inverse", entry, bound);  // the same graph
}

// In single, a block keeps its values in double. Each pass after the first one finds values that have been rounded.
void addWalshHadamard(Table& table, int order) {
    const ErrorBound bound = walshHadamardBound(order);
    const int passes = order < 8 ? 1 : order < 12 ? 2 : 3;
    for (const Factor& factor : factorsOf(1 << order, false))
        table.add("wht", "64f", order, factor.name, boundInDouble(bound, factor));
    for (const Factor& factor : factorsOf(1 << order, true))
        table.add("wht", "32f", order, factor.name, boundInSingle(bound, factor, passes));
}

// The constants of the DCT-IV have the width of the element.
void addDct4(Table& table, const GraphEntry& entry) {
    const Factor one{"none", 1, 1};
    const auto graph = entry.build();
    const ErrorBound twice = errorBound(LinearMap(*graph, Width::Double), false),
                     single = errorBound(LinearMap(*graph, Width::Single), false);
    table.add("dct4", "64f", entry.length, one.name, boundInDouble(twice, one));
    table.add("dct4", "32f", entry.length, one.name, boundInSingle(single, one, 1));
}

// The bounds of the bodies of a plan, each computed once.
class BodyBounds {
public:
    explicit BodyBounds(Width constants) : width(constants) {}

    Dct4Bodies bodies() {
        return {[this](int points) { return of(folds, dct4FoldTransform, points, true).error; },
                [this](int radix) { return of(rows, dct4OutputOfRotated, radix, false); },
                [this](int points) { return of(dfts, dct4CombineOfRotated, points, true); }};
    }

private:
    using Known = std::map<int, RowBound>;

    RowBound of(Known& known, std::unique_ptr<Graph> (*build)(int), int number, bool complex) {
        const auto [place, isNew] = known.try_emplace(number);
        if (isNew) {
            const auto graph = build(number);
            const LinearMap map(*graph, width);
            place->second = {errorBound(map, complex), gainOfInputUses(map, complex)};
        }
        return place->second;
    }

    Width width;
    Known folds, rows, dfts;
};

void addDct4Plans(Table& table) {
    BodyBounds inDouble(Width::Double), inSingle(Width::Single);
    for (int points = 64; points <= 65536; points *= 2) {
        table.add("dct4", "64f", points, "none", dct4Bound(points, inDouble.bodies(), Width::Double).total() / unit);
        table.add("dct4", "32f", points, "none",
                  dct4Bound(points, inSingle.bodies(), Width::Single).total() / singleUnit);
    }
}

}  // namespace

std::string boundsTable() {
    Table table;
    for (const GraphEntry& entry : allGraphs()) {
        if (!entry.family->isBody()) addKernels(table, entry);
        if (entry.family->word == "dct4_direct") addDct4(table, entry);
    }
    addDct4Plans(table);
    for (int order = 1; order <= 13; ++order) addWalshHadamard(table, order);
    return table.text();
}

}  // namespace gen
