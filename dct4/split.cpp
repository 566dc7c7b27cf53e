#include <type_traits>

#include "dct4/bodies/combine_16.h"
#include "dct4/bodies/combine_2.h"
#include "dct4/bodies/combine_32.h"
#include "dct4/bodies/combine_4.h"
#include "dct4/bodies/combine_8.h"
#include "dct4/fold.h"
#include "dct4/passes.h"

namespace zulg {
namespace {

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
Status combineAll(const CombineStage& stage, Element* destination, const Element* parts, std::int32_t position) {
    using Table = CombineTable<radix, Element>;
    const Table table(static_cast<const Element*>(stage.table.get()), stage.rows);
    const std::ptrdiff_t count = stage.outputStep, bin = 2 * count;
    Element* const low = destination + position;
    Element* const high = low + bin * stage.mirrorBase;
    for (std::ptrdiff_t k = 0; k < stage.rows; ++k) {
        Dct4Combine<radix>::run(CombinePorts<Element, radix>{{{}, parts + 2 * radix * k},
                                                             table.inner + Table::innerEntries * k,
                                                             table.outer + Table::outerEntries * k,
                                                             {low + bin * k, count},
                                                             {high - bin * k, count},
                                                             stage.blockStride});
    }
    return StatusOk;
}

}  // namespace

template <class Element>
void runSplit(const SkewSplit& split, Element* destination, const Element* x, std::int32_t position,
              std::int32_t foldPosition, std::int32_t mirrorOffset) {
    if (split.active != 1) return;
    Element* const parts = static_cast<Element*>(split.scratch.get());
    splitFirstPass(firstOf<FoldStep>(split.pre), parts, x, foldPosition, mirrorOffset);
    splitSecondPass(firstOf<CombineStage>(split.post), destination, parts, position);
}

template <class Element>
Status splitFirstPass(const FoldStep& step, Element* parts, const Element* x, std::int32_t position,
                      std::int32_t mirrorOffset) {
    if (step.kind == 7) {
        const SkewSplit& split = firstOf<SkewSplit>(step.children);
        for (std::int32_t c = 0; c < step.count; ++c) {
            const std::int32_t shift = step.subStep * c;
            runSplit(split, parts, x, c, position + shift, mirrorOffset - 2 * shift);
        }
        return StatusOk;
    }
    const Element* const forward = x + position;
    return foldByKind(step.kind, {forward, forward + mirrorOffset, step.subStep, step.inputStep}, parts, step.count);
}

template <class Element>
Status splitSecondPass(const CombineStage& stage, Element* destination, const Element* parts, std::int32_t position) {
    switch (stage.kind) {
        case 1: return combineAll<2>(stage, destination, parts, position);
        case 2: return combineAll<4>(stage, destination, parts, position);
        case 3: return combineAll<8>(stage, destination, parts, position);
        case 4: return combineAll<16>(stage, destination, parts, position);
        case 5: return combineAll<32>(stage, destination, parts, position);
        default: return StatusPlanKindError;
    }
}

template void runSplit<float>(const SkewSplit&, float*, const float*, std::int32_t, std::int32_t, std::int32_t);
template void runSplit<double>(const SkewSplit&, double*, const double*, std::int32_t, std::int32_t, std::int32_t);
template Status splitFirstPass<float>(const FoldStep&, float*, const float*, std::int32_t, std::int32_t);
template Status splitFirstPass<double>(const FoldStep&, double*, const double*, std::int32_t, std::int32_t);
template Status splitSecondPass<float>(const CombineStage&, float*, const float*, std::int32_t);
template Status splitSecondPass<double>(const CombineStage&, double*, const double*, std::int32_t);

}  // namespace zulg
