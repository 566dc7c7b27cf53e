#include "dct4/split.h"

#include "dct4/combine.h"

namespace zulg {

template <class Element>
void runSplit(const SkewSplit& split, Element* transforms, const FoldSource<Element>& from, std::ptrdiff_t position) {
    if (split.active != 1) return;
    Element* const scratch = static_cast<Element*>(split.scratch.get());
    foldPass<Element>(firstOf<FoldStep>(split.pre), scratch, from);
    combinePass<Element>(firstOf<CombineStage>(split.post), transforms, scratch, position);
}

template void runSplit<float>(const SkewSplit&, float*, const FoldSource<float>&, std::ptrdiff_t);
template void runSplit<double>(const SkewSplit&, double*, const FoldSource<double>&, std::ptrdiff_t);

}  // namespace zulg
