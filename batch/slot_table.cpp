// The slot table of the batch library, in the order of its entries. Settled when the library is built or, where a
// routine has levels, while it is loaded, and never written after that.
#include "batch/batch.h"
#include "batch_levels.h"
#include "boundary/dispatch.h"

namespace zulg {

using SizeRoutine = Status(ZULG_CALL*)(std::int32_t size, std::int32_t* pSize);

// One routine of any of the exported shapes.
union Routine {
    BatchRoutine<float> batch32;
    BatchRoutine<double> batch64;
    Resolver<BatchRoutine<float>> batchResolver32;
    Resolver<BatchRoutine<double>> batchResolver64;
    BatchWhtRoutine<float> wht32;
    BatchWhtRoutine<double> wht64;
    BatchDct4Routine<float> dct432;
    BatchDct4Routine<double> dct464;
    SizeRoutine size;

    constexpr Routine(BatchRoutine<float> routine) : batch32(routine) {}
    constexpr Routine(BatchRoutine<double> routine) : batch64(routine) {}
    constexpr Routine(Resolver<BatchRoutine<float>> resolver) : batchResolver32(resolver) {}
    constexpr Routine(Resolver<BatchRoutine<double>> resolver) : batchResolver64(resolver) {}
    constexpr Routine(BatchWhtRoutine<float> routine) : wht32(routine) {}
    constexpr Routine(BatchWhtRoutine<double> routine) : wht64(routine) {}
    constexpr Routine(BatchDct4Routine<float> routine) : dct432(routine) {}
    constexpr Routine(BatchDct4Routine<double> routine) : dct464(routine) {}
    constexpr Routine(SizeRoutine routine) : size(routine) {}
};

#define SLOT(name, routine) Routine(routine),
extern "C" {
extern const Routine zulgSlots[];
constinit const Routine zulgSlots[] = {
#include "batch/slots.inc"
};
}
#undef SLOT

}  // namespace zulg
