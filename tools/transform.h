// One transform of the library, chosen once and run frame by frame, in either precision.
// Bins and points come out as double; those of single precision fit into that without loss.
#pragma once

#include <complex>
#include <span>
#include <vector>

#include "options.h"

namespace spectrum {

using Bins = std::vector<std::complex<double>>;

class Transform {
public:
    // Throws UserError in the library's words when it has no such transform.
    explicit Transform(const Options& options);

    void forward(std::span<const double> samples, Bins& bins) const;
    // With the scale that restores what forward was given.
    void inverse(const Bins& bins, Bins& points) const;

private:
    const Family& family;
    int length;
    std::int32_t flag;
    Precision precision;
};

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
