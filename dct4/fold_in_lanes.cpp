#include "dct4/bodies/combine_16.h"
#include "dct4/bodies/combine_32.h"
#include "dct4/bodies/combine_8.h"
#include "dct4/bodies/fold_16.h"
#include "dct4/bodies/fold_32.h"
#include "dct4/bodies/fold_64.h"
#include "dct4/bodies/fold_8.h"
#include "dct4/in_lanes.h"
#include "dct4/lane_ports.h"
#include "dct4/tables.h"

namespace zulg {
inline namespace ZULG_TARGET {
namespace {

// Where a pass finds the sequences of a whole transform.
template <class Element>
FoldSource<Element> sourceOf(const FoldStage& stage, const Element* x) {
    return {x, x + stage.mirrorBase};
}

// Not inlined, so that each size has a stack frame of its own.
template <int points, class Element>
[[gnu::noinline]] void foldInLanes(const FoldStage& stage, Element* transforms, const Element* x) {
    using Ports = FoldLanePorts<Element, points>;
    const std::ptrdiff_t count = stage.count;
    for (std::ptrdiff_t p = 0; p < count; p += Ports::width) {
        Dct4Fold<points>::run(
            Ports{{}, sourceOf(stage, x).next(p), stage.inputStep, {transforms + p, 2 * count, count}});
    }
}

// The transforms of a split, for neighbouring sequences. Each short transform goes to T, to the bins of the long ones
// that the combine pass fills from it; the combine pass then works in place.
template <class Element>
struct SplitInLanes {
    const FoldStep& step;
    const CombineStage& combine;
    std::ptrdiff_t count;  // of long transforms side by side

    template <int radix>
    RowBins<Element, radix> row(Element* first, std::ptrdiff_t k) const {
        const SkewBins<Element> bins{first, count};
        return {bins.re(k), bins.re(combine.mirrorBase - k), 2 * count * combine.blockStride};
    }

    template <int points, int radix>
    [[gnu::noinline]] void fold(Element* first, FoldSource<Element> from) const {
        for (int c = 0; c < radix; ++c) {
            Dct4Fold<points>::run(FoldLanePorts<Element, points>{
                {},
                from.next(step.subStep * c),
                step.inputStep,
                {row<radix>(first, 0).at(c), c < radix / 2 ? 2 * count : -2 * count, count}});
        }
    }

    // What one sequence after the other leaves in the split's own vector: the short transforms of the last one.
    template <int radix>
    void keepLast(Element* kept, Element* last) const {
        for (std::ptrdiff_t k = 0; k < combine.rows; ++k) {
            const auto bins = row<radix>(last, k);
            for (int c = 0; c < radix; ++c) {
                kept[2 * radix * k + c] = *bins.at(c);
                kept[2 * radix * k + radix + c] = bins.at(c)[count];
            }
        }
    }

    template <int radix>
    [[gnu::noinline]] void combineRows(Element* first) const {
        constexpr CombineSections sections = combineSections(radix, sizeof(Element));
        const Element* const table = static_cast<const Element*>(combine.table.get());
        const Element* const inner = table + sections.innerStart(combine.rows);
        const Element* const outer = table + sections.outerStart(combine.rows);
        for (std::ptrdiff_t k = 0; k < combine.rows; ++k) {
            Dct4Combine<radix>::run(CombineLanePorts<Element, radix>{
                {}, inner + sections.innerEntries * k, outer + sections.outerEntries * k, row<radix>(first, k), count});
        }
    }

    // Returns true, for the one that chose the sizes.
    template <int points, int radix>
    bool run(const SkewSplit& split, Element* transforms, FoldSource<Element> from) const {
        constexpr int width = Dct4InLanes<Element>::width;
        for (std::ptrdiff_t p = 0; p < count; p += width) {
            fold<points, radix>(transforms + p, from.next(p));
            if (p + width == count) keepLast<radix>(static_cast<Element*>(split.scratch.get()), transforms + count - 1);
            combineRows<radix>(transforms + p);
        }
        return true;
    }
};

// Whether the split was done: not one that has a level below, nor one that leaves a pass out.
template <class Element>
bool splitInLanes(const FoldStage& stage, Element* transforms, const Element* x) {
    const SkewSplit& split = firstOf<SkewSplit>(stage.children);
    if (split.active != 1) return false;
    const FoldStep& step = firstOf<FoldStep>(split.pre);
    const CombineStage& combine = firstOf<CombineStage>(split.post);
    const SplitInLanes<Element> inLanes{step, combine, stage.count};
    const FoldSource<Element> from = sourceOf(stage, x);
    const auto has = [&](FoldKind fold, CombineKind rows) { return step.kind == fold && combine.kind == rows; };
    if (has(FoldKind::Points16, CombineKind::Radix8)) return inLanes.template run<16, 8>(split, transforms, from);
    if (has(FoldKind::Points16, CombineKind::Radix16)) return inLanes.template run<16, 16>(split, transforms, from);
    if (has(FoldKind::Points32, CombineKind::Radix16)) return inLanes.template run<32, 16>(split, transforms, from);
    if (has(FoldKind::Points32, CombineKind::Radix32)) return inLanes.template run<32, 32>(split, transforms, from);
    if (has(FoldKind::Points64, CombineKind::Radix32)) return inLanes.template run<64, 32>(split, transforms, from);
    return false;
}

}  // namespace

template <class Element>
void foldPassInLanes(const FoldStage& stage, Element* transforms, const Element* x) {
    switch (stage.kind) {
        case FoldKind::Points8: return foldInLanes<8>(stage, transforms, x);
        case FoldKind::Points16: return foldInLanes<16>(stage, transforms, x);
        case FoldKind::Points32: return foldInLanes<32>(stage, transforms, x);
        case FoldKind::Points64: return foldInLanes<64>(stage, transforms, x);
        case FoldKind::Split:
            if (splitInLanes(stage, transforms, x)) return;
            [[fallthrough]];
        default: foldPass(stage, transforms, x);
    }
}

template void foldPassInLanes<float>(const FoldStage&, float*, const float*);
template void foldPassInLanes<double>(const FoldStage&, double*, const double*);

}  // namespace ZULG_TARGET
}  // namespace zulg
