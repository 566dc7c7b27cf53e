// Spectra as text for people, and as CSV, JSON lines and NPY for programs. Texts have each number in the fewest digits
// that read back as the same number, in the precision of the transform.
#include <algorithm>
#include <bit>

#include "json.h"
#include "numbers.h"
#include "sink.h"
#include "user_error.h"

namespace spectrum {
namespace {

class TableSink : public Sink {
public:
    TableSink(const Heading& head, OutputFile* out) : heading(head), file(out) {}

    void finish() override { flush(); }
    std::string takePiece() override { return std::move(text); }

    void addPiece(std::string_view piece, std::int64_t) override {
        flush();
        file->write(piece);
    }

protected:
    // A long frame must not be held in memory as text.
    void writeWhenMuch() {
        if (file && text.size() >= 1 << 16) flush();
    }

    void flush() {
        if (!file) return;
        file->write(text);
        text.clear();
    }

    std::string number(double value) const {
        return heading.framing().precision == Precision::Single ? shortest(static_cast<float>(value)) : shortest(value);
    }

    // The numbers of a bin that the table holds.
    template <typename Use>
    void forNumbers(ConstBins bins, int bin, Use&& use) const {
        if (heading.options.content == Content::Bins) {
            use(bins[static_cast<std::size_t>(bin)].real());
            use(bins[static_cast<std::size_t>(bin)].imag());
        }
        use(heading.magnitude(bins, bin));
    }

    const Heading& heading;
    OutputFile* file;
    std::string text;  // that is not written yet
};

void appendRight(std::string& line, const std::string& cell, std::size_t width) {
    line.append(width > cell.size() ? width - cell.size() : 1, ' ');
    line += cell;
}

class TextSink : public TableSink {
public:
    using TableSink::TableSink;

    void start() override {
        const Framing& framing = heading.framing();
        text += "# " + heading.inputName;
        if (heading.isSound) {
            const int channel = heading.options.input.channel;
            text += ", " + (channel == 0 ? "mean of all channels" : "channel " + std::to_string(channel)) + ", " +
                    shortest(heading.rate) + " Hz";
        }
        text += "\n# family " + std::string(framing.family->name) + ", length " + std::to_string(framing.length) +
                (framing.family->takesFlag ? ", flag " + flagName(framing.flag) : "") + ", hop " +
                std::to_string(framing.hop) + ", window " + windowWord(framing.window) + ", " +
                (framing.precision == Precision::Single ? "32" : "64") + " bits\n#";
        appendRight(text, "bin", binWidth() - 1);
        appendRight(text,
                    !heading.showsFrequency() ? "sequency"
                    : heading.isSound         ? "frequency/Hz"
                                              : "cycles/sample",
                    positionWidth);
        if (heading.options.content == Content::Bins) {
            for (const char* name : {"re", "im"}) appendRight(text, name, numberWidth);
        }
        appendRight(text, "magnitude", numberWidth);
        text += '\n';
    }

    void add(std::int64_t frame, ConstBins bins) override {
        text += "\n# frame " + std::to_string(frame) + " at " +
                (heading.isSound ? shortest(heading.time(frame)) + " s" : "sample " + shortest(heading.time(frame))) +
                "\n";
        for (int k = 0; k < static_cast<int>(bins.size()); ++k) {
            appendRight(text, std::to_string(k), binWidth());
            appendRight(text, shortest(heading.position(k)), positionWidth);
            forNumbers(bins, k, [&](double value) { appendRight(text, number(value), numberWidth); });
            text += '\n';
            writeWhenMuch();
        }
    }

private:
    std::size_t binWidth() const {
        return std::max<std::size_t>(5, std::to_string(heading.framing().length).size() + 1);
    }
    static constexpr std::size_t positionWidth = 24, numberWidth = 26;
};

class CsvSink : public TableSink {
public:
    using TableSink::TableSink;

    void start() override {
        text += "frame,time,bin,";
        text += heading.showsFrequency() ? "frequency" : "sequency";
        text += heading.options.content == Content::Bins ? ",re,im,magnitude\n" : ",magnitude\n";
    }

    void add(std::int64_t frame, ConstBins bins) override {
        const std::string start = std::to_string(frame) + "," + shortest(heading.time(frame)) + ",";
        for (int k = 0; k < static_cast<int>(bins.size()); ++k) {
            text += start + std::to_string(k) + "," + shortest(heading.position(k));
            forNumbers(bins, k, [&](double value) { text += "," + number(value); });
            text += '\n';
            writeWhenMuch();
        }
    }
};

// One object to a line: first what is common to all frames, then the frames.
class JsonSink : public TableSink {
public:
    using TableSink::TableSink;

    void start() override {
        const Framing& framing = heading.framing();
        Json head{{"input", heading.inputName}, {"family", framing.family->name}, {"length", framing.length}};
        if (framing.family->takesFlag) head["flag"] = flagName(framing.flag);
        head["hop"] = framing.hop;
        head["window"] = windowWord(framing.window);
        head["precision"] = framing.precision == Precision::Single ? 32 : 64;
        if (heading.isSound) head["rate"] = heading.rate;
        Json positions = Json::array();
        for (int k = 0; k < framing.family->binCount(framing.length); ++k) positions.push_back(heading.position(k));
        head[heading.showsFrequency() ? "frequency" : "sequency"] = std::move(positions);
        text += jsonLine(head);
    }

    void add(std::int64_t frame, ConstBins bins) override {
        text += "{\"frame\":" + std::to_string(frame) + ",\"time\":" + shortest(heading.time(frame));
        if (heading.options.content == Content::Magnitudes) {
            addArray("magnitude", bins, [&](int k) { return heading.magnitude(bins, k); });
        } else {
            addArray("re", bins, [&](int k) { return bins[static_cast<std::size_t>(k)].real(); });
            addArray("im", bins, [&](int k) { return bins[static_cast<std::size_t>(k)].imag(); });
        }
        text += "}\n";
        writeWhenMuch();
    }

private:
    template <typename Value>
    void addArray(const char* name, ConstBins bins, Value&& value) {
        text += std::string(",\"") + name + "\":[";
        for (int k = 0; k < static_cast<int>(bins.size()); ++k) {
            if (k > 0) text += ',';
            text += number(value(k));
        }
        text += ']';
    }
};

// An array of NumPy, of frames and bins: complex where bins are complex, and real numbers otherwise.
class NpySink : public TableSink {
public:
    NpySink(const Heading& head, OutputFile* out) : TableSink(head, out), count(head.frames) {
        if (out && !count && !out->canGoBack()) {
            throw UserError(
                "an array whose length is not known beforehand cannot be written to a pipe; name a file with "
                "--output");
        }
    }

    void start() override { text += header(count.value_or(0)); }

    void add(std::int64_t, ConstBins bins) override {
        for (int k = 0; k < static_cast<int>(bins.size()); ++k) {
            const std::complex<double> bin = bins[static_cast<std::size_t>(k)];
            append(heading.options.content == Content::Bins ? bin.real() : heading.magnitude(bins, k));
            if (isComplex()) append(bin.imag());
            writeWhenMuch();
        }
        ++written;
    }

    void addPiece(std::string_view piece, std::int64_t frames) override {
        TableSink::addPiece(piece, frames);
        written += frames;
    }

    void finish() override {
        flush();
        if (count != written) file->writeStart(header(written));
    }

private:
    bool isComplex() const { return heading.options.content == Content::Bins && heading.family().numbersInBin == 2; }

    // 128 bytes, whatever the number of frames is.
    std::string header(std::int64_t frames) const {
        const bool single = heading.framing().precision == Precision::Single;
        const char* const kind = isComplex() ? (single ? "<c8" : "<c16") : (single ? "<f4" : "<f8");
        std::string words = "{'descr': '" + std::string(kind) + "', 'fortran_order': False, 'shape': (" +
                            std::to_string(frames) + ", " +
                            std::to_string(heading.family().binCount(heading.framing().length)) + "), }";
        words.resize(117, ' ');
        const char start[] = "\x93NUMPY\x01\x00\x76";
        return std::string(start, sizeof start) + words + '\n';
    }

    void append(double value) {
        if (heading.framing().precision == Precision::Single) {
            appendBytes(std::bit_cast<std::array<char, 4>>(static_cast<float>(value)));
        } else {
            appendBytes(std::bit_cast<std::array<char, 8>>(value));
        }
    }

    template <std::size_t size>
    void appendBytes(std::array<char, size> bytes) {
        static_assert(std::endian::native == std::endian::little, "the file says so");
        text.append(bytes.data(), size);
    }

    std::optional<std::int64_t> count;
    std::int64_t written = 0;
};

}  // namespace

std::unique_ptr<Sink> makeTextSink(const Heading& heading, OutputFile* file) {
    return std::make_unique<TextSink>(heading, file);
}

std::unique_ptr<Sink> makeCsvSink(const Heading& heading, OutputFile* file) {
    return std::make_unique<CsvSink>(heading, file);
}

std::unique_ptr<Sink> makeJsonSink(const Heading& heading, OutputFile* file) {
    return std::make_unique<JsonSink>(heading, file);
}

std::unique_ptr<Sink> makeNpySink(const Heading& heading, OutputFile* file) {
    return std::make_unique<NpySink>(heading, file);
}

std::unique_ptr<Sink> makeSink(const Heading& heading, OutputFile* file) {
    if (isPicture(heading.options.format)) return makePictureSink(heading, file);
    switch (heading.options.format) {
        case Format::Csv: return makeCsvSink(heading, file);
        case Format::JsonLines: return makeJsonSink(heading, file);
        case Format::Npy: return makeNpySink(heading, file);
        default: return makeTextSink(heading, file);
    }
}

}  // namespace spectrum
