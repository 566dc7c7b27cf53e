#include "numbers/exact.h"

#include <boost/math/constants/constants.hpp>
#include <cmath>

namespace gen {
namespace {

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

Exact angle(const Octant& octant, int n) { return boost::math::constants::two_pi<Exact>() * octant.eighths / (8 * n); }

}  // namespace

Exact cosTurn(int k, int n) {
    const Octant octant = reduce(k, n);
    const Exact magnitude = octant.exchanged ? sin(angle(octant, n)) : cos(angle(octant, n));
    return octant.minusCos ? -magnitude : magnitude;
}

Exact sinTurn(int k, int n) {
    const Octant octant = reduce(k, n);
    const Exact magnitude = octant.exchanged ? cos(angle(octant, n)) : sin(angle(octant, n));
    return octant.minusSin ? -magnitude : magnitude;
}

double nearest(const Exact& x) { return x.convert_to<double>(); }

double storedInverseRoot(int n) { return 1.0 / std::sqrt(static_cast<double>(n)); }

}  // namespace gen
