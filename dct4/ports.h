// Ports of the DCT-IV bodies. Values are held in double; fixed constants have the width of the element, and what is
// stored is rounded to it.
//
// A Step is a distance between elements: a number, or a type that holds one, for places in a buffer whose shape is
// known when the body is compiled.
#pragma once

#include <cstddef>
#include <type_traits>

#include "dct4/bodies.h"
#include "frame/ports.h"

namespace zulg {

template <class Element>
struct Dct4Ports {
    using Value = double;
    using Place = typename InMemory<Element>::Type;

    static constexpr Value fixed(double constant) { return static_cast<Element>(constant); }
};

template <std::ptrdiff_t step>
using FixedStep = std::integral_constant<std::ptrdiff_t, step>;

// One of R skew transforms that stand side by side: from one bin to the next are 2R elements (or minus that many, for
// the part of a longer transform that is written backwards), from the real part of a bin to its imaginary part are R.
template <class Element, class Step = std::ptrdiff_t, class ToImaginary = std::ptrdiff_t>
struct SkewBins {
    using Place = typename InMemory<Element>::Type;

    Place* first;  // the real part of bin 0
    Step step;
    ToImaginary toImaginary;

    ZULG_INLINE Place* re(std::ptrdiff_t k) const { return first + step * k; }
    ZULG_INLINE Place* im(std::ptrdiff_t k) const { return first + step * k + toImaginary; }
    ZULG_INLINE void setRe(std::ptrdiff_t k, double value) const { *re(k) = static_cast<Element>(value); }
    ZULG_INLINE void setIm(std::ptrdiff_t k, double value) const { *im(k) = static_cast<Element>(value); }
    // The same of the transform `c` further on.
    ZULG_INLINE SkewBins next(std::ptrdiff_t c) const { return {first + c, step, toImaginary}; }
};

// A folded sequence of M values: M/2 going forward from one place, M/2 going back from its mirror, which the body takes
// with their signs turned. Bins are SkewBins, of elements or of the double they are held in.
template <class Element, int points, class Step, class Bins>
struct FoldPorts : Dct4Ports<Element> {
    using Place = typename InMemory<Element>::Type;

    const Place* forward;
    const Place* mirrored;
    Step step;
    Bins bins;

    ZULG_INLINE double in(int s) const { return s < points / 2 ? forward[step * s] : mirrored[-step * s]; }
    ZULG_INLINE void re(int k, double value) const { bins.setRe(k, value); }
    ZULG_INLINE void im(int k, double value) const { bins.setIm(k, value); }
    ZULG_INLINE void minusIm(int k, double value) const { bins.setIm(k, -value); }
};

// A row of r bins to 2r outputs. `side` of them stand together, their real parts and then their imaginary parts.
template <class Element, int side, class Step>
struct OutputPorts : Dct4Ports<Element> {
    using Place = typename InMemory<Element>::Type;

    const Place* row;
    std::ptrdiff_t pitch;  // from the first `side` bins to the next
    const Place* entries;
    Place* up;    // rising output 0, the others at `step` behind it
    Place* down;  // falling output 0, the others at `step` before it
    Step step;

    ZULG_INLINE double re(int c) const { return row[pitch * (c / side) + c % side]; }
    ZULG_INLINE double im(int c) const { return row[pitch * (c / side) + side + c % side]; }
    ZULG_INLINE double table(int i) const { return entries[i]; }
    ZULG_INLINE void rising(int b, double value) const { up[step * b] = static_cast<Element>(value); }
    ZULG_INLINE void falling(int b, double value) const { down[-step * b] = static_cast<Element>(value); }
};

// A row of r bins in place: the lower half of them rises from one bin, the upper half falls from the mirror of it. An
// Entry is an element of the plan's table, or a double where the row has been widened.
template <class Element, int radix, class Step, class ToImaginary, class Entry = Element>
struct CombinePorts : Dct4Ports<Element> {
    using Place = typename InMemory<Element>::Type;

    const Entry* entries;       // of the only step, or of the inner one
    const Entry* outerEntries;  // of the outer step
    Place* low;
    Place* high;
    Step step;
    ToImaginary toImaginary;

    ZULG_INLINE Place* at(int c) const { return c < radix / 2 ? low + step * c : high - step * c; }
    ZULG_INLINE double re(int c) const { return *at(c); }
    ZULG_INLINE double im(int c) const { return at(c)[toImaginary]; }
    ZULG_INLINE double table(int i) const { return entries[i]; }
    ZULG_INLINE double inner(int i) const { return entries[i]; }
    ZULG_INLINE double outer(int i) const { return outerEntries[i]; }
    ZULG_INLINE void re(int e, double value) const { *at(e) = static_cast<Element>(value); }
    ZULG_INLINE void im(int e, double value) const { at(e)[toImaginary] = static_cast<Element>(value); }
};

// The same with the bins read from a vector of their own, one behind the other.
template <class Element, int radix, class Source, class Step, class ToImaginary>
struct CombineFromPorts : CombinePorts<Element, radix, Step, ToImaginary, double> {
    Source source;

    using CombinePorts<Element, radix, Step, ToImaginary, double>::re;
    using CombinePorts<Element, radix, Step, ToImaginary, double>::im;
    ZULG_INLINE double re(int c) const { return *source.re(c); }
    ZULG_INLINE double im(int c) const { return *source.im(c); }
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
