// The sound library writes through the descriptor of the unfinished file, which takes its place when all is well.
#include "sample_file.h"

#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <vector>

#include "numbers.h"
#include "user_error.h"

namespace spectrum {
namespace {

struct Encoding {
    const char* name;
    int format;  // of libsndfile
    bool inFlac;
    double greatest;  // of the numbers written; 0 where there is no bound
};

constexpr Encoding encodings[] = {
    {"float", SF_FORMAT_FLOAT, false, 0},
    {"double", SF_FORMAT_DOUBLE, false, 0},
    {"pcm24", SF_FORMAT_PCM_24, true, 8388607.0 / 8388608},
    {"pcm16", SF_FORMAT_PCM_16, true, 32767.0 / 32768},
};

const Encoding& encodingOf(const InverseOptions& options) {
    const bool flac = options.format == Format::Flac;
    for (const Encoding& one : encodings) {
        if (options.encoding.empty() ? !flac || one.inFlac : options.encoding == one.name) {
            if (!flac || one.inFlac) return one;
            throw UsageError("--encoding " + options.encoding + ": FLAC has pcm24 and pcm16");
        }
    }
    throw UsageError("--encoding " + shownWord(options.encoding) + ": no such encoding; known: " + encodingNames());
}

class SoundFile : public SampleFile {
public:
    SoundFile(const InverseOptions& options, double rate, OutputFile& out)
        : encoding(encodingOf(options)), name(printable(options.output)) {
        SF_INFO info{};
        info.channels = 1;
        const bool isFlac = options.format == Format::Flac;
        const double greatest = isFlac ? 655350 : std::numeric_limits<int>::max() - 1.0;
        const bool isRate = rate >= 0.5 && rate <= greatest;
        info.samplerate = isRate ? static_cast<int>(std::lround(rate)) : 0;
        info.format = encoding.format | (isFlac ? SF_FORMAT_FLAC : SF_FORMAT_WAV);
        if (!isRate || sf_format_check(&info) == 0) {
            char text[40];
            std::snprintf(text, sizeof text, "%.10g", rate);
            throw UsageError(std::string("--rate ") + text + ": no sound file has this rate");
        }
        if (!out.canGoBack()) throw UsageError("--output " + name + ": a sound cannot go to a pipe; name a file");
        // One attempt: the library closes the descriptor of a file that it cannot open.
        file.reset(sf_open_fd(out.descriptor(), isFlac ? SFM_WRITE : SFM_RDWR, &info, SF_FALSE));
        if (!file) throw UserError("cannot write " + name + ": " + printable(sf_strerror(nullptr)));
        sf_command(file.get(), SFC_SET_ADD_PEAK_CHUNK, nullptr, SF_FALSE);  // it would hold the date
        sf_command(file.get(), SFC_SET_CLIPPING, nullptr, SF_TRUE);
    }

    void write(std::span<const double> samples) override {
        block.assign(samples.begin(), samples.end());
        if (encoding.greatest > 0) {
            for (double& sample : block) {
                const double cut = std::clamp(sample, -1.0, encoding.greatest);
                // Rounding to the greatest number is no clipping.
                if (std::abs(cut - sample) > 1 - encoding.greatest) ++clipped;
                sample = cut;
            }
        }
        const sf_count_t count = std::ssize(block);
        if (sf_write_double(file.get(), block.data(), count) != count) fail();
    }

    void finish() override {
        SNDFILE* const open = file.release();
        if (sf_close(open) != 0) throw UserError("cannot write " + name + ": the sound cannot be finished");
    }

private:
    [[noreturn]] void fail() const {
        throw UserError("cannot write " + name + ": " + printable(sf_strerror(file.get())));
    }

    struct Closer {
        void operator()(SNDFILE* open) const { sf_close(open); }
    };

    const Encoding& encoding;
    std::string name;
    std::unique_ptr<SNDFILE, Closer> file;
    std::vector<double> block;
};

class NumberFile : public SampleFile {
public:
    NumberFile(const InverseOptions& options, OutputFile& out)
        : file(out), isSingle(options.framing.precision == Precision::Single) {}

    void write(std::span<const double> samples) override {
        std::string text;
        for (double sample : samples) {
            text += (isSingle ? shortest(static_cast<float>(sample)) : shortest(sample)) + "\n";
        }
        file.write(text);
    }

    void finish() override {}

private:
    OutputFile& file;
    bool isSingle;
};

}  // namespace

std::string encodingNames() {
    std::string names;
    for (const Encoding& one : encodings) names += (names.empty() ? "" : ", ") + std::string(one.name);
    return names;
}

std::unique_ptr<SampleFile> makeSampleFile(const InverseOptions& options, double rate, OutputFile& file) {
    if (options.format == Format::Text) {
        if (!options.encoding.empty())
            throw UsageError("--encoding " + shownWord(options.encoding) + ": text has none");
        return std::make_unique<NumberFile>(options, file);
    }
    return std::make_unique<SoundFile>(options, rate, file);
}

}  // namespace spectrum
