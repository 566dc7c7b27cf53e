// Numbers of 50 decimal digits, and the one routine that rounds them to doubles.
//
// Every constant of a kernel is made here from integers and stays at full width while products of constants are formed.
// The double in the kernel is that number, rounded once.
#pragma once

#include <boost/multiprecision/cpp_bin_float.hpp>

namespace gen {

using Exact = boost::multiprecision::cpp_bin_float_50;

// cos and sin of 2 pi k/n, for any integer k and n > 0. The angle is reduced to the first octant in integers, so that
// equal magnitudes come out equal to the last digit and multiples of a quarter turn are exact.
Exact cosTurn(int k, int n);
Exact sinTurn(int k, int n);

// The double nearest to x.
double nearest(const Exact& x);

// 1/sqrt(n) as it is stored for scaling: the double quotient of 1 and the double square root of n. The two roundings
// are part of its definition; at some n the result is one unit of the last place off the nearest double.
double storedInverseRoot(int n);

}  // namespace gen
