// The load entry of a library whose slots are settled by it: slots first, then everything else.
#include <cstddef>

#include "boundary/settle.h"

#define SLOT(name, routine, bytes) +1
constexpr std::size_t slotCount = 0
#include "boundary/slots.inc"
    ;
#undef SLOT

extern "C" {
extern const void* const zulgSlots[slotCount];
extern const void* const zulgSlotsOfLastLevel[slotCount];

std::int32_t ZULG_CALL zulgLoadLevels(void* module, std::uint32_t reason, void* reserved);
}

std::int32_t ZULG_CALL zulgLoadLevels(void* module, std::uint32_t reason, void* reserved) {
    return zulg::settleAtLoad(reason, zulgSlots, zulgSlotsOfLastLevel, sizeof zulgSlots) &&
           zulgLoadEntry(module, reason, reserved);
}
