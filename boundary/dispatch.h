// The dispatchers, which take the length or the order as an argument: one range check, one lookup, one call.
#pragma once

#include "boundary/slot.h"
#include "kernel/kernel.h"

namespace ZULG_SLOTS {

template <class Element>
using DispatchRoutine = Status(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag);

// The first is the routine: what is stored as a resolver is, in a library that is loaded, what it returned.
template <class Routine>
using DispatchSlot = OneOf<Routine, Resolver<Routine>>;

template <Family family, class Element>
Status ZULG_CALL dispatch(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag);

template <class Element>
Status ZULG_CALL whtDispatch(const Element* pSrc, Element* pDst, std::int32_t order, std::int32_t flag,
                             Element* pBuffer);

template <class Element>
Status ZULG_CALL whtGetBufferSize(std::int32_t order, std::int32_t* pSize);

}  // namespace ZULG_SLOTS
