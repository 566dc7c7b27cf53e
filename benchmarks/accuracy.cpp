// Measures how far every routine is from the exact result: for each family, element and length two kinds of figures,
// both relative L2 errors, in units of 2^-53 for double elements and 2^-24 for single ones:
//
//     pooled   the root of all squared errors over all squared results, over all inputs
//     worst    the greatest error of one call
//
// and, in the same units, the greatest error of one output over the root mean square of its input times sqrt(N), which
// is what the proved bounds are in. Of a complex output it is the modulus.
//
// Inputs are normally distributed. With --mixed, every second one is a row of a transform in some noise, so that nearly
// all of it goes into one output, and every fourth one has three values or fewer, the others being zero. Each input is
// multiplied by a factor between sqrt(1/2) and sqrt(2), drawn anew, because the error of a rounding depends on where
// the value lies between two powers of two. Results are compared with those of the exact scale factor, 1/N or
// 1/sqrt(N), so that the rounding of the stored factor is part of the error.
//
// With --control, each is measured under every setting of the floating-point unit: to nearest, down, up and towards
// zero, and where kernels use the x87 unit, with registers of 64, 53 and 24 bits. A plan is built under the same one.
//
//     accuracy [--mixed] [--control] [TRIALS [LENGTH ...]]
//                         inputs for each routine (100000), and the lengths if not all; prints a line for each routine,
//                         flag and setting: family, element, length, flag, setting, inputs, pooled, worst, greatest
//     accuracy --check    holds the references against the definitions, and does nothing else
#include <algorithm>
#include <bit>
#include <cfenv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <numbers>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "benchmarks/accuracy_inputs.h"
#include "benchmarks/accuracy_reference.h"
#include "tests/exports.h"
#include "tests/transforms/float_state.h"

namespace {

using accuracy::Dct4Reference;
using accuracy::Shape;
using accuracy::WideReference;
using test::exported;
using test::Kernel;
using test::Values;
using test::Wide;

int trialsOfEach = 100000;

template <class Element>
constexpr bool isSingle = sizeof(Element) == 4;
template <class Element>
std::string ending() {
    return isSingle<Element> ? "_32f" : "_64f";
}

accuracy::Inputs inputs;

// Where a plan has so many points, fewer calls show its error: pooled it is nearly the same at each call, and of mixed
// inputs each output is looked at by itself.
int trialsOf(int points) {
    const int most = (inputs.areMixed ? 1 << 26 : 1 << 28) / points;
    return points < 4096 ? trialsOfEach : std::min(trialsOfEach, most);
}

// Settings of the floating-point unit. Where kernels use the x87 unit, many a Windows program has set it to 53 bits.
struct Setting {
    std::string name;
    int bits;  // of a register; 0 where that cannot be set
    int direction;
};
#if defined(_WIN32) && !defined(_WIN64)
std::vector<Setting> settings = {{"extended", 64, FE_TONEAREST}, {"double", 53, FE_TONEAREST}};
#else
std::vector<Setting> settings = {{"sse2", 0, FE_TONEAREST}};
#endif

void takeAllSettings() {
    if (settings.front().bits != 0) settings.push_back({"single", 24, FE_TONEAREST});
    const auto ways = settings;
    for (const auto& [ending, direction] :
         {std::pair{"_down", FE_DOWNWARD}, {"_up", FE_UPWARD}, {"_zero", FE_TOWARDZERO}}) {
        for (const Setting& way : ways) settings.push_back({way.name + ending, way.bits, direction});
    }
}

// A setting holds while one of these lives.
class UnderSetting {
public:
    explicit UnderSetting(const Setting& setting) : registers(setting.bits) { std::fesetround(setting.direction); }
    ~UnderSetting() { std::fesetround(FE_TONEAREST); }
    UnderSetting(const UnderSetting&) = delete;
    UnderSetting& operator=(const UnderSetting&) = delete;

private:
    test::RegistersOfBits registers;
};

struct Flag {
    const char* name;
    int value;
    Wide factor;
};

std::vector<Flag> flagsOf(int points, int dividing) {
    const Wide N = points;
    return {{"none", NoDivByAny, 1}, {"root", DivBySqrtN, 1 / std::sqrt(N)}, {"whole", dividing, 1 / N}};
}

// Which outputs are the two parts of one complex number: none; each even one and the next; each odd one and the next.
enum class Outputs { Real, Complex, Pack };

// The errors of one routine.
template <class Element>
class Judge {
public:
    Judge(std::string familyName, Outputs kind, int routineLength, int points, std::vector<Flag> routineFlags)
        : family(std::move(familyName)),
          outputs(kind),
          length(routineLength),
          flags(std::move(routineFlags)),
          found(static_cast<std::size_t>(points)),
          figures(flags.size() * settings.size()) {}

    // call(destination, flag, setting) is made in every way; `due` is without the factor.
    template <class Call, class Due>
    void judge(const Call& call, const std::vector<Element>& input, const std::vector<Due>& due) {
        Wide inputSquare = 0;
        for (Element x : input) inputSquare += Wide{x} * x;
        Figures* at = figures.data();
        for (std::size_t setting = 0; setting < settings.size(); ++setting) {
            for (const Flag& flag : flags) {
                {
                    const UnderSetting under(settings[setting]);
                    call(found.data(), flag.value, setting);
                }
                (at++)->add(found, due, flag.factor, outputs, inputSquare);
            }
        }
        ++trials;
    }

    void print() const {
        const Figures* at = figures.data();
        const auto inUnits = [](Wide ratio) {
            return static_cast<double>(std::ldexp(std::sqrt(ratio), isSingle<Element> ? 24 : 53));
        };
        for (const Setting& setting : settings) {
            for (const Flag& flag : flags) {
                std::printf("%s,%s,%d,%s,%s,%d,%.3f,%.3f,%.3f\n", family.c_str(), ending<Element>().c_str() + 1, length,
                            flag.name, setting.name.c_str(), trials, inUnits(at->errors / at->results),
                            inUnits(at->worst), inUnits(at->greatest));
                ++at;
            }
        }
        std::fflush(stdout);
    }

private:
    struct Figures {
        Wide errors = 0, results = 0, worst = 0, greatest = 0;

        template <class Due>
        void add(const std::vector<Element>& results_, const std::vector<Due>& due, Wide factor, Outputs outputs,
                 Wide inputSquare) {
            Wide error = 0, square = 0, former = 0, most = 0;
            for (std::size_t i = 0; i < due.size(); ++i) {
                const Wide exact = due[i] * factor, difference = results_[i] - exact;
                const Wide own = difference * difference;
                const bool isSecond =
                    outputs != Outputs::Real && i > 0 && (i % 2 == 1) == (outputs == Outputs::Complex);
                most = std::max(most, isSecond ? own + former : own);
                former = own;
                error += own;
                square += exact * exact;
            }
            greatest = std::max(greatest, most / (inputSquare * factor * factor));
            errors += error;
            results += square;
            worst = std::max(worst, error / square);
        }
    };

    std::string family;
    Outputs outputs;
    int length, trials = 0;
    std::vector<Flag> flags;
    std::vector<Element> found;
    std::vector<Figures> figures;
};

std::string kernelName(const char* family, int length, const char* suffix) {
    return std::string("zulg") + family + "_" + std::to_string(length) + suffix;
}

// The routines of double elements are exact enough for those of single ones: their error is a 2^-26th of the unit.
class DoubleReference {
public:
    using Due = double;

    explicit DoubleReference(int length)
        : forward(exported<Kernel<double>>(kernelName("DFTFwd_CToC", length, "_64fc"))),
          inverse(exported<Kernel<double>>(kernelName("DFTInv_CToC", length, "_64fc"))),
          toPack(exported<Kernel<double>>(kernelName("DFTFwd_RToPack", length, "_64f"))),
          fromPack(exported<Kernel<double>>(kernelName("DFTInv_PackToR", length, "_64f"))),
          cas(exported<Kernel<double>>(kernelName("Hartley", length, "_64f"))),
          x(static_cast<std::size_t>(length)),
          z(static_cast<std::size_t>(2 * length)) {}

    void signal(const double* re, const double* im) {
        for (std::size_t n = 0; n < x.size(); ++n) x[n] = z[2 * n] = re[n], z[2 * n + 1] = im[n];
    }
    void complexTransform(std::vector<Due>& due, int sign) const {
        (sign < 0 ? forward : inverse)(z.data(), due.data(), NoDivByAny);
    }
    void realForward(std::vector<Due>& due) const { toPack(x.data(), due.data(), NoDivByAny); }
    void hartley(std::vector<Due>& due) const { cas(x.data(), due.data(), NoDivByAny); }
    void realInverse(const double* packed, std::vector<Due>& due) { fromPack(packed, due.data(), NoDivByAny); }

private:
    Kernel<double> forward, inverse, toPack, fromPack, cas;
    std::vector<double> x, z;
};

template <class Element>
using Reference = std::conditional_t<isSingle<Element>, DoubleReference, WideReference>;

// A kernel on one input.
template <class Element>
class OnInput {
public:
    OnInput(const std::string& name, const std::vector<Element>& input)
        : kernel(exported<Kernel<Element>>(name)), source(input.data()) {}
    void operator()(Element* destination, int flag, std::size_t) const { kernel(source, destination, flag); }

private:
    Kernel<Element> kernel;
    const Element* source;
};

template <class Element>
void measureDft(int length) {
    const auto points = static_cast<std::size_t>(length);
    const std::string real = ending<Element>(), complex = real + "c";
    const auto forwardFlags = flagsOf(length, DivFwdByN), inverseFlags = flagsOf(length, DivInvByN);
    Judge<Element> complexForward("complex_forward", Outputs::Complex, length, 2 * length, forwardFlags),
        complexInverse("complex_inverse", Outputs::Complex, length, 2 * length, inverseFlags),
        realForward("real_forward", Outputs::Pack, length, length, forwardFlags),
        realInverse("real_inverse", Outputs::Real, length, length, inverseFlags),
        hartley("hartley", Outputs::Real, length, length, forwardFlags);

    using Due = typename Reference<Element>::Due;
    Reference<Element> reference(length);
    std::vector<Element> re(points), im(points), z(2 * points);
    std::vector<double> wideRe(points), wideIm(points);
    std::vector<Due> due(points), complexDue(2 * points);
    const OnInput<Element> runComplexForward(kernelName("DFTFwd_CToC", length, complex.c_str()), z),
        runComplexInverse(kernelName("DFTInv_CToC", length, complex.c_str()), z),
        runRealForward(kernelName("DFTFwd_RToPack", length, real.c_str()), re),
        runRealInverse(kernelName("DFTInv_PackToR", length, real.c_str()), im),
        runHartley(kernelName("Hartley", length, real.c_str()), re);

    // Of j parts of a turn that has 8 N of them.
    const auto cosine = [&](int j) { return std::cos(2 * std::numbers::pi * (j % (8 * length)) / (8 * length)); };
    const auto sine = [&](int j) { return std::sin(2 * std::numbers::pi * (j % (8 * length)) / (8 * length)); };
    for (int i = 0; i < trialsOfEach; ++i) {
        // A row of the forward transform, or for the inverse real one of that: the values of bins in Pack.
        const Shape shape = inputs.shapeOf(i);
        const int k = static_cast<int>(inputs.below(points)), turns = i / 4 % 8;
        inputs.fill(re, shape, [&](std::size_t n) { return cosine(8 * k * static_cast<int>(n) + turns * length); });
        inputs.fill(im, shape, [&](std::size_t n) {
            const int j = static_cast<int>(n);
            if (i % 4 == 1) return sine(8 * k * j + turns * length);
            return j % 2 == 1 || j == 0 ? cosine(8 * k * ((j + 1) / 2)) : -sine(4 * k * j);
        });
        for (std::size_t n = 0; n < points; ++n) {
            z[2 * n] = re[n], z[2 * n + 1] = im[n];
            wideRe[n] = re[n], wideIm[n] = im[n];
        }
        reference.signal(wideRe.data(), wideIm.data());
        reference.complexTransform(complexDue, -1);
        complexForward.judge(runComplexForward, z, complexDue);
        reference.complexTransform(complexDue, 1);
        complexInverse.judge(runComplexInverse, z, complexDue);
        reference.realForward(due);
        realForward.judge(runRealForward, re, due);
        reference.hartley(due);
        hartley.judge(runHartley, re, due);
        reference.realInverse(wideIm.data(), due);
        realInverse.judge(runRealInverse, im, due);
    }
    for (const auto* judge : {&complexForward, &complexInverse, &realForward, &realInverse, &hartley}) judge->print();
}

template <class Element>
void measureWalshHadamard(int order) {
    using Routine = ZulgStatus(ZULG_CALL*)(const Element*, Element*, std::int32_t flag, Element*);
    const auto routine = exported<Routine>(kernelName("WHT", order, ending<Element>().c_str()));
    const std::size_t points = std::size_t{1} << order;
    Judge<Element> judge("wht", Outputs::Real, order, static_cast<int>(points), flagsOf(1 << order, DivFwdByN));
    std::vector<Element> x(points), buffer(2 * points);
    Values due(points);
    for (int i = 0; i < trialsOfEach; ++i) {
        const std::size_t k = inputs.below(points);
        inputs.fill(x, inputs.shapeOf(i), [&](std::size_t j) { return std::popcount(j & k) % 2 == 1 ? -1.0 : 1.0; });
        due.assign(x.begin(), x.end());
        accuracy::walshHadamard(due);
        judge.judge([&](Element* y, int flag, std::size_t) { routine(x.data(), y, flag, buffer.data()); }, x, due);
    }
    judge.print();
}

template <class Element>
class Plan {
public:
    explicit Plan(int length) {
        using InitAlloc = ZulgStatus(ZULG_CALL*)(void**, std::int32_t);
        if (exported<InitAlloc>("zulgDCT4InitAlloc" + ending<Element>())(&plan, length) != StatusOk) {
            std::fprintf(stderr, "no plan of length %d\n", length), std::exit(1);
        }
    }
    ~Plan() { exported<ZulgStatus(ZULG_CALL*)(void*)>("zulgDCT4Free" + ending<Element>())(plan); }
    Plan(const Plan&) = delete;
    Plan& operator=(const Plan&) = delete;

    void run(const Element* x, Element* y) const { routine(x, y, plan); }

private:
    using Run = ZulgStatus(ZULG_CALL*)(const Element*, Element*, void*);
    void* plan = nullptr;
    Run routine = exported<Run>("zulgDCT4" + ending<Element>());
};

template <class Element>
void measureDct4(int length) {
    const auto points = static_cast<std::size_t>(length);
    std::vector<std::unique_ptr<Plan<Element>>> plans;  // one for each setting
    for (const Setting& setting : settings) {
        const UnderSetting under(setting);
        plans.push_back(std::make_unique<Plan<Element>>(length));
    }
    const Plan<double> planInDouble(length);
    Dct4Reference reference(length);
    Judge<Element> judge("dct4", Outputs::Real, length, length, {{"none", 0, 1}});
    std::vector<Element> x(points);
    std::vector<double> wide(points), dueInDouble(points);
    Values due(points);
    const int trials = trialsOf(length);
    for (int i = 0; i < trials; ++i) {
        const std::size_t k = inputs.below(points);
        inputs.fill(x, inputs.shapeOf(i), [&](std::size_t n) {
            return std::cos(std::numbers::pi * static_cast<double>((2 * n + 1) * (2 * k + 1) % (8 * points)) /
                            static_cast<double>(4 * points));
        });
        wide.assign(x.begin(), x.end());
        const auto run = [&](Element* y, int, std::size_t setting) { plans[setting]->run(x.data(), y); };
        if constexpr (isSingle<Element>) {
            planInDouble.run(wide.data(), dueInDouble.data());
            judge.judge(run, x, dueInDouble);
        } else {
            reference.compute(wide.data(), due);
            judge.judge(run, x, due);
        }
    }
    judge.print();
}

// All routines, or the DFT and Hartley transforms and the DCT-IV of some lengths.
template <class Element>
void measureAll(const std::set<int>& lengths) {
    const auto isMeasured = [&](int length) { return lengths.empty() || lengths.contains(length); };
    for (int length = 2; length <= 64; ++length) {
        if (isMeasured(length)) measureDft<Element>(length);
    }
    for (int order = 1; order <= 13 && lengths.empty(); ++order) measureWalshHadamard<Element>(order);
    for (int length = 2; length <= 65536; length *= 2) {
        if (isMeasured(length)) measureDct4<Element>(length);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (!accuracy::definitionsHold()) return 1;
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    auto argument = arguments.begin();
    const auto is = [&](std::string_view name) {
        const bool found = argument != arguments.end() && *argument == name;
        if (found) ++argument;
        return found;
    };
    if (is("--check")) return 0;
    inputs.areMixed = is("--mixed");
    if (is("--control")) takeAllSettings();
    if (argument != arguments.end()) trialsOfEach = std::atoi((argument++)->data());
    if (trialsOfEach < 1) {
        std::fputs("accuracy [--mixed] [--control] [TRIALS [LENGTH ...]] | --check\n", stderr);
        return 1;
    }
    std::set<int> lengths;
    while (argument != arguments.end()) lengths.insert(std::atoi((argument++)->data()));
    measureAll<double>(lengths);
    measureAll<float>(lengths);
}
