// The shape of a plan: which radix a split takes, and the codes that the passes switch on.
#pragma once

#include <cstdint>

#include "kernel/kernel.h"

namespace zulg {

// Picks the radix for n, which is half a length. Where there is none, returns StatusSizeError and leaves the radix
// unchanged.
Status pickRadix(std::int32_t* pRadix, std::int32_t n);

// 1 for n = first, 2 for its double, up to `codes`; `otherwise` for anything else.
constexpr std::int32_t doublingCode(std::int32_t n, std::int32_t first, std::int32_t codes, std::int32_t otherwise) {
    for (std::int32_t k = 0; k < codes; ++k) {
        if (n == first << k) return k + 1;
    }
    return otherwise;
}

constexpr std::int32_t compositePlan = 6;  // DctPlan.kind: two passes instead of a direct kernel
constexpr std::int32_t splitFold = 7;      // FoldStage.kind, FoldStep.kind: a SkewSplit instead of one body

constexpr std::int32_t planKind(std::int32_t length) { return doublingCode(length, 2, 5, compositePlan); }
constexpr std::int32_t foldKind(std::int32_t skewLength) { return doublingCode(skewLength, 2, 6, splitFold); }
constexpr std::int32_t outputKind(std::int32_t radix) { return doublingCode(radix, 1, 6, 0); }
constexpr std::int32_t combineKind(std::int32_t radix) { return doublingCode(radix, 2, 5, 0); }

}  // namespace zulg
