#include "dct4/tree.h"

namespace zulg {

Status pickRadix(std::int32_t* pRadix, std::int32_t n) {
    if (n >= 512 && n % 32 == 0) {
        *pRadix = 32;
    } else if (n >= 128 && n % 16 == 0) {
        *pRadix = 16;
    } else if (n >= 32 && n % 8 == 0) {
        *pRadix = 8;
    } else if (n >= 16 && n % 4 == 0) {
        *pRadix = 4;
    } else if (n >= 4 && n % 2 == 0) {
        *pRadix = 2;
    } else {
        return StatusSizeError;
    }
    return StatusOk;
}

Status takeApart(std::int32_t length, Level* pLevel) {
    std::int32_t radix;
    const Status status = pickRadix(&radix, length / 2);
    if (status == StatusOk) *pLevel = {length, radix, length / radix, length / (2 * radix)};
    return status;
}

}  // namespace zulg
