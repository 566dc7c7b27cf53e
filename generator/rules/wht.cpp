#include "rules/wht.h"

#include "rules/block_kind.h"

namespace gen {
namespace {

// The most points that stay in registers together.
constexpr std::size_t group = 8;

// The transform of `count` points from `first` on, `step` apart. A long one is done as groups of neighbours, then
// as lines across the groups: the same butterflies, in an order that leaves few values waiting.
void transform(RealSignal& x, std::size_t first, std::size_t count, std::size_t step) {
    if (count > group) {
        for (std::size_t i = 0; i < count; i += group) transform(x, first + i * step, group, step);
        for (std::size_t i = 0; i < group; ++i) transform(x, first + i * step, count / group, group * step);
        return;
    }
    const InBlock block(*x[0].graph, {.kind = BlockKind::WalshHadamard,
                                      .length = static_cast<int>(count),
                                      .stride = static_cast<int>(step),
                                      .position = static_cast<int>(first)});
    for (std::size_t stride = 1; stride < count; stride *= 2) {
        for (std::size_t j = 0; j < count; ++j) {
            if ((j & stride) != 0) continue;
            Value& low = x[first + j * step];
            Value& high = x[first + (j + stride) * step];
            const Value a = low, b = high;
            low = a + b;
            high = a - b;
        }
    }
}

}  // namespace

RealSignal walshHadamard(RealSignal x) {
    transform(x, 0, x.size(), 1);
    return x;
}

}  // namespace gen
