// Samples of a FLAC file, through the format's own library: it checks the sum of each frame and the digest of all
// samples, so that no damage passes. Where damage is allowed, what is missing is silence, and what follows keeps its
// time.
#include <FLAC/stream_decoder.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "input.h"
#include "user_error.h"

namespace spectrum {
namespace {

class FlacSource : public Source {
public:
    FlacSource(const InputOptions& given, const std::string& shownName, int descriptor)
        : options(given), decoder(FLAC__stream_decoder_new(), FLAC__stream_decoder_delete) {
        name = shownName;
        isSound = true;
        channels = 0;  // until the header is read
        std::FILE* const file = fdopen(descriptor, "rb");
        if (!file || !decoder) throw UserError("cannot read " + name + ": " + systemReason());
        std::rewind(file);
        FLAC__stream_decoder_set_md5_checking(decoder.get(), 1);
        const auto state = FLAC__stream_decoder_init_FILE(decoder.get(), file, onFrame, onMetadata, onError, this);
        if (state != FLAC__STREAM_DECODER_INIT_STATUS_OK) {
            throw UserError(name + ": the sound cannot be read: " + FLAC__StreamDecoderInitStatusString[state]);
        }
        if (!FLAC__stream_decoder_process_until_end_of_metadata(decoder.get()) || channels == 0) {
            throw DamagedInput(damageText(name, "it ends within its header", 0));
        }
        chosen = chosenChannels(options, name, channels);
    }

    std::size_t read(std::span<double> out) override {
        std::size_t count = 0;
        while (count < out.size() && (next < held.size() || fill())) {
            const std::size_t some = std::min(out.size() - count, held.size() - next);
            std::copy_n(held.begin() + static_cast<std::ptrdiff_t>(next), some,
                        out.begin() + static_cast<std::ptrdiff_t>(count));
            count += some;
            next += some;
        }
        return count;
    }

    // Far ahead without decoding. The digest of all samples can then not be checked; the sums of the frames are.
    std::int64_t skip(std::int64_t wanted) override {
        if (delivered > 0 || !held.empty() || !total || wanted >= *total) return Source::skip(wanted);
        delivered = wanted;
        if (!FLAC__stream_decoder_seek_absolute(decoder.get(), static_cast<FLAC__uint64>(wanted)) && error.empty()) {
            error = "its frames do not lead to sample " + std::to_string(wanted);
        }
        if (!error.empty()) {
            isReported = true;
            reportDamage(*this, options, error, std::nullopt);
        }
        return wanted;
    }

private:
    static void onMetadata(const FLAC__StreamDecoder*, const FLAC__StreamMetadata* metadata, void* self) {
        if (metadata->type != FLAC__METADATA_TYPE_STREAMINFO) return;
        FlacSource& source = *static_cast<FlacSource*>(self);
        const FLAC__StreamMetadata_StreamInfo& info = metadata->data.stream_info;
        source.rate = info.sample_rate > 0 ? info.sample_rate : 1;
        source.headerRate = info.sample_rate;
        source.headerBits = info.bits_per_sample;
        source.channels = static_cast<int>(info.channels);
        if (info.total_samples > 0) source.total = static_cast<std::int64_t>(info.total_samples);
    }

    static void onError(const FLAC__StreamDecoder*, FLAC__StreamDecoderErrorStatus status, void* self) {
        static_cast<FlacSource*>(self)->noteError(status);
    }

    static FLAC__StreamDecoderWriteStatus onFrame(const FLAC__StreamDecoder*, const FLAC__Frame* frame,
                                                  const FLAC__int32* const samples[], void* self) {
        return static_cast<FlacSource*>(self)->take(frame->header, samples) ? FLAC__STREAM_DECODER_WRITE_STATUS_CONTINUE
                                                                            : FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
    }

    void noteError(FLAC__StreamDecoderErrorStatus status) {
        if (!error.empty()) return;
        switch (status) {
            case FLAC__STREAM_DECODER_ERROR_STATUS_FRAME_CRC_MISMATCH:
                error = "the checksum of a frame is wrong";
                break;
            case FLAC__STREAM_DECODER_ERROR_STATUS_BAD_HEADER: error = "the header of a frame is wrong"; break;
            case FLAC__STREAM_DECODER_ERROR_STATUS_LOST_SYNC: error = "there is no frame where one should be"; break;
            default: error = "a frame cannot be decoded"; break;
        }
    }

    bool take(const FLAC__FrameHeader& header, const FLAC__int32* const samples[]) {
        if (header.channels != static_cast<unsigned>(channels)) {
            if (error.empty()) error = "a frame has another number of channels";
            return options.allowsDamage;
        }
        // Frames of variable rate are not made, and the digest says nothing of the rate.
        if (header.sample_rate != headerRate && error.empty()) error = "a frame has another sample rate";
        if (header.bits_per_sample != headerBits && error.empty()) error = "a frame has another number of bits";
        if (!error.empty() && !options.allowsDamage) return false;
        const std::int64_t first = static_cast<std::int64_t>(header.number.sample_number);
        const std::int64_t gap = first - delivered - static_cast<std::int64_t>(held.size());
        if (gap > 0 && error.empty()) error = "samples are missing";
        if (gap > 0 && !options.allowsDamage) return false;
        // A damaged number of a frame must not make hours of silence.
        if (gap > 0 && gap <= mostSilence && (!total || first <= *total))
            held.resize(held.size() + static_cast<std::size_t>(gap));
        const double scale = std::ldexp(1.0, 1 - static_cast<int>(header.bits_per_sample));
        for (std::size_t i = 0; i < header.blocksize; ++i) {
            double sum = samples[chosen.first][i];
            for (std::size_t c = 1; c < chosen.second; ++c) sum += samples[chosen.first + c][i];
            held.push_back(sum * scale / static_cast<double>(chosen.second));
        }
        return true;
    }

    // Decodes until there are samples. Returns false at the end.
    bool fill() {
        delivered += static_cast<std::int64_t>(held.size());
        held.clear();
        next = 0;
        while (held.empty() && !ended) {
            const bool goesOn = FLAC__stream_decoder_process_single(decoder.get()) != 0;
            const auto state = FLAC__stream_decoder_get_state(decoder.get());
            ended = !goesOn || state >= FLAC__STREAM_DECODER_END_OF_STREAM;
            if (ended) checkEnd();
            if (error.empty()) continue;
            if (!isReported) reportDamage(*this, options, error, isAnyWrong ? std::nullopt : std::optional(delivered));
            isReported = true;
        }
        return !held.empty();
    }

    void checkEnd() {
        const bool isDigestRight = FLAC__stream_decoder_finish(decoder.get()) != 0;
        const std::int64_t samples = delivered + static_cast<std::int64_t>(held.size());
        if (!error.empty()) return;
        if (total && samples != *total) {
            error = "its header announces " + std::to_string(*total) + " samples";
        } else if (!isDigestRight) {
            error = "the samples have another digest than the header says";
            isAnyWrong = true;
        }
    }

    static constexpr std::int64_t mostSilence = 10'000'000;

    InputOptions options;
    std::unique_ptr<FLAC__StreamDecoder, void (*)(FLAC__StreamDecoder*)> decoder;
    unsigned headerRate = 0, headerBits = 0;
    std::pair<std::size_t, std::size_t> chosen;
    std::vector<double> held;  // of the channel that is taken
    std::size_t next = 0;
    std::int64_t delivered = 0;  // before what is held
    std::string error;           // the first
    bool isAnyWrong = false;     // some sample, and nothing tells which
    bool isReported = false, ended = false;
};

}  // namespace

std::unique_ptr<Source> openFlac(const InputOptions& options, const std::string& name, int descriptor) {
    return std::make_unique<FlacSource>(options, name, descriptor);
}

}  // namespace spectrum
