// Any bytes as an input of zulspectrum: sound files, texts of numbers, and the tables that it reads back, CSV and
// arrays of NumPy. The first bytes choose the reader and its options, the rest is the file. A reader may refuse a file
// with one line and a status that the README has for it; it may do nothing else.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tests/fuzz/bytes.h"
#include "tools/input.h"
#include "tools/spectra_file.h"
#include "tools/user_error.h"

namespace test {
namespace {

using namespace spectrum;

constexpr std::int64_t mostSamples = 1 << 16, mostFrames = 1 << 12;

// A file of these bytes without a name in any folder. Its path is that of the descriptor.
class File {
public:
    File(const std::uint8_t* data, std::size_t size) : descriptor(memfd_create("input", MFD_CLOEXEC)) {
        if (descriptor < 0 || write(descriptor, data, size) != static_cast<ssize_t>(size)) fail("input", "no memory");
        lseek(descriptor, 0, SEEK_SET);
    }
    ~File() {
        if (close(descriptor) != 0) fail("input", "a reader has closed what is not its own");
    }
    std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor); }

private:
    int descriptor;
};

// How many descriptors are open: a reader must give its own back.
int openDescriptors() {
    int count = 0;
    for (int i = 0; i < 64; ++i) count += fcntl(i, F_GETFD) != -1;
    return count;
}

bool isOneLine(const std::string& message) {
    for (char letter : message) {
        if (static_cast<unsigned char>(letter) < 0x20 || letter == 0x7F) return false;
    }
    return !message.empty() && message.size() < 2000;
}

void readAll(Source& source, Bytes& choice) {
    std::vector<double> block(1 + choice.below(5000));
    std::int64_t samples = 0;
    for (std::size_t got = block.size(); got == block.size() && samples < mostSamples;) {
        got = source.read(block);
        for (std::size_t i = 0; i < got; ++i) {
            if (!std::isfinite(block[i])) fail(source.name, "a sample is no number");
        }
        samples += static_cast<std::int64_t>(got);
    }
    if (!(source.rate > 0)) fail(source.name, "the rate is no rate");
    if (source.total && *source.total < 0) fail(source.name, "there are fewer samples than none");
    // Damage is reported, not passed over.
    if (samples < mostSamples && source.total && samples != *source.total && source.warnings.empty())
        fail(source.name, "another number of samples than announced, and no word about it");
}

void readSamples(const File& file, Bytes& choice) {
    InputOptions options;
    const unsigned bits = choice.take<std::uint8_t>();
    options.path = file.path();
    options.channel = static_cast<int>(bits % 4);
    options.decimal = bits & 4 ? DecimalMark::Comma : DecimalMark::Point;
    options.allowsDamage = bits & 8;
    const auto seconds = [&] { return static_cast<double>(choice.take<std::uint16_t>()) / 256; };
    if ((bits & 0x30) == 0x10) options.start = seconds();
    if ((bits & 0xC0) == 0x40) options.end = seconds();
    const std::unique_ptr<Source> source = openInput(options);
    readAll(*source, choice);
    if (!options.allowsDamage && !source->warnings.empty()) fail(source->name, "damage is allowed without a word");
    for (const std::string& warning : source->warnings) {
        if (!isOneLine(warning)) fail(source->name, "a warning is not one line");
    }
}

void readSpectra(const File& file, Bytes& choice) {
    const auto families = allFamilies();
    Framing framing{};
    framing.family = &families[choice.below(families.size())];
    const std::size_t word = choice.below(256);
    framing.length =
        framing.family->sizes == Sizes::Lengths ? 2 + static_cast<int>(word % 63) : 2 << static_cast<int>(word % 8);
    framing.size = framing.length;
    const std::unique_ptr<SpectraFile> spectra = openSpectra(file.path(), framing);
    Bins bins;
    for (std::int64_t i = 0; i < mostFrames && spectra->next(bins); ++i) {
        if (static_cast<int>(bins.size()) != framing.family->binCount(framing.length))
            fail(spectra->name, "another number of bins");
        for (const auto& bin : bins) {
            if (!std::isfinite(bin.real()) || !std::isfinite(bin.imag())) fail(spectra->name, "a bin is no number");
        }
    }
    if (spectra->hop && *spectra->hop < 1) fail(spectra->name, "the hop is no hop");
}

void run(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t head = 8;  // the options, before the file
    Bytes choice(data, std::min(size, head));
    const File file(data + std::min(size, head), size - std::min(size, head));
    const bool isTable = choice.take<std::uint8_t>() % 4 == 3;
    const int before = openDescriptors();
    try {
        isTable ? readSpectra(file, choice) : readSamples(file, choice);
    } catch (const UserError& error) {
        if (!isOneLine(error.what())) fail("input", "the message is not one line");
        const bool isKnown = error.status() == Exit::Failed || error.status() == Exit::Damaged;
        if (!isKnown) fail("input", "a file is refused with another status than 1 and 3");
    }
    if (openDescriptors() != before) fail("input", "a file is left open");
}

}  // namespace
}  // namespace test

// In place of the system's, for readers and sound libraries: a descriptor that is closed twice may be another file's by
// then.
extern "C" int close(int descriptor) {
    if (syscall(SYS_close, descriptor) != 0) test::fail("close", "a descriptor is closed that is not open");
    return 0;
}

// Other exceptions are no refusals: they end the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::run(data, size);
    return 0;
}
