// The routines that do several transforms at once.
#pragma once

#include <cstddef>
#include <cstdint>

#include "batch/elements.h"
#include "kernel/families.h"
#include "kernel/in_memory.h"

namespace zulg {
inline namespace ZULG_TARGET {

// How the transforms of a register are in memory. Beside: element n of all of them is in neighbouring elements, one
// transform to each. Behind: the elements of each transform are neighbours. InParts: beside, and the real and the
// imaginary parts of complex numbers are in registers of their own.
enum class Placement { Beside, Behind, InParts };

// The arrays of one run. Steps and distances are in places: those of complex arrays are even. `spectrum` says where the
// caller's layout has what is in each CCS slot of a half spectrum, in places from the beginning of the transform. The
// slots of zeros have a place only if the layout is CCS: `hasZeros`.
template <class Element>
struct ManyArrays {
    PlacesToRead<Element> source;
    PlacesToWrite<Element> destination;
    std::ptrdiff_t sourceStep, sourceDistance;
    std::ptrdiff_t destinationStep, destinationDistance;
    const std::ptrdiff_t* spectrum;
    bool hasZeros;
    Element scale;
};

// How many doubles are in the widest register of the level: 0 if no register has several numbers.
template <class Numbers>
constexpr int widestOf() {
    if constexpr (requires { Numbers::widest; }) {
        return Numbers::widest;
    } else {
        return 0;
    }
}
inline constexpr bool hasLanes = widestOf<TargetNumbers>() != 0;

// How many transforms a routine does at once.
template <Family family, class Real>
inline constexpr int copiesOf = hasLanes ? widestOf<TargetNumbers>() * static_cast<int>(sizeof(double) / sizeof(Real)) /
                                               (isComplex<family> ? 2 : 1)
                                         : 1;

// And in parts.
template <class Real>
inline constexpr int copiesInParts = copiesOf<Family::Hartley, Real>;

template <class Element>
using ManyRoutine = void (*)(const ManyArrays<Element>& first, std::int32_t flag, std::int64_t registers);

// As many transforms as `registers` hold. `first` has the arrays of the first ones; its scale is not read. The flag has
// been checked.
template <Family family, int length, class Element, class Real, Placement placement>
void manyTransforms(const ManyArrays<Element>& first, std::int32_t flag, std::int64_t registers);

}  // namespace ZULG_TARGET
}  // namespace zulg
