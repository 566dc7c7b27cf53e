// Ports of texts that do several transforms at once. Element n of transform j is at n * step + j * distance, in
// elements; the parts of a complex number are neighbours.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "batch/many.h"
#include "batch/many_routines.h"
#include "kernel/ports.h"
#include "value.h"

namespace zulg {
inline namespace ZULG_TARGET {

// Reads and stores registers that have `width` numbers of each of `copies` transforms. A cell is what one transform has
// in a register, as it is in memory.
template <class Element, class Real, int copies, int width>
struct ManyInMemory {
    using Vector = typename Many<Real, copies, width>::Vector;
    using Place = typename InMemory<Element>::Type;

    ZULG_INLINE static Vector read(const Place* place) { return inReals(copied<Elements>(place)); }
    ZULG_INLINE static void store(Place* place, Vector value) { put(place, inElements(value)); }

    // The cells are `apart` places from each other.
    template <class Numbers = TargetNumbers>
    ZULG_INLINE static Vector readApart(const Place* place, std::ptrdiff_t apart) {
        if constexpr (cellBytes == 16) {
            return Numbers::template pairs<Element>(place, place + apart, false);
        } else {
            const Cells cells = [=]<int... j>(std::integer_sequence<int, j...>) __attribute__((always_inline)) {
                return Cells{copied<Cell>(place + j * apart)...};
            }
            (std::make_integer_sequence<int, copies>{});
            return inReals((Elements)cells);
        }
    }
    template <class Numbers = TargetNumbers>
    ZULG_INLINE static void storeApart(Place* place, std::ptrdiff_t apart, Vector value) {
        if constexpr (cellBytes == 16) {
            Numbers::template store<Element>(place, place + apart, false, value);
        } else {
            const Cells cells = (Cells)inElements(value);
            [=]<int... j>(std::integer_sequence<int, j...>) __attribute__((always_inline)) {
                (put(place + j * apart, Cell{cells[j]}), ...);
            }
            (std::make_integer_sequence<int, copies>{});
        }
    }

    // The same of two neighbouring cells of each transform, which go to two registers or come from two: half as many
    // reads and stores.
    ZULG_INLINE static void readTwoApart(const Place* place, std::ptrdiff_t apart, Vector* pFirst, Vector* pSecond) {
        if constexpr (copies == 2) {
            const auto a = copied<Cells>(place), b = copied<Cells>(place + apart);
            *pFirst = inReals((Elements)firstOfTwo(a, b));
            *pSecond = inReals((Elements)secondOfTwo(a, b));
        } else {
            const auto row = [=](int j) __attribute__((always_inline)) { return copied<TwoCells>(place + j * apart); };
            const auto ac = __builtin_shufflevector(row(0), row(2), 0, 1, 2, 3);
            const auto bd = __builtin_shufflevector(row(1), row(3), 0, 1, 2, 3);
            *pFirst = inReals((Elements)__builtin_shufflevector(ac, bd, 0, 4, 2, 6));
            *pSecond = inReals((Elements)__builtin_shufflevector(ac, bd, 1, 5, 3, 7));
        }
    }
    ZULG_INLINE static void storeTwoApart(Place* place, std::ptrdiff_t apart, Vector first, Vector second) {
        const auto a = (Cells)inElements(first), b = (Cells)inElements(second);
        if constexpr (copies == 2) {
            put(place, firstOfTwo(a, b));
            put(place + apart, secondOfTwo(a, b));
        } else {
            const auto ac = __builtin_shufflevector(a, b, 0, 4, 2, 6), bd = __builtin_shufflevector(a, b, 1, 5, 3, 7);
            put(place, __builtin_shufflevector(ac, ac, 0, 1));
            put(place + apart, __builtin_shufflevector(bd, bd, 0, 1));
            put(place + 2 * apart, __builtin_shufflevector(ac, ac, 2, 3));
            put(place + 3 * apart, __builtin_shufflevector(bd, bd, 2, 3));
        }
    }

private:
    static constexpr int cellBytes = width * static_cast<int>(sizeof(Element));
    using Cell = std::conditional_t<cellBytes == 4, float, double>;
    typedef Cell Cells __attribute__((vector_size(cellBytes * copies)));
    typedef Cell TwoCells __attribute__((vector_size(cellBytes * 2)));
    typedef Element Elements __attribute__((vector_size(sizeof(Element) * copies * width)));

    template <class What>
    ZULG_INLINE static What copied(const Place* place) {
        What what;
        __builtin_memcpy(&what, reinterpret_cast<const char*>(place), sizeof what);
        return what;
    }
    template <class What>
    ZULG_INLINE static void put(Place* place, What what) {
        __builtin_memcpy(reinterpret_cast<char*>(place), &what, sizeof what);
    }

    // The first cells of two registers that have two cells each, and the second ones.
    ZULG_INLINE static Cells firstOfTwo(Cells a, Cells b) {
        if constexpr (cellBytes == 16) {
            return __builtin_shufflevector(a, b, 0, 1, 4, 5);
        } else {
            return __builtin_shufflevector(a, b, 0, 2);
        }
    }
    ZULG_INLINE static Cells secondOfTwo(Cells a, Cells b) {
        if constexpr (cellBytes == 16) {
            return __builtin_shufflevector(a, b, 2, 3, 6, 7);
        } else {
            return __builtin_shufflevector(a, b, 1, 3);
        }
    }

    // Where a level does not have both types, it has no conversion either.
    template <class Numbers = TargetNumbers>
    ZULG_INLINE static Vector inReals(Elements elements) {
        if constexpr (sizeof(Real) == sizeof(Element)) {
            return elements;
        } else {
            return Numbers::inDoubles(elements);
        }
    }
    template <class Numbers = TargetNumbers>
    ZULG_INLINE static Elements inElements(Vector value) {
        if constexpr (sizeof(Real) == sizeof(Element)) {
            return value;
        } else {
            return Numbers::inSingles(value);
        }
    }
};

// What the ports of real and of complex texts share. A constant is multiplied by whole registers, and results are
// multiplied by `scale` and rounded once.
template <class Element, class Real, int copies, int width, bool exchanged>
struct ManyPorts {
    using Register = Many<Real, copies, width, exchanged>;
    using Place = typename InMemory<Element>::Type;
    using Memory = ManyInMemory<Element, Real, copies, width>;
    template <class Graph>
    using Constants = Doubles::Constants<Graph>;

    // One by one: a compiler would copy the whole in memory, for each register of transforms anew.
    const Place* const source;
    Place* const destination;
    const std::ptrdiff_t sourceStep, sourceDistance, destinationStep, destinationDistance;
    const std::ptrdiff_t* const spectrum;
    const bool hasZeros;
    const Register scale;

    ZULG_INLINE explicit ManyPorts(const ManyArrays<Element>& of)
        : source(of.source),
          destination(of.destination),
          sourceStep(of.sourceStep),
          sourceDistance(of.sourceDistance),
          destinationStep(of.destinationStep),
          destinationDistance(of.destinationDistance),
          spectrum(of.spectrum),
          hasZeros(of.hasZeros),
          scale(of.scale) {}

    ZULG_INLINE Register scaled(Register value) const { return value * scale; }
};

// Complex transforms, a complex number of each to a register. Where they are one after the other, two neighbouring
// numbers of each transform come and go together: the first that is asked for brings the other one, and the first
// result waits for the other one. Not in double at odd lengths, where many of such registers would lie in two lines of
// the cache.
template <int length, class Element, class Real, int copies, Placement placement, bool exchanged>
struct ManyComplexPorts : ManyPorts<Element, Real, copies, 2, exchanged> {
    using Base = ManyPorts<Element, Real, copies, 2, exchanged>;
    using Base::Base;
    using Value = Many<Real, copies, 1, exchanged>;
    using Pair = Many<Real, copies, 2, exchanged>;

    ZULG_INLINE Pair pair(int k) const {
        if constexpr (placement == Placement::Beside) {
            return Pair(Base::Memory::read(this->source + k * this->sourceStep));
        } else if (!hasNeighbour(k)) {
            return Pair(Base::Memory::readApart(this->source + 2 * k, this->sourceDistance));
        } else {
            const int even = k / 2 * 2;
            if (!isRead[k / 2]) {
                Base::Memory::readTwoApart(this->source + 2 * even, this->sourceDistance, &held[even], &held[even + 1]);
                isRead[k / 2] = true;
            }
            return Pair(held[k]);
        }
    }
    ZULG_INLINE void pair(int k, Pair value) const {
        const Vector vector = this->scaled(value).vector;
        if constexpr (placement == Placement::Beside) {
            Base::Memory::store(this->destination + k * this->destinationStep, vector);
        } else if (!hasNeighbour(k)) {
            Base::Memory::storeApart(this->destination + 2 * k, this->destinationDistance, vector);
        } else if (!isWaiting[k / 2]) {
            waiting[k / 2] = vector;
            isWaiting[k / 2] = true;
        } else {
            const Vector other = waiting[k / 2];
            Base::Memory::storeTwoApart(this->destination + 2 * (k / 2 * 2), this->destinationDistance,
                                        k % 2 == 0 ? vector : other, k % 2 == 0 ? other : vector);
        }
    }
    ZULG_INLINE void finish() const {}

private:
    using Vector = typename Pair::Vector;

    static constexpr bool hasNeighbour(int k) {
        return sizeof(Element) == sizeof(float) ? k / 2 * 2 + 1 < length : length % 2 == 0;
    }

    mutable Vector held[length], waiting[(length + 1) / 2];
    mutable bool isRead[(length + 1) / 2] = {}, isWaiting[(length + 1) / 2] = {};
};

// Complex transforms that are side by side, with the parts in registers of their own: a text of single numbers, and no
// turns by i, but twice as many values. A register of complex numbers and its neighbour become one of each part. Those
// that are `exchanged` read and store the imaginary part of each number as its real part.
template <int length, class Element, class Real, int copies, bool exchanged>
struct ManyPartsPorts : ManyPorts<Element, Real, copies, 1, false> {
    using Base = ManyPorts<Element, Real, copies, 1, false>;
    using Base::Base;
    using Value = Many<Real, copies, 1>;

    static constexpr int toRe = exchanged ? 1 : 0, toIm = 1 - toRe;

    ZULG_INLINE Value re(int n) const { return read<toRe>(n); }
    ZULG_INLINE Value im(int n) const { return read<toIm>(n); }
    ZULG_INLINE void re(int k, Value value) const { store<toRe>(k, value); }
    ZULG_INLINE void im(int k, Value value) const { store<toIm>(k, value); }
    ZULG_INLINE void finish() const {}

private:
    using Pairs = Many<Real, copies / 2, 2>;
    using Memory = ManyInMemory<Element, Real, copies / 2, 2>;

    template <int part>
    ZULG_INLINE Value read(int n) const {
        const auto* const place = this->source + n * this->sourceStep;
        return partsOf<part>(Pairs(Memory::read(place)), Pairs(Memory::read(place + copies)));
    }
    // The part that comes first waits for the other one.
    template <int part>
    ZULG_INLINE void store(int k, Value value) const {
        const Value result = this->scaled(value);
        if (!isWaiting[k]) {
            waiting[k] = result;
            isWaiting[k] = true;
            return;
        }
        const Value re = part == 0 ? result : waiting[k], im = part == 0 ? waiting[k] : result;
        auto* const place = this->destination + k * this->destinationStep;
        Memory::store(place, ofParts<0>(re, im).vector);
        Memory::store(place + copies, ofParts<1>(re, im).vector);
    }

    mutable Value waiting[length];
    mutable bool isWaiting[length] = {};
};

// Real numbers of transforms that are side by side. The slots of a half spectrum are where the caller's layout has
// them.
template <Family family, int length, class Element, class Real, int copies>
struct RealsBeside : ManyPorts<Element, Real, copies, 1, false> {
    using Base = ManyPorts<Element, Real, copies, 1, false>;
    using Base::Base;
    using Value = Many<Real, copies, 1>;

    ZULG_INLINE Value read(int n) const { return Value(Base::Memory::read(this->source + n * this->sourceStep)); }
    ZULG_INLINE void store(int n, Value value) const {
        Base::Memory::store(this->destination + n * this->destinationStep, value.vector);
    }
    ZULG_INLINE Value readSlot(int slot) const {
        return Value(Base::Memory::read(this->source + this->spectrum[slot]));
    }
    ZULG_INLINE void storeSlot(int slot, Value value) const {
        Base::Memory::store(this->destination + this->spectrum[slot], value.vector);
    }
    ZULG_INLINE void storeZero(int slot) const {
        if (this->hasZeros) storeSlot(slot, Value(0));
    }
    ZULG_INLINE void storeHeld() const {}
};

// Real numbers of four transforms, one after the other: four elements of each come in and go out together, by a
// transposition. At the end of an array the four are its last ones, some of which have come or gone before.
template <Family family, int length, class Element, class Real, int copies>
struct RealsBehind : ManyPorts<Element, Real, copies, 1, false> {
    using Base = ManyPorts<Element, Real, copies, 1, false>;
    using Base::Base;
    using Value = Many<Real, copies, 1>;
    using Place = typename InMemory<Element>::Type;
    using Slot = Slots<layoutOf<family>, length>;
    static constexpr int readElements = elementsOf<family>(length).read;
    static constexpr int writtenElements = elementsOf<family>(length).written;
    static_assert(copies == 4);

    ZULG_INLINE Value read(int at) const {
        if constexpr (readElements < 4) {
            return Value(Base::Memory::readApart(this->source + at, this->sourceDistance));
        } else {
            const int first = firstOfFour(at, readElements), column = at - first;
            const Place* const row = this->source + first;
            const std::ptrdiff_t next = this->sourceDistance;
            return columnOf(column, Value(Base::Memory::read(row)), Value(Base::Memory::read(row + next)),
                            Value(Base::Memory::read(row + 2 * next)), Value(Base::Memory::read(row + 3 * next)));
        }
    }
    ZULG_INLINE void store(int at, Value value) const { held[at] = value; }
    ZULG_INLINE Value readSlot(int slot) const { return read(Slot::re(slot / 2) + slot % 2); }
    ZULG_INLINE void storeSlot(int slot, Value value) const { store(Slot::re(slot / 2) + slot % 2, value); }
    ZULG_INLINE void storeZero(int slot) const {
        if constexpr (layoutOf<family> == Layout::CCS) storeSlot(slot, Value(0));
    }

    ZULG_INLINE void storeHeld() const {
        const std::ptrdiff_t next = this->destinationDistance;
        if constexpr (writtenElements < 4) {
            for (int at = 0; at < writtenElements; ++at)
                Base::Memory::storeApart(this->destination + at, next, held[at].vector);
        } else {
            for (int at = 0; at < writtenElements; at += 4) {
                const int first = firstOfFour(at, writtenElements);
                Place* const row = this->destination + first;
                const auto storeRow = [ =, this ](int j) __attribute__((always_inline)) {
                    const Value four = columnOf(j, held[first], held[first + 1], held[first + 2], held[first + 3]);
                    Base::Memory::store(row + j * next, four.vector);
                };
                storeRow(0), storeRow(1), storeRow(2), storeRow(3);
            }
        }
    }

private:
    static constexpr int firstOfFour(int at, int elements) {
        return at / 4 * 4 + 4 <= elements ? at / 4 * 4 : elements - 4;
    }

    // One column of a matrix of four rows.
    ZULG_INLINE static Value columnOf(int column, Value a, Value b, Value c, Value d) {
        const auto ab = column % 2 == 0 ? __builtin_shufflevector(a.vector, b.vector, 0, 4, 2, 6)
                                        : __builtin_shufflevector(a.vector, b.vector, 1, 5, 3, 7);
        const auto cd = column % 2 == 0 ? __builtin_shufflevector(c.vector, d.vector, 0, 4, 2, 6)
                                        : __builtin_shufflevector(c.vector, d.vector, 1, 5, 3, 7);
        return column < 2 ? Value(__builtin_shufflevector(ab, cd, 0, 1, 4, 5))
                          : Value(__builtin_shufflevector(ab, cd, 2, 3, 6, 7));
    }

    mutable Value held[writtenElements];
};

template <Placement placement, Family family, int length, class Element, class Real, int copies>
using RealsOf = std::conditional_t<placement == Placement::Beside, RealsBeside<family, length, Element, Real, copies>,
                                   RealsBehind<family, length, Element, Real, copies>>;

// Real transforms, a real number of each to a register. Slots are those of CCS.
template <Family family, int length, class Element, class Real, int copies, Placement placement>
struct ManyRealPorts : RealsOf<placement, family, length, Element, Real, copies> {
    using Base = RealsOf<placement, family, length, Element, Real, copies>;
    using Base::Base;
    using Value = Many<Real, copies, 1>;

    ZULG_INLINE static Value two() { return Value(2); }
    ZULG_INLINE Value in(int n) const { return Base::read(n); }
    ZULG_INLINE Value re(int k) const { return Base::readSlot(2 * k); }
    ZULG_INLINE Value im(int k) const { return Base::readSlot(2 * k + 1); }
    ZULG_INLINE void out(int n, Value value) const { Base::store(n, this->scaled(value)); }
    ZULG_INLINE void re(int k, Value value) const { Base::storeSlot(2 * k, this->scaled(value)); }
    ZULG_INLINE void im(int k, Value value) const { Base::storeSlot(2 * k + 1, this->scaled(value)); }
    // Where a text holds minus a result, the sign is turned after the scale: minus a zero is a negative zero.
    ZULG_INLINE void minusRe(int k, Value value) const { Base::storeSlot(2 * k, -this->scaled(value)); }
    ZULG_INLINE void minusIm(int k, Value value) const { Base::storeSlot(2 * k + 1, -this->scaled(value)); }

    // The imaginary parts of the real bins of CCS are no results: always +0.0.
    ZULG_INLINE void finish() const {
        if constexpr (isRealForward<family>) {
            Base::storeZero(1);
            if constexpr (length % 2 == 0) Base::storeZero(length + 1);
        }
        Base::storeHeld();
    }
};

}  // namespace ZULG_TARGET
}  // namespace zulg
