// Overlap-add with the window as its own synthesis window, after D. W. Griffin and J. S. Lim, "Signal estimation from
// modified short-time Fourier transform" (1984).
#include "inverse.h"

#include <algorithm>
#include <iostream>

#include "json.h"
#include "numbers.h"
#include "option_words.h"
#include "sample_file.h"
#include "spectra_file.h"
#include "transform.h"
#include "user_error.h"

namespace spectrum {
namespace {

constexpr Format sampleFormats[] = {Format::Text, Format::Wav, Format::Flac};

// Adds up frames, and gives away the samples that no later frame changes.
class OverlapAdd {
public:
    OverlapAdd(const Framing& framing, int hopSamples)
        : weights(windowWeights(framing.window, framing.length)),
          hop(static_cast<std::size_t>(hopSamples)),
          sums(std::max(weights.size(), hop)),
          squares(sums.size()) {}

    void add(const Bins& points) {
        for (std::size_t i = 0; i < weights.size(); ++i) {
            sums[i] += weights[i] * points[i].real();
            squares[i] += weights[i] * weights[i];
        }
    }

    // The samples before the next frame, or, after the last frame, all that are left.
    std::span<const double> take(bool isLast) {
        const std::size_t count = isLast ? weights.size() : hop;
        ready.resize(count);
        for (std::size_t i = 0; i < count; ++i) {
            const bool isHeld = squares[i] > leastWeight;
            lost += !isHeld;
            ready[i] = isHeld ? sums[i] / squares[i] : 0;
        }
        if (isLast) return ready;
        for (std::vector<double>* of : {&sums, &squares}) {
            std::copy(of->begin() + static_cast<std::ptrdiff_t>(hop), of->end(), of->begin());
            std::fill(of->end() - static_cast<std::ptrdiff_t>(hop), of->end(), 0.0);
        }
        return ready;
    }

    std::int64_t lostSamples() const { return lost; }

private:
    static constexpr double leastWeight = 1e-10;  // as in SciPy's istft

    std::vector<double> weights;
    std::size_t hop;
    std::vector<double> sums, squares, ready;
    std::int64_t lost = 0;
};

InverseOptions inverseOptions(const Words& words) {
    InverseOptions options{};
    options.input = inputPath(words, "INPUT");
    options.output = outputPath(words);
    options.framing = framingOf(words);
    options.hopGiven = words.given("--hop") || words.given("--noverlap");
    options.format = formatOf(words, sampleFormats);
    options.encoding = words["--encoding"];
    if (words.given("--encoding") && options.encoding.empty()) {
        throw UsageError("--encoding '': no such encoding; known: " + encodingNames());
    }
    if (words.given("--rate")) {
        options.rate = realNumber("--rate", words["--rate"]);
        if (options.rate <= 0) throw UsageError("--rate " + shownWord(words["--rate"]) + ": a rate is above 0");
    }
    if (words.given("--samples")) options.samples = wholeNumber("--samples", words["--samples"], 1, INT64_MAX / 2);
    options.json = words.given("--json");
    return options;
}

struct InverseReport {
    std::string inputName;
    double rate = 0;
    std::int64_t frames = 0, samples = 0, lost = 0, clipped = 0;
};

class InverseRun {
public:
    explicit InverseRun(const InverseOptions& given)
        : options(given), transform(given.framing, "inverse"), file(openSpectra(given.input, given.framing)) {}

    InverseReport run() {
        // The second frame tells the hop of a CSV, so that one frame is read ahead.
        Bins first, second;
        if (!file->next(first)) throw UserError(file->name + ": it holds no frame");
        bool hasNext = file->next(second);
        report.inputName = file->name;
        report.rate = rate();
        refuseInputAsOutput(options.input, options.output);
        OutputFile out(options.output);
        samples = makeSampleFile(options, report.rate, out);
        OverlapAdd sums(options.framing, hop());
        for (;;) {
            transform.inverse(first, points);
            sums.add(points);
            ++report.frames;
            write(sums.take(!hasNext));
            if (!hasNext) break;
            std::swap(first, second);
            hasNext = file->next(second);
        }
        samples->finish();
        out.close();
        report.clipped = samples->clipped;
        report.lost = sums.lostSamples();
        return report;
    }

private:
    double rate() const {
        // Numbers have a rate of 1, and may become a sound of any.
        const bool known = file->rate && *file->rate != 1;
        if (options.rate > 0 && known && std::abs(*file->rate / options.rate - 1) > 1e-9) {
            throw UserError("--rate " + shortest(options.rate) + ": " + file->name + " has a rate of " +
                            shortest(*file->rate));
        }
        if (options.rate > 0) return options.rate;
        if (!known && options.format != Format::Text) {
            throw UsageError("--rate is required: " + file->name + " does not tell the rate of the sound");
        }
        return file->rate.value_or(1);
    }

    int hop() const {
        if (options.hopGiven && file->hop && *file->hop != options.framing.hop) {
            throw UserError("--hop " + std::to_string(options.framing.hop) + ": " + file->name + " has a hop of " +
                            std::to_string(*file->hop));
        }
        return options.hopGiven ? options.framing.hop : file->hop.value_or(options.framing.hop);
    }

    void write(std::span<const double> ready) {
        if (options.samples) {
            const std::int64_t left = *options.samples - report.samples;
            ready = ready.first(static_cast<std::size_t>(std::clamp<std::int64_t>(left, 0, std::ssize(ready))));
        }
        samples->write(ready);
        report.samples += std::ssize(ready);
    }

    const InverseOptions& options;
    Transform transform;
    std::unique_ptr<SpectraFile> file;
    std::unique_ptr<SampleFile> samples;
    Bins points;
    InverseReport report;
};

void print(const InverseReport& report, const InverseOptions& options) {
    if (options.json) {
        Json json{{"input", report.inputName}, {"frames", report.frames},     {"samples", report.samples},
                  {"rate", report.rate},       {"not_restored", report.lost}, {"clipped", report.clipped}};
        if (options.output != "-") json["output"] = options.output;
        (options.output == "-" ? std::cerr : std::cout) << jsonText(json);
        return;
    }
    if (report.lost > 0) {
        std::cerr << "zulspectrum: " << report.lost << " samples are held by no frame with a weight, and are 0\n";
    }
    if (report.clipped > 0) {
        std::cerr << "zulspectrum: " << report.clipped << " samples were beyond full scale, and are cut off\n";
    }
}

}  // namespace

void declareInverse(CLI::App& app, Words& words) {
    declareOperand(app, words, "INPUT", "CSV or NPY file of transform, or - for standard input");
    declareInverseFraming(app, words);
    declareOption(app, words, "--rate", "HZ", "Samples in a second of the sound [that of a CSV]");
    declareOption(app, words, "--samples", "N", "Samples to write at most [all]");
    declareOption(app, words, "--encoding", "NAME", "Of a sound file: " + encodingNames() + " [float; pcm24 in FLAC]");
    declareOutput(app, words, "text, wav or flac");
}

int runInverse(const Words& words) {
    const InverseOptions options = inverseOptions(words);
    print(InverseRun(options).run(), options);
    return 0;
}

}  // namespace spectrum
