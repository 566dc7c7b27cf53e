// What a call of any export must leave as it was, by the convention of the machine: the registers that belong to the
// caller, the stack pointer, the direction flag, the settings of the floating-point units and whether their registers
// are in use; surroundings_*.cpp look at them. The upper halves of the vector registers of x86-64 are clean after a
// call, so that the caller's own code is not slowed down. And no call raises a floating-point exception other than
// inexact on finite data of moderate size.
#include <functional>
#include <memory>
#include <set>
#include <utility>

#include "tests/dct4/planned.h"
#include "tests/limits/surroundings.h"
#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

template <class T>
std::uintptr_t word(T* pointer) {
    return reinterpret_cast<std::uintptr_t>(pointer);
}

// Calls without masks, in every way, and without masks again. `prepare` gives the arguments of a call.
void expectNothingChanged(const std::string& name, const std::function<Arguments()>& prepare) {
    void* const routine = requiredAddress(name);
    const auto check = [&](const Looked& looked) {
        EXPECT_EQ(looked.changed, "") << name;
        EXPECT_EQ(looked.result, StatusOk) << name;
        EXPECT_FALSE(upperHalvesWereInUse()) << name;
    };
    check(callUnmasked(routine, prepare()));
    for (int way = 0; way < waysToCall(); ++way) {
        SCOPED_TRACE(way);
        Looked looked = callAndLook(routine, prepare(), way);
        // With flushing or other roundings a flag may be raised. What matters is what is not masked.
        if (const auto at = looked.changed.find(" exceptions"); at != std::string::npos) looked.changed.erase(at, 11);
        check(looked);
    }
    check(callUnmasked(routine, prepare()));
}

class Surroundings : public KernelTest {};

TEST_P(Surroundings, AreAsTheyWereAndNoExceptionButInexactIsRaised) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        bool isFirst = true;
        auto source = subject.zeroSource();  // of the first call
        auto destination = subject.destination();
        std::vector<Element> buffer(static_cast<std::size_t>(bufferElements(transform.order)) + 1);
        Arguments arguments{word(source.data()), word(destination.data())};
        std::string name = transform.kernelName();
        std::unique_ptr<Planned<Element>> planned;
        if (transform.takes == Takes::Plan) {
            planned = std::make_unique<Planned<Element>>(transform.length);
            arguments.push_back(word(planned->plan));
            name = exportedName<Element>("zulgDCT4");
        } else {
            arguments.push_back(DivBySqrtN);
            if (transform.takes != Takes::Flag)
                arguments.push_back(transform.takes == Takes::FlagAndBuffer ? word(buffer.data()) : 0);
        }
        expectNothingChanged(name, [&] {
            if (!std::exchange(isFirst, false)) {
                const auto values = subject.randomSource();
                std::copy(values.begin(), values.end(), source.begin());
            }
            return arguments;
        });
    });
}

INSTANTIATE_TEST_SUITE_P(All, Surroundings, testing::ValuesIn(allTransforms()), testName);

// The exports that are no transform of one length: dispatchers, sizes, plans, the version.
template <class Element>
class SurroundingsOfOther : public testing::Test {
protected:
    std::vector<Element> source = std::vector<Element>(512, 1), destination = source, buffer = source;
};
TYPED_TEST_SUITE(SurroundingsOfOther, Elements, ElementNames);

TYPED_TEST(SurroundingsOfOther, Dispatchers) {
    std::set<std::string> seen;
    for (const Transform& transform : flaggedTransforms()) {
        if (transform.isSingle() != (sizeof(TypeParam) == 4)) continue;
        if (transform.takes == Takes::FlagAndNullBuffer || !seen.insert(transform.dispatcherName()).second) continue;
        const bool isWalshHadamard = transform.order > 0;
        const std::uintptr_t number = isWalshHadamard ? 8 : 15;
        Arguments arguments{word(this->source.data()), word(this->destination.data()), number, NoDivByAny};
        if (isWalshHadamard) arguments.push_back(word(this->buffer.data()));
        expectNothingChanged(transform.dispatcherName(), [&] { return arguments; });
    }
    EXPECT_EQ(seen.size(), 10u);
}

TYPED_TEST(SurroundingsOfOther, SizesAndPlans) {
    const auto name = [](const char* stem) { return exportedName<TypeParam>(stem); };
    std::int32_t size = 0;
    expectNothingChanged(name("zulgWHTGetBufferSize"), [&] { return Arguments{12, word(&size)}; });
    for (int length : {32, 2048, 8192}) {
        const auto points = static_cast<std::uintptr_t>(length);
        expectNothingChanged(name("zulgDCT4GetSize"), [&] { return Arguments{points, word(&size)}; });
        std::vector<std::uint8_t> block(static_cast<std::size_t>(size) + 32);
        std::uint8_t* const aligned = block.data() + (32 - word(block.data()) % 32) % 32;
        zulg::DctPlan* plan = nullptr;
        expectNothingChanged(name("zulgDCT4Init"), [&] { return Arguments{word(&plan), points, word(aligned)}; });
        std::vector<zulg::DctPlan*> plans;
        plans.reserve(100);
        expectNothingChanged(name("zulgDCT4InitAlloc"), [&] {
            plans.push_back(nullptr);
            return Arguments{word(&plans.back()), points};
        });
        expectNothingChanged(name("zulgDCT4Free"), [&] {
            plan = plans.back();
            plans.pop_back();
            return Arguments{word(plan)};
        });
        EXPECT_TRUE(plans.empty());
    }
}

TEST(SurroundingsOfTheVersion, AreAsTheyWere) {
    for (int way = 0; way < waysToCall(); ++way)
        EXPECT_EQ(callAndLook(requiredAddress("zulgenGetLibVersion"), {}, way).changed, "");
}

// What looks must see what it looks for.
TEST(SurroundingsOfARoutine, ThatSpoilsThemAreSeen) {
    EXPECT_EQ(callAndLook(reinterpret_cast<void*>(spoil), {}, 0).changed, whatSpoilChanges);
}

}  // namespace
}  // namespace test
