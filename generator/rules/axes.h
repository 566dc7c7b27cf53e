// The axes of a prime-factor construction: N points seen as a box with pairwise coprime sides q_1, q_2, ... q_t.
//
//     index of the point (n_1, ... n_t) = sum of (N / q_i) n_i, modulo N
//
// The map is a bijection, and the same form of it serves the inputs and the outputs. With it W_N^(n k) comes apart into
// the product of W_(q_i)^(a_i n_i k_i), where a_i = (N / q_i) mod q_i is the multiplier of axis i; no twiddle is left.
#pragma once

#include <vector>

#include "graph/complex_value.h"

namespace gen {

class Axes {
public:
    explicit Axes(std::vector<int> sides);

    int length() const { return total; }
    int count() const { return static_cast<int>(sides.size()); }
    int multiplier(int axis) const;

    // Signal order to box order and back. In the box the last axis varies fastest.
    Signal gather(const Signal& x) const;
    Signal scatter(const Signal& box) const;

    // Replaces every line of the box along one axis by what `block` makes of it.
    template <class Block>
    void alongEach(int axis, Signal& box, const Block& block) const {
        const int side = sides[static_cast<std::size_t>(axis)], step = strides[static_cast<std::size_t>(axis)];
        for (int start = 0; start < total; ++start) {
            if (start / step % side != 0) continue;
            Signal line;
            for (int i = 0; i < side; ++i) line.push_back(box[static_cast<std::size_t>(start + i * step)]);
            line = block(line);
            for (int i = 0; i < side; ++i)
                box[static_cast<std::size_t>(start + i * step)] = line[static_cast<std::size_t>(i)];
        }
    }

private:
    int signalIndex(int boxPlace) const;

    std::vector<int> sides, strides;
    int total = 1;
};

}  // namespace gen
