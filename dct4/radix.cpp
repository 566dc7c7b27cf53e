#include "dct4/radix.h"

namespace zulg {

namespace {

struct RadixRule {
    std::int32_t leastNumber, radix;
};
constexpr RadixRule rules[] = {{512, 32}, {128, 16}, {32, 8}, {16, 4}, {4, 2}};

}  // namespace

Status pickRadix(std::int32_t* pRadix, std::int32_t n) {
    for (const RadixRule& rule : rules) {
        if (n >= rule.leastNumber && n % rule.radix == 0) {
            *pRadix = rule.radix;
            return StatusOk;
        }
    }
    return StatusSizeError;
}

}  // namespace zulg
