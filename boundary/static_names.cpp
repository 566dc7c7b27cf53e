// The public names of the static library. It has no slots and no entries: each name is an indirect function, which is
// called once, before the program starts, and gives the routine that calls of the name go to. The build takes this
// object apart, one name to an object (cmake/split_archive.cmake).
#include "dct4/dct4.h"
#include "levels.h"
#include "wht/wht.h"

// A function within a namespace of that name, so that it may differ from the routine that the public header declares.
#define SLOT(name, routine, bytes)                                        \
    namespace name {                                                      \
    [[gnu::used, gnu::visibility("default")]] auto resolver() asm(#name); \
    auto resolver() {                                                     \
        asm(".type " #name ", @gnu_indirect_function");                   \
        return chosen(routine);                                           \
    }                                                                     \
    }

namespace zulg {

// The dispatchers, whose own header names the levels as the shared library has them.
template <Family family, class Element>
Status ZULG_CALL dispatch(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag);
template <class Element>
Status ZULG_CALL whtDispatch(const Element* pSrc, Element* pDst, std::int32_t order, std::int32_t flag,
                             Element* pBuffer);
template <class Element>
Status ZULG_CALL whtGetBufferSize(std::int32_t order, std::int32_t* pSize);

#include "boundary/slots.inc"
}  // namespace zulg
