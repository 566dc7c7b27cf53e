// Where spectra go, frame by frame: tables and pictures. What is common to all frames is given once, when the sink is
// made. A sink can also make a piece of a result, of some of the frames, and put pieces that others made together.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
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
    std::optional<std::int64_t> frames;  // where known from the start

    const Framing& framing() const { return options.framing; }
    const Family& family() const { return *options.framing.family; }
    double time(std::int64_t frame) const { return static_cast<double>(frame) * framing().hop / rate; }
    bool showsFrequency() const { return family().axis == Axis::Frequency; }
    double position(int bin) const { return family().position(bin, framing().length) * (showsFrequency() ? rate : 1); }
    double magnitude(ConstBins bins, int bin) const { return family().magnitude(bins, bin); }
};

class Sink {
public:
    virtual ~Sink() = default;

    // What is in front of all frames.
    virtual void start() {}
    virtual void add(std::int64_t frame, ConstBins bins) = 0;
    // What comes after the last one.
    virtual void finish() = 0;

    // For pieces: what add has made since the last call, and the same put where add would put it. Pieces come in order.
    virtual std::string takePiece() = 0;
    virtual void addPiece(std::string_view piece, std::int64_t frames) = 0;
    // Pieces begin at multiples of this many frames.
    virtual std::int64_t pieceStep() const { return 1; }
};

// Heading and file must outlive the sink. Without a file it makes pieces only. Sinks write what they can at once, so
// that their memory does not grow with the input.
std::unique_ptr<Sink> makeSink(const Heading& heading, OutputFile* file);

// The kinds, for makeSink.
std::unique_ptr<Sink> makeTextSink(const Heading& heading, OutputFile* file);
std::unique_ptr<Sink> makeCsvSink(const Heading& heading, OutputFile* file);
std::unique_ptr<Sink> makeJsonSink(const Heading& heading, OutputFile* file);
std::unique_ptr<Sink> makeNpySink(const Heading& heading, OutputFile* file);
std::unique_ptr<Sink> makePictureSink(const Heading& heading, OutputFile* file);

}  // namespace spectrum
