// The load entry of a batch library whose slots are settled by it.
#include <cstddef>

#include "boundary/settle.h"

#define SLOT(name, routine) +1
constexpr std::size_t slotCount = 0
#include "batch/slots.inc"
    ;
#undef SLOT

extern "C" {
extern const void* const zulgSlots[slotCount];
extern const void* const zulgSlotsOfLastLevel[slotCount];

std::int32_t ZULG_CALL zulgLoadBatch(void* module, std::uint32_t reason, void* reserved);
}

std::int32_t ZULG_CALL zulgLoadBatch(void*, std::uint32_t reason, void*) {
    return zulg::settleAtLoad(reason, zulgSlots, zulgSlotsOfLastLevel, sizeof zulgSlots);
}
