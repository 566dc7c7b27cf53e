// The definitions, as slow and obvious as they are. FOR TESTS ONLY: O(N^2), in long double.
#pragma once

#include <vector>

namespace test {

using Wide = long double;
using Values = std::vector<Wide>;  // complex values as pairs: real part, imaginary part

// cos and sin of 2 pi k/n.
Wide cosTurn(int k, int n);
Wide sinTurn(int k, int n);

// sum over n of x[n] exp(sign 2 pi i n k/N) for each k; x holds N pairs.
Values complexTransform(const Values& x, int sign);

// The bins 0 .. N/2 of real x, as pairs.
Values realTransform(const Values& x);

// The N real values whose spectrum has these bins 0 .. N/2, times N. Imaginary parts of real bins are ignored.
Values inverseRealTransform(const Values& bins, int length);

// sum over j of x[j] (cos + sin)(2 pi j k/N) for each k.
Values hartleyTransform(const Values& x);

}  // namespace test
