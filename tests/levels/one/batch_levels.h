// One level of the batch library by itself.
#pragma once

#include "batch_level_routines.h"
#include "levels.h"

namespace zulg {

template <Family family, class Element>
inline constexpr auto bestBatch = &ZULG_LEVEL::batch<family, Element>;

template <Family family>
inline constexpr auto bestBatchInSingle = &ZULG_LEVEL::batchInSingle<family>;

}  // namespace zulg
