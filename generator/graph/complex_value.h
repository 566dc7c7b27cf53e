// Pairs of values that stand for complex numbers while a graph is built.
#pragma once

#include <vector>

#include "graph/graph.h"

namespace gen {

struct ComplexValue {
    Value re, im;
};

using Signal = std::vector<ComplexValue>;

// The value whose parts these are; the steps that yield them become a pair.
inline ComplexValue paired(Value re, Value im) {
    re.graph->pair(re, im);
    return {re, im};
}

// A calculation on real values that both parts of complex values go through, the real parts first. `part` takes
// &ComplexValue::re or &ComplexValue::im. Their steps become pairs.
template <class Calculation>
ComplexValue onBothParts(Graph& graph, const Calculation& part) {
    ComplexValue result;
    std::vector<NodeId> re, im;
    for (const auto& [member, steps] : {std::pair(&ComplexValue::re, &re), std::pair(&ComplexValue::im, &im)}) {
        const Recording recording(graph);
        result.*member = part(member);
        *steps = recording.steps();
    }
    pairInOrder(graph, re, im);
    return result;
}

inline ComplexValue operator+(ComplexValue a, ComplexValue b) {
    const Value re = a.re + b.re;
    return paired(re, a.im + b.im);
}
inline ComplexValue operator-(ComplexValue a, ComplexValue b) {
    const Value re = a.re - b.re;
    return paired(re, a.im - b.im);
}
inline ComplexValue operator*(const Coefficient& factor, ComplexValue x) {
    const Value re = factor * x.re;
    return paired(re, factor * x.im);
}

inline ComplexValue conjugate(ComplexValue x) { return {x.re, -x.im}; }

// i conj x: the two parts exchanged. The inverse transform is the forward one with its inputs and its outputs
// exchanged.
inline ComplexValue exchanged(ComplexValue x) { return {x.im, x.re}; }
Signal exchanged(const Signal& x);

// -i (a + ib) = b - ia. This takes no step: the parts are exchanged, and the new imaginary part carries its sign to the
// steps that use it.
inline ComplexValue timesMinusI(ComplexValue x) { return {x.im, -x.re}; }

// An eighth turn of a + ib has the parts R (a + b) and R (b - a), R = sqrt(1/2). Either the products R a and R b come
// first, or the sum and the difference of a and b. The steps are as many; the results are rounded in another order.
enum class EighthTurn { ProductsFirst, SumsFirst };

// exp(-2 pi i e/n) x, in one of four forms that e/n decides: x itself, quarter turns, an eighth turn, or a
// general turn.
ComplexValue twiddled(ComplexValue x, int e, int n, EighthTurn order = EighthTurn::ProductsFirst);

}  // namespace gen
