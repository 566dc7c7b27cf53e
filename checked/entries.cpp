// The entries of the checked library. They have the names and arguments of the library's own, and call them; before
// that they stop at what no status can tell. Calls that the library refuses with a status are passed on as they are.
//
// Which misuse is detected, and by which line: SECURITY.md.
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>

#include "checked/memory.h"
#include "checked/plans.h"
#include "checked/routine.h"
#include "checked/stop.h"
#include "include/zulgenpx.h"

// Of the core library.
extern "C" void* zulMalloc(std::uint32_t bytes);
extern "C" void zulFree(void* block);

namespace zulg::checked {
namespace {

// The lengths and orders that there are.
constexpr std::int32_t shortest = 2, longest = 64, lowestOrder = 1, highestOrder = 13;

bool isFlag(std::int32_t flag) {
    return flag == DivFwdByN || flag == DivInvByN || flag == DivBySqrtN || flag == NoDivByAny;
}

template <class Element>
constexpr bool isSingle = sizeof(Element) == sizeof(float);
template <class Element>
constexpr const char* suffix = isSingle<Element> ? "32f" : "64f";

template <class... Arguments>
ZulgStatus call(const Routine& routine, Arguments... arguments) {
    return reinterpret_cast<ZulgStatus(ZULG_CALL*)(Arguments...)>(routine.address)(arguments...);
}

// DFT and Hartley transforms.
template <class Element>
ZulgStatus transform(const Routine& routine, std::int32_t length, const Element* pSrc, Element* pDst, std::int32_t flag,
                     auto call) {
    if (length < shortest || length > longest || pSrc == nullptr || pDst == nullptr || !isFlag(flag)) return call();
    const std::array ranges{Range{"pSrc", pSrc, routine.sourceBytes(length), false},
                            Range{"pDst", pDst, routine.destinationBytes(length), true}};
    const Use use(routine.name, ranges);
    return call();
}

// A Walsh-Hadamard transform. Without a buffer it takes one here, as the library would, where a refusal can be seen.
template <class Element>
ZulgStatus walshHadamard(const Routine& routine, std::int32_t order, const Element* pSrc, Element* pDst,
                         std::int32_t flag, Element* pBuffer, auto call) {
    const bool isRefused = order < lowestOrder || order > highestOrder || pSrc == nullptr || pDst == nullptr;
    if (isRefused || !isFlag(flag)) return call(pBuffer);
    static const Routine bufferSize(isSingle<Element> ? "zulgWHTGetBufferSize_32f" : "zulgWHTGetBufferSize_64f");
    std::int32_t bytes = 0;
    checked::call(bufferSize, order, &bytes);  // none at the lowest orders
    void* own = nullptr;
    if (bytes != 0 && pBuffer == nullptr) {
        own = zulMalloc(static_cast<std::uint32_t>(bytes));
        if (own == nullptr) {
            stop(routine.name, "pBuffer is null, and the core library has no memory for a buffer of %d bytes", bytes);
        }
    }
    const void* const buffer = own != nullptr ? own : bytes != 0 ? pBuffer : nullptr;
    const std::array ranges{Range{"pSrc", pSrc, routine.sourceBytes(order), false},
                            Range{"pDst", pDst, routine.destinationBytes(order), true},
                            Range{"pBuffer", buffer, static_cast<std::size_t>(bytes), true}};
    expectApart(routine.name, ranges[2], ranges[0]);
    expectApart(routine.name, ranges[2], ranges[1]);
    ZulgStatus status;
    {
        const Use use(routine.name, ranges);
        status = call(own != nullptr ? static_cast<Element*>(own) : pBuffer);
    }
    if (own != nullptr) zulFree(own);
    return status;
}

// The lengths of the DCT-IV that are of use.
template <class Element>
bool isLength(std::int32_t length) {
    constexpr std::int32_t most = 1 << (isSingle<Element> ? 27 : 26);
    return length >= 2 && length <= most && std::has_single_bit(static_cast<std::uint32_t>(length));
}

template <class Element>
ZulgStatus sizeOf(std::int32_t length, std::int32_t* bytes) {
    static const Routine getSize(isSingle<Element> ? "zulgDCT4GetSize_32f" : "zulgDCT4GetSize_64f");
    return call(getSize, length, bytes);
}

// Stops at lengths that GetSize accepts and no plan should have.
template <class Element>
void expectUsefulLength(const char* routine, std::int32_t length) {
    std::int32_t bytes;
    if (isLength<Element>(length) || sizeOf<Element>(length, &bytes) != StatusOk) return;
    if (length > 1 && std::has_single_bit(static_cast<std::uint32_t>(length) - 1)) {
        stop(routine, "a plan of %d points goes past the ends of its arrays and computes nothing: one point too many",
             length);
    }
    stop(routine, "the size of a plan of %d points wraps around at 32 bits: it is larger than GetSize says", length);
}

template <class Element>
ZulgStatus getSize(const char* name, std::int32_t length, std::int32_t* pSize) {
    std::int32_t bytes;
    const ZulgStatus status = sizeOf<Element>(length, &bytes);
    if (status != StatusOk) return status;
    expectUsefulLength<Element>(name, length);
    if (pSize == nullptr) stop(name, "pSize is null");
    return sizeOf<Element>(length, pSize);
}

template <class Element, class Plan>
ZulgStatus init(const Routine& routine, Plan** pPlan, std::int32_t length, std::uint8_t* pBuffer) {
    if (pPlan == nullptr || pBuffer == nullptr) return call(routine, pPlan, length, pBuffer);
    expectUsefulLength<Element>(routine.name, length);
    std::int32_t bytes;
    if (sizeOf<Element>(length, &bytes) != StatusOk) {
        stop(routine.name, "GetSize refuses %d points, and Init writes into the block before it does", length);
    }
    const Range block{"pBuffer", pBuffer, static_cast<std::size_t>(bytes), true};
    const Use use(routine.name, {&block, 1});
    const ZulgStatus status = call(routine, pPlan, length, pBuffer);
    if (status == StatusOk) rememberPlan({*pPlan, block, length, isSingle<Element>, false});
    return status;
}

template <class Element, class Plan>
ZulgStatus initAlloc(const Routine& routine, Plan** pPlan, std::int32_t length) {
    if (pPlan == nullptr) return call(routine, pPlan, length);
    expectUsefulLength<Element>(routine.name, length);
    const ZulgStatus status = call(routine, pPlan, length);
    if (status != StatusOk) return status;
    std::int32_t bytes;
    sizeOf<Element>(length, &bytes);
    // Only the plan's address is known. Its block begins there or less than 96 bytes before.
    rememberPlan(
        {*pPlan, {"plan", *pPlan, static_cast<std::size_t>(bytes) - 96, true}, length, isSingle<Element>, true});
    return status;
}

template <class Element>
PlanRecord expectPlan(const char* routine, const void* plan) {
    const auto record = planAt(plan);
    if (!record) {
        stop(routine, "there is no plan at this address: it was never built, was moved or copied, or was freed");
    }
    if (record->isSingle != isSingle<Element>) {
        stop(routine, "the plan is of %s elements, not of %s", record->isSingle ? "32f" : "64f", suffix<Element>);
    }
    return *record;
}

template <class Element, class Plan>
ZulgStatus free(const Routine& routine, Plan* plan) {
    if (plan == nullptr) return call(routine, plan);
    const PlanRecord record = expectPlan<Element>(routine.name, plan);
    if (!record.isOfCoreLibrary) stop(routine.name, "the plan is one of Init, in a block of the caller");
    { const Use use(routine.name, {&record.block, 1}); }
    forgetPlan(plan);
    return call(routine, plan);
}

template <class Element, class Plan>
ZulgStatus run(const Routine& routine, const Element* pSrc, Element* pDst, Plan* plan) {
    if (pSrc == nullptr || pDst == nullptr || plan == nullptr) return call(routine, pSrc, pDst, plan);
    const PlanRecord record = expectPlan<Element>(routine.name, plan);
    const auto bytes = static_cast<std::size_t>(record.length) * sizeof(Element);
    Range block = record.block;
    block.name = "plan";
    block.isWritten = record.length > 32;
    const std::array ranges{Range{"pSrc", pSrc, bytes, false}, Range{"pDst", pDst, bytes, true}, block};
    expectApart(routine.name, block, ranges[0]);
    expectApart(routine.name, block, ranges[1]);
    const Use use(routine.name, ranges);
    return call(routine, pSrc, pDst, plan);
}

// One overload for each list of arguments; the number of a routine without one is that in its name.
template <class Element>
ZulgStatus checkedCall(const Routine& routine, const Element* pSrc, Element* pDst, std::int32_t flag) {
    return transform(routine, routine.number, pSrc, pDst, flag, [&] { return call(routine, pSrc, pDst, flag); });
}
template <class Element>
ZulgStatus checkedCall(const Routine& routine, const Element* pSrc, Element* pDst, std::int32_t length,
                       std::int32_t flag) {
    return transform(routine, length, pSrc, pDst, flag, [&] { return call(routine, pSrc, pDst, length, flag); });
}
template <class Element>
ZulgStatus checkedCall(const Routine& routine, const Element* pSrc, Element* pDst, std::int32_t flag,
                       Element* pBuffer) {
    return walshHadamard(routine, routine.number, pSrc, pDst, flag, pBuffer,
                         [&](Element* buffer) { return call(routine, pSrc, pDst, flag, buffer); });
}
template <class Element>
ZulgStatus checkedCall(const Routine& routine, const Element* pSrc, Element* pDst, std::int32_t order,
                       std::int32_t flag, Element* pBuffer) {
    return walshHadamard(routine, order, pSrc, pDst, flag, pBuffer,
                         [&](Element* buffer) { return call(routine, pSrc, pDst, order, flag, buffer); });
}
// GetSize of a plan, and of a Walsh-Hadamard buffer.
ZulgStatus checkedCall(const Routine& routine, std::int32_t number, std::int32_t* pSize) {
    if (routine.name[4] == 'D') {
        return routine.elementBytes == 4 ? getSize<float>(routine.name, number, pSize)
                                         : getSize<double>(routine.name, number, pSize);
    }
    const bool isOrder = number >= lowestOrder && number <= highestOrder;
    if (pSize == nullptr && isOrder) stop(routine.name, "pSize is null");
    return call(routine, number, pSize);
}
ZulgStatus checkedCall(const Routine& routine, ZulgDCT4Plan_32f** pPlan, std::int32_t length, std::uint8_t* pBuffer) {
    return init<float>(routine, pPlan, length, pBuffer);
}
ZulgStatus checkedCall(const Routine& routine, ZulgDCT4Plan_64f** pPlan, std::int32_t length, std::uint8_t* pBuffer) {
    return init<double>(routine, pPlan, length, pBuffer);
}
ZulgStatus checkedCall(const Routine& routine, ZulgDCT4Plan_32f** pPlan, std::int32_t length) {
    return initAlloc<float>(routine, pPlan, length);
}
ZulgStatus checkedCall(const Routine& routine, ZulgDCT4Plan_64f** pPlan, std::int32_t length) {
    return initAlloc<double>(routine, pPlan, length);
}
ZulgStatus checkedCall(const Routine& routine, ZulgDCT4Plan_32f* plan) { return free<float>(routine, plan); }
ZulgStatus checkedCall(const Routine& routine, ZulgDCT4Plan_64f* plan) { return free<double>(routine, plan); }
ZulgStatus checkedCall(const Routine& routine, const float* pSrc, float* pDst, ZulgDCT4Plan_32f* plan) {
    return run<float>(routine, pSrc, pDst, plan);
}
ZulgStatus checkedCall(const Routine& routine, const double* pSrc, double* pDst, ZulgDCT4Plan_64f* plan) {
    return run<double>(routine, pSrc, pDst, plan);
}

}  // namespace
}  // namespace zulg::checked

namespace {

// The arguments of an entry, put after the routine.
template <class... Arguments>
ZulgStatus enter(const zulg::checked::Routine& routine, Arguments... arguments) {
    return zulg::checked::checkedCall(routine, arguments...);
}

}  // namespace

#define ENTRY(name, parameters, arguments, unused)                                           \
    extern "C" __attribute__((visibility("default"))) ZulgStatus ZULG_CALL name parameters { \
        static const zulg::checked::Routine routine(#name);                                  \
        const auto entered = [&](auto... passed) { return enter(routine, passed...); };      \
        return entered arguments;                                                            \
    }
#include "boundary/cpp_entries.inc"
#undef ENTRY

extern "C" __attribute__((visibility("default"))) const LibVersion* ZULG_CALL zulgenGetLibVersion(void) {
    static void* const address = zulg::checked::addressInLibrary("zulgenGetLibVersion");
    return reinterpret_cast<const LibVersion*(ZULG_CALL*)(void)>(address)();
}
