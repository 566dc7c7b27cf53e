// The spectrum of a real signal, held as its bins 0 .. L/2; the others are conjugates, X[L - k] = conj X[k].
#pragma once

#include <vector>

#include "graph/complex_value.h"

namespace gen {

using RealSignal = std::vector<Value>;

class HalfSpectrum {
public:
    explicit HalfSpectrum(int length);

    int length() const { return total; }
    int half() const { return total / 2; }

    // Whether bin k has no imaginary part: 0 and, at even length, L/2.
    bool isReal(int k) const { return 2 * k % total == 0; }

    // Bins by any index modulo L; those above L/2 are kept and given as conjugates, with their signs.
    void set(int k, ComplexValue bin);
    void setReal(int k, Value bin) { bins[place(k)].re = bin; }
    ComplexValue at(int k) const;

    // Makes bin k what bin j of another half spectrum is; both are real or neither is.
    void take(int k, const HalfSpectrum& from, int j);
    Value real(int k) const { return bins[place(k)].re; }

private:
    std::size_t place(int k) const;

    int total;
    std::vector<ComplexValue> bins;
};

}  // namespace gen
