// Ports of the DCT-IV bodies. Constants of a text have the width of the element, and what is stored is rounded to it.
#pragma once

#include <cstddef>

#include "dct4/bodies.h"
#include "kernel/ports.h"

namespace zulg {

template <class Numbers, class Element>
struct Dct4Ports {
    using Value = typename Numbers::Value;
    using Place = typename InMemory<Element>::Type;
    template <class Graph>
    using Constants = typename Numbers::template RoundedConstants<Graph, Element>;

    ZULG_INLINE static Value read(const Place& place) { return Numbers::template widened<Element>(place); }
    ZULG_INLINE static void write(Place& place, Value value) { place = Numbers::template rounded<Element>(value); }
};

// One of R skew transforms that are side by side. Each bin has its R real parts first, then its R imaginary parts.
template <class Element>
struct SkewBins {
    PlacesToWrite<Element> first;  // the real part of bin 0
    std::ptrdiff_t transforms;     // R

    ZULG_INLINE PlacesToWrite<Element> re(std::ptrdiff_t k) const { return first + 2 * transforms * k; }
    ZULG_INLINE PlacesToWrite<Element> im(std::ptrdiff_t k) const { return re(k) + transforms; }
};

// A folded sequence of `points` values. The first half is read upwards from `forward` and the second half downwards
// from `mirrored`; the body changes the signs of the second half.
template <class Numbers, class Element, int points>
struct FoldPorts : Dct4Ports<Numbers, Element> {
    using Base = Dct4Ports<Numbers, Element>;
    using typename Base::Value;

    PlacesToRead<Element> forward;
    PlacesToRead<Element> mirrored;
    std::ptrdiff_t step;
    SkewBins<Element> bins;

    ZULG_INLINE Value in(int s) const { return Base::read(s < points / 2 ? forward[step * s] : mirrored[-step * s]); }
    ZULG_INLINE void re(int k, Value value) const { Base::write(*bins.re(k), value); }
    ZULG_INLINE void im(int k, Value value) const { Base::write(*bins.im(k), value); }
    ZULG_INLINE void minusIm(int k, Value value) const { Base::write(*bins.im(k), -value); }
};

// A row of r bins to 2r outputs.
template <class Numbers, class Element, int radix>
struct OutputPorts : Dct4Ports<Numbers, Element> {
    using Base = Dct4Ports<Numbers, Element>;
    using typename Base::Value;

    PlacesToRead<Element> row;
    PlacesToRead<Element> entries;
    PlacesToWrite<Element> up;    // rising output 0; each further one is `step` later
    PlacesToWrite<Element> down;  // falling output 0; each further one is `step` earlier
    std::ptrdiff_t step;

    ZULG_INLINE Value re(int p) const { return Base::read(row[p]); }
    ZULG_INLINE Value im(int p) const { return Base::read(row[radix + p]); }
    ZULG_INLINE Value table(int i) const { return Base::read(entries[i]); }
    ZULG_INLINE void rising(int b, Value value) const { Base::write(up[step * b], value); }
    ZULG_INLINE void falling(int b, Value value) const { Base::write(down[-step * b], value); }
};

// Where the bins of a row of a combine pass are, of one long transform: the lower half of them rises from one bin, and
// the upper half falls from the mirror of that bin.
template <class Element, int radix>
struct RowBins {
    PlacesToWrite<Element> low;
    PlacesToWrite<Element> high;
    std::ptrdiff_t step;

    ZULG_INLINE PlacesToWrite<Element> at(std::ptrdiff_t e) const {
        return e < radix / 2 ? low + step * e : high - step * e;
    }
};

// A row of r' bins, one of each short transform, to r' bins of the long one.
template <class Numbers, class Element, int radix>
struct CombinePorts : Dct4Ports<Numbers, Element> {
    using Base = Dct4Ports<Numbers, Element>;
    using typename Base::Value;

    PlacesToRead<Element> entries;       // of the only step, or of the inner one
    PlacesToRead<Element> outerEntries;  // of the outer step
    PlacesToRead<Element> row;
    RowBins<Element, radix> bins;
    std::ptrdiff_t toImaginary;

    ZULG_INLINE Value re(int c) const { return Base::read(row[c]); }
    ZULG_INLINE Value im(int c) const { return Base::read(row[radix + c]); }
    ZULG_INLINE Value table(int i) const { return Base::read(entries[i]); }
    ZULG_INLINE Value inner(int i) const { return Base::read(entries[i]); }
    ZULG_INLINE Value outer(int i) const { return Base::read(outerEntries[i]); }
    ZULG_INLINE void re(int e, Value value) const { Base::write(*bins.at(e), value); }
    ZULG_INLINE void im(int e, Value value) const { Base::write(bins.at(e)[toImaginary], value); }
};

template <class Numbers, class Element>
struct DirectPorts : Dct4Ports<Numbers, Element> {
    using Base = Dct4Ports<Numbers, Element>;
    using typename Base::Value;

    PlacesToRead<Element> source;
    PlacesToWrite<Element> destination;

    ZULG_INLINE Value in(int n) const { return Base::read(source[n]); }
    ZULG_INLINE void out(int k, Value value) const { Base::write(destination[k], value); }
};

}  // namespace zulg
