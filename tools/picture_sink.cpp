// The spectrogram: time to the right, frequency or sequency upward, level as colour. A column shows the mean power of
// its frames. The number of columns is bounded: when it is reached, neighbours are merged, and each column has twice as
// many frames from then on. Bins share a row in the same way where there are more of them than pixels.
#include <algorithm>
#include <charconv>
#include <cmath>

#include "drawing.h"
#include "sink.h"

namespace spectrum {
namespace {

constexpr int marginLeft = 72, marginTop = 40, marginRight = 112, marginBottom = 44;
constexpr int fewestPixelsAcross = 768, mostColumns = 2 * fewestPixelsAcross;
constexpr int pixelsDown = 512;
constexpr double shownDecibels = 80;
constexpr Colour background{20, 20, 26}, ink{214, 214, 222}, frameLine{96, 96, 108};

// The distance from one tick of an axis to the next: a round number that makes at most `most` steps.
double roundStep(double range, int most) {
    const double least = range / most;
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (double factor : {1.0, 2.0, 5.0}) {
        if (factor * decade >= least * (1 - 1e-9)) return factor * decade;
    }
    return 10 * decade;
}

std::string label(double value) {
    char digits[40];
    return std::string(digits, std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, 6).ptr);
}

class PictureSink : public Sink {
public:
    PictureSink(const Heading& head, OutputFile& out)
        : heading(head),
          file(out),
          places(head.options.family->shownCount(head.options.length)),
          placesPerRow((places + pixelsDown - 1) / pixelsDown),
          rows((places + placesPerRow - 1) / placesPerRow) {}

    void add(std::int64_t, const Bins& bins) override {
        if (framesInLast == framesPerColumn || columns == 0) startColumn();
        ++framesInLast;
        for (int place = 0; place < places; ++place) {
            const double magnitude = heading.magnitude(bins, binAt(place));
            const int row = place / placesPerRow;
            power[index(columns - 1, row)] +=
                magnitude * magnitude / std::min(placesPerRow, places - row * placesPerRow);
        }
    }

    void finish() override {
        const double missing = static_cast<double>(framesPerColumn) / static_cast<double>(framesInLast);
        for (int k = 0; k < rows; ++k) power[index(columns - 1, k)] *= missing;
        columnPixels = (fewestPixelsAcross + columns - 1) / columns;
        rowPixels = pixelsDown / rows;
        plotWidth = columns * columnPixels;
        plotHeight = rows * rowPixels;
        Drawing drawing(marginLeft + plotWidth + marginRight, marginTop + plotHeight + marginBottom, background);
        drawing.fill(marginLeft - 2, marginTop - 2, plotWidth + 4, plotHeight + 4, frameLine);
        drawLevels(drawing);
        drawTimeAxis(drawing);
        drawBinAxis(drawing);
        drawScale(drawing);
        file.write(drawing.png());
    }

private:
    std::size_t index(int column, int row) const {
        return static_cast<std::size_t>(column) * static_cast<std::size_t>(rows) + static_cast<std::size_t>(row);
    }

    int binAt(int place) const { return heading.options.family->shownBin(place, heading.options.length); }

    void startColumn() {
        if (columns == mostColumns) {
            columns /= 2;
            framesPerColumn *= 2;
            for (int c = 0; c < columns; ++c) {
                for (int k = 0; k < rows; ++k) {
                    power[index(c, k)] = power[index(2 * c, k)] + power[index(2 * c + 1, k)];
                }
            }
        }
        framesInLast = 0;
        power.resize(index(++columns, 0));
        std::fill(power.begin() + static_cast<std::ptrdiff_t>(index(columns - 1, 0)), power.end(), 0.0);
    }

    void drawLevels(Drawing& drawing) const {
        double strongest = 0;
        for (double value : power) {
            if (std::isfinite(value)) strongest = std::max(strongest, value);
        }
        for (int c = 0; c < columns; ++c) {
            for (int k = 0; k < rows; ++k) {
                const double decibels = 10 * std::log10(power[index(c, k)] / strongest);
                drawing.fill(marginLeft + c * columnPixels, marginTop + (rows - 1 - k) * rowPixels, columnPixels,
                             rowPixels, colourOf(1 + decibels / shownDecibels));
            }
        }
    }

    void drawTimeAxis(Drawing& drawing) const {
        const double range = heading.time(columns * framesPerColumn);
        const double step = roundStep(range, 8);
        const int top = marginTop + plotHeight + 2;
        for (int i = 0; i * step <= range * (1 + 1e-9); ++i) {
            const int x = marginLeft + static_cast<int>(std::lround(i * step / range * plotWidth));
            const std::string number = label(i * step);
            drawing.fill(x, top, 2, 6, ink);
            drawing.text(x + 1 - Drawing::textWidth(number) / 2, top + 12, number, ink);
        }
        const char* const unit = heading.isSound ? "s" : "samples";
        drawing.text(marginLeft + plotWidth + 24, top + 12, unit, ink);
    }

    void drawBinAxis(Drawing& drawing) const {
        // Positions rise evenly from one shown bin to the next. The tick of a position is at the middle of its bin.
        const bool ofSound = heading.isSound && heading.showsFrequency();
        const bool inKilohertz = ofSound && heading.position(binAt(places - 1)) >= 1000;
        const double unit = inKilohertz ? 1000 : 1;
        const double first = heading.position(binAt(0)) / unit;
        const double each = places > 1 ? heading.position(binAt(1)) / unit - first : 1;
        const double range = each * places, leastStep = heading.showsFrequency() ? 0 : 1;
        const double step = std::max(roundStep(range, 10), leastStep);
        for (int i = 0; i * step <= first + range - each / 2 + 1e-9 * range; ++i) {
            const double row = ((i * step - first) / each + 0.5) / placesPerRow;
            const int y = marginTop + plotHeight - static_cast<int>(std::lround(row * rowPixels));
            const std::string number = label(i * step);
            drawing.fill(marginLeft - 8, y - 1, 6, 2, ink);
            drawing.text(marginLeft - 14 - Drawing::textWidth(number), y - Drawing::textHeight / 2, number, ink);
        }
        const char* const frequencyUnit = inKilohertz ? "kHz" : ofSound ? "Hz" : "cycles/sample";
        drawing.text(10, 10, heading.showsFrequency() ? frequencyUnit : "sequency", ink);
    }

    void drawScale(Drawing& drawing) const {
        const int left = marginLeft + plotWidth + 24, width = 18;
        drawing.fill(left - 2, marginTop - 2, width + 4, plotHeight + 4, frameLine);
        for (int y = 0; y < plotHeight; ++y) {
            drawing.fill(left, marginTop + y, width, 1, colourOf(1 - (y + 0.5) / plotHeight));
        }
        for (int decibels = 0; decibels <= static_cast<int>(shownDecibels); decibels += 20) {
            const int y = marginTop + static_cast<int>(std::lround(decibels / shownDecibels * plotHeight));
            drawing.fill(left + width + 2, y - 1, 6, 2, ink);
            drawing.text(left + width + 14, y - Drawing::textHeight / 2, label(-decibels), ink);
        }
        drawing.text(left, 10, "dB", ink);
    }

    const Heading& heading;
    OutputFile& file;
    int places, placesPerRow, rows;
    int columns = 0;
    std::int64_t framesPerColumn = 1;
    std::int64_t framesInLast = 0;
    std::vector<double> power;  // column by column: the sum over the frames of a column
    int columnPixels = 0, rowPixels = 0, plotWidth = 0, plotHeight = 0;
};

}  // namespace

std::unique_ptr<Sink> makePictureSink(const Heading& heading, OutputFile& file) {
    return std::make_unique<PictureSink>(heading, file);
}

}  // namespace spectrum
