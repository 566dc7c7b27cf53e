// Every transform against its definition and against its promises: one suite, run once for each exported kernel and for
// plans. A new family takes part as a list of rows (transform.cpp).
#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>
#ifndef __wasm__
#include <thread>
#endif

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
    void add(Element found, Wide due) {
        squaredErrors += (found - due) * (found - due);
        squaredReferences += due * due;
    }
    double inUnitsOf(double unit) const {
        return static_cast<double>(std::sqrt(squaredErrors / squaredReferences) / unit);
    }

private:
    Wide squaredErrors = 0, squaredReferences = 0;
};

// Calls check(found, due, k) for the chosen outputs k of what was found.
template <class Element, class Check>
void eachOutput(const std::vector<Element>& found, const Values& due, Chosen outputs, const Check& check) {
    auto k = static_cast<std::size_t>(outputs.first);
    for (std::size_t i = 0; i < due.size(); ++i, k += static_cast<std::size_t>(outputs.step))
        check(found[k], due[i], k);
}

// A way to run a transform, and the error that it may have.
template <class Element>
struct Way {
    std::string name;
    int flag;
    double bound;
    std::function<std::vector<Element>(const std::vector<Element>&)> run;
    Error error{};
};

// The definition takes much longer than a transform, so that all ways are held against it at the same inputs.
TEST_P(KernelTest, AgreesWithTheDefinitionAtEveryFlagAndWhereRegistersRoundToDouble) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        std::vector<Way<Element>> ways;
        for (int flag : transform.flags()) {
            ways.push_back({"flag_" + std::to_string(flag), flag, transform.boundAt(flag),
                            [&subject, flag](const auto& source) { return subject.run(source, flag); }});
        }
        ways.push_back({"double_registers", NoDivByAny, transform.bound, [&subject](const auto& source) {
                            const DoublePrecisionRegisters precision;  // the setting of many Windows programs
                            return subject.run(source, NoDivByAny);
                        }});
        for (int round = 0; round < transform.inputs(); ++round) {
            const auto source = subject.randomSource();
            const Chosen outputs = transform.outputs(round);
            const Values due = transform.definition(widened(source), outputs);
            for (auto& way : ways) {
                const Wide scale = subject.scale(way.flag);
                eachOutput(way.run(source), due, outputs,
                           [&](Element found, Wide value, std::size_t) { way.error.add(found, scale * value); });
            }
        }
        for (const auto& way : ways) {
            const double error = way.error.inUnitsOf(subject.unit);
            EXPECT_LE(error, way.bound) << way.name;
            RecordProperty("error_at_" + way.name, std::to_string(error));
        }
    });
}

// Of a long transform, some unit vectors.
TEST_P(KernelTest, EveryUnitVectorGivesItsColumn) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const long long elements = transform.sourceElements;
        const int step = static_cast<int>(std::clamp(elements * elements >> 17, 1LL, std::max(1LL, elements / 4)));
        for (int i = 0, round = 0; i < elements; i += step, ++round) {
            auto source = subject.zeroSource();
            source[static_cast<std::size_t>(i)] = 1;
            const Chosen outputs = transform.outputs(round);
            const Values due = transform.definition(widened(source), outputs);
            Wide largest = 0;
            for (Wide value : due) largest = std::max(largest, std::abs(value));
            eachOutput(subject.run(source, NoDivByAny), due, outputs, [&](Element found, Wide value, std::size_t k) {
                ASSERT_LE(std::abs(found - value), 8 * Wide{subject.unit} * largest)
                    << "input " << i << ", output " << k;
            });
        }
    });
}

TEST_P(KernelTest, IsLinear) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto x = subject.randomSource(), y = subject.randomSource();
        std::vector<Element> combined;
        for (std::size_t i = 0; i < x.size(); ++i) combined.push_back(static_cast<Element>(0.5 * x[i] - 2.0 * y[i]));
        const auto a = subject.run(x, NoDivByAny), b = subject.run(y, NoDivByAny);
        const auto c = subject.run(combined, NoDivByAny);
        const double bound = 20 * subject.unit * normOf(c);
        for (std::size_t k = 0; k < c.size(); ++k) EXPECT_NEAR(c[k], 0.5 * a[k] - 2.0 * b[k], bound);
    });
}

TEST_P(KernelTest, InPlaceGivesTheSameBits) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        for (int flag : transform.flags()) {
            std::vector<Element> array = source;
            array.resize(static_cast<std::size_t>(std::max(transform.sourceElements, transform.destinationElements)));
            subject.call(array.data(), array.data(), flag);
            array.resize(static_cast<std::size_t>(transform.destinationElements));
            EXPECT_TRUE(sameBits(array, subject.run(source, flag))) << "flag " << flag;
        }
    });
}

TEST_P(KernelTest, NeedsNoAlignmentAndTouchesNothingBesideItsArrays) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        const auto due = subject.run(source, NoDivByAny);
        constexpr std::size_t guard = 64;
        const std::size_t sourceBytes = source.size() * sizeof(Element),
                          destinationBytes = due.size() * sizeof(Element);
        for (std::size_t offset = 0; offset < sizeof(Element); ++offset) {
            std::vector<std::byte> from(sourceBytes + 2 * guard, pattern), to(destinationBytes + 2 * guard, pattern);
            std::byte* const first = to.data() + guard + offset;
            std::memcpy(from.data() + guard + offset, source.data(), sourceBytes);
            const std::vector<std::byte> fromBefore = from;
            subject.call(reinterpret_cast<const Element*>(from.data() + guard + offset),
                         reinterpret_cast<Element*>(first), NoDivByAny);
            EXPECT_EQ(std::memcmp(first, due.data(), destinationBytes), 0) << "offset " << offset;
            EXPECT_EQ(from, fromBefore);
            std::memset(first, static_cast<int>(pattern), destinationBytes);
            EXPECT_EQ(to, std::vector<std::byte>(to.size(), pattern)) << "written beside the array, offset " << offset;
        }
    });
}

#ifdef __wasm__

// A module's memory has no pages that could be guards, but it has an end: an access beyond it ends the program.
TEST_P(KernelTest, StaysBelowTheEndOfMemory) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        auto source = subject.randomSource();
        const auto due = subject.run(source, NoDivByAny);
        auto destination = subject.destination();
        const std::size_t sourceBytes = source.size() * sizeof(Element),
                          destinationBytes = due.size() * sizeof(Element);
        std::byte* const end = endOfMemory(std::max(sourceBytes, destinationBytes));
        auto* const lastRead = reinterpret_cast<Element*>(end - sourceBytes);
        std::memcpy(lastRead, source.data(), sourceBytes);
        subject.call(lastRead, destination.data(), NoDivByAny);
        EXPECT_TRUE(sameBits(destination, due));
        auto* const lastWritten = reinterpret_cast<Element*>(end - destinationBytes);
        subject.call(source.data(), lastWritten, NoDivByAny);
        EXPECT_EQ(std::memcmp(lastWritten, due.data(), destinationBytes), 0);
    });
}

#else

TEST_P(KernelTest, StaysBetweenGuardPages) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        const auto due = subject.run(source, NoDivByAny);
        const std::size_t sourceBytes = source.size() * sizeof(Element),
                          destinationBytes = due.size() * sizeof(Element);
        const GuardedPages from(sourceBytes), to(destinationBytes);
        for (bool rear : {false, true}) {
            std::byte* const read = rear ? from.atRear(sourceBytes) : from.atFront();
            std::byte* const written = rear ? to.atRear(destinationBytes) : to.atFront();
            std::memcpy(read, source.data(), sourceBytes);
            subject.call(reinterpret_cast<const Element*>(read), reinterpret_cast<Element*>(written), NoDivByAny);
            EXPECT_EQ(std::memcmp(written, due.data(), destinationBytes), 0);
            EXPECT_EQ(std::memcmp(read, source.data(), sourceBytes), 0) << "the source was written";
        }
    });
}

#endif

TEST_P(KernelTest, RefusesInTheOrderOfItsChecksAndWritesNothing) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        auto destination = subject.destination(7);
        const auto untouched = destination;
        const auto expectNullPointersRefused = [&](int flag) {
            EXPECT_EQ(subject.call(nullptr, destination.data(), flag), StatusNullPointer) << flag;
            EXPECT_EQ(subject.call(source.data(), nullptr, flag), StatusNullPointer) << flag;
            EXPECT_EQ(subject.call(nullptr, nullptr, flag), StatusNullPointer) << flag;
        };
        for (int flag : {0, 3, 5, 6, 7, 9, 12, 15, 16, -1, -8, std::numeric_limits<int>::min(), 0x10008}) {
            expectNullPointersRefused(flag);
            if (transform.takes == Takes::Plan) continue;  // which takes no flag
            EXPECT_EQ(subject.call(source.data(), destination.data(), flag), StatusFlagError) << flag;
        }
        for (int flag : allFlags) expectNullPointersRefused(flag);
        EXPECT_TRUE(sameBits(destination, untouched));
        for (int flag : allFlags) EXPECT_EQ(subject.call(source.data(), destination.data(), flag), StatusOk);
    });
}

TEST_P(KernelTest, NotANumberAndInfinityPassThrough) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        for (Element special : {std::numeric_limits<Element>::quiet_NaN(), std::numeric_limits<Element>::infinity()}) {
            auto source = subject.randomSource();
            source[0] = special;
            auto destination = subject.destination();
            EXPECT_EQ(subject.call(source.data(), destination.data(), NoDivByAny), StatusOk);
            EXPECT_FALSE(std::isfinite(destination[0]));
        }
    });
}

TEST_P(KernelTest, LeavesTheFloatingPointUnitAsItWas) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        auto destination = subject.destination();
        const FloatState before = floatState();
        subject.call(source.data(), destination.data(), NoDivByAny);
        const FloatState after = floatState();
        EXPECT_EQ(after.control, before.control);
        EXPECT_EQ(after.tags, before.tags) << "registers left on the x87 stack";
    });
}

#ifndef __wasm__  // where each thread is a module of its own

TEST_P(KernelTest, ThreadsDoNotDisturbEachOther) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        const auto due = subject.run(source, DivBySqrtN);
        const int calls = std::clamp(12800 / transform.length, 4, 200);
        bool same[3] = {};
        {
            std::vector<std::jthread> threads;
            for (bool& result : same) {
                threads.emplace_back([&] {
                    const auto call = callOf<Element>(transform);
                    result = true;
                    for (int i = 0; i < calls; ++i) {
                        auto found = subject.destination();
                        result =
                            result && call(source.data(), found.data(), DivBySqrtN) == StatusOk && sameBits(found, due);
                    }
                });
            }
        }
        for (bool result : same) EXPECT_TRUE(result);
    });
}

#endif

INSTANTIATE_TEST_SUITE_P(All, KernelTest, testing::ValuesIn(allTransforms()), testName);

// The families with a flag, each of which has a dispatcher.
class FlaggedKernelTest : public KernelTest {};

TEST_P(FlaggedKernelTest, FlagsOfEqualMeaningGiveEqualBits) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        for (int flag : allFlags) {
            for (int other : allFlags) {
                const bool same = subject.scale(flag) == subject.scale(other);
                const bool equal = sameBits(subject.run(source, flag), subject.run(source, other));
                EXPECT_EQ(equal, same) << flag << " and " << other;
            }
        }
    });
}

TEST_P(FlaggedKernelTest, TheDispatcherGivesTheSameBits) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto dispatched = dispatchedCallOf<Element>(transform);
        const auto source = subject.randomSource();
        for (int flag : allFlags) {
            auto destination = subject.destination();
            EXPECT_EQ(dispatched(source.data(), destination.data(), flag), StatusOk);
            EXPECT_TRUE(sameBits(destination, subject.run(source, flag))) << "flag " << flag;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(All, FlaggedKernelTest, testing::ValuesIn(flaggedTransforms()), testName);

}  // namespace
}  // namespace test
