#include "dct4/combine.h"

#include <type_traits>

#include "dct4/bodies/combine_16.h"
#include "dct4/bodies/combine_2.h"
#include "dct4/bodies/combine_32.h"
#include "dct4/bodies/combine_4.h"
#include "dct4/bodies/combine_8.h"
#include "dct4/ports.h"

namespace zulg {
namespace {

// The layout of the table of a combine stage. One section holds the entries of all rows for the inner step, or for the
// only step. The other section holds those for the outer step.
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

// Not inlined, so that each radix has a stack frame of its own, of the size that it needs.
template <int radix, class Element>
[[gnu::noinline]] Status combineEach(const CombineStage& stage, Element* transforms, const Element* parts,
                                     std::ptrdiff_t position) {
    using Table = CombineTable<radix, Element>;
    const Table table(static_cast<const Element*>(stage.table.get()), stage.rows);
    const SkewBins<Element> bins{transforms + position, stage.outputStep};
    const std::ptrdiff_t step = 2 * bins.transforms * stage.blockStride;
    for (std::ptrdiff_t k = 0; k < stage.rows; ++k) {
        Dct4Combine<radix>::run(CombinePorts<TargetNumbers, Element, radix>{{},
                                                                            table.inner + Table::innerEntries * k,
                                                                            table.outer + Table::outerEntries * k,
                                                                            parts + 2 * radix * k,
                                                                            bins.re(k),
                                                                            bins.re(stage.mirrorBase - k),
                                                                            step,
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
