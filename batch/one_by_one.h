// A batch of any shape, one transform after the other. What is not in a row is copied to a buffer and back.
#pragma once

#include <cstddef>
#include <cstdint>

#include "batch/checks.h"
#include "batch/elements.h"
#include "kernel/in_memory.h"
#include "kernel/platform.h"

namespace zulg {

// `width` numbers to an element: 2 of complex arrays.
template <class Element, int width>
struct Gathered {
    static void copyIn(Element* buffer, PlacesToRead<Element> place, std::int64_t step, std::int64_t elements) {
        for (std::int64_t k = 0; k < elements; ++k)
            for (int i = 0; i < width; ++i) buffer[k * width + i] = place[k * step * width + i];
    }
    static void copyOut(const Element* buffer, PlacesToWrite<Element> place, std::int64_t step, std::int64_t elements) {
        for (std::int64_t k = 0; k < elements; ++k)
            for (int i = 0; i < width; ++i) place[k * step * width + i] = buffer[k * width + i];
    }
};

// Calls transform(from, to) for each of the transforms. The buffer has room for the elements that are read and for
// those that are written; it is used where a step is not 1 only.
template <int width, class Element, class Transform>
void oneByOne(const Element* pSrc, Shape source, Element* pDst, Shape destination, Elements elements,
              std::int64_t count, Element* buffer, const Transform& transform) {
    using Copies = Gathered<Element, width>;
    for (std::int64_t j = 0; j < count; ++j) {
        const Element* from = pSrc + j * source.distance * width;
        Element* const to = pDst + j * destination.distance * width;
        if (source.step != 1) {
            Copies::copyIn(buffer, from, source.step, elements.read);
            from = buffer;
        }
        if (destination.step == 1) {
            transform(from, to);
        } else {
            transform(from, buffer);
            Copies::copyOut(buffer, to, destination.step, elements.written);
        }
    }
}

}  // namespace zulg
