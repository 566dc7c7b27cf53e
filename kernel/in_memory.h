// Elements as they are in the caller's memory.
#pragma once

#include <cstddef>
#include <cstring>

#include "kernel/platform.h"

namespace zulg {

// An element at any address, and under whatever name the caller knows it.
template <class Element>
struct InMemory;

#ifdef ZULG_GNU_CPP

template <>
struct InMemory<float> {
    typedef float Type __attribute__((aligned(1), may_alias));
};
template <>
struct InMemory<double> {
    typedef double Type __attribute__((aligned(1), may_alias));
};

// Arrays of such elements. An array of the caller's becomes one by itself.
template <class Element>
using PlacesToRead = const typename InMemory<Element>::Type*;
template <class Element>
using PlacesToWrite = typename InMemory<Element>::Type*;

#else

// The standard has bytes for that, which are copied.
template <class Element>
class BytesOf {
public:
    BytesOf() = default;
    ZULG_INLINE BytesOf(Element element) { std::memcpy(bytes, &element, sizeof element); }
    ZULG_INLINE operator Element() const {
        Element element;
        std::memcpy(&element, bytes, sizeof element);
        return element;
    }

private:
    unsigned char bytes[sizeof(Element)];
};

template <>
struct InMemory<float> {
    using Type = BytesOf<float>;
};
template <>
struct InMemory<double> {
    using Type = BytesOf<double>;
};

template <class Element, class Place>
class Places {
public:
    Places() = default;
    ZULG_INLINE Places(Element* array) : first(reinterpret_cast<Place*>(array)) {}

    ZULG_INLINE Place& operator*() const { return *first; }
    ZULG_INLINE Place& operator[](std::ptrdiff_t place) const { return first[place]; }
    ZULG_INLINE Places operator+(std::ptrdiff_t places) const { return at(first + places); }
    ZULG_INLINE Places operator-(std::ptrdiff_t places) const { return at(first - places); }
    ZULG_INLINE Places& operator+=(std::ptrdiff_t places) { return first += places, *this; }

private:
    ZULG_INLINE static Places at(Place* place) {
        Places places;
        places.first = place;
        return places;
    }

    Place* first;
};
template <class Element>
using PlacesToRead = Places<const Element, const typename InMemory<Element>::Type>;
template <class Element>
using PlacesToWrite = Places<Element, typename InMemory<Element>::Type>;

#endif

}  // namespace zulg
