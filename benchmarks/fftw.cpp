// FFTW 3 as a participant: three efforts of planning, each with and without its codelets for vector instructions.
#include <fftw3.h>

#include <cstdio>

#include "benchmarks/contest.h"

namespace bench {
namespace {

// Keeps FFTW from codelets with vector instructions. Its public header leaves this flag out, but every release of
// version 3 knows it; `requireScalar` checks the plans that are made with it.
constexpr unsigned withoutVectors = 1U << 17;

struct Planning {
    const char* name;
    unsigned flags;
};
constexpr Planning plannings[] = {
    {"fftw_estimate_scalar", FFTW_ESTIMATE | withoutVectors}, {"fftw_estimate_simd", FFTW_ESTIMATE},
    {"fftw_measure_scalar", FFTW_MEASURE | withoutVectors},   {"fftw_measure_simd", FFTW_MEASURE},
    {"fftw_patient_scalar", FFTW_PATIENT | withoutVectors},   {"fftw_patient_simd", FFTW_PATIENT},
};

template <class Element>
struct Fftw;

template <>
struct Fftw<double> {
    using Plan = fftw_plan;
    using Complex = fftw_complex;
    static constexpr auto planComplex = fftw_plan_many_dft;
    static constexpr auto planRealForward = fftw_plan_many_dft_r2c;
    static constexpr auto planRealInverse = fftw_plan_many_dft_c2r;
    static constexpr auto planRealToReal = fftw_plan_many_r2r;
    static constexpr auto execute = fftw_execute;
    static constexpr auto print = fftw_sprint_plan;
};

template <>
struct Fftw<float> {
    using Plan = fftwf_plan;
    using Complex = fftwf_complex;
    static constexpr auto planComplex = fftwf_plan_many_dft;
    static constexpr auto planRealForward = fftwf_plan_many_dft_r2c;
    static constexpr auto planRealInverse = fftwf_plan_many_dft_c2r;
    static constexpr auto planRealToReal = fftwf_plan_many_r2r;
    static constexpr auto execute = fftwf_execute;
    static constexpr auto print = fftwf_sprint_plan;
};

fftw_r2r_kind realKind(Transform transform) {
    switch (transform) {
        case Transform::PackedForward:
        case Transform::PermutedForward: return FFTW_R2HC;
        case Transform::PackedInverse:
        case Transform::PermutedInverse: return FFTW_HC2R;
        case Transform::Hartley: return FFTW_DHT;
        default: return FFTW_REDFT11;
    }
}

// Our routines do not change their source, so FFTW must not change it either.
template <class Element>
typename Fftw<Element>::Plan makePlan(Transform transform, int size, int count, const Arrays<Element>& arrays,
                                      bool areBeside, unsigned flags) {
    using Api = Fftw<Element>;
    using Complex = typename Api::Complex;
    Element* const in = arrays.source;
    Element* const out = arrays.destination;
    auto* const complexIn = reinterpret_cast<Complex*>(in);
    auto* const complexOut = reinterpret_cast<Complex*>(out);
    const int bins = size / 2 + 1;
    const int step = areBeside ? count : 1, distance = areBeside ? 1 : size, ofBins = areBeside ? 1 : bins;
    const fftw_r2r_kind kind = realKind(transform);
    flags |= FFTW_PRESERVE_INPUT;
    switch (transform) {
        case Transform::ComplexForward:
        case Transform::ComplexInverse:
            return Api::planComplex(1, &size, count, complexIn, nullptr, step, distance, complexOut, nullptr, step,
                                    distance, transform == Transform::ComplexForward ? FFTW_FORWARD : FFTW_BACKWARD,
                                    flags);
        case Transform::RealForward:
            return Api::planRealForward(1, &size, count, in, nullptr, step, distance, complexOut, nullptr, step, ofBins,
                                        flags);
        case Transform::RealInverse:
            return Api::planRealInverse(1, &size, count, complexIn, nullptr, step, ofBins, out, nullptr, step, distance,
                                        flags);
        default:
            return Api::planRealToReal(1, &size, count, in, nullptr, step, distance, out, nullptr, step, distance,
                                       &kind, flags);
    }
}

// The names of codelets with vector instructions end in the set of instructions they need.
template <class Element>
void requireScalar(typename Fftw<Element>::Plan plan) {
    char* const text = Fftw<Element>::print(plan);
    const std::string codelets = text;
    std::free(text);
    for (const char* ending : {"_sse2", "_avx", "_avx2", "_avx512", "_128_fma", "_kcvi"})
        if (codelets.find(ending) != std::string::npos)
            std::fprintf(stderr, "a plan without vector instructions holds some:\n%s\n", codelets.c_str()),
                std::exit(1);
}

// FFTW's half spectrum without zeros is R0 R1 .. R(n/2) I((n-1)/2) .. I1; that of Pack R0 R1 I1 R2 I2 ..
Result packed(const Result& half) {
    const std::size_t n = half.size();
    Result values(n);
    for (std::size_t k = 0; k <= n / 2; ++k) values[k == 0 ? 0 : 2 * k - 1] = half[k];
    for (std::size_t k = 1; k <= (n - 1) / 2; ++k) values[2 * k] = half[n - k];
    return values;
}

// Puts our source into FFTW's order. The time of a transform does not depend on the order of its numbers, so that only
// the check does this.
template <class Element>
void unpack(Transform transform, const Arrays<Element>& arrays) {
    const Result half = oursToPacked(transform, {arrays.source, arrays.source + arrays.sourceCount});
    const std::size_t n = half.size();
    for (std::size_t k = 0; k <= n / 2; ++k) arrays.source[k] = static_cast<Element>(half[k == 0 ? 0 : 2 * k - 1]);
    for (std::size_t k = 1; k <= (n - 1) / 2; ++k) arrays.source[n - k] = static_cast<Element>(half[2 * k]);
}

}  // namespace

template <class Element>
void addFftw(Field<Element>& field) {
    using Api = Fftw<Element>;
    if (field.transform == Transform::WalshHadamard) return;
    const auto destination = field.destination(field.transform == Transform::Dct4 ? 0.5 : 1);
    for (const Planning& planning : plannings) {
        const auto prepare = [=, transform = field.transform, size = field.size, count = field.count,
                              arrays = field.arrays, areBeside = field.areBeside] {
            const auto plan = makePlan(transform, size, count, *arrays, areBeside, planning.flags);
            if (plan == nullptr) std::fprintf(stderr, "FFTW: no plan of length %d\n", size), std::exit(1);
            if (planning.flags & withoutVectors) requireScalar<Element>(plan);
            Prepared call = prepared([plan] { Api::execute(plan); });
            if (transform == Transform::PackedInverse || transform == Transform::PermutedInverse)
                call.once = [=] { unpack(transform, *arrays), Api::execute(plan); };
            return call;
        };
        std::function<Result()> result = destination;
        if (field.transform == Transform::PackedForward || field.transform == Transform::PermutedForward) {
            result = [destination, transform = field.transform] {
                return packedToOurs(transform, packed(destination()));
            };
        }
        field.contest.participants.push_back({planning.name, prepare, result});
    }
}

template void addFftw(Field<float>&);
template void addFftw(Field<double>&);

}  // namespace bench
