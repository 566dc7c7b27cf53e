// The finished graph of each family and length: inputs loaded, blocks built, constants merged, outputs stored.
//
// Inputs and outputs are numbered. A list of complex numbers has its real parts at even numbers and its imaginary parts
// at odd ones; bin k of a half spectrum is complex number k of such a list, and an imaginary part that is zero is
// neither loaded nor stored.
#pragma once

#include <memory>

#include "graph/graph.h"

namespace gen {

// N complex numbers to N complex numbers.
std::unique_ptr<Graph> complexTransform(int length);

// N reals to the half spectrum, and back.
std::unique_ptr<Graph> realForwardTransform(int length);
std::unique_ptr<Graph> realInverseTransform(int length);

// N reals to N reals.
std::unique_ptr<Graph> hartleyTransform(int length);
std::unique_ptr<Graph> walshHadamardTransform(int points);
std::unique_ptr<Graph> dct4DirectTransform(int points);

// The bodies of a plan of the DCT-IV. A fold takes reals to complex numbers. A row takes as many complex numbers as its
// radix says and, after them, the complex numbers of its table: an output row to reals, first the rising ones and then
// the falling ones, a combine row to complex numbers.
std::unique_ptr<Graph> dct4FoldTransform(int points);
std::unique_ptr<Graph> dct4OutputRow(int radix);
std::unique_ptr<Graph> dct4CombineRow(int radix);

// What such a row does after its rotations: an output row of this radix, a DFT in a combine row. These have no tables.
std::unique_ptr<Graph> dct4OutputOfRotated(int radix);
std::unique_ptr<Graph> dct4CombineOfRotated(int points);

// The complex numbers in the table of a combine row: those of its first step, and those of its second one, which rows
// of radix 16 and 32 have.
struct CombineTable {
    int inner, outer;
};
CombineTable combineTable(int radix);

}  // namespace gen
