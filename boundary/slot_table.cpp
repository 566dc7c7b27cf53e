// The slot table: the address of every exported routine but the version call. Slot index = export ordinal - 1.
// Settled when the library is built or, where a kernel has levels, while it is loaded, and never written after that.
// The entries of entries.S jump through it.
#include "boundary/dispatch.h"
#include "dct4/dct4.h"
#include "levels.h"
#include "wht/wht.h"

namespace ZULG_SLOTS {

// Gives the bytes that an order or a length needs.
using SizeRoutine = Status(ZULG_CALL*)(std::int32_t size, std::int32_t* pSize);

// One routine of any of the exported shapes.
using Routine = OneOf<KernelRoutine<float>, KernelRoutine<double>, Resolver<KernelRoutine<float>>,
                      Resolver<KernelRoutine<double>>, DispatchRoutine<float>, DispatchRoutine<double>,
                      WhtRoutine<float>, WhtRoutine<double>, Resolver<WhtRoutine<float>>, Resolver<WhtRoutine<double>>,
                      WhtDispatchRoutine<float>, WhtDispatchRoutine<double>, SizeRoutine, Dct4Routine<float>,
                      Dct4Routine<double>, Resolver<Dct4Routine<float>>, Resolver<Dct4Routine<double>>, Dct4InitRoutine,
                      Dct4InitAllocRoutine, Dct4FreeRoutine>;

#define SLOT(name, routine, bytes) Routine(routine),
extern "C" {
extern const Routine ZULG_SLOT_TABLE[];
ZULG_SLOT_PLACE constinit const Routine ZULG_SLOT_TABLE[] = {
#include "boundary/slots.inc"
};
}
#undef SLOT

}  // namespace ZULG_SLOTS
