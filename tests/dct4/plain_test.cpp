// The library runs a plan as the plain execution does, which takes one sequence and one row after the other: the same
// bits in the result and in every vector of the plan. The plain execution is linked into the test.
#include <bit>
#include <cstring>

#include "dct4/run.h"
#include "tests/dct4/plan_records.h"

namespace test {
namespace {

template <class Element>
class PlainTest : public Dct4Test<Element> {
protected:
    static void expectSameBits(const std::vector<Element>& found, const std::vector<Element>& due, const char* what) {
        ASSERT_EQ(found.size(), due.size());
        for (std::size_t i = 0; i < due.size(); ++i) {
            if (due[i] != due[i] && found[i] != found[i]) continue;
            ASSERT_EQ(std::memcmp(&found[i], &due[i], sizeof(Element)), 0)
                << what << ", " << i << ": " << found[i] << ", due is " << due[i];
        }
    }

    // Two plans of one length: what the library leaves in the one, the plain execution must leave in the other.
    void expectPlainRun(std::int32_t length, std::vector<Element> x) {
        SCOPED_TRACE(length);
        x.resize(x.size() + 1);  // the lengths 2^k + 1 read one element more
        Planned<Element> planned(length), plain(length);
        const Records<Element> records(*planned.plan), due(*plain.plan);
        std::vector<Element> y(x.size(), 7), dueY = y, inPlace = x;
        ASSERT_EQ(this->dct4.run(x.data(), y.data(), planned.plan), StatusOk);
        zulg::runPlan<Element>(*plain.plan, x.data(), dueY.data());
        expectSameBits(y, dueY, "result");
        expectSameBits(records.copyOfTransforms(), due.copyOfTransforms(), "T");
        ASSERT_EQ(records.splits.size(), due.splits.size());
        for (std::size_t level = 0; level < due.splits.size(); ++level)
            expectSameBits(records.copyOfScratch(level), due.copyOfScratch(level), "S");
        if ((length & (length - 1)) != 0) return;  // these cannot be done in place
        ASSERT_EQ(this->dct4.run(inPlace.data(), inPlace.data(), planned.plan), StatusOk);
        inPlace.back() = 7;
        expectSameBits(inPlace, dueY, "in place");
    }
};

TYPED_TEST_SUITE(PlainTest, Elements, ElementNames);

TYPED_TEST(PlainTest, EveryPowerOfTwo) {
    for (int length = 64; length <= 1 << 18; length *= 2) this->expectPlainRun(length, this->randomElements(length));
    this->expectPlainRun(1 << 22, this->randomElements(1 << 22));
}

TYPED_TEST(PlainTest, OneMoreThanAPowerOfTwo) {
    for (int length : {9, 17, 33, 65, 129, 257, 4097, 65537}) {
        this->expectPlainRun(length, this->randomElements(length));
    }
}

TYPED_TEST(PlainTest, ZerosOfBothSignsAndNumbersOfAllSizes) {
    using Limits = std::numeric_limits<TypeParam>;
    for (int length : {64, 256, 1024, 2048, 4096, 32768, 65536}) {
        auto x = this->randomElements(length);
        for (std::size_t i = 0; i < x.size(); ++i) {
            if (i % 3 != 0) x[i] = i % 2 == 0 ? TypeParam{0} : -TypeParam{0};
            if (i % 17 == 0) x[i] = Limits::denorm_min() * static_cast<TypeParam>(i % 5);
        }
        this->expectPlainRun(length, x);
        x[5] = Limits::max();
        x[x.size() - 7] = -Limits::infinity();
        this->expectPlainRun(length, x);
    }
}

}  // namespace
}  // namespace test
