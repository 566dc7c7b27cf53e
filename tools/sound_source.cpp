// Samples of one channel of a sound file, or their mean over all, through libsndfile. Integer samples come scaled to
// the range -1 .. 1, as that library does it.
#include <fcntl.h>
#include <sndfile.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <mutex>

#include "container.h"
#include "input.h"
#include "user_error.h"

namespace spectrum {
namespace {

// While one of these lives that is wanted, nothing gets to standard output. The library prints there what is wrong with
// a Sample Dump, and our results may go there, too. One lives at a time: a second one in another thread takes nowhere
// for standard output, and leaves that behind.
class Silence {
public:
    explicit Silence(bool isWanted = true) {
        if (!isWanted) return;
        lock = std::unique_lock(mutex);
        std::fflush(stdout);
        kept = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (kept >= 0 && nowhere >= 0) dup2(nowhere, STDOUT_FILENO);
        if (nowhere >= 0) close(nowhere);
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
    ~Silence() {
        if (kept < 0) return;
        std::fflush(stdout);
        dup2(kept, STDOUT_FILENO);
        close(kept);
    }

private:
    static inline std::mutex mutex;

    std::unique_lock<std::mutex> lock;
    int kept = -1;  // standard output
};

class SoundSource : public Source {
public:
    SoundSource(const InputOptions& given, const std::string& shownName, int descriptor) : options(given) {
        name = shownName;
        const std::string damage = damageOf(descriptor);
        lseek(descriptor, 0, SEEK_SET);
        std::string reason;  // the library keeps that of the last file, whichever thread opens it
        {
            const Silence silence;
            file.reset(sf_open_fd(descriptor, SFM_READ, &info, SF_TRUE));
            if (!file) reason = reasonOfLibrary();
        }
        if (!file) {  // the library has closed the descriptor
            if (!damage.empty()) throw DamagedInput(damageText(name, damage, 0));
            if (!isSoundFile) throw UserError(name + ": neither a sound file that can be read nor a text of numbers");
            throw UserError(name + ": the sound cannot be read: " + reason);
        }
        isSound = true;
        rate = info.samplerate;
        if (info.samplerate < 1) throw UserError(name + ": the sound has no sample rate");
        if (info.frames >= 0 && info.frames < SF_COUNT_MAX) total = info.frames;
        if (!damage.empty()) reportDamage(*this, options, damage, goodSamples ? *goodSamples : total.value_or(0));
        channels = info.channels;
        chosen = chosenChannels(options, name, channels);
        block.resize(blockFrames * static_cast<std::size_t>(info.channels));
    }

    std::size_t read(std::span<double> out) override {
        std::size_t count = 0;
        const std::size_t width = static_cast<std::size_t>(channels);
        while (count < out.size() && (next < filled || fill())) {
            const std::size_t some = std::min(out.size() - count, filled - next);
            takeChannel(block.data() + next * width, width, chosen, out.subspan(count, some),
                        delivered - static_cast<std::int64_t>(filled - next), name);
            count += some;
            next += some;
        }
        return count;
    }

    // Far ahead without decoding; back to the plain way where the file cannot do that, and for a Sample Dump, at whose
    // last sample the library says that there is none.
    std::int64_t skip(std::int64_t wanted) override {
        if (delivered == 0 && info.seekable && !isSampleDump() && total &&
            sf_seek(file.get(), std::min(wanted, *total), SF_SEEK_SET) >= 0) {
            delivered = std::min(wanted, *total);
            return delivered;
        }
        return Source::skip(wanted);
    }

private:
    struct Closer {
        void operator()(SNDFILE* open) const { sf_close(open); }
    };
    static constexpr std::size_t blockFrames = 8192;

    // Why a file cannot be opened.
    static std::string reasonOfLibrary() {
        const std::string reason = printable(sf_strerror(nullptr));
        if (reason.find("SF_INFO struct incomplete") == std::string::npos) return reason;
        return "its header says no sample rate, or one that no sound has";
    }

    std::string damageOf(int descriptor) {
        std::unique_ptr<std::FILE, int (*)(std::FILE*)> bytes(fdopen(dup(descriptor), "rb"), std::fclose);
        if (!bytes) throw UserError("cannot read " + name + ": " + systemReason());
        std::rewind(bytes.get());  // a copy of standard input is at its end
        char start[12];
        const std::size_t count = std::fread(start, 1, sizeof start, bytes.get());
        isSoundFile = !containerName({start, count}).empty();
        return damageOfContainer(bytes.get(), goodSamples);
    }

    bool isSampleDump() const { return (info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_SDS; }

    bool fill() {
        if (ended) return false;
        const Silence silence(isSampleDump());
        const sf_count_t got = sf_readf_double(file.get(), block.data(), blockFrames);
        delivered += got;
        // A damaged file must not pass for a shorter one.
        if (got == 0 && (sf_error(file.get()) != SF_ERR_NO_ERROR || (total && delivered < *total))) {
            const std::string reason = sf_error(file.get()) != SF_ERR_NO_ERROR
                                           ? std::string(sf_strerror(file.get()))
                                           : std::to_string(*total) + " samples are announced";
            ended = true;
            reportDamage(*this, options, "it ends before its time: " + printable(reason), delivered);
        }
        filled = static_cast<std::size_t>(got);
        next = 0;
        return got > 0;
    }

    InputOptions options;
    std::unique_ptr<SNDFILE, Closer> file;
    SF_INFO info{};
    std::optional<std::int64_t> goodSamples;  // of a damaged file, where its container tells them
    bool isSoundFile = false, ended = false;
    std::pair<std::size_t, std::size_t> chosen;
    std::vector<double> block;  // interleaved, as the file holds it
    std::size_t next = 0, filled = 0;
    std::int64_t delivered = 0;
};

}  // namespace

std::unique_ptr<Source> openSound(const InputOptions& options, const std::string& name, int descriptor) {
    return std::make_unique<SoundSource>(options, name, descriptor);
}

}  // namespace spectrum
