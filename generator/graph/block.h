// The blocks of a graph: which rule inserted which steps.
#pragma once

namespace gen {

enum class BlockId : int {};

// The kinds are those of the rules. The graph compares them and knows no more of them than that 0 is no block at all.
enum class BlockKind : int;

struct Block {
    BlockKind kind{};
    int length = 0;
    int multiplier = 1;  // a, where the block has the root W^a in place of W
    int stride = 1;      // between the points of the block in the whole
    int position = 0;    // of a part, a row or a line in the whole

    // The graph gives these. Blocks of the same kind, length, multiplier and stride are instances of one block, which
    // take the same steps on other inputs: they are numbered from 0 in order of construction.
    int instance = 0;
    BlockId outer{};  // the block in which this one was begun

    bool isInstanceOfSame(const Block& other) const {
        return kind == other.kind && length == other.length && multiplier == other.multiplier && stride == other.stride;
    }
};

}  // namespace gen
