// The length dispatchers of all families.
#include "boundary/dispatch.h"

namespace ZULG_SLOTS {

// clang-format off
template Status ZULG_CALL dispatch<Family::DFTFwd_CToC, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_CToC, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_CToC, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_CToC, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToCCS, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToCCS, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToPack, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToPack, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToPerm, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToPerm, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_CCSToR, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_CCSToR, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_PackToR, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_PackToR, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_PermToR, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_PermToR, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::Hartley, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::Hartley, double>(const double*, double*, std::int32_t, std::int32_t);
// clang-format on

}  // namespace ZULG_SLOTS
