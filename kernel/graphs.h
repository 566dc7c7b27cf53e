// The graphs of the kernels by length: each is one text in kernels/, with
//
//     steps         sums, differences and products, those by `scale` included
//     inverseRoot   1/sqrt(length) as a double, for `scale`
//     constants     those of the text, the most used first
//     run(io)       the text itself
//
// A graph has three forms of text: one real number to a register, two lanes, such as the parts of a complex number, and
// up to four lanes.
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
struct RealForwardPairs;
template <int length>
struct RealForwardLines;
template <int length>
struct RealInverseGraph;
template <int length>
struct RealInversePairs;
template <int length>
struct RealInverseLines;
template <int length>
struct HartleyGraph;
template <int length>
struct HartleyPairs;
template <int length>
struct HartleyLines;

}  // namespace zulg
