#include "errors/dct4_bound.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace gen {
namespace {

constexpr double unit = 0x1p-53, singleUnit = 0x1p-24;
// A step of x87 may round twice, as errors/error_bound.h says. The rest is the second order.
constexpr double stepUnit = unit * (1 + 0x1p-11) * (1 + 1e-9);
constexpr double ownRoundings = 1 + 1e-9;

// The bins of a skew transform: their errors, and their greatest modulus. All are over the 2-norm of the inputs.
struct Bins {
    Dct4Bound error;
    double greatest;

    double computed() const { return greatest + error.total(); }
};

// Rows of `radix` bins, of which `rotated` are multiplied by entries of a table; `row` is what follows then.
Bins inRows(const Bins& bins, int radix, int rotated, double tables, const RowBound& row) {
    const double rotationError = stepUnit * (std::numbers::sqrt2 + row.uses);
    const double parts = std::sqrt(radix), turned = std::sqrt(rotated) * bins.computed() * (1 + tables);
    const double after = bins.computed() * (1 + rotationError) * (1 + tables);
    return {
        {parts * bins.error.steps + rotationError * turned + unit * row.error.steps * after,
         parts * bins.error.tables + tables * turned + unit * row.error.constants * after, parts * bins.error.stores},
        parts * bins.greatest};
}

// What comes on top where the rows find their bins in registers.
Bins notStored(Bins bins, const RowBound& row) {
    bins.error.steps += stepUnit * std::max(std::numbers::sqrt2, row.uses) * bins.computed();
    return bins;
}

Bins stored(Bins bins, Width element) {
    if (element == Width::Single) bins.error.stores += singleUnit * bins.computed();
    return bins;
}

// The greatest modulus of a bin of M points: the rows of its real and of its imaginary part are orthogonal, and the
// squares of their elements add up to M/2.
double greatestBin(int points) { return std::sqrt(points / 2.0); }

Bins skewTransform(int points, const Dct4Bodies& bodies, Width element) {
    if (points <= 64) {
        const ErrorBound bound = bodies.fold(points);
        return stored({{unit * bound.steps, unit * bound.constants, 0}, greatestBin(points)}, element);
    }
    const int radix = dct4Radix(points);
    Bins bins = skewTransform(points / radix, bodies, element);
    // Of a row, the angle t is below 1/2. The fractions are 2tc/radix, and those of an outer step 2(t + j)c/radix.
    const int inner = radix <= 8 ? radix : radix / 4;
    bins = inRows(bins, inner, inner - 1, tableError((inner - 1.0) / inner, element), bodies.dft(inner));
    if (radix > 8) {
        const RowBound outer = bodies.dft(4);
        bins = inRows(notStored(bins, outer), 4, 3, tableError(2.0 * (inner - 0.5) * 3 / radix, element), outer);
    }
    return stored(bins, element);
}

}  // namespace

int dct4Radix(int points) {
    const int half = points / 2;
    return half >= 512 ? 32 : half >= 128 ? 16 : half >= 32 ? 8 : half >= 16 ? 4 : 2;
}

double tableError(double fraction, Width element) {
    const double angle = std::numbers::pi * fraction;
    int exponent;
    std::frexp(angle, &exponent);
    const double product = std::ldexp(unit, exponent - 1);      // half a unit of the last place
    const double ofPi = 1.2247e-16 * fraction;                  // pi is so much above its double
    const double functions = std::numbers::sqrt2 * 1.5 * unit;  // both below 1, one and a half units off
    const double rounding = element == Width::Single ? singleUnit / std::numbers::sqrt2 : 0;
    return (product + ofPi + functions + rounding) * (1 + 1e-9);
}

Dct4Bound dct4Bound(int points, const Dct4Bodies& bodies, Width element) {
    const int radix = dct4Radix(points);
    const Bins bins = skewTransform(points / radix, bodies, element);
    const Bins outputs = stored(inRows(bins, radix, radix, tableError(0.5, element), bodies.row(radix)), element);
    return {outputs.error.steps * ownRoundings, outputs.error.tables * ownRoundings,
            outputs.error.stores * ownRoundings};
}

}  // namespace gen
