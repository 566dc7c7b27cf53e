// The graphs of the kernels by length: each is one text in kernels/, with
//
//     steps         sums, differences and products, those by `scale` included
//     inverseRoot   1/sqrt(length) as a double, for `scale`
//     constants     those of the text, the most used first
//     run(io)       the text itself
//
// A complex graph has three forms of text: one real number to a register, one complex number, and the complex numbers
// of two lines of a stage.
#pragma once

#include "kernel/text.h"

namespace zulg {

template <int length>
struct ComplexGraph;
template <int length>
struct ComplexPairs;
template <int length>
struct ComplexLines;
template <int length>
struct RealForwardGraph;
template <int length>
struct RealInverseGraph;
template <int length>
struct HartleyGraph;

}  // namespace zulg
