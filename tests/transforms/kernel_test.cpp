// Every kernel against its definition and against its promises: one suite, run once for each exported kernel.
#include <cmath>
#include <cstring>
#include <limits>
#include <thread>

#include "tests/memory.h"
#include "tests/transforms/float_state.h"
#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

// The pooled relative error in units of the last place of the element: the root of the summed squared errors over the
// summed squared references.
class Error {
public:
    template <class Element>
    void add(const std::vector<Element>& found, const Values& due) {
        for (std::size_t i = 0; i < due.size(); ++i) {
            const Wide difference = static_cast<Wide>(found[i]) - due[i];
            squaredErrors += difference * difference;
            squaredReferences += due[i] * due[i];
        }
    }
    double inUnits(bool isSingle) const {
        return static_cast<double>(std::ldexp(std::sqrt(squaredErrors / squaredReferences), isSingle ? 24 : 53));
    }

private:
    Wide squaredErrors = 0, squaredReferences = 0;
};

template <class Element, class Call>
double pooledError(const Transform& transform, int flag, std::mt19937& random, const Call& call) {
    Error error;
    const Wide scale = storedScale<Element>(transform, flag);
    const int inputs = std::max(200, 20000 / transform.length);
    for (int i = 0; i < inputs; ++i) {
        const auto source = randomElements<Element>(transform.sourceElements, random);
        Values due = transform.definition(widened(source));
        for (Wide& value : due) value *= scale;
        error.add(call(transform, source, flag), due);
    }
    return error.inUnits(transform.isSingle());
}

TEST_P(KernelTest, AgreesWithTheDefinitionAtEveryFlag) {
    withElement([&](auto element) {
        using Element = decltype(element);
        for (int flag : allFlags) {
            const double error = pooledError<Element>(transform, flag, random, run<Element>);
            EXPECT_LE(error, transform.bound()) << "flag " << flag;
            RecordProperty("error_at_flag_" + std::to_string(flag), std::to_string(error));
        }
    });
}

TEST_P(KernelTest, HoldsItsAccuracyWhereRegistersRoundToDouble) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto inDoubles = [](const Transform& kernel, const std::vector<Element>& source, int flag) {
            const DoublePrecisionRegisters precision;  // the setting of many Windows programs
            return run(kernel, source, flag);
        };
        EXPECT_LE(pooledError<Element>(transform, NoDivByAny, random, inDoubles), transform.bound());
    });
}

TEST_P(KernelTest, EveryUnitVectorGivesItsColumn) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const Wide unit = std::ldexp(Wide{1}, transform.isSingle() ? -24 : -53);
        for (int i = 0; i < transform.sourceElements; ++i) {
            std::vector<Element> source(static_cast<std::size_t>(transform.sourceElements));
            source[static_cast<std::size_t>(i)] = 1;
            const Values due = transform.definition(widened(source));
            const auto found = run(transform, source, NoDivByAny);
            Wide largest = 0;
            for (Wide value : due) largest = std::max(largest, std::abs(value));
            for (std::size_t k = 0; k < due.size(); ++k) {
                ASSERT_LE(std::abs(static_cast<Wide>(found[k]) - due[k]), 8 * unit * largest)
                    << "input " << i << ", output " << k;
            }
        }
    });
}

TEST_P(KernelTest, IsLinear) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto x = randomSource<Element>(), y = randomSource<Element>();
        std::vector<Element> combined;
        for (std::size_t i = 0; i < x.size(); ++i) combined.push_back(static_cast<Element>(0.5 * x[i] - 2.0 * y[i]));
        const auto a = run(transform, x, NoDivByAny), b = run(transform, y, NoDivByAny);
        const auto c = run(transform, combined, NoDivByAny);
        double squares = 0;
        for (Element value : c) squares += static_cast<double>(value) * value;
        const double bound = std::ldexp(20.0, transform.isSingle() ? -24 : -53) * std::sqrt(squares);
        for (std::size_t k = 0; k < c.size(); ++k) EXPECT_NEAR(c[k], 0.5 * a[k] - 2.0 * b[k], bound);
    });
}

TEST_P(KernelTest, InPlaceGivesTheSameBits) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto source = randomSource<Element>();
        for (int flag : allFlags) {
            std::vector<Element> array = source;
            array.resize(static_cast<std::size_t>(std::max(transform.sourceElements, transform.destinationElements)));
            exported<Kernel<Element>>(transform.kernelName())(array.data(), array.data(), flag);
            array.resize(static_cast<std::size_t>(transform.destinationElements));
            EXPECT_TRUE(sameBits(array, run(transform, source, flag))) << "flag " << flag;
        }
    });
}

TEST_P(KernelTest, NeedsNoAlignmentAndTouchesNothingBesideItsArrays) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto source = randomSource<Element>();
        const auto due = run(transform, source, NoDivByAny);
        constexpr std::size_t guard = 64;
        const std::size_t sourceBytes = source.size() * sizeof(Element),
                          destinationBytes = due.size() * sizeof(Element);
        for (std::size_t offset = 0; offset < sizeof(Element); ++offset) {
            std::vector<std::byte> from(sourceBytes + 2 * guard, pattern), to(destinationBytes + 2 * guard, pattern);
            std::byte* const first = to.data() + guard + offset;
            std::memcpy(from.data() + guard + offset, source.data(), sourceBytes);
            const std::vector<std::byte> fromBefore = from;
            exported<Kernel<Element>>(transform.kernelName())(
                reinterpret_cast<const Element*>(from.data() + guard + offset), reinterpret_cast<Element*>(first),
                NoDivByAny);
            EXPECT_EQ(std::memcmp(first, due.data(), destinationBytes), 0) << "offset " << offset;
            EXPECT_EQ(from, fromBefore);
            std::memset(first, static_cast<int>(pattern), destinationBytes);
            EXPECT_EQ(to, std::vector<std::byte>(to.size(), pattern)) << "written beside the array, offset " << offset;
        }
    });
}

TEST_P(KernelTest, StaysBetweenGuardPages) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto source = randomSource<Element>();
        const auto due = run(transform, source, NoDivByAny);
        const std::size_t sourceBytes = source.size() * sizeof(Element),
                          destinationBytes = due.size() * sizeof(Element);
        const GuardedPages from(sourceBytes), to(destinationBytes);
        for (bool rear : {false, true}) {
            std::byte* const read = rear ? from.atRear(sourceBytes) : from.atFront();
            std::byte* const written = rear ? to.atRear(destinationBytes) : to.atFront();
            std::memcpy(read, source.data(), sourceBytes);
            exported<Kernel<Element>>(transform.kernelName())(reinterpret_cast<const Element*>(read),
                                                              reinterpret_cast<Element*>(written), NoDivByAny);
            EXPECT_EQ(std::memcmp(written, due.data(), destinationBytes), 0);
        }
    });
}

TEST_P(KernelTest, RefusesInTheOrderOfItsChecksAndWritesNothing) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto kernel = exported<Kernel<Element>>(transform.kernelName());
        const auto source = randomSource<Element>();
        std::vector<Element> destination(static_cast<std::size_t>(transform.destinationElements), Element{7});
        const auto untouched = destination;
        for (int flag : {0, 3, 5, 6, 7, 9, 12, 15, 16, -1, -8, std::numeric_limits<int>::min(), 0x10008}) {
            EXPECT_EQ(kernel(source.data(), destination.data(), flag), StatusFlagError) << flag;
            EXPECT_EQ(kernel(nullptr, destination.data(), flag), StatusNullPointer) << flag;
            EXPECT_EQ(kernel(source.data(), nullptr, flag), StatusNullPointer) << flag;
            EXPECT_EQ(kernel(nullptr, nullptr, flag), StatusNullPointer) << flag;
        }
        for (int flag : allFlags) {
            EXPECT_EQ(kernel(nullptr, destination.data(), flag), StatusNullPointer);
            EXPECT_EQ(kernel(source.data(), nullptr, flag), StatusNullPointer);
            EXPECT_EQ(kernel(nullptr, nullptr, flag), StatusNullPointer);
        }
        EXPECT_TRUE(sameBits(destination, untouched));
        for (int flag : allFlags) EXPECT_EQ(kernel(source.data(), destination.data(), flag), StatusOk);
    });
}

TEST_P(KernelTest, FlagsOfEqualMeaningGiveEqualBits) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto source = randomSource<Element>();
        for (int flag : allFlags) {
            for (int other : allFlags) {
                const bool same = storedScale<Element>(transform, flag) == storedScale<Element>(transform, other);
                const bool equal = sameBits(run(transform, source, flag), run(transform, source, other));
                EXPECT_EQ(equal, same) << flag << " and " << other;
            }
        }
    });
}

TEST_P(KernelTest, TheDispatcherGivesTheSameBits) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto source = randomSource<Element>();
        for (int flag : allFlags) {
            std::vector<Element> destination(static_cast<std::size_t>(transform.destinationElements));
            const auto dispatcher = exported<Dispatcher<Element>>(transform.dispatcherName());
            EXPECT_EQ(dispatcher(source.data(), destination.data(), transform.length, flag), StatusOk);
            EXPECT_TRUE(sameBits(destination, run(transform, source, flag))) << "flag " << flag;
        }
    });
}

TEST_P(KernelTest, NotANumberAndInfinityPassThrough) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto kernel = exported<Kernel<Element>>(transform.kernelName());
        for (Element special : {std::numeric_limits<Element>::quiet_NaN(), std::numeric_limits<Element>::infinity()}) {
            auto source = randomSource<Element>();
            source[0] = special;
            std::vector<Element> destination(static_cast<std::size_t>(transform.destinationElements));
            EXPECT_EQ(kernel(source.data(), destination.data(), NoDivByAny), StatusOk);
            EXPECT_FALSE(std::isfinite(destination[0]));
        }
    });
}

TEST_P(KernelTest, LeavesTheFloatingPointUnitAsItWas) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto kernel = exported<Kernel<Element>>(transform.kernelName());
        const auto source = randomSource<Element>();
        std::vector<Element> destination(static_cast<std::size_t>(transform.destinationElements));
        const FloatState before = floatState();
        kernel(source.data(), destination.data(), NoDivByAny);
        const FloatState after = floatState();
        EXPECT_EQ(after.control, before.control);
        EXPECT_EQ(after.tags, before.tags) << "registers left on the x87 stack";
    });
}

TEST_P(KernelTest, ThreadsDoNotDisturbEachOther) {
    withElement([&](auto element) {
        using Element = decltype(element);
        const auto source = randomSource<Element>();
        const auto due = run(transform, source, DivBySqrtN);
        bool same[3] = {};
        {
            std::vector<std::jthread> threads;
            for (bool& result : same) {
                threads.emplace_back([&] {
                    result = true;
                    for (int i = 0; i < 200; ++i) result = result && sameBits(run(transform, source, DivBySqrtN), due);
                });
            }
        }
        for (bool result : same) EXPECT_TRUE(result);
    });
}

INSTANTIATE_TEST_SUITE_P(All, KernelTest, testing::ValuesIn(allTransforms()), testName);

}  // namespace
}  // namespace test
