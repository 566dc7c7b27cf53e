#include "numbers/exact.h"

#include <boost/math/constants/constants.hpp>
#include <boost/multiprecision/cpp_bin_float.hpp>
#include <cmath>
#include <map>
#include <ostream>
#include <utility>

namespace gen {

using Number = boost::multiprecision::cpp_bin_float_50;

struct Exact::Digits {
    Number number;
};

namespace {

Exact exact(const Number& number) { return Exact(std::make_shared<const Exact::Digits>(number)); }

// The angle 2 pi k/n, reduced to the first octant: to 2 pi eighths/(8 n) with 0 <= eighths <= n. The flags tell how the
// cosine and sine of the whole angle follow from those of the reduced one.
struct Octant {
    int eighths;
    bool exchanged, minusCos, minusSin;
};

Octant reduce(int k, int n) {
    int eighths = 8 * (((k % n) + n) % n);  // in units of 1/(8 n) of a turn: a full turn is 8 n
    Octant octant{0, false, false, false};
    if (eighths > 4 * n) {  // lower half plane: mirror at the real axis
        eighths = 8 * n - eighths;
        octant.minusSin = true;
    }
    if (eighths > 2 * n) {  // left half plane: mirror at the imaginary axis
        eighths = 4 * n - eighths;
        octant.minusCos = true;
    }
    if (eighths > n) {  // second octant: mirror at the diagonal
        eighths = 2 * n - eighths;
        octant.exchanged = true;
    }
    octant.eighths = eighths;
    return octant;
}

Number angle(const Octant& octant, int n) {
    return boost::math::constants::two_pi<Number>() * octant.eighths / (8 * n);
}

// Cosine and sine of reduced angles. Rules ask for the same ones again and again.
const Number& cosineOf(const Octant& octant, int n) {
    static std::map<std::pair<int, int>, Number> known;
    const auto [found, isNew] = known.try_emplace({octant.eighths, n});
    if (isNew) found->second = cos(angle(octant, n));
    return found->second;
}
const Number& sineOf(const Octant& octant, int n) {
    static std::map<std::pair<int, int>, Number> known;
    const auto [found, isNew] = known.try_emplace({octant.eighths, n});
    if (isNew) found->second = sin(angle(octant, n));
    return found->second;
}

}  // namespace

Exact::Exact(int value) : Exact(exact(value)) {}
Exact::Exact(double value) : Exact(exact(Number(value))) {}
Exact::Exact(const std::string& decimal) : Exact(exact(Number(decimal))) {}

Exact::operator double() const { return digits->number.convert_to<double>(); }
Exact::operator long double() const { return digits->number.convert_to<long double>(); }

Exact operator+(const Exact& a, const Exact& b) { return exact(a.digits->number + b.digits->number); }
Exact operator-(const Exact& a, const Exact& b) { return exact(a.digits->number - b.digits->number); }
Exact operator*(const Exact& a, const Exact& b) { return exact(a.digits->number * b.digits->number); }
Exact operator/(const Exact& a, const Exact& b) { return exact(a.digits->number / b.digits->number); }
Exact operator-(const Exact& x) { return exact(-x.digits->number); }
Exact abs(const Exact& x) { return exact(abs(x.digits->number)); }
Exact sqrt(const Exact& x) { return exact(sqrt(x.digits->number)); }
bool operator==(const Exact& a, const Exact& b) { return a.digits->number == b.digits->number; }
bool operator<(const Exact& a, const Exact& b) { return a.digits->number < b.digits->number; }

std::string Exact::text(int digitsAfterFirst) const {
    return digits->number.str(digitsAfterFirst, std::ios::scientific);
}
std::ostream& operator<<(std::ostream& out, const Exact& x) { return out << x.text(48); }

Exact cosTurn(int k, int n) {
    const Octant octant = reduce(k, n);
    const Number& magnitude = octant.exchanged ? sineOf(octant, n) : cosineOf(octant, n);
    return exact(octant.minusCos ? Number(-magnitude) : magnitude);
}

Exact sinTurn(int k, int n) {
    const Octant octant = reduce(k, n);
    const Number& magnitude = octant.exchanged ? cosineOf(octant, n) : sineOf(octant, n);
    return exact(octant.minusSin ? Number(-magnitude) : magnitude);
}

double nearest(const Exact& x) { return static_cast<double>(x); }

double storedInverseRoot(int n) { return 1.0 / std::sqrt(static_cast<double>(n)); }

}  // namespace gen
