// What a slot holds: the address of one routine, which has one of several types. A union and not a cast, so that a
// table of slots is a constant expression.
#pragma once

#include "kernel/slot_names.h"
#include "levels.h"

// The section of a table that the entries jump through, where a target's levels.h names one.
#ifndef ZULG_SLOT_PLACE
#define ZULG_SLOT_PLACE
#endif

namespace zulg {

template <class First, class... Others>
union OneOf {
    First first;
    OneOf<Others...> others;

    constexpr OneOf(First routine) : first(routine) {}
    template <class Routine>
    constexpr OneOf(Routine routine) : others(routine) {}
};
template <class Only>
union OneOf<Only> {
    Only first;

    constexpr OneOf(Only routine) : first(routine) {}
};

// Gives a routine while the library is loaded, where that has levels.
template <class Routine>
using Resolver = Routine (*)();

}  // namespace zulg
