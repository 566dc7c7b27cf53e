// Both forms are checked against the transform that the user names: a table of another length or family is refused, not
// taken for something else.
#include "spectra_file.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <regex>

#include "byte_stream.h"
#include "user_error.h"

namespace spectrum {
namespace {

class CsvSpectra : public SpectraFile {
public:
    CsvSpectra(std::unique_ptr<ByteStream> given, const Framing& with)
        : bytes(std::move(given)), framing(with), binCount(with.family->binCount(with.length)) {
        name = bytes->name();
        const std::string position = framing.family->axis == Axis::Frequency ? "frequency" : "sequency";
        std::string head;
        readLine(head);
        if (head != "frame,time,bin," + position + ",re,im,magnitude") {
            throw UserError(name + ": its first line is not that of a table of transform with bins of a " + position);
        }
    }

    bool next(Bins& bins) override {
        bins.clear();
        std::string text;
        for (int bin = 0; bin < binCount; ++bin) {
            if (!readLine(text)) {
                if (bin == 0) return false;
                throw DamagedInput(name + ": the file is damaged: it ends within frame " + std::to_string(frame) +
                                   "; frames that are good: " + std::to_string(frame));
            }
            addRow(text, bin, bins);
        }
        ++frame;
        return true;
    }

private:
    bool readLine(std::string& text) {
        text.clear();
        ++line;
        int letter = bytes->peek();
        if (letter == EOF) return false;
        for (; letter != EOF && letter != '\n'; letter = bytes->peek()) {
            if (text.size() < 1000) text += static_cast<char>(letter);
            bytes->step();
        }
        if (letter == EOF) {
            throw DamagedInput(name + ": the file is damaged: it ends within line " + std::to_string(line) +
                               "; frames that are good: " + std::to_string(frame));
        }
        bytes->step();
        if (!text.empty() && text.back() == '\r') text.pop_back();
        return true;
    }

    void addRow(const std::string& text, int bin, Bins& bins) {
        double cells[7];
        const char* start = text.data();
        const char* const end = start + text.size();
        for (std::size_t i = 0; i < 7; ++i) {
            const auto [rest, error] = std::from_chars(start, end, cells[i]);
            const bool closed = i == 6 ? rest == end : rest != end && *rest == ',';
            if (error != std::errc{} || !closed || !std::isfinite(cells[i])) {
                refuse("'" + printable(text, 40) + "' is not a row of 7 numbers");
            }
            start = rest + 1;
        }
        if (cells[0] != static_cast<double>(frame) || cells[2] != bin) {
            refuse("frame " + std::to_string(frame) + ", bin " + std::to_string(bin) + " is due, of " +
                   std::to_string(binCount) + " bins in a frame");
        }
        if (frame == 0) takePosition(bin, cells[3]);
        if (frame == 1 && bin == 0 && rate) takeTime(cells[1]);
        bins.emplace_back(cells[4], cells[5]);
    }

    // Positions are those of one sample per second, times the rate.
    void takePosition(int bin, double position) {
        const double due = framing.family->position(bin, framing.length);
        if (framing.family->axis == Axis::Sequency) {
            if (position != due) refuse("the sequency of bin " + std::to_string(bin) + " is another at this length");
            return;
        }
        if (due == 0) {
            if (position != 0) refuse("the frequency of bin 0 is not 0");
            return;
        }
        if (!rate) {
            const double told = position / due, whole = std::round(told);
            rate = std::abs(told - whole) < 1e-6 ? whole : told;
        }
        if (*rate <= 0 || std::abs(position - due * *rate) > 1e-9 * *rate) {
            refuse("the frequency of bin " + std::to_string(bin) + " is another at this family and length");
        }
    }

    void takeTime(double time) {
        const double samples = time * *rate;
        if (!(samples >= 0.5 && samples < std::numeric_limits<int>::max())) refuse("the time of frame 1 is no hop");
        hop = static_cast<int>(std::lround(samples));
    }

    [[noreturn]] void refuse(const std::string& what) const {
        throw UserError(name + ", line " + std::to_string(line) + ": " + what);
    }

    std::unique_ptr<ByteStream> bytes;
    const Framing& framing;
    int binCount;
    std::int64_t frame = 0, line = 0;
};

class NpySpectra : public SpectraFile {
public:
    NpySpectra(std::unique_ptr<ByteStream> given, const Framing& with)
        : bytes(std::move(given)), numbersInBin(static_cast<std::size_t>(with.family->numbersInBin)) {
        name = bytes->name();
        const std::string header = readHeader();
        static const std::regex dictionary(
            R"(\{'descr': '<([cf])(4|8|16)', 'fortran_order': False, 'shape': \((\d{1,18}), (\d{1,9}),?\),? *\})");
        std::smatch found;
        // The search takes some stack for each letter.
        if (header.size() > longestDictionary || !std::regex_match(header, found, dictionary)) {
            throw UserError(name + ": not an array of frames and bins as transform writes it");
        }
        const bool isComplex = found[1] == "c";
        elementBytes = std::stoul(found[2]) / (isComplex ? 2 : 1);
        frames = std::stoll(found[3]);
        const int bins = std::stoi(found[4]), due = with.family->binCount(with.length);
        if (isComplex != (numbersInBin == 2) || elementBytes == 2 || elementBytes > 8) {
            throw UserError(name + ": its numbers are " + (isComplex ? "complex" : "real") + ", and those of the " +
                            std::string(with.family->name) + " family are not");
        }
        if (bins != due) {
            throw UserError(name + ": a frame has " + std::to_string(bins) + " bins, and " + std::to_string(due) +
                            " at this family and length");
        }
        count = static_cast<std::size_t>(due);
    }

    bool next(Bins& bins) override {
        if (frame == frames) {
            if (bytes->peek() != EOF) throw UserError(name + ": there is more after its last frame");
            return false;
        }
        bins.clear();
        for (std::size_t i = 0; i < count; ++i) {
            const double real = number();
            bins.emplace_back(real, numbersInBin == 2 ? number() : 0);
            if (!std::isfinite(bins.back().real()) || !std::isfinite(bins.back().imag())) {
                throw UserError(name + ": bin " + std::to_string(i) + " of frame " + std::to_string(frame) +
                                " is infinite or not a number");
            }
        }
        ++frame;
        return true;
    }

private:
    void read(char* to, std::size_t size) {
        while (size > 0) {
            const std::string_view held = bytes->held();
            if (held.empty()) {
                throw DamagedInput(name + ": the file is damaged: it ends " +
                                   (count == 0 ? "within its header" : "within frame " + std::to_string(frame)) +
                                   "; frames that are good: " + std::to_string(frame));
            }
            const std::size_t some = std::min(size, held.size());
            std::memcpy(to, held.data(), some);
            bytes->take(some);
            to += some;
            size -= some;
        }
    }

    static constexpr std::size_t longestDictionary = 200;

    // Without what fills it up at its end.
    std::string readHeader() {
        unsigned char start[12] = {};
        read(reinterpret_cast<char*>(start), 10);
        std::size_t size = start[8] + 256u * start[9];
        if (start[6] != 1) {
            read(reinterpret_cast<char*>(start) + 10, 2);
            size += 65536u * start[10] + (std::size_t{start[11]} << 24);
        }
        if (size > 65536) throw UserError(name + ": the header of the array is too long");
        std::string header(size, ' ');
        read(header.data(), size);
        if (header.ends_with('\n')) header.pop_back();
        header.erase(header.find_last_not_of(' ') + 1);
        return header;
    }

    double number() {
        char raw[8];
        read(raw, elementBytes);
        if (elementBytes == 4) {
            float value;
            std::memcpy(&value, raw, 4);
            return static_cast<double>(value);
        }
        double value;
        std::memcpy(&value, raw, 8);
        return value;
    }

    std::unique_ptr<ByteStream> bytes;
    std::size_t numbersInBin, elementBytes = 8, count = 0;
    std::int64_t frames = 0, frame = 0;
};

}  // namespace

std::unique_ptr<SpectraFile> openSpectra(const std::string& path, const Framing& framing) {
    auto bytes = std::make_unique<ByteStream>(path);
    if (bytes->held().starts_with("\x93NUMPY")) return std::make_unique<NpySpectra>(std::move(bytes), framing);
    if (bytes->held().empty()) throw UserError(bytes->name() + ": it is empty");
    return std::make_unique<CsvSpectra>(std::move(bytes), framing);
}

}  // namespace spectrum
