// The spectrogram: time to the right, frequency or sequency upward, level as colour. A scene of rectangles and words is
// laid out once, and written as PNG or as SVG.
#include <algorithm>
#include <cmath>

#include "drawing.h"
#include "levels.h"
#include "numbers.h"
#include "scene.h"
#include "sink.h"

namespace spectrum {
namespace {

constexpr int marginLeft = 72, marginTop = 40, marginRight = 112, marginBottom = 44;
constexpr int fewestPixelsAcross = 768, standardColumns = 2 * fewestPixelsAcross;
constexpr int pixelsDown = 512;

// The distance from one tick of an axis to the next: a round number that makes at most `most` steps.
double roundStep(double range, int most) {
    const double least = range / most;
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (double factor : {1.0, 2.0, 5.0}) {
        if (factor * decade >= least * (1 - 1e-9)) return factor * decade;
    }
    return 10 * decade;
}

class PictureSink : public Sink {
public:
    PictureSink(const Heading& head, OutputFile* out)
        : heading(head),
          file(out),
          colours(coloursOf(head.options.picture.colours)),
          levels(head.family(), head.framing().length, pixelsDown,
                 head.options.picture.columns > 0 ? head.options.picture.columns : standardColumns, head.frames) {}

    void add(std::int64_t, ConstBins bins) override { levels.add(bins); }
    std::string takePiece() override { return levels.takeColumns(); }
    void addPiece(std::string_view piece, std::int64_t frames) override { levels.addColumns(piece, frames); }
    std::int64_t pieceStep() const override { return levels.framesInColumn(); }

    void finish() override {
        levels.finish();
        columnPixels = (fewestPixelsAcross + levels.columns() - 1) / levels.columns();
        rowPixels = pixelsDown / levels.rows();
        plotWidth = levels.columns() * columnPixels;
        plotHeight = levels.rows() * rowPixels;
        Scene scene(marginLeft + plotWidth + marginRight, marginTop + plotHeight + marginBottom, colours.background);
        scene.fill(marginLeft - 2, marginTop - 2, plotWidth + 4, plotHeight + 4, colours.frameLine);
        addLevels(scene);
        addTimeAxis(scene);
        addBinAxis(scene);
        addScale(scene);
        file->write(heading.options.format == Format::Svg ? scene.svg() : scene.png());
    }

private:
    double decibelsShown() const { return heading.options.picture.decibels; }

    void addLevels(Scene& scene) const {
        Drawing cells(levels.columns(), levels.rows(), {});
        for (int c = 0; c < levels.columns(); ++c) {
            for (int k = 0; k < levels.rows(); ++k) {
                cells.fill(c, levels.rows() - 1 - k, 1, 1, colours.at(1 + levels.decibels(c, k) / decibelsShown()));
            }
        }
        scene.picture(marginLeft, marginTop, columnPixels, rowPixels, std::move(cells));
    }

    void addTimeAxis(Scene& scene) const {
        const double range = heading.time(levels.framesShown());
        const double step = roundStep(range, 8);
        const int top = marginTop + plotHeight + 2;
        for (int i = 0; i * step <= range * (1 + 1e-9); ++i) {
            const int x = marginLeft + static_cast<int>(std::lround(i * step / range * plotWidth));
            scene.fill(x, top, 2, 6, colours.ink);
            scene.text(x + 1, top + 12, Align::Middle, shortLabel(i * step), colours.ink);
        }
        const char* const unit = heading.isSound ? "s" : "samples";
        scene.text(marginLeft + plotWidth + 24, top + 12, Align::Left, unit, colours.ink);
    }

    void addBinAxis(Scene& scene) const {
        // Positions rise evenly from one shown bin to the next. The tick of a position is at the middle of its bin.
        const int places = levels.places();
        const auto positionAt = [&](int place) { return heading.position(levels.binAt(place)); };
        const bool ofSound = heading.isSound && heading.showsFrequency();
        const bool inKilohertz = ofSound && positionAt(places - 1) >= 1000;
        const double unit = inKilohertz ? 1000 : 1;
        const double first = positionAt(0) / unit;
        const double each = places > 1 ? positionAt(1) / unit - first : 1;
        const double range = each * places, leastStep = heading.showsFrequency() ? 0 : 1;
        const double step = std::max(roundStep(range, 10), leastStep);
        for (int i = 0; i * step <= first + range - each / 2 + 1e-9 * range; ++i) {
            const double row = ((i * step - first) / each + 0.5) / levels.placesInRow();
            const int y = marginTop + plotHeight - static_cast<int>(std::lround(row * rowPixels));
            scene.fill(marginLeft - 8, y - 1, 6, 2, colours.ink);
            scene.text(marginLeft - 14, y - Drawing::textHeight / 2, Align::Right, shortLabel(i * step), colours.ink);
        }
        const char* const frequencyUnit = inKilohertz ? "kHz" : ofSound ? "Hz" : "cycles/sample";
        scene.text(10, 10, Align::Left, heading.showsFrequency() ? frequencyUnit : "sequency", colours.ink);
    }

    void addScale(Scene& scene) const {
        const int left = marginLeft + plotWidth + 24, width = 18;
        scene.fill(left - 2, marginTop - 2, width + 4, plotHeight + 4, colours.frameLine);
        Drawing shades(1, plotHeight, {});
        for (int y = 0; y < plotHeight; ++y) shades.fill(0, y, 1, 1, colours.at(1 - (y + 0.5) / plotHeight));
        scene.picture(left, marginTop, width, 1, std::move(shades));
        const double step = roundStep(decibelsShown(), 4);
        for (int i = 0; i * step <= decibelsShown() * (1 + 1e-9); ++i) {
            const int y = marginTop + static_cast<int>(std::lround(i * step / decibelsShown() * plotHeight));
            scene.fill(left + width + 2, y - 1, 6, 2, colours.ink);
            scene.text(left + width + 14, y - Drawing::textHeight / 2, Align::Left, shortLabel(-i * step), colours.ink);
        }
        scene.text(left, 10, Align::Left, "dB", colours.ink);
    }

    const Heading& heading;
    OutputFile* file;
    const Colours& colours;
    Levels levels;
    int columnPixels = 0, rowPixels = 0, plotWidth = 0, plotHeight = 0;
};

}  // namespace

std::unique_ptr<Sink> makePictureSink(const Heading& heading, OutputFile* file) {
    return std::make_unique<PictureSink>(heading, file);
}

}  // namespace spectrum
