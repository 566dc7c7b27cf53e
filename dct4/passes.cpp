#include "dct4/passes.h"

#include "dct4/bodies/output_1.h"
#include "dct4/bodies/output_16.h"
#include "dct4/bodies/output_2.h"
#include "dct4/bodies/output_32.h"
#include "dct4/bodies/output_4.h"
#include "dct4/bodies/output_8.h"
#include "dct4/fold.h"
#include "dct4/lines.h"

namespace zulg {
namespace {

// The r skew transforms of one length, one after the other.
template <int points, class Element>
Status foldAll(const FoldStage& stage, Element* transforms, const Element* x) {
    const std::ptrdiff_t r = stage.count;
    for (std::ptrdiff_t p = 0; p < r; ++p) {
        Dct4Fold<points>::run(FoldPorts<Element, points, std::ptrdiff_t, SkewBins<Element>>{
            {}, x + p, x + (stage.mirrorBase - p), stage.inputStep, {transforms + p, 2 * r, r}});
    }
    return StatusOk;
}

// By splits, a group at a time. The only radix that leaves skew transforms so long is 32, which is a whole number of
// groups.
template <class Element>
Status foldBySplits(const FoldStage& stage, Element* transforms, const Element* x) {
    const SkewSplit& split = firstOf<SkewSplit>(stage.children);
    const std::ptrdiff_t group = lineLength<Element>;
    for (std::ptrdiff_t p = 0; p < stage.count; p += group) {
        runSplit<Element>(split, {x + p, x + (stage.mirrorBase - p - (group - 1))},
                          {transforms + stage.skewLength * p, 2 * group, {}});
    }
    return StatusOk;
}

// How many bins of a row stand together, as the first pass leaves them.
template <int radix, bool grouped, class Element>
constexpr int binsTogether = grouped ? static_cast<int>(lineLength<Element>) : radix;

template <int radix, bool grouped = false, class Element>
Status outputAll(const OutputStage& stage, Element* y, const Element* transforms) {
    constexpr int side = binsTogether<radix, grouped, Element>;
    const std::ptrdiff_t stride = stage.blockStride;
    const Element* entries = static_cast<const Element*>(stage.table.get());
    Element* const lowest = y;
    Element* const highest = y + stage.mirrorBase - radix * stride;
    for (std::ptrdiff_t m = 0; m < stage.rows; ++m) {
        Dct4Output<radix>::run(OutputPorts<Element, side, std::ptrdiff_t>{{},
                                                                          transforms + 2 * side * m,
                                                                          2 * side * stage.rows,
                                                                          entries + 2 * radix * m,
                                                                          lowest + m,
                                                                          highest - m,
                                                                          stride});
    }
    return StatusOk;
}

// The outputs of a row stand at a stride of a power of two, too far apart for the cache from 2 KB on. There rows write
// to a block in which the outputs of neighbouring rows make a line, and the lines of a block are put in place while the
// rows of the next one run.
template <class Element>
bool isFarApart(const OutputStage& stage) {
    const bool fillsTheResult = stage.rows * stage.rowLength == stage.length;  // no output is written twice
    return linesAreCopied && fillsTheResult && stage.blockStride * static_cast<std::ptrdiff_t>(sizeof(Element)) >= 2048;
}

template <int radix, class Element>
Status outputByLines(const OutputStage& stage, Element* y, const Element* transforms) {
    constexpr std::ptrdiff_t length = lineLength<Element>, pitch = length + lineGap<Element>;
    constexpr std::ptrdiff_t linesPerRow = 2 * radix / length;
    constexpr int side = binsTogether<radix, true, Element>;
    using Ports = OutputPorts<Element, side, FixedStep<pitch>>;
    const std::ptrdiff_t stride = stage.blockStride;
    const Element* const entries = static_cast<const Element*>(stage.table.get());
    Element* const highest = y + stage.mirrorBase - radix * stride;
    alignas(lineBytes) Element blocks[2][2 * radix * pitch];
    for (std::ptrdiff_t m = 0; m < stage.rows + length; ++m) {
        const std::ptrdiff_t inBlock = m % length, start = m - inBlock, before = start - length;
        if (m < stage.rows) {
            Element* const block = blocks[start / length % 2];
            const Ports ports{{},
                              transforms + 2 * side * m,
                              2 * side * stage.rows,
                              entries + 2 * radix * m,
                              block + inBlock,
                              block + pitch * (2 * radix - 1) + length - 1 - inBlock,
                              {}};
            Dct4Output<radix>::run(ports);
        }
        if (before < 0) continue;
        const Element* const block = blocks[before / length % 2];
        for (std::ptrdiff_t b = inBlock * linesPerRow; b < (inBlock + 1) * linesPerRow; ++b) {
            Element* const rising = y + before + b * stride;
            Element* const falling = highest - before - (length - 1) - (2 * radix - 1 - b) * stride;
            copyLine(b < radix ? rising : falling, block + pitch * b);
        }
    }
    return StatusOk;
}

}  // namespace

template <class Element>
Status firstPass(const FoldStage& stage, Element* transforms, const Element* x) {
    switch (stage.kind) {
        case 1: return foldAll<2>(stage, transforms, x);
        case 2: return foldAll<4>(stage, transforms, x);
        case 3: return foldAll<8>(stage, transforms, x);
        case 4: return foldAll<16>(stage, transforms, x);
        case 5: return foldAll<32>(stage, transforms, x);
        case 6: return foldAll<64>(stage, transforms, x);
        case 7: return foldBySplits(stage, transforms, x);
        default: return StatusPlanKindError;
    }
}

template <class Element>
Status secondPass(const OutputStage& stage, Element* y, const Element* transforms, bool grouped) {
    switch (stage.kind) {
        case 1: return outputAll<1>(stage, y, transforms);
        case 2: return outputAll<2>(stage, y, transforms);
        case 3: return outputAll<4>(stage, y, transforms);
        case 4: return outputAll<8>(stage, y, transforms);
        case 5: return outputAll<16>(stage, y, transforms);
        case 6:
            if (!grouped) return outputAll<32>(stage, y, transforms);
            return isFarApart<Element>(stage) ? outputByLines<32>(stage, y, transforms)
                                              : outputAll<32, true>(stage, y, transforms);
        default: return StatusPlanKindError;
    }
}

template Status firstPass<float>(const FoldStage&, float*, const float*);
template Status firstPass<double>(const FoldStage&, double*, const double*);
template Status secondPass<float>(const OutputStage&, float*, const float*, bool);
template Status secondPass<double>(const OutputStage&, double*, const double*, bool);

}  // namespace zulg
