// KissFFT and GSL as participants.
//
// KissFFT: the packaged library is single; double comes from the C++ header of the same package, compiled here. Its
// real transforms accept even lengths only. GSL works in place: the copy that keeps the source is part of its time.
#include <gsl/gsl_fft_complex.h>
#include <gsl/gsl_fft_complex_float.h>
#include <gsl/gsl_fft_halfcomplex.h>
#include <gsl/gsl_fft_halfcomplex_float.h>
#include <gsl/gsl_fft_real.h>
#include <gsl/gsl_fft_real_float.h>
#include <kissfft/kiss_fft.h>
#include <kissfft/kiss_fftr.h>

#include <complex>
#include <cstring>

#include "benchmarks/contest.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#pragma GCC diagnostic ignored "-Wshadow"
#include <kissfft/kissfft.hh>
#pragma GCC diagnostic pop

namespace bench {
namespace {

template <class Element>
struct Gsl;

template <>
struct Gsl<double> {
    static constexpr auto complexTable = gsl_fft_complex_wavetable_alloc;
    static constexpr auto complexSpace = gsl_fft_complex_workspace_alloc;
    static constexpr auto complexForward = gsl_fft_complex_forward;
    static constexpr auto complexBackward = gsl_fft_complex_backward;
    static constexpr auto realTable = gsl_fft_real_wavetable_alloc;
    static constexpr auto realSpace = gsl_fft_real_workspace_alloc;
    static constexpr auto halfTable = gsl_fft_halfcomplex_wavetable_alloc;
    static constexpr auto realForward = gsl_fft_real_transform;
    static constexpr auto realBackward = gsl_fft_halfcomplex_transform;
};

template <>
struct Gsl<float> {
    static constexpr auto complexTable = gsl_fft_complex_wavetable_float_alloc;
    static constexpr auto complexSpace = gsl_fft_complex_workspace_float_alloc;
    static constexpr auto complexForward = gsl_fft_complex_float_forward;
    static constexpr auto complexBackward = gsl_fft_complex_float_backward;
    static constexpr auto realTable = gsl_fft_real_wavetable_float_alloc;
    static constexpr auto realSpace = gsl_fft_real_workspace_float_alloc;
    static constexpr auto halfTable = gsl_fft_halfcomplex_wavetable_float_alloc;
    static constexpr auto realForward = gsl_fft_real_float_transform;
    static constexpr auto realBackward = gsl_fft_halfcomplex_float_transform;
};

void addKissfftComplex(Field<float>& field) {
    const auto prepare = [=, arrays = field.arrays, size = field.size,
                          isInverse = field.transform == Transform::ComplexInverse] {
        const kiss_fft_cfg plan = kiss_fft_alloc(size, isInverse, nullptr, nullptr);
        return prepared([=, source = reinterpret_cast<const kiss_fft_cpx*>(arrays->source),
                         destination = reinterpret_cast<kiss_fft_cpx*>(arrays->destination)] {
            kiss_fft(plan, source, destination);
        });
    };
    field.contest.participants.push_back({"kissfft", prepare, field.destination()});
}

void addKissfftComplex(Field<double>& field) {
    const auto prepare = [=, arrays = field.arrays, size = static_cast<std::size_t>(field.size),
                          isInverse = field.transform == Transform::ComplexInverse] {
        const auto plan = std::make_shared<kissfft<double>>(size, isInverse);
        return prepared([=, source = reinterpret_cast<const std::complex<double>*>(arrays->source),
                         destination = reinterpret_cast<std::complex<double>*>(arrays->destination)] {
            plan->transform(source, destination);
        });
    };
    field.contest.participants.push_back({"kissfft", prepare, field.destination()});
}

void addKissfftReal(Field<double>&) {}

void addKissfftReal(Field<float>& field) {
    if (field.size % 2 != 0) return;
    const auto prepare = [=, arrays = field.arrays, size = field.size, transform = field.transform] {
        const bool isInverse = transform == Transform::RealInverse;
        const kiss_fftr_cfg plan = kiss_fftr_alloc(size, isInverse, nullptr, nullptr);
        auto* const in = arrays->source;
        auto* const out = arrays->destination;
        if (isInverse) return prepared([=] { kiss_fftri(plan, reinterpret_cast<const kiss_fft_cpx*>(in), out); });
        return prepared([=] { kiss_fftr(plan, in, reinterpret_cast<kiss_fft_cpx*>(out)); });
    };
    field.contest.participants.push_back({"kissfft", prepare, field.destination()});
}

}  // namespace

template <class Element>
void addKissfft(Field<Element>& field) {
    switch (field.transform) {
        case Transform::ComplexForward:
        case Transform::ComplexInverse: return addKissfftComplex(field);
        case Transform::RealForward:
        case Transform::RealInverse: return addKissfftReal(field);
        default: return;
    }
}

template <class Element>
void addGsl(Field<Element>& field) {
    using Api = Gsl<Element>;
    const auto prepare = [transform = field.transform, n = static_cast<std::size_t>(field.size),
                          arrays = field.arrays] {
        const Element* const source = arrays->source;
        Element* const values = arrays->destination;
        const std::size_t bytes = static_cast<std::size_t>(arrays->sourceCount) * sizeof(Element);
        const auto inPlace = [=](auto transformed, auto* table, auto* space) {
            return prepared([=] {
                std::memcpy(values, source, bytes);
                transformed(values, 1, n, table, space);
            });
        };
        switch (transform) {
            case Transform::ComplexForward:
                return inPlace(Api::complexForward, Api::complexTable(n), Api::complexSpace(n));
            case Transform::ComplexInverse:
                return inPlace(Api::complexBackward, Api::complexTable(n), Api::complexSpace(n));
            case Transform::PackedForward:
            case Transform::PermutedForward: return inPlace(Api::realForward, Api::realTable(n), Api::realSpace(n));
            default: return inPlace(Api::realBackward, Api::halfTable(n), Api::realSpace(n));
        }
    };
    // Its half spectrum is in the order of Pack. Into that order only the check puts our source.
    const auto prepareFromPerm = [prepare, arrays = field.arrays] {
        const Prepared call = prepare();
        return Prepared{[call, arrays] {
                            const Result ours(arrays->source, arrays->source + arrays->sourceCount);
                            const Result half = oursToPacked(Transform::PermutedInverse, ours);
                            for (std::size_t i = 0; i < half.size(); ++i)
                                arrays->source[i] = static_cast<Element>(half[i]);
                            call.once();
                        },
                        call.loop};
    };
    const auto permuted = [destination = field.destination()] {
        return packedToOurs(Transform::PermutedForward, destination());
    };
    switch (field.transform) {
        case Transform::ComplexForward:
        case Transform::ComplexInverse:
        case Transform::PackedForward:
        case Transform::PackedInverse:
            field.contest.participants.push_back({"gsl", prepare, field.destination()});
            break;
        case Transform::PermutedForward: field.contest.participants.push_back({"gsl", prepare, permuted}); break;
        case Transform::PermutedInverse:
            field.contest.participants.push_back({"gsl", prepareFromPerm, field.destination()});
            break;
        default: break;
    }
}

template void addKissfft(Field<float>&);
template void addKissfft(Field<double>&);
template void addGsl(Field<float>&);
template void addGsl(Field<double>&);

}  // namespace bench
