// The size of a plan, found by going through its tree without building it.
#pragma once

#include <cstdint>

namespace zulg {

// The bytes of a plan, or a negative number if the length is refused. `width` is that of an element in bytes. This
// alone decides which lengths are accepted.
std::int32_t planBytes(std::int32_t length, std::int32_t width);

}  // namespace zulg
