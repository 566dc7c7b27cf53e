#include "dct4/passes.h"

#include "dct4/bodies/output_1.h"
#include "dct4/bodies/output_16.h"
#include "dct4/bodies/output_2.h"
#include "dct4/bodies/output_32.h"
#include "dct4/bodies/output_4.h"
#include "dct4/bodies/output_8.h"
#include "dct4/fold.h"

namespace zulg {
namespace {

template <int radix, class Element>
Status outputAll(const OutputStage& stage, Element* y, const Element* transforms) {
    const std::ptrdiff_t stride = stage.blockStride;
    const Element* entries = static_cast<const Element*>(stage.table.get());
    Element* const lowest = y;
    Element* const highest = y + stage.mirrorBase - radix * stride;
    for (std::ptrdiff_t m = 0; m < stage.rows; ++m) {
        Dct4Output<radix>::run(OutputPorts<Element, radix>{
            {{}, transforms + 2 * radix * m}, entries + 2 * radix * m, lowest + m, highest - m, stride});
    }
    return StatusOk;
}

}  // namespace

template <class Element>
Status firstPass(const FoldStage& stage, Element* transforms, const Element* x) {
    if (stage.kind == 7) {
        const SkewSplit& split = firstOf<SkewSplit>(stage.children);
        for (std::int32_t p = 0; p < stage.count; ++p) {
            runSplit(split, transforms, x, p, p, stage.mirrorBase - 2 * p);
        }
        return StatusOk;
    }
    return foldByKind(stage.kind, {x, x + stage.mirrorBase, 1, stage.inputStep}, transforms, stage.count);
}

template <class Element>
Status secondPass(const OutputStage& stage, Element* y, const Element* transforms) {
    switch (stage.kind) {
        case 1: return outputAll<1>(stage, y, transforms);
        case 2: return outputAll<2>(stage, y, transforms);
        case 3: return outputAll<4>(stage, y, transforms);
        case 4: return outputAll<8>(stage, y, transforms);
        case 5: return outputAll<16>(stage, y, transforms);
        case 6: return outputAll<32>(stage, y, transforms);
        default: return StatusPlanKindError;
    }
}

template Status firstPass<float>(const FoldStage&, float*, const float*);
template Status firstPass<double>(const FoldStage&, double*, const double*);
template Status secondPass<float>(const OutputStage&, float*, const float*);
template Status secondPass<double>(const OutputStage&, double*, const double*);

}  // namespace zulg
