// Every integer that an argument can be: flags on a kernel of each family, lengths on each dispatcher, orders, and the
// sizes of buffers. All 2^32 of each in the DISABLED_ tests, which scripts/soak runs; here one of each stretch of 4096,
// drawn at random, and those around each power of two and its negative. tests/plan/every_length_test.cpp has the
// lengths of plans.
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

// Calls visit(n) for the integers of a run.
using Integers = std::function<void(const std::function<void(std::int32_t)>&)>;

void everyInteger(const std::function<void(std::int32_t)>& visit) {
    std::uint32_t n = 0;
    do visit(static_cast<std::int32_t>(n));
    while (++n != 0);
}

void someIntegers(const std::function<void(std::int32_t)>& visit) {
    const Seed seed;
    std::mt19937 random = seed.random;
    for (std::uint32_t stretch = 0; stretch < 1 << 20; ++stretch)
        visit(static_cast<std::int32_t>(stretch << 12 | (random() & 0xFFF)));
    for (int bit = 0; bit < 32; ++bit) {
        const std::uint32_t power = std::uint32_t{1} << bit;
        for (std::uint32_t near = 0; near <= 192; ++near) {
            visit(static_cast<std::int32_t>(power - 96 + near));
            visit(static_cast<std::int32_t>(0 - power - 96 + near));
        }
    }
}

// What a call must return, and whether the destination may have changed.
class Calls {
public:
    explicit Calls(std::string callName) : name(std::move(callName)) {}

    void expect(std::int32_t argument, ZulgStatus found, ZulgStatus due) {
        ++calls;
        accepted += found == StatusOk;
        if (found != due && ++faults <= 5) ADD_FAILURE() << name << " of " << argument << " gives " << found;
    }
    long long calls = 0, accepted = 0;

private:
    std::string name;
    int faults = 0;
};

bool isFlag(std::int32_t flag) { return flag == 1 || flag == 2 || flag == 4 || flag == 8; }

// Only an accepted call writes: the destination is dirtied before each of those, and must be clean after all others.
template <class Element>
class Destination {
public:
    explicit Destination(std::size_t elements) : values(elements, mark) {}
    Element* data() { return values.data(); }
    void forget() { values.assign(values.size(), mark); }
    bool isUntouched() const { return values == std::vector<Element>(values.size(), mark); }

private:
    static constexpr Element mark = 7;
    std::vector<Element> values;
};

template <class Element>
void checkFlags(const Transform& transform, const Integers& integers) {
    const auto call = callOf<Element>(transform);
    const std::vector<Element> source(static_cast<std::size_t>(transform.sourceElements), Element{1});
    Destination<Element> destination(static_cast<std::size_t>(transform.destinationElements));
    Calls calls(transform.kernelName());
    integers([&](std::int32_t flag) {
        calls.expect(flag, call(source.data(), destination.data(), flag), isFlag(flag) ? StatusOk : StatusFlagError);
        if (isFlag(flag)) destination.forget();
    });
    EXPECT_TRUE(destination.isUntouched()) << transform.kernelName();
    EXPECT_GE(calls.accepted, 4) << transform.kernelName();
}

template <class Element>
void checkLengths(const Transform& transform, const Integers& integers) {
    const bool isOrder = transform.order > 0;
    const std::int32_t first = isOrder ? 1 : 2, last = isOrder ? 13 : 64;
    const std::vector<Element> source(1 << 14, Element{1});
    Destination<Element> destination(1 << 14);
    std::vector<Element> buffer(1 << 15);
    Calls calls(transform.dispatcherName());
    const auto check = [&](const auto& call) {
        integers([&](std::int32_t length) {
            const bool isAccepted = length >= first && length <= last;
            calls.expect(length, call(destination.data(), length), isAccepted ? StatusOk : StatusSizeError);
            // A bad length outranks a null pointer.
            if (!isAccepted) calls.expect(length, call(nullptr, length), StatusSizeError);
            if (isAccepted) destination.forget();
        });
    };
    if (isOrder) {
        const auto dispatcher = exported<WhtDispatcher<Element>>(transform.dispatcherName());
        check([&](Element* pDst, std::int32_t order) {
            return dispatcher(source.data(), pDst, order, NoDivByAny, buffer.data());
        });
    } else {
        const auto dispatcher = exported<Dispatcher<Element>>(transform.dispatcherName());
        check([&](Element* pDst, std::int32_t length) { return dispatcher(source.data(), pDst, length, NoDivByAny); });
    }
    EXPECT_TRUE(destination.isUntouched()) << transform.dispatcherName();
    EXPECT_GE(calls.accepted, last - first + 1) << transform.dispatcherName();
}

// A transform of each family and element, of which the kernel is short.
std::vector<Transform> oneOfEachFamily() {
    std::vector<Transform> chosen;
    for (const Transform& transform : flaggedTransforms()) {
        const bool isOfThese = transform.order > 0 ? transform.takes == Takes::FlagAndBuffer : true;
        if (isOfThese && transform.number() == 3) chosen.push_back(transform);
    }
    return chosen;
}

class IntegersTest : public testing::TestWithParam<Transform> {
protected:
    void checkAll(const Integers& integers, bool lengths) {
        const Transform& transform = GetParam();
        const auto check = [&]<class Element>() {
            lengths ? checkLengths<Element>(transform, integers) : checkFlags<Element>(transform, integers);
        };
        transform.isSingle() ? check.template operator()<float>() : check.template operator()<double>();
    }
};

TEST_P(IntegersTest, AMillionFlags) { checkAll(someIntegers, false); }
TEST_P(IntegersTest, AMillionLengths) { checkAll(someIntegers, true); }
TEST_P(IntegersTest, DISABLED_EveryFlag) { checkAll(everyInteger, false); }
TEST_P(IntegersTest, DISABLED_EveryLength) { checkAll(everyInteger, true); }

INSTANTIATE_TEST_SUITE_P(All, IntegersTest, testing::ValuesIn(oneOfEachFamily()), testName);

TEST(IntegersOf, EveryFamilyTakePart) { EXPECT_EQ(oneOfEachFamily().size(), 20u); }

template <class Element>
class BufferOrders : public ElementTest<Element> {
protected:
    static void check(const Integers& integers) {
        const auto getSize = exported<ZulgStatus(ZULG_CALL*)(std::int32_t, std::int32_t*)>(
            exportedName<Element>("zulgWHTGetBufferSize"));
        Calls calls("GetBufferSize");
        integers([&](std::int32_t order) {
            std::int32_t bytes = -77;
            const bool isOrder = order >= 1 && order <= 13;
            calls.expect(order, getSize(order, &bytes), isOrder ? StatusOk : StatusSizeError);
            const auto due = isOrder ? bufferElements(order) * static_cast<std::int32_t>(sizeof(Element)) : -77;
            if (bytes != due) ADD_FAILURE() << bytes << " bytes of order " << order;
        });
        EXPECT_GE(calls.accepted, 13);
    }
};
TYPED_TEST_SUITE(BufferOrders, Elements, ElementNames);
TYPED_TEST(BufferOrders, AMillion) { this->check(someIntegers); }
TYPED_TEST(BufferOrders, DISABLED_EveryOne) { this->check(everyInteger); }

}  // namespace
}  // namespace test
