// The definitions, one for each family, as slow and obvious as they are. FOR TESTS ONLY: in long double.
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

// (cos + sin)(2 pi k/n).
Wide casTurn(int k, int n);

// sum over j of x[j] (cos + sin)(2 pi j k/N) for each k.
Values hartleyTransform(const Values& x);

// 1 or -1: whether j and k share an even number of binary ones.
int walshHadamardSign(int j, int k);

// sum over j of x[j] walshHadamardSign(j, k) for each k.
Values walshHadamardTransform(const Values& x);

// Which outputs are computed: every `step`-th from `first` on. A test of a long transform asks for some of them.
struct Chosen {
    int first = 0, step = 1;
};

// cos(pi (n + 1/2)(k + 1/2)/N).
Wide dct4Factor(int n, int k, int length);

// sum over n of x[n] dct4Factor(n, k, N) for each chosen k.
Values dct4Transform(const Values& x, Chosen outputs = {});

// sum over s of v[s] exp(2 pi i s (k + 1/2)/M) for each chosen k of 0 .. M/2 - 1, as pairs.
Values skewTransform(const Values& v, Chosen bins = {});

}  // namespace test
