#include "rules/hartley.h"

#include "rules/block_kind.h"
#include "rules/blocks.h"
#include "rules/tables.h"

namespace gen {
namespace {

using std::size_t;

// With the exponent's sign reversed the imaginary parts come out with the other sign, and with them the output stage.
RealSignal formF(const RealSignal& x, bool isReversed) {
    const int length = static_cast<int>(x.size());
    const HalfSpectrum bins = realBlock(x, isReversed ? length - 1 : 1);
    const InBlock block(*x[0].graph, {BlockKind::OutputStage, length});
    RealSignal out(x.size());
    for (int k = 0; k <= bins.half(); ++k) {
        if (bins.isReal(k)) {
            out[static_cast<size_t>(k)] = bins.real(k);
            continue;
        }
        const ComplexValue bin = isReversed ? conjugate(bins.at(k)) : bins.at(k);
        out[static_cast<size_t>(k)] = bin.re - bin.im;
        out[static_cast<size_t>(length - k)] = bin.re + bin.im;
    }
    return out;
}

// The bin k is s[k] - i d[k]. Taken as s[k] + i d[k] instead, it gives the outputs in the reverse order.
RealSignal formI(const RealSignal& x) {
    const int length = static_cast<int>(x.size());
    HalfSpectrum bins(length);
    {
        const InBlock block(*x[0].graph, {BlockKind::InputStage, length});
        for (int k = 0; k <= bins.half(); ++k) {
            if (bins.isReal(k)) {
                bins.setReal(k, x[static_cast<size_t>(k)]);
            } else {
                const Value a = x[static_cast<size_t>(k)], b = x[static_cast<size_t>(length - k)];
                bins.set(k, {a + b, a - b});
            }
        }
    }
    const RealSignal y = spectrumBlock(bins, 1);
    RealSignal out = {y[0]};
    out.insert(out.end(), y.rbegin(), y.rend() - 1);
    return out;
}

}  // namespace

RealSignal hartley(const RealSignal& x) {
    const int length = static_cast<int>(x.size());
    return hartleyForm(length) == HartleyForm::I ? formI(x) : formF(x, isHartleyReversed(length));
}

}  // namespace gen
