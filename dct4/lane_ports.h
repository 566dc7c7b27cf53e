// Ports of the DCT-IV bodies in registers of several lanes. A body is done for as many neighbouring sequences, or rows,
// as a register has lanes: the steps in each lane are those of one body by itself, in the same order.
#pragma once

#include <cstddef>
#include <utility>

#include "dct4/bodies.h"
#include "dct4/fold.h"
#include "dct4/ports.h"
#include "kernel/lanes.h"

namespace zulg {
inline namespace ZULG_TARGET {

template <class Element>
struct Dct4InLanes {
    static constexpr int width = TargetNumbers::widest;
    using Value = Lanes<TargetNumbers, width, false>;
    using Place = typename InMemory<Element>::Type;
    template <class Graph>
    using Constants = typename TargetNumbers::template RoundedConstants<Graph, Element>;

    // The same element in all lanes.
    ZULG_INLINE static Value all(const Place& place) { return Value(TargetNumbers::template widened<Element>(place)); }

    // Neighbours from `place` upwards.
    ZULG_INLINE static Value read(const Place* place) {
        return Value(TargetNumbers::template neighbours<width, Element>(place));
    }
    ZULG_INLINE static void write(Place* place, Value value) {
        TargetNumbers::template storeNeighbours<width, Element>(place, value.vector);
    }

    // Neighbours from `place` downwards.
    ZULG_INLINE static Value readFalling(const Place* place) { return reversed(read(place - (width - 1))); }
    ZULG_INLINE static void writeFalling(Place* place, Value value) { write(place - (width - 1), reversed(value)); }

private:
    ZULG_INLINE static Value reversed(Value value) {
        return [value]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
            return shuffled<(width - 1 - lane)...>(value);
        }
        (std::make_integer_sequence<int, width>{});
    }
};

// Where the bins of the skew transforms of neighbouring sequences go: the real parts of bin k are neighbours, and so
// are the imaginary parts.
template <class Element>
struct LaneBins {
    using Place = typename InMemory<Element>::Type;

    Place* first;                // of the real parts of bin 0
    std::ptrdiff_t step;         // to those of the next bin
    std::ptrdiff_t toImaginary;  // from real to imaginary parts

    ZULG_INLINE Place* re(std::ptrdiff_t k) const { return first + step * k; }
    ZULG_INLINE Place* im(std::ptrdiff_t k) const { return re(k) + toImaginary; }
};

// Folded sequences of `points` values, each of which begins one element after the one before.
template <class Element, int points>
struct FoldLanePorts : Dct4InLanes<Element> {
    using Base = Dct4InLanes<Element>;
    using typename Base::Value;

    FoldSource<Element> from;
    std::ptrdiff_t step;
    LaneBins<Element> bins;

    ZULG_INLINE Value in(int s) const {
        return s < points / 2 ? Base::read(from.forward + step * s) : Base::readFalling(from.mirrored - step * s);
    }
    ZULG_INLINE void re(int k, Value value) const { Base::write(bins.re(k), value); }
    ZULG_INLINE void im(int k, Value value) const { Base::write(bins.im(k), value); }
    ZULG_INLINE void minusIm(int k, Value value) const { Base::write(bins.im(k), Value(-value.vector)); }
};

// The same row of neighbouring transforms, in place: bin c of the row is read where bin c is written. A body reads the
// whole row before it writes, since each of its results depends on all of the row.
template <class Element, int radix>
struct CombineLanePorts : Dct4InLanes<Element> {
    using Base = Dct4InLanes<Element>;
    using typename Base::Place, typename Base::Value;

    const Place* entries;       // of the only step, or of the inner one
    const Place* outerEntries;  // of the outer step
    RowBins<Element, radix> bins;
    std::ptrdiff_t toImaginary;

    ZULG_INLINE Value re(int c) const { return Base::read(bins.at(c)); }
    ZULG_INLINE Value im(int c) const { return Base::read(bins.at(c) + toImaginary); }
    ZULG_INLINE Value table(int i) const { return Base::all(entries[i]); }
    ZULG_INLINE Value inner(int i) const { return Base::all(entries[i]); }
    ZULG_INLINE Value outer(int i) const { return Base::all(outerEntries[i]); }
    ZULG_INLINE void re(int e, Value value) const { Base::write(bins.at(e), value); }
    ZULG_INLINE void im(int e, Value value) const { Base::write(bins.at(e) + toImaginary, value); }
};

}  // namespace ZULG_TARGET
}  // namespace zulg
