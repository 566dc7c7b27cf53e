// Where a not-a-number or an infinity goes: put into each input in turn, it makes exactly those outputs no finite
// numbers that the graph of the transform reaches from that input. Nothing else may be touched, and nothing may be
// lost: no shuffle of a register mixes in a lane that is not the step's own.
#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <tuple>

#include "output/catalogue.h"
#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

using Reach = std::map<int, std::set<int>>;  // of each input, the outputs; both numbered as the graph does

Reach reachOf(const gen::Graph& graph) {
    gen::PerNode<std::set<int>> inputs;
    for (const gen::Node& node : graph.nodes()) {
        std::set<int> own;
        if (node.kind == gen::Kind::Load) own.insert(node.input);
        for (gen::NodeId operand : gen::operands(node)) own.insert(inputs[operand].begin(), inputs[operand].end());
        inputs.push_back(own);
    }
    Reach reach;
    for (const gen::Output& output : graph.outputs()) {
        for (int input : inputs[output.node]) reach[input].insert(output.place);
    }
    return reach;
}

const Reach& reachOf(const std::string& family, int length) {
    static std::map<std::pair<std::string, int>, Reach> known;
    const auto [found, isNew] = known.try_emplace({family, length});
    if (!isNew) return found->second;
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        if (entry.family->word == family && entry.length == length) found->second = reachOf(*entry.build());
    }
    return found->second;
}

std::string familyOf(const Transform& transform) {
    const std::string& name = transform.family;
    if (name.ends_with("CToC")) return "complex";
    if (name.starts_with("DFTFwd")) return "real_forward";
    if (name.starts_with("DFTInv")) return "real_inverse";
    if (name == "Hartley") return "hartley";
    return name == "WHT" ? "wht" : "dct4_direct";
}

// Of each number of a half spectrum, or of a list, the slot of the array.
std::map<int, int> slotsOf(const Transform& transform, bool ofHalfSpectrum, int count) {
    std::map<int, int> slots;
    if (!ofHalfSpectrum) {
        const bool isExchanged = transform.family == "DFTInv_CToC";  // the parts of each element
        for (int i = 0; i < count; ++i) slots[i] = isExchanged ? i ^ 1 : i;
        return slots;
    }
    for (Layout layout : allLayouts) {
        if (transform.family.find(layoutName(layout)) == std::string::npos) continue;
        const LayoutSlots places{layout, transform.length};
        for (int k = 0; 2 * k <= transform.length; ++k) {
            slots[2 * k] = places.re(k);
            if (2 * k % transform.length != 0) slots[2 * k + 1] = places.im(k);
        }
    }
    return slots;
}

class TaintTest : public KernelTest {};

TEST_P(TaintTest, ReachesWhatTheGraphReachesAndNothingElse) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const std::string family = familyOf(transform);
        const Reach& reach = reachOf(family, transform.length);
        const auto sources = slotsOf(transform, family == "real_inverse", transform.sourceElements);
        const auto destinations = slotsOf(transform, family == "real_forward", transform.destinationElements);
        const auto values = subject.randomSource();
        for (const auto& [input, slot] : sources) {
            // Orders and lengths that are made of several graphs: every output comes from every input.
            std::set<int> due;
            for (const auto& [output, place] : destinations) {
                if (reach.empty() || reach.at(input).contains(output)) due.insert(place);
            }
            for (Element special : {std::numeric_limits<Element>::quiet_NaN(), std::numeric_limits<Element>::infinity(),
                                    -std::numeric_limits<Element>::infinity()}) {
                auto source = values;
                source[static_cast<std::size_t>(slot)] = special;
                const auto found = subject.run(source, NoDivByAny);
                for (int place = 0; place < transform.destinationElements; ++place) {
                    ASSERT_NE(std::isfinite(found[static_cast<std::size_t>(place)]), due.contains(place))
                        << special << " at " << slot << ", output " << place;
                }
            }
        }
    });
}

// What a half spectrum in CCS has in the slots of its zeros is not read.
TEST_P(TaintTest, StaysOutOfWhatIsNotRead) {
    if (transform.family != "DFTInv_CCSToR") return;
    withSubject([&]<class Element>(Subject<Element>& subject) {
        auto source = subject.randomSource();
        source[1] = std::numeric_limits<Element>::quiet_NaN();
        for (Element value : subject.run(source, NoDivByAny)) EXPECT_TRUE(std::isfinite(value));
    });
}

std::vector<Transform> transforms() {
    std::vector<Transform> chosen = allTransforms();
    std::erase_if(chosen, [](const Transform& t) { return t.length > 512 || t.takes == Takes::FlagAndNullBuffer; });
    return chosen;
}

INSTANTIATE_TEST_SUITE_P(All, TaintTest, testing::ValuesIn(transforms()), testName);

}  // namespace
}  // namespace test
