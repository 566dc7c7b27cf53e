#include "dct4/bodies/output_16.h"
#include "dct4/bodies/output_32.h"
#include "dct4/bodies/output_8.h"
#include "dct4/in_lanes.h"
#include "dct4/lane_ports.h"
#include "dct4/output.h"

namespace zulg {
inline namespace ZULG_TARGET {
namespace {

// Column number `column` of `width` rows, a row each in a lane.
template <class Element>
struct Columns : Dct4InLanes<Element> {
    using Base = Dct4InLanes<Element>;
    using Base::width;
    using typename Base::Place, typename Base::Value;

    const Place* first;
    std::ptrdiff_t rowLength;

    ZULG_INLINE Value operator[](int column) const {
        const Place* const tile = first + column / width * width;
        if constexpr (width == 2) {
            const Value a = Base::read(tile), b = Base::read(tile + rowLength);
            return column % 2 == 0 ? shuffled<0, 2>(a, b) : shuffled<1, 3>(a, b);
        } else {
            const Value a = Base::read(tile), b = Base::read(tile + rowLength);
            const Value c = Base::read(tile + 2 * rowLength), d = Base::read(tile + 3 * rowLength);
            const Value ab = column % 2 == 0 ? shuffled<0, 4, 2, 6>(a, b) : shuffled<1, 5, 3, 7>(a, b);
            const Value cd = column % 2 == 0 ? shuffled<0, 4, 2, 6>(c, d) : shuffled<1, 5, 3, 7>(c, d);
            return column % 4 < 2 ? shuffled<0, 1, 4, 5>(ab, cd) : shuffled<2, 3, 6, 7>(ab, cd);
        }
    }
};

// Neighbouring rows of r bins, each to 2r outputs.
template <class Element, int radix>
struct OutputLanePorts : Dct4InLanes<Element> {
    using Base = Dct4InLanes<Element>;
    using typename Base::Place, typename Base::Value;

    Columns<Element> row;
    Columns<Element> entries;
    Place* up;    // rising output 0 of the first row
    Place* down;  // falling output 0 of the first row
    std::ptrdiff_t step;

    ZULG_INLINE Value re(int p) const { return row[p]; }
    ZULG_INLINE Value im(int p) const { return row[radix + p]; }
    ZULG_INLINE Value table(int i) const { return entries[i]; }
    ZULG_INLINE void rising(int b, Value value) const { Base::write(up + step * b, value); }
    ZULG_INLINE void falling(int b, Value value) const { Base::writeFalling(down - step * b, value); }
};

// Not inlined, so that each radix has a stack frame of its own, of the size that it needs.
template <int radix, class Element>
[[gnu::noinline]] void outputInLanes(const OutputStage& stage, Element* y, const Element* transforms) {
    using Ports = OutputLanePorts<Element, radix>;
    constexpr int width = Ports::width;
    const std::ptrdiff_t stride = stage.blockStride;
    const Element* const entries = static_cast<const Element*>(stage.table.get());
    Element* const highest = y + stage.mirrorBase - radix * stride;
    for (std::ptrdiff_t m = 0; m < stage.rows; m += width) {
        const Columns<Element> row{{}, transforms + 2 * radix * m, 2 * radix};
        Dct4Output<radix>::run(Ports{{},
                                     row,
                                     {{}, entries + OutputStage::rowEntries(radix) * m, OutputStage::rowEntries(radix)},
                                     y + m,
                                     highest - m,
                                     stride});
    }
}

}  // namespace

template <class Element>
void outputPassInLanes(const OutputStage& stage, Element* y, const Element* transforms) {
    switch (stage.kind) {
        case OutputKind::Radix8: return outputInLanes<8>(stage, y, transforms);
        case OutputKind::Radix16: return outputInLanes<16>(stage, y, transforms);
        case OutputKind::Radix32: return outputInLanes<32>(stage, y, transforms);
        default: outputPass(stage, y, transforms);
    }
}

template void outputPassInLanes<float>(const OutputStage&, float*, const float*);
template void outputPassInLanes<double>(const OutputStage&, double*, const double*);

}  // namespace ZULG_TARGET
}  // namespace zulg
