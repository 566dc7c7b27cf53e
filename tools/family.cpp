// The table of families, and the adapters between real samples and the argument lists of the library's routines.
// Lengths go through the dispatchers, so that the library alone decides which exist.
#include "family.h"

#include <algorithm>
#include <array>

namespace spectrum {
namespace {

// The library's complex elements have the layout of std::complex.
inline const Zulg32fc* plain(const std::complex<float>* data) { return reinterpret_cast<const Zulg32fc*>(data); }
inline const Zulg64fc* plain(const std::complex<double>* data) { return reinterpret_cast<const Zulg64fc*>(data); }
inline Zulg32fc* plain(std::complex<float>* data) { return reinterpret_cast<Zulg32fc*>(data); }
inline Zulg64fc* plain(std::complex<double>* data) { return reinterpret_cast<Zulg64fc*>(data); }

template <typename T, auto routine>
ZulgStatus complexForward(const T* samples, std::complex<T>* bins, int length, std::int32_t flag) {
    std::array<std::complex<T>, longestLength> points{};
    std::copy_n(samples, length, points.begin());
    return routine(plain(points.data()), plain(bins), length, flag);
}

template <typename T, auto routine>
ZulgStatus complexInverse(const std::complex<T>* bins, std::complex<T>* points, int length, std::int32_t flag) {
    return routine(plain(bins), plain(points), length, flag);
}

// A CCS array is the array of the bins from 0 to the middle, real and imaginary parts in turn.
template <typename T, auto routine>
ZulgStatus realForward(const T* samples, std::complex<T>* bins, int length, std::int32_t flag) {
    return routine(samples, reinterpret_cast<T*>(bins), length, flag);
}

template <typename T, auto routine>
ZulgStatus realInverse(const std::complex<T>* bins, std::complex<T>* points, int length, std::int32_t flag) {
    std::array<T, longestLength> samples{};
    const ZulgStatus status = routine(reinterpret_cast<const T*>(bins), samples.data(), length, flag);
    std::copy_n(samples.begin(), length, points);
    return status;
}

template <typename T, auto routine>
ZulgStatus hartleyForward(const T* samples, std::complex<T>* bins, int length, std::int32_t flag) {
    std::array<T, longestLength> values{};
    const ZulgStatus status = routine(samples, values.data(), length, flag);
    std::copy_n(values.begin(), length, bins);
    return status;
}

template <typename T, auto routine>
ZulgStatus hartleyInverse(const std::complex<T>* bins, std::complex<T>* points, int length, std::int32_t flag) {
    std::array<T, longestLength> values;
    std::transform(bins, bins + length, values.begin(), [](std::complex<T> bin) { return bin.real(); });
    return hartleyForward<T, routine>(values.data(), points, length, flag);
}

// Samples are real, so that the bins above the middle only mirror the others.
int countToMiddle(int length) { return length / 2 + 1; }

double signedFrequency(int bin, int length) { return double(bin <= length / 2 ? bin : bin - length) / length; }

double complexMagnitude(ConstBins bins, int bin) { return std::abs(bins[static_cast<std::size_t>(bin)]); }

// A Hartley bin is the sum of the cosine and the sine part of its frequency, the bin of the negative frequency their
// difference; the two parts are those of the complex bin.
double hartleyMagnitude(ConstBins bins, int bin) {
    const std::size_t k = static_cast<std::size_t>(bin);
    const double here = bins[k].real(), there = bins[(bins.size() - k) % bins.size()].real();
    return std::abs(std::complex(here + there, here - there)) / 2;
}

// Of a pair of routines that share out the scale between them.
std::int32_t flagOfInverse(std::int32_t flag) { return flag == NoDivByAny ? DivInvByN : flag; }

// Of a routine that is its own inverse and divides by N both at DivFwdByN and at DivInvByN.
std::int32_t flagOfInvolution(std::int32_t flag) {
    if (flag == NoDivByAny) return DivInvByN;
    return flag == DivBySqrtN ? DivBySqrtN : NoDivByAny;
}

constexpr Family families[] = {
    {
        .name = "complex",
        .binCount = [](int length) { return length; },
        .shownCount = countToMiddle,
        .frequency = signedFrequency,
        .magnitude = complexMagnitude,
        .restoringFlag = flagOfInverse,
        .single = {complexForward<float, zulgDFTFwd_CToC_32fc>, complexInverse<float, zulgDFTInv_CToC_32fc>},
        .wide = {complexForward<double, zulgDFTFwd_CToC_64fc>, complexInverse<double, zulgDFTInv_CToC_64fc>},
    },
    {
        .name = "real",
        .binCount = countToMiddle,
        .shownCount = countToMiddle,
        .frequency = signedFrequency,
        .magnitude = complexMagnitude,
        .restoringFlag = flagOfInverse,
        .single = {realForward<float, zulgDFTFwd_RToCCS_32f>, realInverse<float, zulgDFTInv_CCSToR_32f>},
        .wide = {realForward<double, zulgDFTFwd_RToCCS_64f>, realInverse<double, zulgDFTInv_CCSToR_64f>},
    },
    {
        .name = "hartley",
        .binCount = [](int length) { return length; },
        .shownCount = countToMiddle,
        .frequency = signedFrequency,
        .magnitude = hartleyMagnitude,
        .restoringFlag = flagOfInvolution,
        .single = {hartleyForward<float, zulgHartley_32f>, hartleyInverse<float, zulgHartley_32f>},
        .wide = {hartleyForward<double, zulgHartley_64f>, hartleyInverse<double, zulgHartley_64f>},
    },
};

}  // namespace

std::span<const Family> allFamilies() { return families; }

}  // namespace spectrum
