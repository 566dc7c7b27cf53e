#include "rules/half_spectrum.h"

#include "numbers/modular.h"

namespace gen {

HalfSpectrum::HalfSpectrum(int length) : total(length), bins(static_cast<std::size_t>(length / 2 + 1)) {}

std::size_t HalfSpectrum::place(int k) const {
    k = modulo(k, total);
    return static_cast<std::size_t>(2 * k > total ? total - k : k);
}

void HalfSpectrum::set(int k, ComplexValue bin) {
    bins[place(k)] = 2 * modulo(k, total) > total ? conjugate(bin) : bin;
}

ComplexValue HalfSpectrum::at(int k) const {
    const ComplexValue bin = bins[place(k)];
    return 2 * modulo(k, total) > total ? conjugate(bin) : bin;
}

void HalfSpectrum::take(int k, const HalfSpectrum& from, int j) {
    if (isReal(k)) {
        setReal(k, from.real(j));
    } else {
        set(k, from.at(j));
    }
}

}  // namespace gen
