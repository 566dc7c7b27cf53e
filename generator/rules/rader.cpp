// Rader's construction: the outputs other than X[0] are a cyclic convolution of length M = p - 1 of the permuted inputs
// x[g^n] with the roots of unity, X[g^-m] = x[0] + sum over n of x[g^n] b[m - n]. It is carried out by the library's
// own real transforms of length M: forward on each real channel, one product with a constant for each bin, and back.
//
// x[0] goes into all those outputs through the DC bin. The stored constants of the interior bins are P[k] = 2 Re B[k]
// and Q[k] = 2 Im B[k]: they hold the doubling that the spectrum block expects.
#include "rules/rader.h"

#include <string>

#include "numbers/modular.h"
#include "numbers/rader_constants.h"
#include "rules/blocks.h"

namespace gen {
namespace {

using std::size_t;

std::string named(const char* name, int k, int p) {
    return std::string(name) + "[" + std::to_string(k) + "] of " + std::to_string(p);
}

// z times i^quarters (P[k] + i Q[k]), an interior bin: four products and two sums. The constants are formed with the
// signs of i^quarters B itself.
ComplexValue timesSpectrum(ComplexValue z, const RaderConstants& constants, int k, int quarters) {
    Coefficient re{2 * constants.spectrum(k).re, named("P", k, constants.prime())};
    Coefficient im{2 * constants.spectrum(k).im, named("Q", k, constants.prime())};
    for (int i = 0; i < quarters; ++i) {
        std::swap(re, im);
        re.value = -re.value;
    }
    const Value imIm = im * z.im, reRe = re * z.re, sum = reRe - imIm;
    const Value imRe = im * z.re, reIm = re * z.im;
    z.re.graph->pair(reRe, reIm);
    z.re.graph->pair(imIm, imRe);
    return paired(sum, reIm + imRe);
}

// The middle bin, real or imaginary, of a real z, times i^quarters: beta z.
Value timesMiddle(Value z, const RaderConstants& constants, int quarters) {
    const int k = constants.order() / 2;
    const ExactComplex& bin = constants.spectrum(k);
    const bool isImaginary = k % 2 == 1;
    Exact value = isImaginary ? bin.im : bin.re;
    // i^quarters times (i beta), or times beta: what is left is real, with a sign.
    if ((quarters + (isImaginary ? 1 : 0)) % 4 == 2) value = -value;
    return Coefficient{value, "beta of " + std::to_string(constants.prime())} * z;
}

Coefficient inverseOrder(const RaderConstants& constants) {
    return {Exact(1) / constants.order(), "1/" + std::to_string(constants.order())};
}

// The input channels of the complex block and of the forward form, permuted.
HalfSpectrum permutedBins(const RealSignal& x, const RaderConstants& constants, const Recipe& recipe) {
    RealSignal permuted;
    for (int n = 0; n < constants.order(); ++n) permuted.push_back(x[static_cast<size_t>(constants.input(n))]);
    return realBlock(permuted, 1, recipe);
}

// Two real channels that go through the same steps one after the other. A step of the second channel becomes a pair
// with that of the first one.
class Channels {
public:
    explicit Channels(Graph& owner) : graph(owner) {}

    template <class Calculation>
    auto first(const Calculation& calculation) {
        const Recording recording(graph);
        const auto result = calculation();
        stepsOfFirst = recording.steps();
        return result;
    }

    template <class Calculation>
    auto second(const Calculation& calculation) {
        auto result = [&] {
            const Recording recording(graph);
            const auto value = calculation();
            stepsOfSecond = recording.steps();
            return value;
        }();
        pairInOrder(graph, stepsOfFirst, stepsOfSecond);
        return result;
    }

private:
    Graph& graph;
    std::vector<NodeId> stepsOfFirst, stepsOfSecond;
};

}  // namespace

// Two real channels. Even bins stay in their channel, odd bins change it: E_r = i I B, E_i = -i R B.
Signal raderComplex(const Signal& x, int a) {
    const RaderConstants constants(static_cast<int>(x.size()), a);
    const int order = constants.order();
    RealSignal re, im;
    for (const ComplexValue& value : x) {
        re.push_back(value.re);
        im.push_back(value.im);
    }
    Channels channels(*x[0].re.graph);
    const Recipe& recipe = realForwardRecipe(order);
    const HalfSpectrum r = channels.first([&] { return permutedBins(re, constants, recipe); });
    const HalfSpectrum i = channels.second([&] { return permutedBins(im, constants, recipe); });

    Signal result(x.size());
    result[0] = ComplexValue{x[0].re, x[0].im} + ComplexValue{r.real(0), i.real(0)};
    HalfSpectrum outRe(order), outIm(order);
    outRe.setReal(0, channels.first([&] { return x[0].re - inverseOrder(constants) * r.real(0); }));
    outIm.setReal(0, channels.second([&] { return x[0].im - inverseOrder(constants) * i.real(0); }));
    for (int k = 1; k <= order / 2; ++k) {
        const bool changes = k % 2 == 1;
        const HalfSpectrum &toRe = changes ? i : r, &toIm = changes ? r : i;
        const int turnsToRe = changes ? 1 : 0, turnsToIm = changes ? 3 : 0;
        if (k == order / 2) {
            outRe.setReal(k, channels.first([&] { return timesMiddle(toRe.real(k), constants, turnsToRe); }));
            outIm.setReal(k, channels.second([&] { return timesMiddle(toIm.real(k), constants, turnsToIm); }));
        } else {
            outRe.set(k, channels.first([&] { return timesSpectrum(toRe.at(k), constants, k, turnsToRe); }));
            outIm.set(k, channels.second([&] { return timesSpectrum(toIm.at(k), constants, k, turnsToIm); }));
        }
    }
    const RealSignal yRe = channels.first([&] { return spectrumBlock(outRe, 1); });
    const RealSignal yIm = channels.second([&] { return spectrumBlock(outIm, 1); });
    for (int m = 0; m < order; ++m) {
        result[static_cast<size_t>(constants.output(m))] = {yRe[static_cast<size_t>(m)], yIm[static_cast<size_t>(m)]};
    }
    return result;
}

// One real channel in. The even bins give the real parts of the outputs, with period M/2; the odd bins the imaginary
// parts, whose sign changes after M/2.
HalfSpectrum raderReal(const RealSignal& x, int a, const Recipe& recipe) {
    const RaderConstants constants(recipe.length, a);
    const int half = constants.order() / 2;
    const HalfSpectrum bins = permutedBins(x, constants, raderBlock(recipe, realForwardRecipes()));

    HalfSpectrum result(recipe.length);
    result.setReal(0, x[0] + bins.real(0));
    HalfSpectrum even(half);
    even.setReal(0, x[0] - inverseOrder(constants) * bins.real(0));
    Signal odd(static_cast<size_t>((half + 1) / 2));
    for (int k = 1; k < half; ++k) {
        if (k % 2 == 0) {
            even.set(k / 2, timesSpectrum(bins.at(k), constants, k, 0));
        } else {
            odd[static_cast<size_t>(k / 2)] = timesMinusI(timesSpectrum(bins.at(k), constants, k, 0));
        }
    }
    if (half % 2 == 0) {
        even.setReal(half / 2, timesMiddle(bins.real(half), constants, 0));
    } else {
        odd[static_cast<size_t>(half / 2)].re = timesMiddle(bins.real(half), constants, 3);
    }
    const RealSignal re = spectrumBlock(even, 1), im = mirroredSkewBlock(odd, half, 1);
    for (int m = 0; m < half; ++m) {
        result.set(constants.output(m), {re[static_cast<size_t>(m)], im[static_cast<size_t>(m)]});
    }
    return result;
}

// Real values out. Along n, the real part of X[g^n] has period M/2 and so only even bins, the imaginary part changes
// its sign after M/2 and has only odd ones.
RealSignal raderSpectrum(const HalfSpectrum& spectrum, int a, const Recipe& recipe) {
    const RaderConstants constants(recipe.length, a);
    const int half = constants.order() / 2;
    RealSignal re, im;
    for (int n = 0; n < half; ++n) {
        const ComplexValue bin = spectrum.at(constants.input(n));
        re.push_back(bin.re);
        im.push_back(bin.im);
    }
    const HalfSpectrum even = realBlock(re, 1);
    const Signal odd = skewBlock(im, 1);

    HalfSpectrum bins(constants.order());
    bins.setReal(0, spectrum.real(0) - inverseOrder(constants) * even.real(0));
    for (int k = 1; k < half; ++k) {
        bins.set(k, k % 2 == 0 ? timesSpectrum(even.at(k / 2), constants, k, 0)
                               : timesSpectrum(odd[static_cast<size_t>(k / 2)], constants, k, 3));
    }
    bins.setReal(half, half % 2 == 0 ? timesMiddle(even.real(half / 2), constants, 0)
                                     : timesMiddle(odd[static_cast<size_t>(half / 2)].re, constants, 3));

    const RealSignal out = spectrumBlock(bins, 1, raderBlock(recipe, realInverseRecipes()));
    RealSignal y(static_cast<size_t>(recipe.length), spectrum.real(0) + even.real(0));
    for (int m = 0; m < constants.order(); ++m)
        y[static_cast<size_t>(constants.output(m))] = out[static_cast<size_t>(m)];
    return y;
}

}  // namespace gen
