// A call of a routine by an exported entry that is a C++ function, on targets without assembler.
#pragma once

#include <type_traits>

#include "kernel/platform.h"

namespace zulg {

// The public header's types of pointers become those of the routine: a complex element is a pair of elements there, and
// plans of both element types are one record. Numbers are passed on as they are.
template <class... Due>
struct EntryCall {
    ZulgStatus(ZULG_CALL* routine)(Due...);

    template <class... Given>
    ZULG_INLINE ZulgStatus operator()(Given... given) const {
        return routine(passedOn<Due>(given)...);
    }

private:
    template <class To, class From>
    ZULG_INLINE static To passedOn(From given) {
        if constexpr (std::is_pointer_v<To>) {
            return reinterpret_cast<To>(given);
        } else {
            static_assert(std::is_same_v<To, From>);
            return given;
        }
    }
};
template <class... Due>
EntryCall(ZulgStatus(ZULG_CALL*)(Due...)) -> EntryCall<Due...>;

}  // namespace zulg
