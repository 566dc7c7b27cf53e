// The table of families, and the adapters from the argument lists of the library's routines to the one of the tool.
// Sizes go through the dispatchers, so that the library decides which exist.
#include "family.h"

#include <algorithm>

namespace spectrum {
namespace {

// Source, destination, length, flag.
template <typename Element, auto routine, typename T>
ZulgStatus plain(const T* from, T* to, const Call& call) {
    return routine(reinterpret_cast<const Element*>(from), reinterpret_cast<Element*>(to), call.size, call.flag);
}

template <auto routine, typename T>
ZulgStatus buffered(const T* from, T* to, const Call& call) {
    return routine(from, to, call.size, call.flag, static_cast<T*>(call.workspace));
}

// The elements of a frame of bins are as many as its points, or those of a CCS array.
int sameLength(int length) { return length; }
int lengthOfCCS(int length) { return ZULG_CCS_LENGTH(length); }

template <typename Element, auto routine, auto binLength, typename T>
ZulgStatus plainMany(const T* from, T* to, const Call& call, std::int64_t frames) {
    return routine(reinterpret_cast<const Element*>(from), 1, call.size, reinterpret_cast<Element*>(to), 1,
                   binLength(call.size), call.size, call.flag, frames);
}

template <auto routine, typename T>
ZulgStatus bufferedMany(const T* from, T* to, const Call& call, std::int64_t frames) {
    const std::int64_t length = std::int64_t{1} << call.size;
    return routine(from, 1, length, to, 1, length, call.size, call.flag, frames, static_cast<T*>(call.workspace));
}

template <typename Plan, auto routine, typename T>
ZulgStatus plannedMany(const T* from, T* to, const Call& call, std::int64_t frames) {
    return routine(from, 1, call.size, to, 1, call.size, static_cast<Plan*>(call.workspace), frames, nullptr);
}

ZulgStatus buffer(std::int32_t, void* block, void** workspace) {
    *workspace = block;
    return StatusOk;
}

template <typename Plan, auto routine>
ZulgStatus plan(std::int32_t length, void* block, void** workspace) {
    Plan* made = nullptr;
    const ZulgStatus status = routine(&made, length, static_cast<std::uint8_t*>(block));
    *workspace = made;
    return status;
}

template <typename Plan, auto routine, typename T>
ZulgStatus planned(const T* from, T* to, const Call& call) {
    return routine(from, to, static_cast<Plan*>(call.workspace));
}

// Twice the DCT-IV gives N/2 times the input.
template <typename Plan, auto routine, typename T>
ZulgStatus plannedInverse(const T* from, T* to, const Call& call) {
    const ZulgStatus status = planned<Plan, routine>(from, to, call);
    if (status == StatusOk)
        std::for_each_n(to, call.size, [&](T& value) { value *= T(2) / static_cast<T>(call.size); });
    return status;
}

int all(int length) { return length; }

// Samples are real, so that the bins above the middle only mirror the others.
int countToMiddle(int length) { return length / 2 + 1; }

int inTheirOrder(int place, int) { return place; }

double signedFrequency(int bin, int length) { return double(bin <= length / 2 ? bin : bin - length) / length; }

// Row k of the natural order: k with its bits mirrored is the Gray code of the number of sign changes in the row.
unsigned mirrored(unsigned bits, int length) {
    unsigned result = 0;
    for (int rest = length; rest > 1; rest /= 2, bits /= 2) result = 2 * result + bits % 2;
    return result;
}

double signChanges(int bin, int length) {
    unsigned changes = 0;
    for (unsigned gray = mirrored(static_cast<unsigned>(bin), length); gray != 0; gray /= 2) changes ^= gray;
    return changes;
}

int binOfSignChanges(int changes, int length) {
    const unsigned count = static_cast<unsigned>(changes);
    return static_cast<int>(mirrored(count ^ count / 2, length));
}

double ownMagnitude(ConstBins bins, int bin) { return std::abs(bins[static_cast<std::size_t>(bin)]); }

void ownPowers(ConstBins bins, std::span<double> result) {
    for (std::size_t k = 0; k < bins.size(); ++k) {
        result[k] = bins[k].real() * bins[k].real() + bins[k].imag() * bins[k].imag();
    }
}

// A Hartley bin is the sum of the cosine and the sine part of its frequency, the bin of the negative frequency their
// difference; the two parts are those of the complex bin.
double hartleyMagnitude(ConstBins bins, int bin) {
    const std::size_t k = static_cast<std::size_t>(bin);
    const double here = bins[k].real(), there = bins[(bins.size() - k) % bins.size()].real();
    return std::abs(std::complex(here + there, here - there)) / 2;
}

void hartleyPowers(ConstBins bins, std::span<double> result) {
    for (std::size_t k = 0; k < bins.size(); ++k) {
        const double here = bins[k].real(), there = bins[(bins.size() - k) % bins.size()].real();
        result[k] = (here * here + there * there) / 2;
    }
}

// For a forward and an inverse routine, which restore the input at the same flag, unless that is NoDivByAny.
std::int32_t flagOfInverse(std::int32_t flag) { return flag == NoDivByAny ? DivInvByN : flag; }

// For a routine that is its own inverse and divides by N both at DivFwdByN and at DivInvByN.
std::int32_t flagOfInvolution(std::int32_t flag) {
    if (flag == NoDivByAny) return DivInvByN;
    return flag == DivBySqrtN ? DivBySqrtN : NoDivByAny;
}

constexpr Family families[] = {
    {
        .name = "complex",
        .sizes = Sizes::Lengths,
        .takesFlag = true,
        .numbersInPoint = 2,
        .numbersInBin = 2,
        .binCount = all,
        .axis = Axis::Frequency,
        .position = signedFrequency,
        .shownCount = countToMiddle,
        .shownBin = inTheirOrder,
        .magnitude = ownMagnitude,
        .powers = ownPowers,
        .restoringFlag = flagOfInverse,
        .single = {nullptr, nullptr, plain<Zulg32fc, zulgDFTFwd_CToC_32fc>, plain<Zulg32fc, zulgDFTInv_CToC_32fc>,
                   plainMany<Zulg32fc, zulgBatchDFTFwd_CToC_32fc, sameLength>},
        .wide = {nullptr, nullptr, plain<Zulg64fc, zulgDFTFwd_CToC_64fc>, plain<Zulg64fc, zulgDFTInv_CToC_64fc>,
                 plainMany<Zulg64fc, zulgBatchDFTFwd_CToC_64fc, sameLength>},
    },
    {
        // A CCS array holds the bins from 0 to the middle: the real part and the imaginary part of each.
        .name = "real",
        .sizes = Sizes::Lengths,
        .takesFlag = true,
        .numbersInPoint = 1,
        .numbersInBin = 2,
        .binCount = countToMiddle,
        .axis = Axis::Frequency,
        .position = signedFrequency,
        .shownCount = countToMiddle,
        .shownBin = inTheirOrder,
        .magnitude = ownMagnitude,
        .powers = ownPowers,
        .restoringFlag = flagOfInverse,
        .single = {nullptr, nullptr, plain<Zulg32f, zulgDFTFwd_RToCCS_32f>, plain<Zulg32f, zulgDFTInv_CCSToR_32f>,
                   plainMany<Zulg32f, zulgBatchDFTFwd_RToCCS_32f, lengthOfCCS>},
        .wide = {nullptr, nullptr, plain<Zulg64f, zulgDFTFwd_RToCCS_64f>, plain<Zulg64f, zulgDFTInv_CCSToR_64f>,
                 plainMany<Zulg64f, zulgBatchDFTFwd_RToCCS_64f, lengthOfCCS>},
    },
    {
        .name = "hartley",
        .sizes = Sizes::Lengths,
        .takesFlag = true,
        .numbersInPoint = 1,
        .numbersInBin = 1,
        .binCount = all,
        .axis = Axis::Frequency,
        .position = signedFrequency,
        .shownCount = countToMiddle,
        .shownBin = inTheirOrder,
        .magnitude = hartleyMagnitude,
        .powers = hartleyPowers,
        .restoringFlag = flagOfInvolution,
        .single = {nullptr, nullptr, plain<Zulg32f, zulgHartley_32f>, plain<Zulg32f, zulgHartley_32f>,
                   plainMany<Zulg32f, zulgBatchHartley_32f, sameLength>},
        .wide = {nullptr, nullptr, plain<Zulg64f, zulgHartley_64f>, plain<Zulg64f, zulgHartley_64f>,
                 plainMany<Zulg64f, zulgBatchHartley_64f, sameLength>},
    },
    {
        .name = "wht",
        .sizes = Sizes::Orders,
        .takesFlag = true,
        .numbersInPoint = 1,
        .numbersInBin = 1,
        .binCount = all,
        .axis = Axis::Sequency,
        .position = signChanges,
        .shownCount = all,
        .shownBin = binOfSignChanges,
        .magnitude = ownMagnitude,
        .powers = ownPowers,
        .restoringFlag = flagOfInvolution,
        .single = {zulgBatchWHTGetBufferSize_32f, buffer, buffered<zulgWHT_32f>, buffered<zulgWHT_32f>,
                   bufferedMany<zulgBatchWHT_32f>},
        .wide = {zulgBatchWHTGetBufferSize_64f, buffer, buffered<zulgWHT_64f>, buffered<zulgWHT_64f>,
                 bufferedMany<zulgBatchWHT_64f>},
    },
    {
        .name = "dct4",
        .sizes = Sizes::PowersOfTwo,
        .takesFlag = false,
        .numbersInPoint = 1,
        .numbersInBin = 1,
        .binCount = all,
        .axis = Axis::Frequency,
        .position = [](int bin, int length) { return (bin + 0.5) / (2.0 * length); },
        .shownCount = all,
        .shownBin = inTheirOrder,
        .magnitude = ownMagnitude,
        .powers = ownPowers,
        .restoringFlag = [](std::int32_t flag) { return flag; },
        .single = {zulgDCT4GetSize_32f, plan<ZulgDCT4Plan_32f, zulgDCT4Init_32f>,
                   planned<ZulgDCT4Plan_32f, zulgDCT4_32f>, plannedInverse<ZulgDCT4Plan_32f, zulgDCT4_32f>,
                   plannedMany<ZulgDCT4Plan_32f, zulgBatchDCT4_32f>},
        .wide = {zulgDCT4GetSize_64f, plan<ZulgDCT4Plan_64f, zulgDCT4Init_64f>, planned<ZulgDCT4Plan_64f, zulgDCT4_64f>,
                 plannedInverse<ZulgDCT4Plan_64f, zulgDCT4_64f>, plannedMany<ZulgDCT4Plan_64f, zulgBatchDCT4_64f>},
    },
};

}  // namespace

std::span<const Family> allFamilies() { return families; }

std::string familyNames() {
    std::string names;
    for (const Family& family : families) names += (names.empty() ? "" : ", ") + std::string(family.name);
    return names;
}

}  // namespace spectrum
