// How far a DCT of type IV in passes can be from the exact one at worst.
//
// N points are done as r folded sequences of M = N/r points, each a skew transform, then N/(2r) output rows, each of
// one bin of every sequence. Where M is above 64, its skew transform is done in the same way: of r' parts, then rows
// that combine them. Let x[p] be the inputs of part p: they are disjoint, so that the squares of their 2-norms |x[p]|
// add up to |x|^2. If each bin z[p] is at most G |x[p]| and is off by at most E |x[p]|, then in a row of R of them, by
// Cauchy and Schwarz,
//
//     the errors of the bins give         sum of E |x[p]|                       <=  E sqrt(R) |x|
//     rotations, n of them, and tables    sum of (rho + tau)(G + E) |x[p]|      <=  (rho + tau)(G + E) sqrt(n) |x|
//     bins that have not been stored      sum of sigma (G + E) |x[p]|           <=  sigma (G + E) sqrt(R) |x|
//     the steps after them, bounded as    beta |rotated bins|                   <=  beta (G + E)(1 + rho + tau) |x|
//     a graph by itself
//
// since a row turns its bins and adds them up: each has a factor of modulus 1 in each output. A row of radix 16 or 32
// of a combine pass is two such rows in turn; the second takes bins that have not been stored. What is stored in single
// is rounded once more.
//
// rho: with products xr c, xi s, xi c, xr s and two sums, all rounded, the error of x (c + i s) is at most u times
// the length of (|xr c| + |xi s|, |xi c| + |xr s|), which is at most sqrt(2) |x|, and u |x| for the sums. The row uses
// a sum several times, and may find it rounded at some of them only (errors/error_bound.h): what the sums add counts
// gamma times, the greatest gain of what is added at some uses of a bin.
//
// sigma: bins that have not been stored may be rounded once more at some of their uses. A rotation uses xr twice and xi
// twice, which makes sqrt(2) u |x| of it at most. A bin without a rotation has gamma u |x|.
//
// tau: an entry is the cosine or sine of pi f, where the fraction f is exact. The product of f with the double next to
// pi is rounded. The cosine and the sine of the machine are at most one unit of the last place off the nearest double.
// Every target is held to that by the test same_bits_over_tables.
#pragma once

#include <functional>

#include "errors/error_bound.h"

namespace gen {

// Of what a row does after its rotations: the bound, and what some uses of a bin can do (gainOfInputUses).
struct RowBound {
    ErrorBound error;
    double uses;
};

// The bounds of the bodies that a plan is made of.
struct Dct4Bodies {
    std::function<ErrorBound(int points)> fold;  // of a complex bin
    std::function<RowBound(int radix)> row;      // of an output row
    std::function<RowBound(int points)> dft;     // of the DFT in a combine row, of a complex bin
};

// The greatest errors of an output over the 2-norm of the input, of 64 points or more.
struct Dct4Bound {
    double steps = 0;   // what steps in double add
    double tables = 0;  // what the rounding of constants and tables shifts
    double stores = 0;  // what the roundings to single add

    double total() const { return steps + tables + stores; }
};
Dct4Bound dct4Bound(int points, const Dct4Bodies& bodies, Width element);

// Into how many parts a plan takes a transform or a skew transform apart.
int dct4Radix(int points);

// How far an entry pair of a table is off at most, where no fraction of pi is above `fraction`.
double tableError(double fraction, Width element);

}  // namespace gen
