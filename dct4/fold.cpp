#include "dct4/fold.h"

#include "dct4/bodies/fold_16.h"
#include "dct4/bodies/fold_2.h"
#include "dct4/bodies/fold_32.h"
#include "dct4/bodies/fold_4.h"
#include "dct4/bodies/fold_64.h"
#include "dct4/bodies/fold_8.h"
#include "dct4/split.h"

namespace zulg {
namespace {

// The sequences of a pass. There are `count` of them, and each begins `shift` elements after the one before. The values
// of one sequence are `inputStep` apart.
template <class Element>
struct Sequences {
    FoldSource<Element> first;
    std::ptrdiff_t shift;
    std::ptrdiff_t inputStep;
    std::ptrdiff_t count;
    Element* transforms;
};

// Not inlined: otherwise the routines that recur would have the stack frame of the largest body, once for each level of
// a plan.
template <int points, class Element>
[[gnu::noinline]] Status foldEach(const Sequences<Element>& all) {
    const std::ptrdiff_t shift = all.shift, step = all.inputStep, count = all.count;
    FoldSource<Element> from = all.first;
    for (std::ptrdiff_t q = 0; q < count; ++q) {
        Dct4Fold<points>::run(FoldPorts<TargetNumbers, Element, points>{
            {}, from.forward, from.mirrored, step, {all.transforms + q, count}});
        from = from.next(shift);
    }
    return StatusOk;
}

// Transforms sequences that are too long for one body, one after the other.
template <class Element>
Status splitEach(const SkewSplit& split, const Sequences<Element>& all) {
    for (std::ptrdiff_t q = 0; q < all.count; ++q) {
        runSplit<Element>(split, all.transforms, all.first.next(all.shift * q), q);
    }
    return StatusOk;
}

template <class Element>
Status foldByKind(FoldKind kind, const PlanListNode* children, const Sequences<Element>& all) {
    switch (kind) {
        case FoldKind::Points2: return foldEach<2>(all);
        case FoldKind::Points4: return foldEach<4>(all);
        case FoldKind::Points8: return foldEach<8>(all);
        case FoldKind::Points16: return foldEach<16>(all);
        case FoldKind::Points32: return foldEach<32>(all);
        case FoldKind::Points64: return foldEach<64>(all);
        case FoldKind::Split: return splitEach(firstOf<SkewSplit>(children), all);
        default: return StatusPlanKindError;
    }
}

}  // namespace

template <class Element>
Status foldPass(const FoldStage& stage, Element* transforms, const Element* x) {
    return foldByKind<Element>(stage.kind, stage.children,
                               {{x, x + stage.mirrorBase}, 1, stage.inputStep, stage.count, transforms});
}

template <class Element>
Status foldPass(const FoldStep& step, Element* transforms, const FoldSource<Element>& from) {
    return foldByKind<Element>(step.kind, step.children, {from, step.subStep, step.inputStep, step.count, transforms});
}

template Status foldPass<float>(const FoldStage&, float*, const float*);
template Status foldPass<double>(const FoldStage&, double*, const double*);
template Status foldPass<float>(const FoldStep&, float*, const FoldSource<float>&);
template Status foldPass<double>(const FoldStep&, double*, const FoldSource<double>&);

}  // namespace zulg
