// One level of the batch library by itself.
#pragma once

#include "targets/x86_64/batch_level_routines.h"
#include "targets/x86_64/one_level.h"

namespace ZULG_SLOTS {

template <Family family, class Element>
inline constexpr auto bestBatch = &ZULG_LEVEL::batch<family, Element>;

template <Family family>
inline constexpr auto bestBatchInSingle = &ZULG_LEVEL::batchInSingle<family>;

}  // namespace ZULG_SLOTS
