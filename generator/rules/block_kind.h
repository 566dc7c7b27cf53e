// The kinds of blocks that the rules insert.
#pragma once

#include "graph/block.h"

namespace gen {

enum class BlockKind : int {
    None,
    Complex,
    Real,
    Spectrum,
    Skew,
    MirroredSkew,
    DoubledBins,    // before a spectrum block
    InputStage,     // of a Hartley transform of form I
    OutputStage,    // of a Hartley transform of form F
    WalshHadamard,  // `length` points from `position` on, `stride` apart
    Fold,           // a skew transform of folded points
    SkewPart,       // number `position` of the parts of a skew transform of `length`
    SkewRow,        // number `position` of its rows
    OutputRow,      // number `position` of the rows of a DCT-IV in two passes
    InnerStep,      // number `position` of the inner steps of a combine row, and of its outer ones
    OuterStep,
};

}  // namespace gen
