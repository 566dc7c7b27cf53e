// zulspectrum: short-time spectra of sound files and of numbers, with the transforms of the library beside it.
// This file is the run itself, from the command to the report. --help tells what it can do.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>

#include "frames.h"
#include "layout.h"
#include "progress.h"
#include "sink.h"
#include "user_error.h"

namespace spectrum {
namespace {

std::unique_ptr<Sink> makeSink(const Heading& heading, OutputFile& file) {
    switch (heading.options.format) {
    case Format::Csv: return makeCsvSink(heading, file);
    case Format::Png: return makePictureSink(heading, file);
    default: return makeTextSink(heading, file);
    }
}

void refuseBadTargets(const Options& options) {
    if (!options.writesSpectrum) return;
    if (options.output == "-" && options.format == Format::Png && isatty(STDOUT_FILENO) == 1) {
        throw UserError("a picture cannot go to a terminal; name a file with --output");
    }
    std::error_code error;
    if (std::filesystem::is_regular_file(options.input, error) &&
        std::filesystem::equivalent(options.input, options.output, error)) {
        throw UserError("--output " + printable(options.output) + ": that is the input itself");
    }
}

// What --check adds to a run.
class Check {
public:
    explicit Check(Transform& given) : transform(given) {}

    void add(std::span<const double> samples) {
        transform.forward(samples, bins);
        transform.inverse(bins, points);
        error.add(samples, points);
    }

    // Where the spectrum is on standard output, the report must not get between its lines.
    void report(const Options& options, const Source& source, std::int64_t samples, std::int64_t frames) const {
        std::FILE* const stream = options.writesSpectrum && options.output == "-" ? stderr : stdout;
        std::fprintf(stream, "input           %s, %lld samples", source.name.c_str(), static_cast<long long>(samples));
        if (source.isSound) {
            std::fprintf(stream, ", %.3f s at %.0f Hz", static_cast<double>(samples) / source.rate, source.rate);
        }
        std::fprintf(stream, "\ntransforms      %lld of %d points each way\n", static_cast<long long>(frames),
                     options.length);
        std::fprintf(stream, "relative error  %.3g after the inverse transform\n", error.value());
    }

private:
    Transform& transform;
    Bins bins, points;
    RelativeError error;
};

// Frames that are transformed in one call: as many as stay in a cache.
class FrameBlock {
public:
    FrameBlock(Transform& given, std::size_t frameLength)
        : transform(given), length(frameLength), most(std::clamp<std::size_t>(4096 / frameLength, 1, 64)) {}

    // Where the samples of the next frame go.
    std::span<double> next() {
        samples.resize(samples.size() + length);
        return std::span(samples).last(length);
    }
    bool isFull() const { return samples.size() == most * length; }

    void transformTo(Sink& sink) {
        const std::size_t frames = samples.size() / length;
        if (frames == 0) return;
        transform.forward(samples, bins);
        const std::size_t perFrame = bins.size() / frames;
        for (std::size_t i = 0; i < frames; ++i) {
            one.assign(bins.begin() + static_cast<std::ptrdiff_t>(i * perFrame),
                       bins.begin() + static_cast<std::ptrdiff_t>((i + 1) * perFrame));
            sink.add(done++, one);
        }
        samples.clear();
    }

private:
    Transform& transform;
    std::size_t length, most;
    std::vector<double> samples;
    Bins bins, one;
    std::int64_t done = 0;
};

// Gives each frame to the sink, if there is one, and to the check, if that is asked for. Returns the number of frames.
std::int64_t runFrames(Frames& frames, Transform& transform, const Options& options, Sink* sink, Check& check,
                       Progress& progress) {
    const std::vector<double> weights = windowWeights(options.window, options.length);
    FrameBlock block(transform, weights.size());
    std::int64_t frame = 0;
    do {
        const std::span<const double> samples = frames.samples();
        if (sink) {
            const std::span<double> weighted = block.next();
            for (std::size_t i = 0; i < weights.size(); ++i) weighted[i] = weights[i] * samples[i];
            if (block.isFull()) block.transformTo(*sink);
        }
        if (options.check) check.add(samples);
        progress.at(frames.samplesRead());
        ++frame;
    } while (frames.next());
    if (sink) block.transformTo(*sink);
    return frame;
}

void run(const Options& options) {
    Transform transform(options);
    refuseBadTargets(options);
    const std::unique_ptr<Source> source = openInput(options.input, options.channel);
    // A spectrum that is printed on the same terminal shows the progress already.
    const bool toTerminal = options.writesSpectrum && options.output == "-" && isatty(STDOUT_FILENO) == 1;
    std::optional<Progress> progress(std::in_place, !toTerminal && isatty(STDERR_FILENO) == 1, source->total);
    Frames frames(*source, options.length, options.hop);

    // The file is opened only now, so that an input without a frame leaves an earlier output as it was.
    const Heading heading{options, source->name, source->isSound, source->rate};
    std::optional<OutputFile> file;
    std::unique_ptr<Sink> sink;
    if (options.writesSpectrum) sink = makeSink(heading, file.emplace(options.output));

    Check check(transform);
    const std::int64_t count = runFrames(frames, transform, options, sink.get(), check, *progress);
    if (sink) sink->finish();
    if (file) file->close();
    progress.reset();  // removes its line before the report is printed
    if (options.check) check.report(options, *source, frames.samplesRead(), count);
}

// The report and the help go to standard output too, and its disk may be full.
void flushStandardOutput() {
    if (!std::cout.flush() || std::fflush(stdout) != 0) throw UserError("cannot write standard output");
}

void runProgram(int argc, char** argv) {
    const Command command = readCommand(argc, argv);
    if (const auto* options = std::get_if<Options>(&command)) run(*options);
    if (const auto* layout = std::get_if<LayoutOptions>(&command)) std::cout << layoutText(layout->length);
    flushStandardOutput();
}

}  // namespace
}  // namespace spectrum

int main(int argc, char** argv) {
    try {
        spectrum::runProgram(argc, argv);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zulspectrum: %s\n", error.what());
        return 1;
    }
}
