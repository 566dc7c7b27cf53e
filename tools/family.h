// The transform families that the tool can run, as a table. What the rest of the tool needs to know of a family is in
// its row; to add a family, add a row and the adapters that it names.
#pragma once

#include <complex>
#include <cstdint>
#include <span>
#include <string_view>

#include "zulgenpx.h"

namespace spectrum {

// No routine of the library is longer. The adapters of a family hold one frame of this size.
inline constexpr int longestLength = 64;

// Real samples in, bins out, and back. A family whose bins are real leaves the imaginary parts zero. `length` is at
// most longestLength; the status is the library's own.
template <typename T>
struct Routines {
    ZulgStatus (*forward)(const T* samples, std::complex<T>* bins, int length, std::int32_t flag);
    ZulgStatus (*inverse)(const std::complex<T>* bins, std::complex<T>* points, int length, std::int32_t flag);
};

using ConstBins = std::span<const std::complex<double>>;

struct Family {
    std::string_view name;
    int (*binCount)(int length);
    // A picture shows the bins from 0 to this count, where frequency rises evenly.
    int (*shownCount)(int length);
    // Of a bin, in cycles per sample.
    double (*frequency)(int bin, int length);
    // All bins are at hand, since some families form one magnitude of several.
    double (*magnitude)(ConstBins bins, int bin);
    // The scale flag with which the inverse restores what the forward transform with `flag` was given.
    std::int32_t (*restoringFlag)(std::int32_t flag);
    Routines<float> single;
    Routines<double> wide;
};

std::span<const Family> allFamilies();

}  // namespace spectrum
