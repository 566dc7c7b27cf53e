// The Walsh-Hadamard transform as anybody writes it: in place, stage by stage, no scale. As the rest, it is compiled
// without vectorization.
#include <cstring>

#include "benchmarks/contest.h"

namespace bench {
namespace {

template <class Element>
[[gnu::noinline]] void plainLoop(Element* values, int size) {
    for (int stride = 1; stride < size; stride *= 2)
        for (int block = 0; block < size; block += 2 * stride)
            for (int i = block; i < block + stride; ++i) {
                const Element a = values[i], b = values[i + stride];
                values[i] = a + b;
                values[i + stride] = a - b;
            }
}

}  // namespace

// One participant includes the copy that a separate destination needs. The other runs over and over in place, where the
// values leave the range of numbers, since there is no scale. Infinities and not-a-numbers take SSE no longer than
// other values.
template <class Element>
void addPlainLoop(Field<Element>& field) {
    if (field.transform != Transform::WalshHadamard) return;
    const Element* const source = field.arrays->source;
    Element* const values = field.arrays->destination;
    const int size = field.size;
    const std::size_t bytes = static_cast<std::size_t>(size) * sizeof(Element);
    const auto copied = [=] { std::memcpy(values, source, bytes), plainLoop(values, size); };
    field.contest.participants.push_back({"plain_copied", [=] { return prepared(copied); }, field.destination()});
    const auto bare = [=] {
        Prepared call = prepared([=] { plainLoop(values, size); });
        call.once = copied;
        return call;
    };
    field.contest.participants.push_back({"plain_in_place", bare, field.destination()});
}

template void addPlainLoop(Field<float>&);
template void addPlainLoop(Field<double>&);

}  // namespace bench
