// What all texts share: the graphs of kernels/ and the bodies of wht/ and dct4/. A text is mathematics in an order:
// loads, sums, differences, products, stores. It knows no array, no width and no machine; these come with the ports
// through which it runs:
//
//     Ports::Value              the numbers it computes with, which have + and - and take a constant as a factor
//     Ports::Constants<Graph>   the constants of the graph as factors of such numbers: c[i]
//     io.NAME(i)                reads input i;  io.NAME(i, value) takes output i
#pragma once

#include "kernel/platform.h"

namespace zulg {

template <class Ports, class Graph>
using ConstantsOf = typename Ports::template Constants<Graph>;

}  // namespace zulg
