// The levels of the batch library.
#pragma once

#include "batch_level_routines.h"
#include "levels.h"

namespace zulg {

template <Family family, class Element>
inline constexpr auto bestBatch =
    &resolved<BatchRoutine<Element>, &batch<family, Element>, &x86_64_v3::batch<family, Element>>;

template <Family family>
inline constexpr auto bestBatchInSingle =
    &resolved<BatchRoutine<float>, &batchInSingle<family>, &x86_64_v3::batchInSingle<family>>;

}  // namespace zulg
