// Numbers of 50 decimal digits, and the one routine that rounds them to doubles.
//
// Every constant of a kernel is made here from integers and stays at full width while products of constants are formed.
// The double in the kernel is that number, rounded once.
#pragma once

#include <iosfwd>
#include <memory>
#include <string>

namespace gen {

// A number that never changes once it is made. Its digits are known to exact.cpp alone, since their headers take longer
// to compile than the rest of the generator.
class Exact {
public:
    struct Digits;

    Exact(int value = 0);
    explicit Exact(double value);
    explicit Exact(const std::string& decimal);
    explicit Exact(std::shared_ptr<const Digits> from) : digits(std::move(from)) {}

    explicit operator double() const;  // the nearest one
    explicit operator long double() const;

    friend Exact operator+(const Exact& a, const Exact& b);
    friend Exact operator-(const Exact& a, const Exact& b);
    friend Exact operator*(const Exact& a, const Exact& b);
    friend Exact operator/(const Exact& a, const Exact& b);
    friend Exact operator-(const Exact& x);
    friend Exact abs(const Exact& x);
    friend Exact sqrt(const Exact& x);
    friend bool operator==(const Exact& a, const Exact& b);
    friend bool operator<(const Exact& a, const Exact& b);

    // In decimal, with so many digits after the first one.
    std::string text(int digitsAfterFirst) const;

private:
    std::shared_ptr<const Digits> digits;
};

std::ostream& operator<<(std::ostream& out, const Exact& x);

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
