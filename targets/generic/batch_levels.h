// The batch library has one level.
#pragma once

#include "batch/batch.h"

namespace zulg {

template <Family family, class Element>
inline constexpr auto bestBatch = &batch<family, Element>;

template <Family family>
inline constexpr auto bestBatchInSingle = &batchInSingle<family>;

}  // namespace zulg
