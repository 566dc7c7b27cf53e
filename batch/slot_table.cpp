// The slot table of the batch library, in the order of its entries. Settled when the library is built or, where a
// routine has levels, while it is loaded, and never written after that.
#include "batch/batch.h"
#include "batch_levels.h"
#include "boundary/slot.h"

namespace ZULG_SLOTS {

using SizeRoutine = Status(ZULG_CALL*)(std::int32_t size, std::int32_t* pSize);

// One routine of any of the exported shapes.
using Routine = OneOf<BatchRoutine<float>, BatchRoutine<double>, Resolver<BatchRoutine<float>>,
                      Resolver<BatchRoutine<double>>, BatchWhtRoutine<float>, BatchWhtRoutine<double>,
                      BatchDct4Routine<float>, BatchDct4Routine<double>, SizeRoutine>;

#define SLOT(name, routine) Routine(routine),
extern "C" {
extern const Routine ZULG_SLOT_TABLE[];
ZULG_SLOT_PLACE constinit const Routine ZULG_SLOT_TABLE[] = {
#include "batch/slots.inc"
};
}
#undef SLOT

}  // namespace ZULG_SLOTS
