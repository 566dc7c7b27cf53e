// How records of a plan refer to each other and to routines: in one 32-bit word on every target, so that records have
// one layout and the sizes of plans, which callers see, are the same everywhere. Where pointers are 4 bytes wide the
// word is the pointer. Where they are wider the word is a distance: that of an address in the plan counts from the word
// itself, that of a routine from a fixed routine of this library. Neither a plan nor the library reaches 2 GiB.
#pragma once

#include <cstdint>

namespace zulg {

inline constexpr bool wordsArePointers = sizeof(void*) == sizeof(std::uint32_t);

constexpr std::uint32_t wordOfDistance(std::uintptr_t to, std::uintptr_t from) {
    return static_cast<std::uint32_t>(to - from);
}

constexpr std::uintptr_t placeAtDistance(std::uint32_t word, std::uintptr_t from) {
    return from + static_cast<std::uintptr_t>(static_cast<std::intptr_t>(static_cast<std::int32_t>(word)));
}

// A pointer to something in the same plan, or null. The word 0 is null, since no word in a plan refers to itself. The
// target may be changed through a constant reference, as through a constant pointer.
template <class Target>
class PlanRef {
public:
    PlanRef() = default;
    PlanRef(const PlanRef& other) { *this = other.get(); }
    PlanRef& operator=(const PlanRef& other) { return *this = other.get(); }
    PlanRef& operator=(Target* target) {
        word = target == nullptr ? 0 : wordOfDistance(reinterpret_cast<std::uintptr_t>(target), origin());
        return *this;
    }

    Target* get() const { return word == 0 ? nullptr : reinterpret_cast<Target*>(placeAtDistance(word, origin())); }
    operator Target*() const { return get(); }
    Target* operator->() const { return get(); }

private:
    std::uintptr_t origin() const { return wordsArePointers ? 0 : reinterpret_cast<std::uintptr_t>(this); }

    std::uint32_t word;
};

// Distances of routines count from this one.
struct PlanHead;
void releaseNothing(PlanHead& record);

// A routine of this library. The caller knows its type.
class PlanOperation {
public:
    template <class Routine>
    void set(Routine* routine) {
        word = wordOfDistance(reinterpret_cast<std::uintptr_t>(routine), origin());
    }

    template <class Routine>
    Routine* as() const {
        return reinterpret_cast<Routine*>(placeAtDistance(word, origin()));
    }

private:
    static std::uintptr_t origin() { return wordsArePointers ? 0 : reinterpret_cast<std::uintptr_t>(&releaseNothing); }

    std::uint32_t word;
};

}  // namespace zulg
