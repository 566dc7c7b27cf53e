// Spectra as text for people and as CSV for programs. Both write each number in the fewest digits that read back as
// the same number, in the precision of the transform.
#include <algorithm>
#include <charconv>

#include "sink.h"

namespace spectrum {
namespace {

template <typename T>
std::string shortest(T value) {
    char digits[40];
    return std::string(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

std::string binNumber(const Heading& heading, double value) {
    return heading.options.precision == Precision::Single ? shortest(static_cast<float>(value)) : shortest(value);
}

void appendRight(std::string& line, const std::string& cell, std::size_t width) {
    line.append(width > cell.size() ? width - cell.size() : 1, ' ');
    line += cell;
}

// A long frame must not be held in memory as text.
void writeWhenMuch(std::string& text, OutputFile& file) {
    if (text.size() < 1 << 16) return;
    file.write(text);
    text.clear();
}

class TextSink : public Sink {
public:
    TextSink(const Heading& head, OutputFile& out)
        : heading(head), file(out), binWidth(std::max<std::size_t>(5, std::to_string(head.options.length).size() + 1)) {
        const Options& options = heading.options;
        std::string text = "# " + heading.inputName;
        if (heading.isSound) {
            text += ", channel " + std::to_string(options.channel) + ", " + shortest(heading.rate) + " Hz";
        }
        text += "\n# family " + std::string(options.family->name) + ", length " + std::to_string(options.length) +
                (options.family->takesFlag ? ", flag " + flagName(options.flag) : "") + ", hop " +
                std::to_string(options.hop) + ", window " + (options.window == Window::Hann ? "hann" : "none") + ", " +
                (options.precision == Precision::Single ? "32" : "64") + " bits\n#";
        appendRight(text, "bin", binWidth - 1);
        appendRight(text,
                    !heading.showsFrequency() ? "sequency"
                    : heading.isSound         ? "frequency/Hz"
                                              : "cycles/sample",
                    24);
        for (const char* name : {"re", "im", "magnitude"}) appendRight(text, name, numberWidth);
        file.write(text + "\n");
    }

    void add(std::int64_t frame, const Bins& bins) override {
        std::string text =
            "\n# frame " + std::to_string(frame) + " at " +
            (heading.isSound ? shortest(heading.time(frame)) + " s" : "sample " + shortest(heading.time(frame))) + "\n";
        for (int k = 0; k < static_cast<int>(bins.size()); ++k) {
            const std::complex<double> bin = bins[static_cast<std::size_t>(k)];
            appendRight(text, std::to_string(k), binWidth);
            appendRight(text, shortest(heading.position(k)), 24);
            for (double value : {bin.real(), bin.imag(), heading.magnitude(bins, k)}) {
                appendRight(text, binNumber(heading, value), numberWidth);
            }
            text += '\n';
            writeWhenMuch(text, file);
        }
        file.write(text);
    }

private:
    static constexpr std::size_t numberWidth = 26;

    const Heading& heading;
    OutputFile& file;
    std::size_t binWidth;
};

class CsvSink : public Sink {
public:
    CsvSink(const Heading& head, OutputFile& out) : heading(head), file(out) {
        const char* const position = heading.showsFrequency() ? "frequency" : "sequency";
        file.write("frame,time,bin," + std::string(position) + ",re,im,magnitude\n");
    }

    void add(std::int64_t frame, const Bins& bins) override {
        const std::string start = std::to_string(frame) + "," + shortest(heading.time(frame)) + ",";
        std::string text;
        for (int k = 0; k < static_cast<int>(bins.size()); ++k) {
            const std::complex<double> bin = bins[static_cast<std::size_t>(k)];
            text += start + std::to_string(k) + "," + shortest(heading.position(k));
            for (double value : {bin.real(), bin.imag(), heading.magnitude(bins, k)}) {
                text += "," + binNumber(heading, value);
            }
            text += '\n';
            writeWhenMuch(text, file);
        }
        file.write(text);
    }

private:
    const Heading& heading;
    OutputFile& file;
};

}  // namespace

std::unique_ptr<Sink> makeTextSink(const Heading& heading, OutputFile& file) {
    return std::make_unique<TextSink>(heading, file);
}

std::unique_ptr<Sink> makeCsvSink(const Heading& heading, OutputFile& file) {
    return std::make_unique<CsvSink>(heading, file);
}

}  // namespace spectrum
