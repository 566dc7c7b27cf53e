// Lines: as many neighbouring elements as a line of the processor's cache holds. Long transforms move whole lines,
// since elements that a body needs at once stand at distances of a power of two, where only a few lines fit into the
// cache at a time: an element taken alone would fetch its line anew for each of its neighbours.
#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/platform.h"

namespace zulg {

constexpr std::ptrdiff_t lineBytes = 64;
template <class Element>
constexpr std::ptrdiff_t lineLength = lineBytes / sizeof(Element);

// Whether lines are copied to where their distance does no harm. The x87 computes too slowly to wait for them, and
// would copy them in words of half an element.
#ifdef __x86_64__
constexpr bool linesAreCopied = true;
#else
constexpr bool linesAreCopied = false;
#endif

// The lines of one distance that the first cache keeps at a time.
constexpr int linesOfOneDistance = 8;

// Elements between the copies in a block: at distances of a power of two, some of them would share the lower bits of
// their address with what the compiler keeps in the frame, and a load that follows such a store waits for it.
template <class Element>
constexpr std::ptrdiff_t lineGap = 16 / sizeof(Element);

// What moves in one instruction. Bits move, never values.
typedef std::uint64_t LineWord __attribute__((vector_size(16), aligned(1), may_alias));

// A line need not start where a line of the cache does.
ZULG_INLINE void copyLine(void* to, const void* from) {
    const LineWord* const in = static_cast<const LineWord*>(from);
    LineWord* const out = static_cast<LineWord*>(to);
    const LineWord a = in[0], b = in[1], c = in[2], d = in[3];
    out[0] = a;
    out[1] = b;
    out[2] = c;
    out[3] = d;
}
static_assert(lineBytes == 4 * sizeof(LineWord));

// The lines of real and of imaginary parts of one bin.
template <class To, class From>
ZULG_INLINE void copyBin(To* to, std::ptrdiff_t toImaginary, const From* from, std::ptrdiff_t fromImaginary) {
    copyLine(to, from);
    copyLine(to + toImaginary, from + fromImaginary);
}

}  // namespace zulg
