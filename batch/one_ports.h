// Ports of texts that do one transform, on targets where a register holds one number. Element n is at n * step, in
// elements; the parts of a complex number are neighbours. What a text computes with need not be what it reads: each
// sum, difference and product is rounded to `Real`.
#pragma once

#include "batch/many_routines.h"
#include "kernel/ports.h"

namespace zulg {
inline namespace ZULG_TARGET {

template <class Element, class Real>
struct OnePorts {
    using Value = Real;

    template <class Graph>
    struct Constants {
        ZULG_INLINE constexpr Real operator[](int i) const { return static_cast<Real>(Graph::constants[i]); }
    };

    const ManyArrays<Element> arrays;

    ZULG_INLINE explicit OnePorts(const ManyArrays<Element>& of) : arrays(of) {}

    ZULG_INLINE Real read(std::ptrdiff_t place) const { return static_cast<Real>(Element{arrays.source[place]}); }
    ZULG_INLINE void store(std::ptrdiff_t place, Real value) const {
        arrays.destination[place] = static_cast<Element>(value);
    }
    ZULG_INLINE Real scaled(Real value) const { return value * static_cast<Real>(arrays.scale); }
};

// Complex transforms. Those that are `exchanged` read and store the imaginary part of each number as its real part.
template <class Element, class Real, bool exchanged>
struct OneComplexPorts : OnePorts<Element, Real> {
    using OnePorts<Element, Real>::OnePorts;
    static constexpr std::ptrdiff_t toRe = exchanged ? 1 : 0, toIm = 1 - toRe;

    ZULG_INLINE Real re(int n) const { return this->read(n * this->arrays.sourceStep + toRe); }
    ZULG_INLINE Real im(int n) const { return this->read(n * this->arrays.sourceStep + toIm); }
    ZULG_INLINE void re(int k, Real value) const {
        this->store(k * this->arrays.destinationStep + toRe, this->scaled(value));
    }
    ZULG_INLINE void im(int k, Real value) const {
        this->store(k * this->arrays.destinationStep + toIm, this->scaled(value));
    }
    ZULG_INLINE void finish() const {}
};

// Real transforms. The slots of a half spectrum are those of CCS, and are where the caller's layout has them.
template <Family family, int length, class Element, class Real>
struct OneRealPorts : OnePorts<Element, Real> {
    using OnePorts<Element, Real>::OnePorts;

    ZULG_INLINE static Real two() { return 2; }
    ZULG_INLINE Real in(int n) const { return this->read(n * this->arrays.sourceStep); }
    ZULG_INLINE Real re(int k) const { return this->read(this->arrays.spectrum[2 * k]); }
    ZULG_INLINE Real im(int k) const { return this->read(this->arrays.spectrum[2 * k + 1]); }
    ZULG_INLINE void out(int n, Real value) const {
        this->store(n * this->arrays.destinationStep, this->scaled(value));
    }
    ZULG_INLINE void re(int k, Real value) const { storeSlot(2 * k, this->scaled(value)); }
    ZULG_INLINE void im(int k, Real value) const { storeSlot(2 * k + 1, this->scaled(value)); }
    // Where a text holds minus a result, the sign is turned after the scale: minus a zero is a negative zero.
    ZULG_INLINE void minusRe(int k, Real value) const { storeSlot(2 * k, -this->scaled(value)); }
    ZULG_INLINE void minusIm(int k, Real value) const { storeSlot(2 * k + 1, -this->scaled(value)); }

    // The imaginary parts of the real bins of CCS are no results: always +0.0.
    ZULG_INLINE void finish() const {
        if constexpr (isRealForward<family>) {
            if (!this->arrays.hasZeros) return;
            storeSlot(1, 0);
            if constexpr (length % 2 == 0) storeSlot(length + 1, 0);
        }
    }

private:
    ZULG_INLINE void storeSlot(int slot, Real value) const { this->store(this->arrays.spectrum[slot], value); }
};

}  // namespace ZULG_TARGET
}  // namespace zulg
