// Ports of the DCT-IV bodies. Values are held in double; fixed constants have the width of the element, and what is
// stored is rounded to it.
#pragma once

#include <cstddef>

#include "dct4/bodies.h"
#include "kernel/ports.h"

namespace zulg {

template <class Element>
struct Dct4Ports {
    using Value = double;
    using Place = typename InMemory<Element>::Type;

    static constexpr Value fixed(double constant) { return static_cast<Element>(constant); }
};

// One of R skew transforms that are side by side. Each bin has its R real parts first, then its R imaginary parts.
template <class Element>
struct SkewBins {
    using Place = typename InMemory<Element>::Type;

    Place* first;               // the real part of bin 0
    std::ptrdiff_t transforms;  // R

    ZULG_INLINE Place* re(std::ptrdiff_t k) const { return first + 2 * transforms * k; }
    ZULG_INLINE Place* im(std::ptrdiff_t k) const { return re(k) + transforms; }
};

// A folded sequence of `points` values. The first half is read upwards from `forward` and the second half downwards
// from `mirrored`; the body changes the signs of the second half.
template <class Element, int points>
struct FoldPorts : Dct4Ports<Element> {
    using Place = typename InMemory<Element>::Type;

    const Place* forward;
    const Place* mirrored;
    std::ptrdiff_t step;
    SkewBins<Element> bins;

    ZULG_INLINE double in(int s) const { return s < points / 2 ? forward[step * s] : mirrored[-step * s]; }
    ZULG_INLINE void re(int k, double value) const { *bins.re(k) = static_cast<Element>(value); }
    ZULG_INLINE void im(int k, double value) const { *bins.im(k) = static_cast<Element>(value); }
    ZULG_INLINE void minusIm(int k, double value) const { *bins.im(k) = static_cast<Element>(-value); }
};

// A row of r bins to 2r outputs.
template <class Element, int radix>
struct OutputPorts : Dct4Ports<Element> {
    using Place = typename InMemory<Element>::Type;

    const Place* row;
    const Place* entries;
    Place* up;    // rising output 0; each further one is `step` later
    Place* down;  // falling output 0; each further one is `step` earlier
    std::ptrdiff_t step;

    ZULG_INLINE double re(int p) const { return row[p]; }
    ZULG_INLINE double im(int p) const { return row[radix + p]; }
    ZULG_INLINE double table(int i) const { return entries[i]; }
    ZULG_INLINE void rising(int b, double value) const { up[step * b] = static_cast<Element>(value); }
    ZULG_INLINE void falling(int b, double value) const { down[-step * b] = static_cast<Element>(value); }
};

// A row of r' bins, one of each short transform, to r' bins of the long one. The lower half of these rises from one
// bin; the upper half falls from the mirror of that bin.
template <class Element, int radix>
struct CombinePorts : Dct4Ports<Element> {
    using Place = typename InMemory<Element>::Type;

    const Place* entries;       // of the only step, or of the inner one
    const Place* outerEntries;  // of the outer step
    const Place* row;
    Place* low;
    Place* high;
    std::ptrdiff_t step;
    std::ptrdiff_t toImaginary;

    ZULG_INLINE double re(int c) const { return row[c]; }
    ZULG_INLINE double im(int c) const { return row[radix + c]; }
    ZULG_INLINE double table(int i) const { return entries[i]; }
    ZULG_INLINE double inner(int i) const { return entries[i]; }
    ZULG_INLINE double outer(int i) const { return outerEntries[i]; }
    ZULG_INLINE void re(int e, double value) const { *at(e) = static_cast<Element>(value); }
    ZULG_INLINE void im(int e, double value) const { at(e)[toImaginary] = static_cast<Element>(value); }

private:
    ZULG_INLINE Place* at(int e) const { return e < radix / 2 ? low + step * e : high - step * e; }
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
