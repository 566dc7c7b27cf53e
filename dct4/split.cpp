// Fold and combine for a group of neighbouring transforms at once: as many as a line holds, so that each line of source
// and destination is fetched once for all of them. The parts of a split stand where its results go, at the bins that
// their row of the combine pass fills.
//
// A body that touches more lines of one distance than the cache keeps works on copies of them in the split's scratch
// vector, which has room for them: only lengths M from 512 have bodies of 32 points, only those from 1024 have rows of
// 32 bins, and only 2048 has bodies of 64 points.
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

// `count` lines side by side: of places at one stride, the first half rising from one place, the second half falling to
// another. In that order the last of the falling ones comes first, as it does there.
template <int count, class Element>
struct Lines {
    static constexpr std::ptrdiff_t length = lineLength<Element>;
    using Step = FixedStep<length>;
    using Place = typename InMemory<Element>::Type;

    Element* first;

    // Where a body finds the places low + stride c and high - stride c of number p of the group.
    Element* low(std::ptrdiff_t p) const { return first + p; }
    Element* high(std::ptrdiff_t p) const { return first + length * (count / 2 + count - 1) + p; }

    void take(const Place* from, const Place* fromHigh, std::ptrdiff_t stride) const {
        for (std::ptrdiff_t i = 0; i < count / 2; ++i) {
            copyLine(first + length * i, from + stride * i);
            copyLine(first + length * (count / 2 + i), fromHigh - stride * (count - 1 - i));
        }
    }
    void put(Place* to, Place* toHigh, std::ptrdiff_t stride) const {
        for (std::ptrdiff_t i = 0; i < count / 2; ++i) {
            copyLine(to + stride * i, first + length * i);
            copyLine(toHigh - stride * (count - 1 - i), first + length * (count / 2 + i));
        }
    }
};

// Whether a body of `count` places, half of them rising and half of them falling, works on copies.
constexpr bool takesCopies(int count) { return linesAreCopied && count / 2 > linesOfOneDistance; }

template <int points, class Element>
void foldGroup(const SkewSplit& split, const FoldStep& step, const GroupSource<Element>& from,
               const SkewBins<Element>& bins) {
    constexpr std::ptrdiff_t length = lineLength<Element>, last = length - 1;
    if constexpr (takesCopies(points)) {
        using Copies = Lines<points, Element>;
        const Copies copies{static_cast<Element*>(split.scratch.get())};
        copies.take(from.forward, from.mirrored, step.inputStep);
        for (std::ptrdiff_t p = 0; p < length; ++p) {
            Dct4Fold<points>::run(FoldPorts<Element, points, typename Copies::Step>{
                {}, copies.low(p), copies.high(last - p), {}, bins.next(p)});
        }
    } else {
        for (std::ptrdiff_t p = 0; p < length; ++p) {
            Dct4Fold<points>::run(FoldPorts<Element, points, std::ptrdiff_t>{
                {}, from.forward + p, from.mirrored + (last - p), step.inputStep, bins.next(p)});
        }
    }
}

template <class Element>
void foldDeeper(const SkewSplit&, const FoldStep& step, const GroupSource<Element>& from,
                const SkewBins<Element>& bins) {
    runSplit(firstOf<SkewSplit>(step.children), from, bins);
}

// By the kind of a FoldStep; null for a kind out of range.
template <class Element>
using FoldPart = void(const SkewSplit&, const FoldStep&, const GroupSource<Element>&, const SkewBins<Element>&);
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

template <int radix, class Element>
void combineGroup(const SkewSplit& split, const CombineStage& stage, const SkewBins<Element>& bins) {
    using Table = CombineTable<radix, Element>;
    constexpr std::ptrdiff_t length = lineLength<Element>;
    const Table table(static_cast<const Element*>(stage.table.get()), stage.rows);
    const std::ptrdiff_t stride = stage.blockStride * bins.step;
    for (std::ptrdiff_t k = 0; k < stage.rows; ++k) {
        const Element* const inner = table.inner + Table::innerEntries * k;
        const Element* const outer = table.outer + Table::outerEntries * k;
        Element* const low = bins.re(k);
        Element* const high = bins.re(stage.mirrorBase - k);
        if constexpr (takesCopies(radix)) {
            using Copies = Lines<radix, Element>;
            const Copies real{static_cast<Element*>(split.scratch.get())};
            const Copies imaginary{real.first + radix * length};
            real.take(low, high, stride);
            imaginary.take(low + bins.toImaginary, high + bins.toImaginary, stride);
            for (std::ptrdiff_t p = 0; p < length; ++p) {
                Dct4Combine<radix>::run(
                    CombinePorts<Element, radix, typename Copies::Step, FixedStep<radix * length>>{
                        {}, inner, outer, real.low(p), real.high(p), {}, {}});
            }
            real.put(low, high, stride);
            imaginary.put(low + bins.toImaginary, high + bins.toImaginary, stride);
        } else {
            for (std::ptrdiff_t p = 0; p < length; ++p) {
                Dct4Combine<radix>::run(CombinePorts<Element, radix, std::ptrdiff_t, std::ptrdiff_t>{
                    {}, inner, outer, low + p, high + p, stride, bins.toImaginary});
            }
        }
    }
}

// By the kind of a CombineStage; null for a kind out of range.
template <class Element>
using CombinePass = void(const SkewSplit&, const CombineStage&, const SkewBins<Element>&);
template <class Element>
CombinePass<Element>* combineOfKind(std::int32_t kind) {
    switch (kind) {
        case 1: return combineGroup<2>;
        case 2: return combineGroup<4>;
        case 3: return combineGroup<8>;
        case 4: return combineGroup<16>;
        case 5: return combineGroup<32>;
        default: return nullptr;
    }
}

}  // namespace

template <class Element>
Status runSplit(const SkewSplit& split, const GroupSource<Element>& from, const SkewBins<Element>& bins) {
    if (split.active != 1) return StatusOk;
    const auto& step = firstOf<FoldStep>(split.pre);
    const auto& stage = firstOf<CombineStage>(split.post);
    // Both are looked up first: a refusal leaves the destination as it is.
    const auto fold = foldOfKind<Element>(step.kind);
    const auto combine = combineOfKind<Element>(stage.kind);
    if (fold == nullptr || combine == nullptr) return StatusPlanKindError;

    // Part c goes to the bins k + c M', in the upper half of the parts to the mirrored ones, M - 1 - k - c M'.
    for (std::ptrdiff_t c = 0; c < step.count; ++c) {
        const std::ptrdiff_t shift = step.subStep * c, bin = step.skewLength * c;
        const bool isMirrored = c >= step.count / 2;
        fold(split, step, {from.forward + shift, from.mirrored - shift},
             {bins.re(isMirrored ? split.skewLength - 1 - bin : bin), isMirrored ? -bins.step : bins.step,
              bins.toImaginary});
    }
    combine(split, stage, bins);
    return StatusOk;
}

template Status runSplit<float>(const SkewSplit&, const GroupSource<float>&, const SkewBins<float>&);
template Status runSplit<double>(const SkewSplit&, const GroupSource<double>&, const SkewBins<double>&);

}  // namespace zulg
