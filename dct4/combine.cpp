#include "dct4/combine.h"

#include "dct4/bodies/combine_16.h"
#include "dct4/bodies/combine_2.h"
#include "dct4/bodies/combine_32.h"
#include "dct4/bodies/combine_4.h"
#include "dct4/bodies/combine_8.h"
#include "dct4/ports.h"
#include "dct4/tables.h"

namespace zulg {
namespace {

// Not inlined, so that each radix has a stack frame of its own, of the size that it needs.
template <int radix, class Element>
[[gnu::noinline]] Status combineEach(const CombineStage& stage, Element* transforms, const Element* parts,
                                     std::ptrdiff_t position) {
    constexpr CombineSections sections = combineSections(radix, sizeof(Element));
    static_assert(sections.innerEntries + sections.outerEntries == CombineStage::rowEntries(radix));
    const Element* const table = static_cast<const Element*>(stage.table.get());
    const Element* const inner = table + sections.innerStart(stage.rows);
    const Element* const outer = table + sections.outerStart(stage.rows);
    const SkewBins<Element> bins{transforms + position, stage.outputStep};
    const std::ptrdiff_t step = 2 * bins.transforms * stage.blockStride;
    for (std::ptrdiff_t k = 0; k < stage.rows; ++k) {
        Dct4Combine<radix>::run(
            CombinePorts<TargetNumbers, Element, radix>{{},
                                                        inner + sections.innerEntries * k,
                                                        outer + sections.outerEntries * k,
                                                        parts + 2 * radix * k,
                                                        {bins.re(k), bins.re(stage.mirrorBase - k), step},
                                                        bins.transforms});
    }
    return StatusOk;
}

}  // namespace

template <class Element>
Status combinePass(const CombineStage& stage, Element* transforms, const Element* parts, std::ptrdiff_t position) {
    switch (stage.kind) {
        case CombineKind::Radix2: return combineEach<2>(stage, transforms, parts, position);
        case CombineKind::Radix4: return combineEach<4>(stage, transforms, parts, position);
        case CombineKind::Radix8: return combineEach<8>(stage, transforms, parts, position);
        case CombineKind::Radix16: return combineEach<16>(stage, transforms, parts, position);
        case CombineKind::Radix32: return combineEach<32>(stage, transforms, parts, position);
        default: return StatusPlanKindError;
    }
}

template Status combinePass<float>(const CombineStage&, float*, const float*, std::ptrdiff_t);
template Status combinePass<double>(const CombineStage&, double*, const double*, std::ptrdiff_t);

}  // namespace zulg
