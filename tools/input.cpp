// Decides what an input is, and cuts the time range out of it. The content decides and not the name, so that a misnamed
// file is still read, or refused with the right message.
#include "input.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>

#include "container.h"
#include "numbers.h"
#include "user_error.h"

namespace spectrum {
namespace {

bool isOfText(char letter) { return static_cast<unsigned char>(letter) >= 0x20 || (letter >= '\t' && letter <= '\r'); }

// Every sound file has a header that is known, or a byte in it that no text has.
bool looksLikeText(std::string_view start) {
    if (start.starts_with("\xff\xfe") || start.starts_with("\xfe\xff")) return true;
    const bool isMpeg = start.starts_with("ID3") || start[0] == '\xff';
    return containerName(start).empty() && !isMpeg && start.find('\0') == std::string_view::npos;
}

// Whether every second byte is zero, as in numbers in UTF-16, and the others are of text.
bool looksLikeWideText(std::string_view start) {
    const auto fits = [&](std::size_t zero) {
        for (std::size_t i = 0; i < start.size(); ++i) {
            if (i % 2 == zero ? start[i] != '\0' : !isOfText(start[i])) return false;
        }
        return true;
    };
    return start.size() >= 4 && (fits(0) || fits(1));
}

// A copy of a stream that can be read only once, in a file that has no name and ends with the program.
int copied(ByteStream& stream) {
    std::FILE* const file = std::tmpfile();
    const auto fail = [&] {
        throw UserError("cannot keep a copy of the sound from " + stream.name() + ": " + systemReason());
    };
    if (!file) fail();
    for (std::string_view bytes = stream.held(); !bytes.empty(); bytes = stream.held()) {
        if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) fail();
        stream.take(bytes.size());
    }
    if (std::fflush(file) != 0) fail();
    const int descriptor = dup(fileno(file));
    std::fclose(file);
    if (descriptor < 0) fail();
    return descriptor;
}

// The part of a source from one sample to another.
class Range : public Source {
public:
    Range(std::unique_ptr<Source> given, std::int64_t first, std::optional<std::int64_t> count)
        : inner(std::move(given)), left(count) {
        name = inner->name, isSound = inner->isSound, rate = inner->rate, channels = inner->channels;
        warnings = inner->warnings;
        if (inner->total) total = std::max<std::int64_t>(0, *inner->total - first);
        if (total && left) total = std::min(*total, *left);
        inner->skip(first);
    }

    std::size_t read(std::span<double> out) override {
        if (left) out = out.first(static_cast<std::size_t>(std::min<std::int64_t>(*left, std::ssize(out))));
        const std::size_t count = inner->read(out);
        warnings = inner->warnings;
        if (left) *left -= static_cast<std::int64_t>(count);
        return count;
    }

private:
    std::unique_ptr<Source> inner;
    std::optional<std::int64_t> left;
};

std::unique_ptr<Source> opened(const InputOptions& options) {
    std::error_code error;
    if (options.path != "-" && std::filesystem::is_directory(options.path, error)) {
        throw UserError("cannot read " + printable(options.path) + ": it is a folder");
    }
    auto stream = std::make_unique<ByteStream>(options.path);
    const std::string name = stream->name();
    const std::string_view start = stream->held().substr(0, 512);
    if (start.empty()) throw UserError(name + ": it is empty");
    if (looksLikeText(start)) {
        if (options.channel != 1) {
            throw UserError("--channel " + channelWord(options.channel) + ": " + name +
                            " holds numbers, which have only channel 1");
        }
        return openText(options, std::move(stream));
    }
    if (looksLikeWideText(start)) {
        throw UserError(name + ": this is text in UTF-16 without a byte-order mark; iconv turns it into UTF-8");
    }
    const bool isFlac = containerName(start) == "FLAC";
    const bool isFile = options.path != "-" && std::filesystem::is_regular_file(options.path, error);
    const int descriptor = isFile ? open(options.path.c_str(), O_RDONLY | O_CLOEXEC) : copied(*stream);
    if (descriptor < 0) throw UserError("cannot read " + name + ": " + systemReason());
    return isFlac ? openFlac(options, name, descriptor) : openSound(options, name, descriptor);
}

// The sample at a time, which is refused when it is beyond what can be counted.
std::int64_t sampleAt(const char* option, double time, double rate) {
    const double sample = std::round(time * rate);
    if (!(sample < 9e15)) throw UsageError(std::string(option) + " " + shortest(time) + ": too large");
    return static_cast<std::int64_t>(sample);
}

}  // namespace

std::int64_t Source::skip(std::int64_t count) {
    std::array<double, 4096> unused;
    std::int64_t done = 0;
    while (done < count) {
        const std::int64_t some = std::min<std::int64_t>(count - done, unused.size());
        const std::size_t got = read(std::span(unused).first(static_cast<std::size_t>(some)));
        if (got == 0) break;
        done += static_cast<std::int64_t>(got);
    }
    return done;
}

std::unique_ptr<Source> openInput(const InputOptions& options) {
    std::unique_ptr<Source> source = opened(options);
    if (!options.start && !options.end) return source;
    const std::int64_t first = sampleAt("--start", options.start.value_or(0), source->rate);
    std::optional<std::int64_t> count;
    if (options.end) count = std::max<std::int64_t>(0, sampleAt("--end", *options.end, source->rate) - first);
    return std::make_unique<Range>(std::move(source), first, count);
}

std::string channelWord(int channel) {
    if (channel == everyChannel) return "each";
    return channel == 0 ? "mix" : std::to_string(channel);
}

int channelsOf(const InputOptions& options) {
    std::error_code error;
    if (options.path == "-" || std::filesystem::is_fifo(options.path, error)) {
        throw UserError("--channel each: " + (options.path == "-" ? "standard input" : printable(options.path)) +
                        " can be read only once; name a file");
    }
    InputOptions first = options;
    first.channel = 1;
    return opened(first)->channels;
}

std::pair<std::size_t, std::size_t> chosenChannels(const InputOptions& options, const std::string& name, int channels) {
    if (options.channel == 0) return {0, static_cast<std::size_t>(channels)};
    if (options.channel > channels) {
        throw UserError("--channel " + std::to_string(options.channel) + ": " + name + " has " +
                        (channels == 1 ? "1 channel" : std::to_string(channels) + " channels"));
    }
    return {static_cast<std::size_t>(options.channel - 1), 1};
}

void takeChannel(const double* interleaved, std::size_t channels, std::pair<std::size_t, std::size_t> chosen,
                 std::span<double> out, std::int64_t position, const std::string& name) {
    const auto [first, count] = chosen;
    for (std::size_t i = 0; i < out.size(); ++i) {
        const double* const frame = interleaved + i * channels + first;
        double sum = frame[0];
        for (std::size_t c = 1; c < count; ++c) sum += frame[c];
        out[i] = count == 1 ? sum : sum / static_cast<double>(count);
        if (!std::isfinite(out[i])) {
            throw UserError(name + ": sample " + std::to_string(position + static_cast<std::int64_t>(i)) + " is " +
                            (std::isnan(out[i]) ? "not a number" : "infinite"));
        }
    }
}

std::string damageText(const std::string& name, const std::string& what, std::optional<std::int64_t> goodSamples) {
    return name + ": the file is damaged: " + what + "; " +
           (goodSamples ? "samples that are good: " + std::to_string(*goodSamples)
                        : "which samples are good cannot be told");
}

void reportDamage(Source& source, const InputOptions& options, const std::string& what,
                  std::optional<std::int64_t> goodSamples) {
    const std::string text = damageText(source.name, what, goodSamples);
    if (!options.allowsDamage) throw DamagedInput(text + " (--allow-damaged goes on)");
    source.warnings.push_back(text);
}

}  // namespace spectrum
