// What the families differ in: the flags that divide, and the layouts.
#pragma once

#include "kernel/kernel.h"
#include "kernel/ports.h"
#include "kernel/scale.h"

namespace zulg {
inline namespace ZULG_TARGET {

// The flags of a family.
template <Family family>
struct FlagsOf : ForwardFlags {};
template <>
struct FlagsOf<Family::DFTInv_CToC> : InverseFlags {};
template <>
struct FlagsOf<Family::DFTInv_CCSToR> : InverseFlags {};
template <>
struct FlagsOf<Family::DFTInv_PackToR> : InverseFlags {};
template <>
struct FlagsOf<Family::DFTInv_PermToR> : InverseFlags {};
template <>
struct FlagsOf<Family::Hartley> : InvolutionFlags {};

// The layout of a half spectrum that a real family yields or takes.
template <Family family>
inline constexpr Layout layoutOf = Layout::CCS;
template <>
inline constexpr Layout layoutOf<Family::DFTFwd_RToPack> = Layout::Pack;
template <>
inline constexpr Layout layoutOf<Family::DFTInv_PackToR> = Layout::Pack;
template <>
inline constexpr Layout layoutOf<Family::DFTFwd_RToPerm> = Layout::Perm;
template <>
inline constexpr Layout layoutOf<Family::DFTInv_PermToR> = Layout::Perm;

// Whether a family stores a half spectrum.
template <Family family>
inline constexpr bool isRealForward =
    family == Family::DFTFwd_RToCCS || family == Family::DFTFwd_RToPack || family == Family::DFTFwd_RToPerm;

// Whether both arrays of a family are complex.
template <Family family>
inline constexpr bool isComplex = family == Family::DFTFwd_CToC || family == Family::DFTInv_CToC;

}  // namespace ZULG_TARGET
}  // namespace zulg
