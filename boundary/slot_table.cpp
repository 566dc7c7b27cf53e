// The slot table: the address of every exported routine but the version call. Slot index = export ordinal - 1.
// Settled when the library is built or, where a kernel has levels, while it is loaded, and never written after that.
// The entries of entries.S jump through it.
#include "boundary/dispatch.h"
#include "dct4/dct4.h"
#include "levels.h"
#include "wht/wht.h"

namespace zulg {

// Gives the bytes that an order or a length needs.
using SizeRoutine = Status(ZULG_CALL*)(std::int32_t size, std::int32_t* pSize);

// One routine of any of the exported shapes. A union and not a cast, so that the table is a constant expression.
union Routine {
    KernelRoutine<float> kernel32;
    KernelRoutine<double> kernel64;
    Resolver<KernelRoutine<float>> kernelResolver32;
    Resolver<KernelRoutine<double>> kernelResolver64;
    DispatchRoutine<float> dispatch32;
    DispatchRoutine<double> dispatch64;
    WhtRoutine<float> wht32;
    WhtRoutine<double> wht64;
    Resolver<WhtRoutine<float>> whtResolver32;
    Resolver<WhtRoutine<double>> whtResolver64;
    WhtDispatchRoutine<float> whtDispatch32;
    WhtDispatchRoutine<double> whtDispatch64;
    SizeRoutine size;
    Dct4Routine<float> dct432;
    Dct4Routine<double> dct464;
    Resolver<Dct4Routine<float>> dct4Resolver32;
    Resolver<Dct4Routine<double>> dct4Resolver64;
    Dct4InitRoutine dct4Init;
    Dct4InitAllocRoutine dct4InitAlloc;
    Dct4FreeRoutine dct4Free;

    constexpr Routine(KernelRoutine<float> routine) : kernel32(routine) {}
    constexpr Routine(KernelRoutine<double> routine) : kernel64(routine) {}
    constexpr Routine(Resolver<KernelRoutine<float>> resolver) : kernelResolver32(resolver) {}
    constexpr Routine(Resolver<KernelRoutine<double>> resolver) : kernelResolver64(resolver) {}
    constexpr Routine(DispatchRoutine<float> routine) : dispatch32(routine) {}
    constexpr Routine(DispatchRoutine<double> routine) : dispatch64(routine) {}
    constexpr Routine(WhtRoutine<float> routine) : wht32(routine) {}
    constexpr Routine(WhtRoutine<double> routine) : wht64(routine) {}
    constexpr Routine(Resolver<WhtRoutine<float>> resolver) : whtResolver32(resolver) {}
    constexpr Routine(Resolver<WhtRoutine<double>> resolver) : whtResolver64(resolver) {}
    constexpr Routine(WhtDispatchRoutine<float> routine) : whtDispatch32(routine) {}
    constexpr Routine(WhtDispatchRoutine<double> routine) : whtDispatch64(routine) {}
    constexpr Routine(SizeRoutine routine) : size(routine) {}
    constexpr Routine(Dct4Routine<float> routine) : dct432(routine) {}
    constexpr Routine(Dct4Routine<double> routine) : dct464(routine) {}
    constexpr Routine(Resolver<Dct4Routine<float>> resolver) : dct4Resolver32(resolver) {}
    constexpr Routine(Resolver<Dct4Routine<double>> resolver) : dct4Resolver64(resolver) {}
    constexpr Routine(Dct4InitRoutine routine) : dct4Init(routine) {}
    constexpr Routine(Dct4InitAllocRoutine routine) : dct4InitAlloc(routine) {}
    constexpr Routine(Dct4FreeRoutine routine) : dct4Free(routine) {}
};

#define SLOT(name, routine, bytes) Routine(routine),
extern "C" {
extern const Routine zulgSlots[];
constinit const Routine zulgSlots[] = {
#include "boundary/slots.inc"
};
}
#undef SLOT

}  // namespace zulg
