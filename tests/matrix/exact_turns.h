// Cosines and sines of the parts of a turn to 50 digits, by another way than the generator's: decimal numbers, and no
// reduction of the angle but that to one turn.
#pragma once

#include <vector>

namespace test {

// A number as the sum of two doubles, the first of which is the double nearest to it: 106 bits or more.
struct Exact {
    double high, low;

    // How far `found` is from the number. The first difference is exact where the two are near to each other.
    double errorOf(double found) const { return (found - high) - low; }
};

// Of j parts of a turn that has `parts` of them: cosine, sine, and the sum of both.
struct ExactTurn {
    Exact cosine, sine, cas;
};

// For j = 0 .. parts - 1.
std::vector<ExactTurn> exactTurns(int parts);

}  // namespace test
