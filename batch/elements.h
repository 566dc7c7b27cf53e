// How many elements a transform reads and writes.
#pragma once

#include <cstdint>

#include "kernel/kernel.h"

namespace zulg {

struct Elements {
    std::int64_t read;     // of the source
    std::int64_t written;  // of the destination
};

// A CCS array of an even length has a last zero, which is not read.
template <Family family>
constexpr Elements elementsOf(std::int64_t length) {
    return {family == Family::DFTInv_CCSToR ? length + 1 : length,
            family == Family::DFTFwd_RToCCS ? length / 2 * 2 + 2 : length};
}

}  // namespace zulg
