// The records of a plan and the vectors in it.
#pragma once

#include <vector>

#include "tests/dct4/dct4_fixture.h"

namespace test {

// A plan's records, each found through the lists.
template <class Element>
struct Records {
    explicit Records(zulg::DctPlan& root)
        : plan(root), output(recordIn<zulg::OutputStage>(root.post)), fold(recordIn<zulg::FoldStage>(root.pre)) {
        for (const zulg::PlanListNode* children = fold.children; children->value;) {
            splits.push_back(&recordIn<zulg::SkewSplit>(children));
            children = step(splits.size() - 1).children;
        }
    }

    zulg::FoldStep& step(std::size_t level) const { return recordIn<zulg::FoldStep>(splits[level]->pre); }
    zulg::CombineStage& combine(std::size_t level) const { return recordIn<zulg::CombineStage>(splits[level]->post); }
    Element* transforms() const { return static_cast<Element*>(plan.scratch.get()); }
    Element* scratch(std::size_t level) const { return static_cast<Element*>(splits[level]->scratch.get()); }

    std::vector<Element> copyOfTransforms() const { return {transforms(), transforms() + plan.length}; }
    std::vector<Element> copyOfScratch(std::size_t level) const {
        return {scratch(level), scratch(level) + splits[level]->skewLength};
    }

    zulg::DctPlan& plan;
    zulg::OutputStage& output;
    zulg::FoldStage& fold;
    std::vector<zulg::SkewSplit*> splits;  // from the top down
};

}  // namespace test
