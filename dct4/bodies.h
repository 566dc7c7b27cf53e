// The bodies of the DCT-IV family: straight-line texts, each in a file of bodies/. A loop runs one through ports that
// know where its values are.
#pragma once

#include "kernel/text.h"

namespace zulg {

// Skew transform of `points` folded values: io.in(s), io.re(k, value), io.im(k, value).
template <int points>
struct Dct4Fold;

// A row of the second pass: io.re(p), io.im(p), io.table(i); io.rising(b, value), io.falling(b, value).
template <int radix>
struct Dct4Output;

// A row of a combine pass: io.re(c), io.im(c); io.table(i), or from radix 16 on io.inner(i) and io.outer(i);
// io.re(e, value), io.im(e, value).
template <int radix>
struct Dct4Combine;

// A whole transform: io.in(n), io.out(k, value).
template <int points>
struct Dct4Direct;

}  // namespace zulg
