// The length dispatchers of all families.
#include "frame/dispatch.h"

namespace zulg {

template Status ZULG_CALL dispatch<Family::DFTFwd_CToC, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_CToC, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_CToC, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_CToC, double>(const double*, double*, std::int32_t, std::int32_t);

}  // namespace zulg
