// One transform of the library, chosen and prepared once and run frame by frame, in either precision: arrays, buffers
// and plans are made at the start, and only the first frames allocate.
// Bins and points come out as double; those of single precision fit into that without loss.
#pragma once

#include <complex>
#include <cstdlib>
#include <memory>
#include <span>
#include <variant>
#include <vector>

#include "options.h"

namespace spectrum {

using Bins = std::vector<std::complex<double>>;

// The routines of a family, and all that they are called with.
template <typename T>
class Prepared {
public:
    explicit Prepared(const Framing& framing);

    // As many frames as the samples are; the bins of the frames are one after the other, too.
    void forward(std::span<const double> samples, Bins& bins);
    void inverse(ConstBins bins, Bins& points);

    // For timing: numbers for so many frames, and the transforms of the first of them and of all.
    void fill(std::size_t frames);
    void repeatOne();
    void repeatAll();

private:
    struct Release {
        void operator()(void* block) const { std::free(block); }
    };

    void makeWorkspace();
    void makeRoom(std::size_t frames);

    const Family& family;
    Routines<T> routines;
    Call call;
    std::size_t samplesInFrame, numbersInBins;  // of one frame
    std::vector<T> points, bins;
    std::unique_ptr<void, Release> block;
};

class Transform {
public:
    // Throws UserError, in the words of the option that asks for it, when there is no such transform, or, where the
    // inverse is wanted for `purpose`, no inverse.
    explicit Transform(const Framing& framing, const char* purpose = nullptr);

    // Of one frame or of several, one after the other. Throws UserError when a number is beyond the precision.
    void forward(std::span<const double> samples, Bins& bins);
    // Has the scale that restores what forward was given.
    void inverse(ConstBins bins, Bins& points);

    // As those of Prepared.
    void fill(std::size_t frames);
    void repeatOne();
    void repeatAll();

private:
    std::variant<Prepared<float>, Prepared<double>> prepared;
};

// Throws UsageError when there is no such transform.
void expectTransform(const Framing& framing);

// All lengths of a family, in rising order.
std::vector<int> lengthsOf(const Family& family);

// How far the points that an inverse transform gave are from the samples: the root of the summed squared error over
// the root of the summed squares, over all frames.
class RelativeError {
public:
    void add(std::span<const double> samples, const Bins& points);
    double value() const;

private:
    double errors = 0, squares = 0;
};

}  // namespace spectrum
