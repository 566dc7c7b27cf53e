// From samples to sinks. Several frames are transformed in one call: as many as stay in a cache.
#include "run.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <optional>

#include "frames.h"
#include "progress.h"
#include "sink.h"
#include "user_error.h"

namespace spectrum {
namespace {

void refuseBadTargets(const Options& options) {
    if (!options.writesSpectrum) return;
    const bool isText = options.format == Format::Text || options.format == Format::Csv ||
                        options.format == Format::JsonLines || options.format == Format::Svg;
    if (options.output == "-" && !isText && isatty(STDOUT_FILENO) == 1) {
        throw UsageError("--format " + formatName(options.format) +
                         ": such bytes cannot go to a terminal; name a file with --output");
    }
    refuseInputAsOutput(options.input.path, options.output);
}

class FrameBlock {
public:
    FrameBlock(Transform& given, std::size_t frameLength)
        : transform(given), length(frameLength), most(std::clamp<std::size_t>(4096 / frameLength, 1, 64)) {
        samples.reserve(most * length);
    }

    // Where the samples of the next frame go.
    std::span<double> next() {
        samples.resize(samples.size() + length);
        return std::span(samples).last(length);
    }
    bool isFull() const { return samples.size() == most * length; }

    void transformTo(Sink& sink, std::int64_t& frame) {
        const std::size_t frames = samples.size() / length;
        if (frames == 0) return;
        transform.forward(samples, bins);
        const std::size_t perFrame = bins.size() / frames;
        for (std::size_t i = 0; i < frames; ++i) sink.add(frame++, ConstBins(bins).subspan(i * perFrame, perFrame));
        samples.clear();
    }

private:
    Transform& transform;
    std::size_t length, most;
    std::vector<double> samples;
    Bins bins;
};

// Gives frames to the sink, if there is one, and to the check, if that is asked for. Returns how many there were.
class FrameRun {
public:
    FrameRun(const Options& given, Transform& chosen) : options(given), transform(chosen) {}

    std::int64_t over(Frames& frames, Sink* sink, std::int64_t first, std::int64_t most, Progress* progress) {
        const std::vector<double> weights = windowWeights(options.framing.window, options.framing.length);
        FrameBlock block(transform, weights.size());
        std::int64_t done = 0, frame = first;
        do {
            const std::span<const double> samples = frames.samples();
            if (sink) {
                const std::span<double> weighted = block.next();
                for (std::size_t i = 0; i < weights.size(); ++i) weighted[i] = weights[i] * samples[i];
                if (block.isFull()) block.transformTo(*sink, frame);
            }
            if (options.check) add(samples);
            if (progress) progress->at(frames.samplesRead());
            ++done;
        } while (done < most && frames.next());
        if (sink) block.transformTo(*sink, frame);
        return done;
    }

    double relativeError() const { return error.value(); }

private:
    void add(std::span<const double> samples) {
        transform.forward(samples, bins);
        transform.inverse(bins, points);
        error.add(samples, points);
    }

    const Options& options;
    Transform& transform;
    Bins bins, points;
    RelativeError error;
};

constexpr std::int64_t all = INT64_MAX;

Heading headingOf(const Options& options, const Source& source) {
    Heading heading{options, source.name, source.isSound, source.rate, {}};
    const Framing& framing = options.framing;
    if (source.total && *source.total >= framing.length) {
        heading.frames = frameCount(*source.total, framing.length, framing.hop);
    }
    return heading;
}

Transform transformFor(const Options& options) {
    return Transform(options.framing, options.check ? "--check" : nullptr);
}

}  // namespace

std::vector<Options> runsOf(const Options& options) {
    if (options.input.channel != everyChannel) return {options};
    const bool isFile = options.writesSpectrum && options.output != "-";
    if (options.writesSpectrum && !isFile) {
        throw UsageError("--channel each: the channels do not fit into one output; name a file with --output");
    }
    const std::filesystem::path output = options.output;
    std::vector<Options> runs;
    const int channels = channelsOf(options.input);
    for (int channel = 1; channel <= channels; ++channel) {
        Options& one = runs.emplace_back(options);
        one.input.channel = channel;
        if (!isFile) continue;
        std::filesystem::path name = output.stem();
        name += "." + std::to_string(channel);
        name += output.extension();
        one.output = output.parent_path() / name;
    }
    return runs;
}

RunReport runSpectra(const Options& options, bool showsProgress) {
    Transform transform = transformFor(options);
    refuseBadTargets(options);
    // A spectrum that is printed on the same terminal shows the progress already.
    const bool toTerminal = options.writesSpectrum && options.output == "-" && isatty(STDOUT_FILENO) == 1;
    Progress progress(showsProgress && !toTerminal && isatty(STDERR_FILENO) == 1);
    const std::unique_ptr<Source> source = openInput(options.input);
    progress.expect(source->total, source->isSound ? source->rate : 0);
    Frames frames(*source, options.framing.length, options.framing.hop);

    const Heading heading = headingOf(options, *source);
    std::optional<OutputFile> file;
    std::unique_ptr<Sink> sink;
    if (options.writesSpectrum) {
        sink = makeSink(heading, &file.emplace(options.output));
        sink->start();
    }
    FrameRun run(options, transform);
    RunReport report;
    report.frames = run.over(frames, sink.get(), 0, all, &progress);
    if (sink) sink->finish();
    if (file) file->close();

    report.inputName = source->name;
    report.isSound = source->isSound;
    report.rate = source->rate;
    report.samples = frames.samplesRead();
    report.relativeError = run.relativeError();
    report.warnings = source->warnings;
    return report;
}

RunShape shapeOf(const Options& options) {
    const std::unique_ptr<Source> source = openInput(options.input);
    const Heading heading = headingOf(options, *source);
    if (!heading.frames) return {0, 0, 1};
    return {*heading.frames, *source->total, makeSink(heading, nullptr)->pieceStep()};
}

std::string runPiece(const Options& options, std::int64_t first, std::int64_t count) {
    Transform transform = transformFor(options);
    const std::unique_ptr<Source> source = openInput(options.input);
    Frames frames(*source, options.framing.length, options.framing.hop, first);
    const Heading heading = headingOf(options, *source);
    const std::unique_ptr<Sink> sink = makeSink(heading, nullptr);
    FrameRun(options, transform).over(frames, sink.get(), first, count, nullptr);
    return sink->takePiece();
}

struct PieceCollector::State {
    explicit State(const Options& given)
        : options(given),
          source(openInput(given.input)),
          heading(headingOf(options, *source)),
          file(options.output),
          sink(makeSink(heading, &file)) {}

    Options options;
    std::unique_ptr<Source> source;
    Heading heading;
    OutputFile file;
    std::unique_ptr<Sink> sink;
};

PieceCollector::PieceCollector(const Options& options) : state(std::make_unique<State>(options)) {
    state->sink->start();
}
PieceCollector::~PieceCollector() = default;

void PieceCollector::add(std::string_view piece, std::int64_t frames) { state->sink->addPiece(piece, frames); }

void PieceCollector::close() {
    state->sink->finish();
    state->file.close();
}

}  // namespace spectrum
