// Fold and combine for a group of neighbouring transforms at once: as many as a line holds, so that each line of source
// and destination is fetched once for all of them. The parts of a split stand in the frame, in double, or where its
// results go, at the bins that their row of the combine pass fills.
//
// A body that touches more lines of one distance than the cache keeps works on copies of them.
#include <type_traits>

#include "dct4/bodies/combine_16.h"
#include "dct4/bodies/combine_2.h"
#include "dct4/bodies/combine_32.h"
#include "dct4/bodies/combine_4.h"
#include "dct4/bodies/combine_8.h"
#include "dct4/fold.h"
#include "dct4/lines.h"
#include "dct4/passes.h"

namespace zulg {
namespace {

// Whether a body of `count` places, half of them rising and half of them falling, works on copies.
constexpr bool takesCopies(int count) { return linesAreCopied && count / 2 > linesOfOneDistance; }

// Copies of the lines that a fold body takes for a group, in the order of its inputs. They stand in the split's scratch
// vector, which has room for them: only lengths M from 512 have bodies of 32 points, only 2048 has bodies of 64.
template <int points, class Element>
struct InputLines {
    static constexpr std::ptrdiff_t length = lineLength<Element>, half = points / 2;

    Element* first;

    InputLines(Element* room, const GroupSource<Element>& from, std::ptrdiff_t step) : first(room) {
        for (std::ptrdiff_t i = 0; i < half; ++i) {
            copyLine(first + length * i, from.forward + step * i);
            copyLine(first + length * (half + i), from.mirrored - step * (points - 1 - i));
        }
    }

    // Where number p of the group finds its inputs. The last of the mirrored ones comes first, as it does there.
    const Element* forward(std::ptrdiff_t p) const { return first + p; }
    const Element* mirrored(std::ptrdiff_t p) const { return first + length * (half + points) - 1 - p; }
};

template <int points, class Element, class Bins>
void foldGroup(const SkewSplit& split, const FoldStep& step, const GroupSource<Element>& from, const Bins& bins) {
    constexpr std::ptrdiff_t length = lineLength<Element>;
    if constexpr (takesCopies(points)) {
        const InputLines<points, Element> lines(static_cast<Element*>(split.scratch.get()), from, step.inputStep);
        for (std::ptrdiff_t p = 0; p < length; ++p) {
            Dct4Fold<points>::run(FoldPorts<Element, points, FixedStep<length>, Bins>{
                {}, lines.forward(p), lines.mirrored(p), {}, bins.next(p)});
        }
    } else {
        for (std::ptrdiff_t p = 0; p < length; ++p) {
            Dct4Fold<points>::run(FoldPorts<Element, points, std::ptrdiff_t, Bins>{
                {}, from.forward + p, from.mirrored + (length - 1 - p), step.inputStep, bins.next(p)});
        }
    }
}

template <class Element>
void foldDeeper(const SkewSplit&, const FoldStep& step, const GroupSource<Element>& from,
                const GroupBins<Element>& bins) {
    runSplit(firstOf<SkewSplit>(step.children), from, bins);
}

// By the kind of a FoldStep; null for a kind out of range.
template <class Element>
using FoldPart = void(const SkewSplit&, const FoldStep&, const GroupSource<Element>&, const GroupBins<Element>&);
template <class Element>
FoldPart<Element>* foldOfKind(std::int32_t kind) {
    switch (kind) {
        case 1: return foldGroup<2>;
        case 2: return foldGroup<4>;
        case 3: return foldGroup<8>;
        case 4: return foldGroup<16>;
        case 5: return foldGroup<32>;
        case 6: return foldGroup<64>;
        case 7: return foldDeeper<Element>;
        default: return nullptr;
    }
}

// How the table of a combine stage is laid out: entries of a row in the only or inner step, and in the outer step, each
// step in a section of its own.
template <int radix, class Element>
struct CombineTable {
    static constexpr bool hasTwoSteps = radix > 8;
    static constexpr std::ptrdiff_t innerEntries = hasTwoSteps ? 2 * (radix / 4 - 1) : 2 * (radix - 1);
    static constexpr std::ptrdiff_t outerEntries = hasTwoSteps ? radix / 4 * 6 : 0;
    // Radix 32 in single precision has the outer section first.
    static constexpr bool outerIsFirst = radix == 32 && std::is_same_v<Element, float>;

    const Element* inner;
    const Element* outer;

    CombineTable(const Element* entries, std::ptrdiff_t rows)
        : inner(outerIsFirst ? entries + outerEntries * rows : entries),
          outer(outerIsFirst ? entries : entries + innerEntries * rows) {}
};

// Row after row where the bins stand.
template <int radix, class Element>
void combineInPlace(const CombineStage& stage, const GroupBins<Element>& bins) {
    using Table = CombineTable<radix, Element>;
    const Table table(static_cast<const Element*>(stage.table.get()), stage.rows);
    const std::ptrdiff_t stride = stage.blockStride * bins.step;
    for (std::ptrdiff_t k = 0; k < stage.rows; ++k) {
        Element* const low = bins.re(k);
        Element* const high = bins.re(stage.mirrorBase - k);
        for (std::ptrdiff_t p = 0; p < lineLength<Element>; ++p) {
            Dct4Combine<radix>::run(CombinePorts<Element, radix, std::ptrdiff_t, decltype(bins.toImaginary)>{
                {},
                table.inner + Table::innerEntries * k,
                table.outer + Table::outerEntries * k,
                low + p,
                high + p,
                stride,
                {}});
        }
    }
}

// A row on copies, and between its bodies the row before it is put back and the row behind it is fetched, a few bins at
// a time: a word is never read as a whole right after its halves were written, and no body waits for lines.
template <int radix, class Element>
void combineOnCopies(const CombineStage& stage, const GroupBins<Element>& bins) {
    using Table = CombineTable<radix, Element>;
    using Place = typename InMemory<Element>::Type;
    constexpr std::ptrdiff_t length = lineLength<Element>, pitch = 2 * length + lineGap<Element>, half = radix / 2;
    constexpr std::ptrdiff_t binsAtOnce = 4, bodiesPerMove = length * binsAtOnce / radix;
    const Table table(static_cast<const Element*>(stage.table.get()), stage.rows);
    const std::ptrdiff_t stride = stage.blockStride * bins.step;
    // In the order of addresses: the rising places of row 0, then the falling ones, the last of which comes first.
    Place* const low = bins.re(0);
    Place* const high = bins.re(stage.mirrorBase) - stride * (radix - 1);
    alignas(lineBytes) Element blocks[2][radix * pitch];
    for (std::ptrdiff_t i = 0; i < half; ++i) {
        copyBin(blocks[0] + pitch * i, length, low + stride * i, bins.toImaginary);
        copyBin(blocks[0] + pitch * (half + i), length, high + stride * i, bins.toImaginary);
    }
    for (std::ptrdiff_t k = 0; k <= stage.rows; ++k) {
        Element* const block = blocks[k % 2];
        for (std::ptrdiff_t p = 0; p < length; ++p) {
            if (k < stage.rows) {
                Dct4Combine<radix>::run(CombinePorts<Element, radix, FixedStep<pitch>, FixedStep<length>>{
                    {},
                    table.inner + Table::innerEntries * k,
                    table.outer + Table::outerEntries * k,
                    block + p,
                    block + pitch * (half + radix - 1) + p,
                    {},
                    {}});
            }
            if (p % bodiesPerMove != 0) continue;
            const std::ptrdiff_t from = p / bodiesPerMove * binsAtOnce;
            const bool isHigh = from >= half;
            const std::ptrdiff_t step = isHigh ? -bins.step : bins.step;
            Place* at = (isHigh ? high + stride * (from - half) : low + stride * from) + step * k;
            Element* copy = blocks[(k + 1) % 2] + pitch * from;
            for (std::ptrdiff_t i = 0; i < binsAtOnce; ++i, at += stride, copy += pitch) {
                if (k > 0) copyBin(at - step, bins.toImaginary, copy, length);
                if (k + 1 < stage.rows) copyBin(copy, length, at + step, bins.toImaginary);
            }
        }
    }
}

template <class Element>
using CombinePass = void(const CombineStage&, const GroupBins<Element>&);

template <int radix, class Element>
constexpr CombinePass<Element>* combineGroup() {
    if constexpr (takesCopies(radix)) {
        return combineOnCopies<radix>;
    } else {
        return combineInPlace<radix>;
    }
}

// By the kind of a CombineStage; null for a kind out of range.
template <class Element>
CombinePass<Element>* combineOfKind(std::int32_t kind) {
    switch (kind) {
        case 1: return combineGroup<2, Element>();
        case 2: return combineGroup<4, Element>();
        case 3: return combineGroup<8, Element>();
        case 4: return combineGroup<16, Element>();
        case 5: return combineGroup<32, Element>();
        default: return nullptr;
    }
}

// Whether a split that is one level deep and short enough keeps the parts of a group in the frame, where they need not
// be narrowed: of five conversions of an element two fall away, each of which takes the time of an addition and of a
// multiplication, 8 % of a transform of 4096 or 8192 points. Doubles gain nothing by it, and the x87 converts for
// nothing.
template <class Element>
constexpr bool partsStayInFrame() {
    return linesAreCopied && std::is_same_v<Element, float>;
}

// The combine pass finds a row's bins one behind the other. All places but those of the source are at distances that
// the compiler knows; `direction` is 1, or -1 where the bins are written backwards.
template <int points, int radix, int direction, class Element>
void splitInFrame(const SkewSplit& split, const GroupSource<Element>& from, const GroupBins<Element>& bins) {
    using Table = CombineTable<radix, Element>;
    constexpr std::ptrdiff_t length = lineLength<Element>, binStep = direction * 2 * length;
    constexpr std::ptrdiff_t rows = points / 2, highest = points * radix - 1;
    constexpr std::ptrdiff_t oneLine = lineBytes / sizeof(double), pitch = 2 * length * radix + oneLine;
    using Part = SkewBins<double, FixedStep<pitch>, FixedStep<length>>;
    using Row = SkewBins<double, FixedStep<2 * length>, FixedStep<length>>;
    using Ports = CombineFromPorts<Element, radix, Row, FixedStep<binStep * points>, FixedStep<length>>;
    const auto& step = firstOf<FoldStep>(split.pre);
    const auto& stage = firstOf<CombineStage>(split.post);
    alignas(lineBytes) double parts[rows * pitch];
    for (std::ptrdiff_t c = 0; c < radix; ++c) {
        foldGroup<points>(split, step, from.next(step.subStep * c), Part{parts + 2 * length * c, {}, {}});
    }
    const Table table(static_cast<const Element*>(stage.table.get()), rows);
    for (std::ptrdiff_t k = 0; k < rows; ++k) {
        double entries[Table::innerEntries + Table::outerEntries];
        double* const outer = entries + Table::innerEntries;
        for (std::ptrdiff_t i = 0; i < Table::innerEntries; ++i) entries[i] = table.inner[Table::innerEntries * k + i];
        for (std::ptrdiff_t i = 0; i < Table::outerEntries; ++i) outer[i] = table.outer[Table::outerEntries * k + i];
        for (std::ptrdiff_t p = 0; p < length; ++p) {
            Element* const first = bins.first + p;
            Dct4Combine<radix>::run(
                Ports{{{}, entries, outer, first + binStep * k, first + binStep * (highest - k), {}, {}},
                      {parts + pitch * k + p, {}, {}}});
        }
    }
}

// By the kinds of a FoldStep and of a CombineStage, for the lengths M of 128, 256 and 512; null for any others.
template <class Element>
using WholeSplit = void(const SkewSplit&, const GroupSource<Element>&, const GroupBins<Element>&);
template <int direction, class Element>
WholeSplit<Element>* splitOfKinds(std::int32_t fold, std::int32_t combine) {
    if constexpr (partsStayInFrame<Element>()) {
        if (fold == 4 && combine == 3) return splitInFrame<16, 8, direction>;
        if (fold == 4 && combine == 4) return splitInFrame<16, 16, direction>;
        if (fold == 5 && combine == 4) return splitInFrame<32, 16, direction>;
    }
    return nullptr;
}

}  // namespace

template <class Element>
Status runSplit(const SkewSplit& split, const GroupSource<Element>& from, const GroupBins<Element>& bins) {
    if (split.active != 1) return StatusOk;
    const auto& step = firstOf<FoldStep>(split.pre);
    const auto& stage = firstOf<CombineStage>(split.post);
    const auto kinds = bins.step > 0 ? splitOfKinds<1, Element> : splitOfKinds<-1, Element>;
    if (const auto whole = kinds(step.kind, stage.kind)) {
        whole(split, from, bins);
        return StatusOk;
    }
    // Both are looked up first: a refusal leaves the destination as it is.
    const auto fold = foldOfKind<Element>(step.kind);
    const auto combine = combineOfKind<Element>(stage.kind);
    if (fold == nullptr || combine == nullptr) return StatusPlanKindError;

    // Part c goes to the bins k + c M', in the upper half of the parts to the mirrored ones, M - 1 - k - c M'.
    for (std::ptrdiff_t c = 0; c < step.count; ++c) {
        const std::ptrdiff_t bin = step.skewLength * c;
        const bool isMirrored = c >= step.count / 2;
        fold(split, step, from.next(step.subStep * c),
             {bins.re(isMirrored ? split.skewLength - 1 - bin : bin), isMirrored ? -bins.step : bins.step, {}});
    }
    combine(stage, bins);
    return StatusOk;
}

template Status runSplit<float>(const SkewSplit&, const GroupSource<float>&, const GroupBins<float>&);
template Status runSplit<double>(const SkewSplit&, const GroupSource<double>&, const GroupBins<double>&);

}  // namespace zulg
