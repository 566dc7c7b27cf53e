// Samples of one channel of a sound file, through libsndfile. Integer samples come scaled to the range -1 .. 1, as
// that library does it.
#include <sndfile.h>

#include <algorithm>
#include <vector>

#include "input.h"
#include "user_error.h"

namespace spectrum {
namespace {

class SoundSource : public Source {
public:
    SoundSource(const std::string& path, int channel) {
        name = printable(path);
        file.reset(sf_open(path.c_str(), SFM_READ, &info));
        if (!file) {
            const int error = sf_error(nullptr);
            if (error == SF_ERR_SYSTEM) throw UserError("cannot read " + name + ": " + sf_strerror(nullptr));
            throw UserError(name + ": neither a sound file that can be read nor a text of numbers");
        }
        if (channel > info.channels) {
            throw UserError("--channel " + std::to_string(channel) + ": " + name + " has " +
                            (info.channels == 1 ? "1 channel" : std::to_string(info.channels) + " channels"));
        }
        isSound = true;
        rate = info.samplerate;
        if (info.frames < SF_COUNT_MAX) total = info.frames;
        chosen = static_cast<std::size_t>(channel - 1);
        block.resize(blockFrames * static_cast<std::size_t>(info.channels));
    }

    std::size_t read(std::span<double> out) override {
        std::size_t count = 0;
        while (count < out.size() && (next < filled || fill())) {
            const std::size_t some = std::min(out.size() - count, filled - next);
            const std::size_t stride = static_cast<std::size_t>(info.channels);
            for (std::size_t i = 0; i < some; ++i) out[count + i] = block[(next + i) * stride + chosen];
            count += some;
            next += some;
        }
        return count;
    }

private:
    struct Closer {
        void operator()(SNDFILE* open) const { sf_close(open); }
    };
    static constexpr std::size_t blockFrames = 8192;

    bool fill() {
        const sf_count_t got = sf_readf_double(file.get(), block.data(), blockFrames);
        delivered += got;
        // A damaged file must not pass for a shorter one.
        if (got == 0 && (sf_error(file.get()) != SF_ERR_NO_ERROR || (total && delivered < *total))) {
            throw UserError(name + ": the sound cannot be read beyond sample " + std::to_string(delivered));
        }
        filled = static_cast<std::size_t>(got);
        next = 0;
        return got > 0;
    }

    std::unique_ptr<SNDFILE, Closer> file;
    SF_INFO info{};
    std::size_t chosen = 0;
    std::vector<double> block;  // interleaved, as the file holds it
    std::size_t next = 0, filled = 0;
    sf_count_t delivered = 0;
};

}  // namespace

std::unique_ptr<Source> openSound(const std::string& path, int channel) {
    return std::make_unique<SoundSource>(path, channel);
}

}  // namespace spectrum
