// The routines of the main library that do one transform, by its exported names.
#pragma once

#include "kernel/kernel.h"

namespace zulg {

template <Family family, class Element>
inline constexpr auto oneRoutine = nullptr;
template <>
inline constexpr auto oneRoutine<Family::DFTFwd_CToC, float> = &zulgDFTFwd_CToC_32fc;
template <>
inline constexpr auto oneRoutine<Family::DFTFwd_CToC, double> = &zulgDFTFwd_CToC_64fc;
template <>
inline constexpr auto oneRoutine<Family::DFTInv_CToC, float> = &zulgDFTInv_CToC_32fc;
template <>
inline constexpr auto oneRoutine<Family::DFTInv_CToC, double> = &zulgDFTInv_CToC_64fc;
template <>
inline constexpr auto oneRoutine<Family::DFTFwd_RToCCS, float> = &zulgDFTFwd_RToCCS_32f;
template <>
inline constexpr auto oneRoutine<Family::DFTFwd_RToCCS, double> = &zulgDFTFwd_RToCCS_64f;
template <>
inline constexpr auto oneRoutine<Family::DFTFwd_RToPack, float> = &zulgDFTFwd_RToPack_32f;
template <>
inline constexpr auto oneRoutine<Family::DFTFwd_RToPack, double> = &zulgDFTFwd_RToPack_64f;
template <>
inline constexpr auto oneRoutine<Family::DFTFwd_RToPerm, float> = &zulgDFTFwd_RToPerm_32f;
template <>
inline constexpr auto oneRoutine<Family::DFTFwd_RToPerm, double> = &zulgDFTFwd_RToPerm_64f;
template <>
inline constexpr auto oneRoutine<Family::DFTInv_CCSToR, float> = &zulgDFTInv_CCSToR_32f;
template <>
inline constexpr auto oneRoutine<Family::DFTInv_CCSToR, double> = &zulgDFTInv_CCSToR_64f;
template <>
inline constexpr auto oneRoutine<Family::DFTInv_PackToR, float> = &zulgDFTInv_PackToR_32f;
template <>
inline constexpr auto oneRoutine<Family::DFTInv_PackToR, double> = &zulgDFTInv_PackToR_64f;
template <>
inline constexpr auto oneRoutine<Family::DFTInv_PermToR, float> = &zulgDFTInv_PermToR_32f;
template <>
inline constexpr auto oneRoutine<Family::DFTInv_PermToR, double> = &zulgDFTInv_PermToR_64f;
template <>
inline constexpr auto oneRoutine<Family::Hartley, float> = &zulgHartley_32f;
template <>
inline constexpr auto oneRoutine<Family::Hartley, double> = &zulgHartley_64f;

// Calls it. Complex elements are pairs here.
template <Family family, class Element>
Status one(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag) {
    const auto call =
        [=]<class Public>(Status(ZULG_CALL * routine)(const Public*, Public*, std::int32_t, std::int32_t)) {
            return routine(reinterpret_cast<const Public*>(pSrc), reinterpret_cast<Public*>(pDst), length, flag);
        };
    return call(oneRoutine<family, Element>);
}

}  // namespace zulg
