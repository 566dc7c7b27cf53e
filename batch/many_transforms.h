// Runs of transforms that a register has several of.
#pragma once

#include <cstdint>
#include <type_traits>

#include "batch/one_ports.h"
#include "kernel/families.h"
#include "kernel/graphs.h"
#include "kernel/kernel.h"
#include "kernel/scale.h"
#ifdef ZULG_GNU_CPP
#include "batch/many_ports.h"
#endif

namespace zulg {
inline namespace ZULG_TARGET {

// The ports of a family.
template <bool inLanes, Family family, int length, class Element, class Real, Placement placement>
struct ManyPortsOf {
    using Type = std::conditional_t<isComplex<family>, OneComplexPorts<Element, Real, family == Family::DFTInv_CToC>,
                                    OneRealPorts<family, length, Element, Real>>;
};
#ifdef ZULG_GNU_CPP
template <Family family, int length, class Element, class Real, Placement placement>
struct ManyPortsOf<true, family, length, Element, Real, placement> {
    using Type = std::conditional_t<
        isComplex<family>,
        ManyComplexPorts<length, Element, Real, copiesOf<family, Real>, placement, family == Family::DFTInv_CToC>,
        ManyRealPorts<family, length, Element, Real, copiesOf<family, Real>, placement>>;
};
template <Family family, int length, class Element, class Real>
struct ManyPortsOf<true, family, length, Element, Real, Placement::InParts> {
    using Type = ManyPartsPorts<length, Element, Real, copiesInParts<Real>, family == Family::DFTInv_CToC>;
};
#endif

// The text of a family and length: the build says it for each that it makes.
template <Family family, int length, bool inParts>
struct ManyTextOf;

template <Family family, int length, class Element, class Real, Placement placement>
ZULG_INLINE void runMany(ManyArrays<Element>& arrays, std::int64_t registers) {
    constexpr bool inParts = placement == Placement::InParts;
    using Text = typename ManyTextOf<family, length, inParts>::Type;
    using Ports = typename ManyPortsOf<hasLanes, family, length, Element, Real, placement>::Type;
    constexpr std::ptrdiff_t copies = inParts ? copiesInParts<Real> : copiesOf<family, Real>;
    for (std::int64_t i = 0; i < registers; ++i) {
        const Ports io(arrays);
        Text::run(io);
        io.finish();
        arrays.source += copies * arrays.sourceDistance;
        arrays.destination += copies * arrays.destinationDistance;
    }
}

// The same with the arrays as an argument on the stack. The copy of what has just been written takes as long as a short
// transform, but the compiler does not take the arrays apart: at 55 points a frame has 3.4 KB for 5.4.
template <Family family, int length, class Element, class Real, Placement placement>
[[gnu::noinline]] void runManyFromStack(ManyArrays<Element> arrays, std::int64_t registers) {
    runMany<family, length, Element, Real, placement>(arrays, registers);
}

template <Family family, int length, class Element, class Real, Placement placement>
void manyTransforms(const ManyArrays<Element>& first, std::int32_t flag, std::int64_t registers) {
    constexpr bool inParts = placement == Placement::InParts;
    using Text = typename ManyTextOf<family, length, inParts>::Type;
    using Factors = FactorsByFlag<typename FlagsOf<family>::Flags, Scale<Element, length, Text>>;
    ManyArrays<Element> arrays = first;
    arrays.scale = Factors::factors[flag >> 1];
    if constexpr (inParts && length >= 55) {
        runManyFromStack<family, length, Element, Real, placement>(arrays, registers);
    } else {
        runMany<family, length, Element, Real, placement>(arrays, registers);
    }
}

}  // namespace ZULG_TARGET
}  // namespace zulg
