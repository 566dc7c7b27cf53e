// The routines of the main library that do one transform, found by its exported names.
#pragma once

#include "kernel/kernel.h"

namespace zulg {

template <class Element>
using OneRoutine = Status(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag);

// Complex elements are pairs.
template <Family family, class Element>
Status one(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag) {
    constexpr bool isDouble = sizeof(Element) == sizeof(double);
    const auto complex = [](auto single, auto twice) {
        if constexpr (isDouble) {
            return twice;
        } else {
            return single;
        }
    };
    const auto call = [=](auto routine) {
        if constexpr (requires { routine(pSrc, pDst, length, flag); }) {
            return routine(pSrc, pDst, length, flag);
        } else if constexpr (isDouble) {
            return routine(reinterpret_cast<const Zulg64fc*>(pSrc), reinterpret_cast<Zulg64fc*>(pDst), length, flag);
        } else {
            return routine(reinterpret_cast<const Zulg32fc*>(pSrc), reinterpret_cast<Zulg32fc*>(pDst), length, flag);
        }
    };
    const auto either = [=](auto single, auto twice) { return call(complex(single, twice)); };
    switch (family) {
        case Family::DFTFwd_CToC: return either(&zulgDFTFwd_CToC_32fc, &zulgDFTFwd_CToC_64fc);
        case Family::DFTInv_CToC: return either(&zulgDFTInv_CToC_32fc, &zulgDFTInv_CToC_64fc);
        case Family::DFTFwd_RToCCS: return either(&zulgDFTFwd_RToCCS_32f, &zulgDFTFwd_RToCCS_64f);
        case Family::DFTFwd_RToPack: return either(&zulgDFTFwd_RToPack_32f, &zulgDFTFwd_RToPack_64f);
        case Family::DFTFwd_RToPerm: return either(&zulgDFTFwd_RToPerm_32f, &zulgDFTFwd_RToPerm_64f);
        case Family::DFTInv_CCSToR: return either(&zulgDFTInv_CCSToR_32f, &zulgDFTInv_CCSToR_64f);
        case Family::DFTInv_PackToR: return either(&zulgDFTInv_PackToR_32f, &zulgDFTInv_PackToR_64f);
        case Family::DFTInv_PermToR: return either(&zulgDFTInv_PermToR_32f, &zulgDFTInv_PermToR_64f);
        case Family::Hartley: return either(&zulgHartley_32f, &zulgHartley_64f);
    }
    return StatusSizeError;
}

}  // namespace zulg
