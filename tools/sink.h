// Where spectra go, frame by frame: text, CSV, or a picture.
// What is common to all frames is given once, when the sink is made.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "options.h"
#include "output_file.h"
#include "transform.h"

namespace spectrum {

struct Heading {
    const Options& options;
    std::string inputName;
    bool isSound;  // times are in seconds and frequencies in Hz; otherwise in samples and cycles per sample
    double rate;

    double time(std::int64_t frame) const { return static_cast<double>(frame) * options.hop / rate; }
    bool showsFrequency() const { return options.family->axis == Axis::Frequency; }
    double position(int bin) const {
        return options.family->position(bin, options.length) * (showsFrequency() ? rate : 1);
    }
    double magnitude(const Bins& bins, int bin) const { return options.family->magnitude(bins, bin); }
};

class Sink {
public:
    virtual ~Sink() = default;
    virtual void add(std::int64_t frame, const Bins& bins) = 0;
    virtual void finish() {}
};

// Heading and file must outlive the sink. They write what they can at once, so that their memory does not grow with
// the input.
std::unique_ptr<Sink> makeTextSink(const Heading& heading, OutputFile& file);
std::unique_ptr<Sink> makeCsvSink(const Heading& heading, OutputFile& file);
std::unique_ptr<Sink> makePictureSink(const Heading& heading, OutputFile& file);

}  // namespace spectrum
