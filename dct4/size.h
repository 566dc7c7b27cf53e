// The size of a plan, found by going through its build without building.
#pragma once

#include <cstdint>

namespace zulg {

// The bytes of a plan, or a negative number if the length is refused. `width` is that of an element in bytes.
std::int32_t planBytes(std::int32_t length, std::int32_t width);

// The bytes of a table of either kind; build and release use these too. `rows` and `radix` are those of the stage.
std::int32_t outputTableBytes(std::int32_t rows, std::int32_t radix, std::int32_t width);
std::int32_t combineTableBytes(std::int32_t rows, std::int32_t radix, std::int32_t width);

}  // namespace zulg
