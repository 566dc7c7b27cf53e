// Ports of the DCT-IV bodies. Values are held in double; fixed constants have the width of the element, and what is
// stored is rounded to it.
#pragma once

#include <cstddef>

#include "dct4/bodies.h"
#include "frame/ports.h"

namespace zulg {

template <class Element>
struct Dct4Ports {
    using Value = double;
    using Place = typename InMemory<Element>::Type;

    static constexpr Value fixed(double constant) { return static_cast<Element>(constant); }
};

// Several skew transforms side by side: with R of them, bin k of number q has its real part at 2 R k + q and its
// imaginary part R further on.
template <class Element>
struct SkewBins {
    using Place = typename InMemory<Element>::Type;

    Place* first;          // the real part of bin 0 of one of them
    std::ptrdiff_t count;  // R

    ZULG_INLINE void re(std::ptrdiff_t k, double value) const { first[2 * count * k] = static_cast<Element>(value); }
    ZULG_INLINE void im(std::ptrdiff_t k, double value) const {
        first[2 * count * k + count] = static_cast<Element>(value);
    }
};

// A folded sequence of M values: M/2 going forward from one place, M/2 going back from its mirror, which the body takes
// with their signs turned.
template <class Element, int points>
struct FoldPorts : Dct4Ports<Element> {
    using Place = typename InMemory<Element>::Type;

    const Place* forward;
    const Place* mirrored;
    std::ptrdiff_t step;
    SkewBins<Element> bins;

    ZULG_INLINE double in(int s) const { return s < points / 2 ? forward[step * s] : mirrored[-step * s]; }
    ZULG_INLINE void re(int k, double value) const { bins.re(k, value); }
    ZULG_INLINE void im(int k, double value) const { bins.im(k, value); }
    ZULG_INLINE void minusIm(int k, double value) const { bins.im(k, -value); }
};

// A row of r bins, which the layout of skew transforms keeps together.
template <class Element, int radix>
struct RowPorts : Dct4Ports<Element> {
    using Place = typename InMemory<Element>::Type;

    const Place* row;

    ZULG_INLINE double re(int c) const { return row[c]; }
    ZULG_INLINE double im(int c) const { return row[radix + c]; }
};

template <class Element, int radix>
struct OutputPorts : RowPorts<Element, radix> {
    using Place = typename InMemory<Element>::Type;

    const Place* entries;
    Place* up;    // rising output 0, the others at `stride` behind it
    Place* down;  // falling output 0, the others at `stride` before it
    std::ptrdiff_t stride;

    ZULG_INLINE double table(int i) const { return entries[i]; }
    ZULG_INLINE void rising(int b, double value) const { up[stride * b] = static_cast<Element>(value); }
    ZULG_INLINE void falling(int b, double value) const { down[-stride * b] = static_cast<Element>(value); }
};

template <class Element, int radix>
struct CombinePorts : RowPorts<Element, radix> {
    using Place = typename InMemory<Element>::Type;
    using RowPorts<Element, radix>::re, RowPorts<Element, radix>::im;

    const Place* entries;       // of the only step, or of the inner one
    const Place* outerEntries;  // of the outer step
    SkewBins<Element> low;      // where bin 0 of this row goes
    SkewBins<Element> high;     // where its mirror goes
    std::ptrdiff_t stride;      // bins from one output to the next

    ZULG_INLINE double table(int i) const { return entries[i]; }
    ZULG_INLINE double inner(int i) const { return entries[i]; }
    ZULG_INLINE double outer(int i) const { return outerEntries[i]; }
    ZULG_INLINE void re(int e, double value) const {
        if (e < radix / 2) {
            low.re(stride * e, value);
        } else {
            high.re(-stride * e, value);
        }
    }
    ZULG_INLINE void im(int e, double value) const {
        if (e < radix / 2) {
            low.im(stride * e, value);
        } else {
            high.im(-stride * e, value);
        }
    }
};

template <class Element>
struct DirectPorts : Dct4Ports<Element> {
    using Place = typename InMemory<Element>::Type;

    const Place* source;
    Place* destination;

    ZULG_INLINE double in(int n) const { return source[n]; }
    ZULG_INLINE void out(int k, double value) const { destination[k] = static_cast<Element>(value); }
};

}  // namespace zulg
