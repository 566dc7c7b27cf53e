#include "graph/complex_value.h"

#include "numbers/modular.h"

namespace gen {
namespace {

// (-i)^quarters x.
ComplexValue quarterTurns(ComplexValue x, int quarters) {
    for (int i = 0; i < quarters; ++i) x = timesMinusI(x);
    return x;
}

// exp(-2 pi i/8) x.
ComplexValue eighthTurn(ComplexValue x, EighthTurn order) {
    const auto sums = [](ComplexValue y) {
        const Value sum = y.re + y.im;
        return paired(sum, y.im - y.re);
    };
    const Coefficient root = cosine(1, 8);
    return order == EighthTurn::SumsFirst ? root * sums(x) : sums(root * x);
}

// exp(-2 pi i e/n) x with four products: re = cos re + sin im, im = cos im - sin re.
ComplexValue generalTurn(ComplexValue x, int e, int n) {
    const Coefficient c = cosine(e, n), s = sine(e, n);
    const Value sIm = s * x.im, cRe = c * x.re, re = cRe + sIm;
    const Value sRe = s * x.re, cIm = c * x.im, im = cIm - sRe;
    x.re.graph->pair(cRe, cIm);
    x.re.graph->pair(sIm, sRe);
    return paired(re, im);
}

}  // namespace

Signal exchanged(const Signal& x) {
    Signal result;
    for (const ComplexValue& value : x) result.push_back(exchanged(value));
    return result;
}

ComplexValue twiddled(ComplexValue x, int e, int n, EighthTurn order) {
    e = modulo(e, n);
    if (4 * e % n == 0) return quarterTurns(x, 4 * e / n);
    if (8 * e % n == 0) return quarterTurns(eighthTurn(x, order), 8 * e / n / 2);
    return generalTurn(x, e, n);
}

}  // namespace gen
