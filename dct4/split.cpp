// Fold and combine for a group of neighbouring transforms at once: as many as a line holds, so that each line of source
// and destination is fetched once for all of them. The parts of a split stand in the frame, in double, or where its
// results go, at the bins that their row of the combine pass fills.
//
// A body that touches more lines of one distance than the cache keeps works on copies of them.
#include <algorithm>
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

// Where part c goes: to the bins k + c M', in the upper half of the parts to the mirrored ones, M - 1 - k - c M'.
template <class Element>
GroupBins<Element> partBins(const FoldStep& step, const GroupBins<Element>& bins, std::ptrdiff_t c) {
    const std::ptrdiff_t bin = step.skewLength * c;
    if (c < step.count / 2) return {bins.re(bin), bins.step, {}};
    return {bins.re(step.parentSkewLength - 1 - bin), -bins.step, {}};
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

// The entries of row k as bodies on x86-64 take them: singles are widened once for all of a group, which takes 2 to 4 %
// off a transform of 32768. The x87 widens for nothing when it loads.
template <int radix, class Element>
class RowEntries {
public:
    using Table = CombineTable<radix, Element>;

    RowEntries(const Table& table, std::ptrdiff_t k) {
        for (std::ptrdiff_t i = 0; i < Table::innerEntries; ++i) all[i] = table.inner[Table::innerEntries * k + i];
        double* const behind = all + Table::innerEntries;
        for (std::ptrdiff_t i = 0; i < Table::outerEntries; ++i) behind[i] = table.outer[Table::outerEntries * k + i];
    }
    const double* inner() const { return all; }
    const double* outer() const { return all + Table::innerEntries; }

private:
    double all[Table::innerEntries + Table::outerEntries];
};
template <int radix>
class RowEntries<radix, double> {
public:
    using Table = CombineTable<radix, double>;

    RowEntries(const Table& table, std::ptrdiff_t k)
        : first(table.inner + Table::innerEntries * k), second(table.outer + Table::outerEntries * k) {}
    const double* inner() const { return first; }
    const double* outer() const { return second; }

private:
    const double* first;
    const double* second;
};

// To be said before each body that takes them: otherwise the compiler fetches all entries of a row at once, to keep
// most of them in another place of the frame, which takes 3 % of a pass.
inline void leaveInPlace(const double* entries) { asm volatile("" : : "r"(entries) : "memory"); }

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

// Parts of a group in the frame, in double: the bins that a row of the combine pass takes stand one behind the other,
// and a line lies between rows.
template <int radix, class Element>
struct FrameParts {
    static constexpr std::ptrdiff_t length = lineLength<Element>;
    static constexpr std::ptrdiff_t pitch =
        2 * length * radix + lineBytes / static_cast<std::ptrdiff_t>(sizeof(double));

    using Part = SkewBins<double, FixedStep<pitch>, FixedStep<length>>;
    using Row = SkewBins<double, FixedStep<2 * length>, FixedStep<length>>;

    double* first;

    Part part(std::ptrdiff_t c) const { return {first + 2 * length * c, {}, {}}; }
    Row row(std::ptrdiff_t k) const { return {first + pitch * k, {}, {}}; }
};

// A row on copies, and between its bodies the row before it is put back and the row behind it is fetched, a few bins at
// a time: a word is never read as a whole right after its halves were written, and no body waits for lines. Rows whose
// parts are in the frame are only put back.
template <int radix, int rowsInFrame, class Element>
void combineRows(const CombineStage& stage, const GroupBins<Element>& bins, const FrameParts<radix, Element>& parts) {
    using Place = typename InMemory<Element>::Type;
    using Row = typename FrameParts<radix, Element>::Row;
    constexpr std::ptrdiff_t length = lineLength<Element>, pitch = 2 * length + lineGap<Element>, half = radix / 2;
    constexpr std::ptrdiff_t binsAtOnce = 4, bodiesPerMove = length * binsAtOnce / radix;
    using Copies = CombinePorts<Element, radix, FixedStep<pitch>, FixedStep<length>, double>;
    using FromFrame = CombineFromPorts<Element, radix, Row, FixedStep<pitch>, FixedStep<length>>;
    const CombineTable<radix, Element> table(static_cast<const Element*>(stage.table.get()), stage.rows);
    const std::ptrdiff_t stride = stage.blockStride * bins.step;
    // In the order of addresses: the rising places of row 0, then the falling ones, the last of which comes first.
    Place* const low = bins.re(0);
    Place* const high = bins.re(stage.mirrorBase) - stride * (radix - 1);
    alignas(lineBytes) Element blocks[2][radix * pitch];
    for (std::ptrdiff_t i = 0; i < half && rowsInFrame == 0; ++i) {
        copyBin(blocks[0] + pitch * i, length, low + stride * i, bins.toImaginary);
        copyBin(blocks[0] + pitch * (half + i), length, high + stride * i, bins.toImaginary);
    }
    for (std::ptrdiff_t k = 0; k <= stage.rows; ++k) {
        Element* const block = blocks[k % 2];
        const RowEntries<radix, Element> entries(table, std::min<std::ptrdiff_t>(k, stage.rows - 1));
        for (std::ptrdiff_t p = 0; p < length; ++p) {
            const Copies copies{
                {}, entries.inner(), entries.outer(), block + p, block + pitch * (half + radix - 1) + p, {}, {}};
            leaveInPlace(entries.inner());
            if (k < rowsInFrame) {
                Dct4Combine<radix>::run(FromFrame{copies, parts.row(k).next(p)});
            } else if (k < stage.rows) {
                Dct4Combine<radix>::run(copies);
            }
            if (p % bodiesPerMove != 0) continue;
            const std::ptrdiff_t from = p / bodiesPerMove * binsAtOnce;
            const bool isHigh = from >= half, isFetched = k + 1 >= rowsInFrame && k + 1 < stage.rows;
            const std::ptrdiff_t step = isHigh ? -bins.step : bins.step;
            Place* at = (isHigh ? high + stride * (from - half) : low + stride * from) + step * k;
            Element* copy = blocks[(k + 1) % 2] + pitch * from;
            for (std::ptrdiff_t i = 0; i < binsAtOnce; ++i, at += stride, copy += pitch) {
                if (k > 0) copyBin(at - step, bins.toImaginary, copy, length);
                if (isFetched) copyBin(copy, length, at + step, bins.toImaginary);
            }
        }
    }
}

template <int radix, class Element>
void combineOnCopies(const CombineStage& stage, const GroupBins<Element>& bins) {
    combineRows<radix, 0, Element>(stage, bins, {});
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

// Whether a split that is one level deep keeps the parts of a group in the frame, where they need not be narrowed. Two
// of five conversions of an element fall away, each of which takes the time of an addition and of a multiplication:
// 5 to 8 % of a transform of 4096 to 32768 points, 3 % at 65536. Doubles gain nothing by it, and the x87 converts for
// nothing.
template <class Element>
constexpr bool partsStayInFrame() {
    return linesAreCopied && std::is_same_v<Element, float>;
}

// All places but those of the source are at distances that the compiler knows; `direction` is 1, or -1 where the bins
// are written backwards.
template <int points, int radix, int direction, class Element>
void splitInFrame(const SkewSplit& split, const GroupSource<Element>& from, const GroupBins<Element>& bins) {
    using Parts = FrameParts<radix, Element>;
    constexpr std::ptrdiff_t length = lineLength<Element>, binStep = direction * 2 * length;
    constexpr std::ptrdiff_t rows = points / 2, highest = points * radix - 1;
    using Ports = CombineFromPorts<Element, radix, typename Parts::Row, FixedStep<binStep * points>, FixedStep<length>>;
    const auto& step = firstOf<FoldStep>(split.pre);
    const auto& stage = firstOf<CombineStage>(split.post);
    alignas(lineBytes) double room[rows * Parts::pitch];
    const Parts parts{room};
    for (std::ptrdiff_t c = 0; c < radix; ++c) {
        foldGroup<points>(split, step, from.next(step.subStep * c), parts.part(c));
    }
    const CombineTable<radix, Element> table(static_cast<const Element*>(stage.table.get()), rows);
    for (std::ptrdiff_t k = 0; k < rows; ++k) {
        const RowEntries<radix, Element> entries(table, k);
        for (std::ptrdiff_t p = 0; p < length; ++p) {
            leaveInPlace(entries.inner());
            Element* const first = bins.first + p;
            Dct4Combine<radix>::run(Ports{
                {{}, entries.inner(), entries.outer(), first + binStep * k, first + binStep * (highest - k), {}, {}},
                parts.row(k).next(p)});
        }
    }
}

// The bins of a part in two places: the first `count` in the frame, the others where the split's results go.
template <int count, class InFrame, class InDestination>
struct DividedBins {
    InFrame inFrame;
    InDestination inDestination;

    ZULG_INLINE void setRe(int k, double value) const {
        if (k < count) {
            inFrame.setRe(k, value);
        } else {
            inDestination.setRe(k, value);
        }
    }
    ZULG_INLINE void setIm(int k, double value) const {
        if (k < count) {
            inFrame.setIm(k, value);
        } else {
            inDestination.setIm(k, value);
        }
    }
    ZULG_INLINE DividedBins next(std::ptrdiff_t c) const { return {inFrame.next(c), inDestination.next(c)}; }
};

// The same where the combine pass works on copies, for 1024 points a transform or more: of longer ones only the first
// rows are in the frame, since a caller's stack may not be large.
template <int points, int radix, class Element>
void splitPartlyInFrame(const SkewSplit& split, const GroupSource<Element>& from, const GroupBins<Element>& bins) {
    using Parts = FrameParts<radix, Element>;
    constexpr int rowsInFrame = 16;
    const auto& step = firstOf<FoldStep>(split.pre);
    alignas(lineBytes) double room[rowsInFrame * Parts::pitch];
    const Parts parts{room};
    for (std::ptrdiff_t c = 0; c < radix; ++c) {
        using Bins = DividedBins<rowsInFrame, typename Parts::Part, GroupBins<Element>>;
        foldGroup<points>(split, step, from.next(step.subStep * c), Bins{parts.part(c), partBins(step, bins, c)});
    }
    combineRows<radix, rowsInFrame>(firstOf<CombineStage>(split.post), bins, parts);
}

// By the kinds of a FoldStep and of a CombineStage, for the lengths M of 128 to 2048; null for any others.
template <class Element>
using WholeSplit = void(const SkewSplit&, const GroupSource<Element>&, const GroupBins<Element>&);
template <int direction, class Element>
WholeSplit<Element>* splitOfKinds(std::int32_t fold, std::int32_t combine) {
    if constexpr (partsStayInFrame<Element>()) {
        if (fold == 4 && combine == 3) return splitInFrame<16, 8, direction>;
        if (fold == 4 && combine == 4) return splitInFrame<16, 16, direction>;
        if (fold == 5 && combine == 4) return splitInFrame<32, 16, direction>;
        if (fold == 5 && combine == 5) return splitPartlyInFrame<32, 32>;
        if (fold == 6 && combine == 5) return splitPartlyInFrame<64, 32>;
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

    for (std::ptrdiff_t c = 0; c < step.count; ++c) {
        fold(split, step, from.next(step.subStep * c), partBins(step, bins, c));
    }
    combine(stage, bins);
    return StatusOk;
}

template Status runSplit<float>(const SkewSplit&, const GroupSource<float>&, const GroupBins<float>&);
template Status runSplit<double>(const SkewSplit&, const GroupSource<double>&, const GroupBins<double>&);

}  // namespace zulg
