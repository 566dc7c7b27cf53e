#include "dct4/output.h"

#include "dct4/bodies/output_1.h"
#include "dct4/bodies/output_16.h"
#include "dct4/bodies/output_2.h"
#include "dct4/bodies/output_32.h"
#include "dct4/bodies/output_4.h"
#include "dct4/bodies/output_8.h"
#include "dct4/ports.h"

namespace zulg {
namespace {

// Not inlined, so that each radix has a stack frame of its own, of the size that it needs.
template <int radix, class Element>
[[gnu::noinline]] Status outputEach(const OutputStage& stage, Element* y, const Element* transforms) {
    const std::ptrdiff_t stride = stage.blockStride;
    const Element* const entries = static_cast<const Element*>(stage.table.get());
    Element* const highest = y + stage.mirrorBase - radix * stride;
    for (std::ptrdiff_t m = 0; m < stage.rows; ++m) {
        Dct4Output<radix>::run(OutputPorts<TargetNumbers, Element, radix>{
            {}, transforms + 2 * radix * m, entries + OutputStage::rowEntries(radix) * m, y + m, highest - m, stride});
    }
    return StatusOk;
}

}  // namespace

template <class Element>
Status outputPass(const OutputStage& stage, Element* y, const Element* transforms) {
    switch (stage.kind) {
        case OutputKind::Radix1: return outputEach<1>(stage, y, transforms);
        case OutputKind::Radix2: return outputEach<2>(stage, y, transforms);
        case OutputKind::Radix4: return outputEach<4>(stage, y, transforms);
        case OutputKind::Radix8: return outputEach<8>(stage, y, transforms);
        case OutputKind::Radix16: return outputEach<16>(stage, y, transforms);
        case OutputKind::Radix32: return outputEach<32>(stage, y, transforms);
        default: return StatusPlanKindError;
    }
}

template Status outputPass<float>(const OutputStage&, float*, const float*);
template Status outputPass<double>(const OutputStage&, double*, const double*);

}  // namespace zulg
