// The transform families that the tool can run, as a table. What the rest of the tool needs to know of a family is in
// its row; to add a family, add a row and the adapters that it names.
#pragma once

#include <complex>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "zulgenpx_batch.h"

namespace spectrum {

// A frame of this many samples keeps a run below some 150 MB. No family is run at more, whatever the library accepts.
inline constexpr int longestFrame = 1 << 20;

// What a routine is called with besides its arrays.
struct Call {
    std::int32_t size;  // the length, or the order where the family counts in orders
    std::int32_t flag;
    void* workspace;  // a buffer or a plan; null where the routine takes neither
};

// The routines of one precision. Arrays are plain numbers: a complex value is two neighbours, and the row of the family
// says which values are complex. Statuses are the library's own, and so is their order: a size that does not exist
// outranks a null pointer, and a null pointer outranks a wrong flag.
template <typename T>
struct Routines {
    // Both are null for routines that need nothing but their arrays. The block has that many bytes, is aligned to 64
    // and is not moved as long as the workspace is in use.
    ZulgStatus (*workspaceBytes)(std::int32_t size, std::int32_t* bytes);
    ZulgStatus (*makeWorkspace)(std::int32_t size, void* block, void** workspace);
    ZulgStatus (*forward)(const T* points, T* bins, const Call& call);
    ZulgStatus (*inverse)(const T* bins, T* points, const Call& call);
    // The forward transforms of several frames, one after the other in both arrays.
    ZulgStatus (*forwardMany)(const T* points, T* bins, const Call& call, std::int64_t frames);
};

using ConstBins = std::span<const std::complex<double>>;

enum class Sizes { Lengths, PowersOfTwo, Orders };  // of an order O: 2^O points
enum class Axis { Frequency, Sequency };

struct Family {
    std::string_view name;
    Sizes sizes;
    bool takesFlag;
    int numbersInPoint, numbersInBin;  // 2 where they are complex
    int (*binCount)(int length);
    // The position of a bin: its frequency in cycles per sample, or its sequency, the sign changes of its pattern.
    Axis axis;
    double (*position)(int bin, int length);
    // A picture shows this many bins, in the order in which their positions rise evenly.
    int (*shownCount)(int length);
    int (*shownBin)(int place, int length);
    // Gets all bins, since some families form a magnitude from several of them.
    double (*magnitude)(ConstBins bins, int bin);
    // The squared magnitudes of all bins.
    void (*powers)(ConstBins bins, std::span<double> result);
    // The scale flag with which the inverse restores what the forward transform with `flag` was given.
    std::int32_t (*restoringFlag)(std::int32_t flag);
    Routines<float> single;
    Routines<double> wide;
};

std::span<const Family> allFamilies();

// For the help and for messages.
std::string familyNames();

}  // namespace spectrum
