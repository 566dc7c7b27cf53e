// Batches beside the same transforms one by one: the same bits, in every shape, and nothing else is touched.
#include <limits>
#include <thread>

#include "tests/batch/batches.h"
#include "tests/dct4/planned.h"
#include "tests/memory.h"
#include "tests/stack_depth.h"

namespace test {
namespace {

constexpr int flags[] = {DivFwdByN, DivInvByN, DivBySqrtN, NoDivByAny};

// At this step the elements of a complex transform share a few sets of a cache, and the library uses other routines.
constexpr std::int64_t badStep = 512;

// The lowest and the highest place of a shape, in elements.
struct Extent {
    Extent(Shape shape, std::int64_t elements, std::int64_t count) {
        for (const std::int64_t k : {std::int64_t{0}, elements - 1}) {
            for (const std::int64_t j : {std::int64_t{0}, std::max<std::int64_t>(count, 1) - 1}) {
                const std::int64_t place = k * shape.step + j * shape.distance;
                low = std::min(low, place);
                high = std::max(high, place);
            }
        }
    }
    std::size_t elements() const { return static_cast<std::size_t>(high - low + 1); }

    std::int64_t low = 0, high = 0;
};

// An array that ends or begins at a page that cannot be accessed.
template <class Element>
class Array {
public:
    Array(Extent places, int width, bool atRear)
        : extent(places),
          count(places.elements() * static_cast<std::size_t>(width)),
          pages(count * sizeof(Element)),
          first(reinterpret_cast<Element*>(atRear ? pages.atRear(count * sizeof(Element)) : pages.atFront())),
          zero(first - places.low * width) {}

    void fill(const std::vector<Element>& values) { std::copy(values.begin(), values.end(), first); }
    std::vector<Element> copy() const { return {first, first + count}; }

    const Extent extent;
    const std::size_t count;
    GuardedPages pages;
    Element* const first;
    Element* const zero;  // element 0 of transform 0
};

template <class Element>
class BatchTest : public ElementTest<Element> {
protected:
    // What the transforms one by one give, beginning with what was there before.
    std::vector<Element> dueOf(const Job<Element>& job, const Element* from, Shape source, std::vector<Element> to,
                               Shape destination, Extent extent, std::int64_t count) {
        const auto width = job.width;
        std::vector<Element> x(static_cast<std::size_t>(width * (job.read + 1))), y(x.size() + 8);
        std::vector<std::vector<Element>> results;
        for (std::int64_t j = 0; j < count; ++j) {
            for (std::int64_t k = 0; k < job.read; ++k)
                for (int i = 0; i < width; ++i)
                    x[static_cast<std::size_t>(k * width + i)] =
                        from[(k * source.step + j * source.distance) * width + i];
            EXPECT_EQ(job.one(x.data(), y.data()), StatusOk);
            results.push_back(y);
        }
        for (std::int64_t j = 0; j < count; ++j)
            for (std::int64_t k = 0; k < job.written; ++k)
                for (int i = 0; i < width; ++i)
                    to[static_cast<std::size_t>((k * destination.step + j * destination.distance - extent.low) * width +
                                                i)] =
                        results[static_cast<std::size_t>(j)][static_cast<std::size_t>(k * width + i)];
        return to;
    }

    void expectOneByOne(const Job<Element>& job, Shape source, Shape destination, std::int64_t count, bool atRear) {
        SCOPED_TRACE(testing::Message() << count << " from " << source.step << ", " << source.distance << " to "
                                        << destination.step << ", " << destination.distance);
        Array<Element> x(Extent(source, job.read, count), job.width, atRear),
            y(Extent(destination, job.written, count), job.width, atRear);
        x.fill(this->randomElements(static_cast<int>(x.count)));
        y.fill(this->randomElements(static_cast<int>(y.count)));
        const auto before = x.copy();
        const auto due = dueOf(job, x.zero, source, y.copy(), destination, y.extent, count);
        ASSERT_EQ(job.batch(x.zero, source, y.zero, destination, count), StatusOk);
        ASSERT_TRUE(sameBits(y.copy(), due));
        ASSERT_TRUE(sameBits(x.copy(), before)) << "the source was changed";
    }

    // One array, in which each transform has room for what it reads and for what it writes.
    void expectInPlace(const Job<Element>& job, Shape shape, std::int64_t count) {
        SCOPED_TRACE(testing::Message() << count << " in place at " << shape.step << ", " << shape.distance);
        Array<Element> x(Extent(shape, std::max(job.read, job.written), count), job.width, true);
        x.fill(this->randomElements(static_cast<int>(x.count)));
        const auto due = dueOf(job, x.zero, shape, x.copy(), shape, x.extent, count);
        ASSERT_EQ(job.batch(x.zero, shape, x.zero, shape, count), StatusOk);
        ASSERT_TRUE(sameBits(x.copy(), due));
    }

    // A shape whose elements are all in places of their own.
    Shape randomShape(std::int64_t elements, std::int64_t count) {
        const auto random = [&](std::int64_t low, std::int64_t high) {
            return std::uniform_int_distribution<std::int64_t>(low, high)(this->seed.random);
        };
        const std::int64_t many = std::max<std::int64_t>(count, 1), gap = random(0, 3);
        Shape shape;
        switch (random(0, 5)) {
            case 0: shape = {1, elements + gap}; break;
            case 1: shape = {many + gap, 1}; break;
            case 2: shape = {1, elements}; break;
            case 3: shape = {many, 1}; break;
            case 4: shape = {2 + gap, (2 + gap) * elements + random(0, 9)}; break;
            default: shape = {(2 + gap) * many + random(0, 9), 2 + gap}; break;
        }
        if (random(0, 4) == 0) shape.step = -shape.step;
        if (random(0, 4) == 0) shape.distance = -shape.distance;
        return shape;
    }

    template <class Each>
    void forEachJob(const Each& each) {
        for (const BatchFamily& family : batchFamilies) {
            for (int length = 2; length <= 64; ++length) {
                SCOPED_TRACE(testing::Message() << family.name << ", " << length);
                each(jobOf<Element>(family, length, flags[length % 4]));
                if (this->HasFatalFailure()) return;
            }
        }
    }
};

TYPED_TEST_SUITE(BatchTest, Elements, ElementNames);

TYPED_TEST(BatchTest, FastShapesGiveTheBitsOfSingleCallsAtEveryCount) {
    this->forEachJob([&](const Job<TypeParam>& job) {
        for (std::int64_t count = 0; count <= 17; ++count) {
            const std::int64_t many = std::max<std::int64_t>(count, 1);
            this->expectOneByOne(job, {1, job.read}, {1, job.written}, count, count % 2 == 0);
            this->expectOneByOne(job, {many, 1}, {many, 1}, count, count % 2 == 0);
        }
    });
}

TYPED_TEST(BatchTest, BadStepsGiveTheBitsOfSingleCalls) {
    this->forEachJob([&](const Job<TypeParam>& job) {
        if (job.width != 2) return;
        for (const std::int64_t count : {3, 4, 6, 9}) {
            this->expectOneByOne(job, {badStep, 1}, {badStep, 1}, count, count % 2 == 0);
            this->expectOneByOne(job, {badStep, 1}, {count, 1}, count, count % 2 == 0);
            this->expectOneByOne(job, {count, 1}, {-badStep, 1}, count, count % 2 == 0);
        }
        this->expectInPlace(job, {badStep, 1}, 7);
    });
}

TYPED_TEST(BatchTest, RandomShapesGiveTheBitsOfSingleCalls) {
    this->forEachJob([&](const Job<TypeParam>& job) {
        for (int i = 0; i < 12; ++i) {
            const std::int64_t count = static_cast<std::int64_t>(this->seed.random() % 20);
            this->expectOneByOne(job, this->randomShape(job.read, count), this->randomShape(job.written, count), count,
                                 i % 2 == 0);
        }
    });
}

TYPED_TEST(BatchTest, RunsInPlace) {
    this->forEachJob([&](const Job<TypeParam>& job) {
        const std::int64_t longer = std::max(job.read, job.written);
        for (const std::int64_t count : {1, 4, 7, 16}) {
            this->expectInPlace(job, {1, longer}, count);
            this->expectInPlace(job, {count, 1}, count);
            this->expectInPlace(job, {-3, 3 * longer}, count);
        }
    });
}

TYPED_TEST(BatchTest, ASourceMayBeOneElementOrOneTransformForAll) {
    for (const BatchFamily& family : batchFamilies) {
        const auto job = jobOf<TypeParam>(family, 12, NoDivByAny);
        this->expectOneByOne(job, {0, 0}, {1, job.written}, 6, true);
        this->expectOneByOne(job, {1, 0}, {1, job.written}, 6, true);
        this->expectOneByOne(job, {0, 1}, {6, 1}, 6, true);
        this->expectOneByOne(job, {1, 1}, {6, 1}, 6, true);
        this->expectOneByOne(job, {1, 3}, {1, job.written}, 6, true);
    }
}

TYPED_TEST(BatchTest, ZerosOfBothSignsAndInfinitiesAreThoseOfSingleCalls) {
    const std::int64_t count = 8;
    const auto expectSame = [&](const Job<TypeParam>& job, Shape source, Shape destination) {
        const auto room = [=](std::int64_t elements, Shape shape) {
            return Extent(shape, elements, count).elements() * static_cast<std::size_t>(job.width);
        };
        std::vector<TypeParam> x(room(job.read, source)), y(room(job.written, destination));
        for (std::size_t i = 0; i < x.size(); ++i) x[i] = i % 3 == 0 ? TypeParam{0} : i % 3 == 1 ? -TypeParam{0} : 1;
        const auto dueNow = [&] {
            return this->dueOf(job, x.data(), source, y, destination, Extent(destination, job.written, count), count);
        };
        auto due = dueNow();
        ASSERT_EQ(job.batch(x.data(), source, y.data(), destination, count), StatusOk);
        ASSERT_TRUE(sameBits(y, due));
        // One infinity in each second transform: what is not a number there counts as one and the same value.
        for (std::int64_t j = 0; j < count; j += 2)
            x[static_cast<std::size_t>(((job.read - 1) * source.step + j * source.distance + 1) * job.width - 1)] =
                std::numeric_limits<TypeParam>::infinity();
        due = dueNow();
        ASSERT_EQ(job.batch(x.data(), source, y.data(), destination, count), StatusOk);
        for (auto* values : {&y, &due})
            for (TypeParam& value : *values)
                if (value != value) value = std::numeric_limits<TypeParam>::quiet_NaN();
        ASSERT_TRUE(sameBits(y, due));
    };
    this->forEachJob([&](const Job<TypeParam>& job) {
        expectSame(job, {1, job.read}, {1, job.written});
        expectSame(job, {count, 1}, {count, 1});
        if (job.width == 2) expectSame(job, {badStep, 1}, {badStep, 1});
    });
}

TYPED_TEST(BatchTest, ChecksComeInTheirOrder) {
    for (const BatchFamily& family : batchFamilies) {
        SCOPED_TRACE(family.name);
        const auto batch =
            batchExported<Batch<TypeParam>>("zulgBatch" + (family.name + ("_" + family.suffix<TypeParam>())));
        std::vector<TypeParam> x(2 * 66 * 4), y(x.size(), 7);
        const auto untouched = y;
        constexpr std::int64_t huge = INT64_MAX / 8;
        for (const std::int32_t length : {0, 1, 65, -1, INT32_MIN, INT32_MAX}) {
            EXPECT_EQ(batch(nullptr, 1, 66, nullptr, 1, 66, length, 3, -1), StatusSizeError) << length;
        }
        EXPECT_EQ(batch(nullptr, 1, 66, y.data(), 1, 66, 64, 3, -1), StatusNullPointer);
        EXPECT_EQ(batch(x.data(), 1, 66, nullptr, 1, 66, 64, 3, -1), StatusNullPointer);
        EXPECT_EQ(batch(nullptr, 1, 66, nullptr, 1, 66, 64, 8, 0), StatusNullPointer);
        for (const std::int32_t flag : {0, 3, 5, 16, -1, INT32_MIN})
            EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 1, 66, 64, flag, -1), StatusFlagError) << flag;
        for (const std::int64_t count : {std::int64_t{-1}, INT64_MIN})
            EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 1, 66, 64, 8, count), StatusSizeError) << count;
        // Two results in one place.
        EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 0, 1, 64, 8, 4), StatusSizeError);
        EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 1, 0, 64, 8, 4), StatusSizeError);
        EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 1, 63, 64, 8, 4), StatusSizeError);
        EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 2, 3, 64, 8, 3), StatusSizeError);
        EXPECT_EQ(batch(x.data(), 1, 66, y.data(), -3, 1, 64, 8, 4), StatusSizeError);
        // Places beyond 64 bits.
        EXPECT_EQ(batch(x.data(), huge, 66, y.data(), 1, 66, 64, 8, 4), StatusSizeError);
        EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 1, huge, 64, 8, 4), StatusSizeError);
        EXPECT_EQ(batch(x.data(), 1, INT64_MIN, y.data(), 1, 66, 64, 8, 2), StatusSizeError);
        EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 1, 66, 64, 8, INT64_MAX), StatusSizeError);
        EXPECT_EQ(batch(x.data(), INT64_MAX, 66, y.data(), 1, 66, 64, 8, 2), StatusSizeError);
        // No transform has no place.
        EXPECT_EQ(batch(x.data(), huge, huge, y.data(), 0, 0, 64, 8, 0), StatusOk);
        EXPECT_TRUE(sameBits(y, untouched));
    }
}

TYPED_TEST(BatchTest, TakesNoMoreStackThanTheHeaderSays) {
    std::ptrdiff_t deepest = 0;
    this->forEachJob([&](const Job<TypeParam>& job) {
        const std::int64_t count = 9, room = std::max(job.read, job.written);
        std::vector<TypeParam> x(static_cast<std::size_t>(badStep * room * job.width));
        for (const Shape shape : {Shape{1, room}, Shape{count, 1}, Shape{2, 2 * room}, Shape{badStep, 1}}) {
            deepest = std::max(deepest, stackDepth([&] { job.batch(x.data(), shape, x.data(), shape, count); }));
        }
    });
    EXPECT_GT(deepest, 0);
    EXPECT_LE(deepest, 6144);
    this->RecordProperty("deepest", std::to_string(deepest));
}

TYPED_TEST(BatchTest, ThreadsShareASource) {
    const auto job = jobOf<TypeParam>(batchFamilies[0], 16, NoDivByAny);
    const std::int64_t count = 64;
    const auto x = this->randomElements(static_cast<int>(count * job.read * 2));
    std::vector<TypeParam> due(x.size());
    ASSERT_EQ(job.batch(x.data(), {1, 16}, due.data(), {1, 16}, count), StatusOk);
    std::vector<std::vector<TypeParam>> results(4, std::vector<TypeParam>(x.size()));
    std::vector<std::thread> threads;
    for (auto& y : results) {
        threads.emplace_back([&] {
            for (int i = 0; i < 200; ++i) job.batch(x.data(), {1, 16}, y.data(), {1, 16}, count);
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (const auto& y : results) EXPECT_TRUE(sameBits(y, due));
}

// -- Computed in single -----------------------------------------------------------------------------------------------

// One transform is a batch of one.
Job<float> jobInSingle(const BatchFamily& family, int length, int flag) {
    const auto batch = batchExported<Batch<float>>("zulgBatchSingle" + (family.name + ("_" + family.suffix<float>())));
    Job<float> job = jobOf<float>(family, length, flag);
    const std::int64_t read = job.read, written = job.written;
    job.one = [=](const float* from, float* to) { return batch(from, 1, read, to, 1, written, length, flag, 1); };
    job.batch = [=](const float* from, Shape source, float* to, Shape destination, std::int64_t count) {
        return batch(from, source.step, source.distance, to, destination.step, destination.distance, length, flag,
                     count);
    };
    return job;
}

class BatchInSingleTest : public BatchTest<float> {
protected:
    // Over so many transforms, each at a scale of its own, in units of 2^-24. Held against the transform in double of
    // the same input, which has errors 2^29 times as small.
    double pooledError(const BatchFamily& family, int length, std::int64_t count) {
        const auto inSingle = jobInSingle(family, length, NoDivByAny);
        const auto exact = jobOf<double>(family, length, NoDivByAny);
        std::vector<float> x;
        for (std::int64_t i = 0; i < count; ++i) {
            const auto one = randomElements(static_cast<int>(inSingle.read * inSingle.width));
            x.insert(x.end(), one.begin(), one.end());
        }
        const std::vector<double> wide(x.begin(), x.end());
        std::vector<float> y(static_cast<std::size_t>(count * inSingle.written * inSingle.width));
        std::vector<double> due(y.size());
        const Shape source{1, inSingle.read}, destination{1, inSingle.written};
        EXPECT_EQ(inSingle.batch(x.data(), source, y.data(), destination, count), StatusOk);
        EXPECT_EQ(exact.batch(wide.data(), source, due.data(), destination, count), StatusOk);
        double errors = 0, squares = 0;
        for (std::size_t i = 0; i < y.size(); ++i) {
            errors += (y[i] - due[i]) * (y[i] - due[i]);
            squares += due[i] * due[i];
        }
        return std::sqrt(errors / squares) / 0x1p-24;
    }
};

TEST_F(BatchInSingleTest, EveryShapeAndCountGivesTheSameBits) {
    for (const BatchFamily& family : batchFamilies) {
        for (int length = 2; length <= 64; ++length) {
            SCOPED_TRACE(testing::Message() << family.name << ", " << length);
            const auto job = jobInSingle(family, length, flags[length % 4]);
            for (const std::int64_t count : {0, 1, 3, 8, 13, 17}) {
                const std::int64_t many = std::max<std::int64_t>(count, 1);
                expectOneByOne(job, {1, job.read}, {1, job.written}, count, count % 2 == 0);
                expectOneByOne(job, {many, 1}, {many, 1}, count, count % 2 == 0);
                expectOneByOne(job, randomShape(job.read, count), randomShape(job.written, count), count, true);
                if (HasFatalFailure()) return;
            }
            expectInPlace(job, {1, std::max(job.read, job.written)}, 9);
            expectInPlace(job, {9, 1}, 9);
            if (job.width == 2) expectOneByOne(job, {badStep, 1}, {badStep, 1}, 13, true);
        }
    }
}

// The greatest, of Hartley transforms of 26 points, is near to 1.49. Few inputs cannot tell that from the bound.
TEST_F(BatchInSingleTest, PooledErrorsAreWhatTheHeaderSays) {
    double greatest = 0;
    for (const BatchFamily& family : batchFamilies) {
        for (int length = 2; length <= 64; ++length) {
            double error = pooledError(family, length, 512);
            if (error > 1.42) error = pooledError(family, length, 32768);
            EXPECT_LT(error, 1.5) << family.name << ", " << length;
            greatest = std::max(greatest, error);
        }
    }
    EXPECT_GT(greatest, 0.6) << "the errors are those of every step";
    RecordProperty("greatest", std::to_string(greatest));
}

TEST_F(BatchInSingleTest, ChecksAreThoseOfTheOtherRoutines) {
    const auto batch = batchExported<Batch<float>>("zulgBatchSingleDFTFwd_RToCCS_32f");
    std::vector<float> x(300), y(300, 7);
    const auto untouched = y;
    EXPECT_EQ(batch(nullptr, 1, 66, nullptr, 1, 66, 65, 3, -1), StatusSizeError);
    EXPECT_EQ(batch(nullptr, 1, 66, y.data(), 1, 66, 64, 3, -1), StatusNullPointer);
    EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 1, 66, 64, 3, -1), StatusFlagError);
    EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 1, 66, 64, 8, -1), StatusSizeError);
    EXPECT_EQ(batch(x.data(), 1, 66, y.data(), 1, 65, 64, 8, 2), StatusSizeError);
    EXPECT_TRUE(sameBits(y, untouched));
}

// -- Walsh-Hadamard ---------------------------------------------------------------------------------------------------

template <class Element>
class BatchWhtTest : public BatchTest<Element> {
protected:
    BatchWht<Element> batch = batchExported<BatchWht<Element>>(exportedName<Element>("zulgBatchWHT"));
    BatchSize size = batchExported<BatchSize>(exportedName<Element>("zulgBatchWHTGetBufferSize"));
    WhtDispatcher<Element> one = exported<WhtDispatcher<Element>>(exportedName<Element>("zulgWHT"));

    Job<Element> jobOf(int order, int flag, Element* pBuffer) {
        return {1, 1 << order, 1 << order,
                [=, this](const Element* from, Element* to) {
                    std::vector<Element> own(std::size_t{3} << order);
                    return one(from, to, order, flag, own.data());
                },
                [=, this](const Element* from, Shape source, Element* to, Shape destination, std::int64_t count) {
                    return batch(from, source.step, source.distance, to, destination.step, destination.distance, order,
                                 flag, count, pBuffer);
                }};
    }
};
TYPED_TEST_SUITE(BatchWhtTest, Elements, ElementNames);

TYPED_TEST(BatchWhtTest, GivesTheBitsOfSingleCalls) {
    for (int order = 1; order <= 13; ++order) {
        SCOPED_TRACE(order);
        std::int32_t bytes = -1;
        ASSERT_EQ(this->size(order, &bytes), StatusOk);
        // The buffer of a single call, and the elements of one transform.
        std::int32_t ofSingle = -1;
        ASSERT_EQ(exported<BatchSize>(exportedName<TypeParam>("zulgWHTGetBufferSize"))(order, &ofSingle), StatusOk);
        EXPECT_EQ(bytes, order <= 7 ? 0 : ofSingle + (static_cast<int>(sizeof(TypeParam)) << order));
        const GuardedPages buffer(static_cast<std::size_t>(bytes) + 1);
        auto* const pBuffer =
            bytes == 0 ? nullptr : reinterpret_cast<TypeParam*>(buffer.atRear(static_cast<std::size_t>(bytes)));
        const auto job = this->jobOf(order, flags[order % 4], pBuffer);
        for (int i = 0; i < 8; ++i) {
            const std::int64_t count = i, points = job.read;
            this->expectOneByOne(job, this->randomShape(points, count), this->randomShape(points, count), count, true);
            if (this->HasFatalFailure()) return;
        }
        this->expectInPlace(job, {1, job.read}, 3);
        this->expectInPlace(job, {3, 1}, 3);
    }
}

TYPED_TEST(BatchWhtTest, ChecksComeInTheirOrder) {
    std::vector<TypeParam> x(4 * 256), y(x.size(), 7);
    const auto untouched = y;
    for (const std::int32_t order : {0, 14, -1, INT32_MIN}) {
        std::int32_t bytes = 5;
        EXPECT_EQ(this->size(order, &bytes), StatusSizeError);
        EXPECT_EQ(bytes, 5);
        EXPECT_EQ(this->batch(nullptr, 1, 1, nullptr, 1, 1, order, 3, -1, nullptr), StatusSizeError);
    }
    EXPECT_EQ(this->batch(nullptr, 1, 128, y.data(), 1, 128, 7, 3, -1, nullptr), StatusNullPointer);
    EXPECT_EQ(this->batch(x.data(), 1, 128, nullptr, 1, 128, 7, 3, -1, nullptr), StatusNullPointer);
    EXPECT_EQ(this->batch(x.data(), 1, 256, y.data(), 1, 256, 8, 3, -1, nullptr), StatusNullPointer);
    EXPECT_EQ(this->batch(x.data(), 1, 128, y.data(), 1, 128, 7, 3, -1, nullptr), StatusFlagError);
    EXPECT_EQ(this->batch(x.data(), 1, 128, y.data(), 1, 128, 7, 8, -1, nullptr), StatusSizeError);
    EXPECT_EQ(this->batch(x.data(), 1, 128, y.data(), 1, 127, 7, 8, 2, nullptr), StatusSizeError);
    EXPECT_EQ(this->batch(x.data(), INT64_MAX, 128, y.data(), 1, 128, 7, 8, 2, nullptr), StatusSizeError);
    EXPECT_TRUE(sameBits(y, untouched));
}

// -- DCT-IV -----------------------------------------------------------------------------------------------------------

template <class Element>
class BatchDct4Test : public BatchTest<Element> {
protected:
    using Plan = zulg::DctPlan;
    BatchDct4<Element, Plan> batch = batchExported<BatchDct4<Element, Plan>>(exportedName<Element>("zulgBatchDCT4"));
    BatchSize size = batchExported<BatchSize>(exportedName<Element>("zulgBatchDCT4GetBufferSize"));

    Job<Element> jobOf(int length, Plan* plan, Element* pBuffer) {
        return {1, length, length,
                [=](const Element* from, Element* to) { return dct4Routines<Element>().run(from, to, plan); },
                [=, this](const Element* from, Shape source, Element* to, Shape destination, std::int64_t count) {
                    return batch(from, source.step, source.distance, to, destination.step, destination.distance, plan,
                                 count, pBuffer);
                }};
    }
};
TYPED_TEST_SUITE(BatchDct4Test, Elements, ElementNames);

TYPED_TEST(BatchDct4Test, GivesTheBitsOfSingleCalls) {
    for (int length = 2; length <= 8192; length *= 2) {
        SCOPED_TRACE(length);
        Planned<TypeParam> planned(length);
        std::int32_t bytes = 0;
        ASSERT_EQ(this->size(length, &bytes), StatusOk);
        EXPECT_EQ(bytes, length * static_cast<int>(sizeof(TypeParam)));
        const GuardedPages buffer(static_cast<std::size_t>(bytes));
        const auto job = this->jobOf(length, planned.plan,
                                     reinterpret_cast<TypeParam*>(buffer.atRear(static_cast<std::size_t>(bytes))));
        for (int i = 0; i < 6; ++i) {
            this->expectOneByOne(job, this->randomShape(length, i), this->randomShape(length, i), i, true);
            if (this->HasFatalFailure()) return;
        }
        this->expectInPlace(job, {1, length}, 3);
        this->expectInPlace(job, {3, 1}, 3);
        const auto withoutBuffer = this->jobOf(length, planned.plan, nullptr);
        this->expectOneByOne(withoutBuffer, {1, length}, {1, length + 1}, 3, true);
        std::vector<TypeParam> x(static_cast<std::size_t>(2 * length));
        EXPECT_LE(stackDepth([&] { withoutBuffer.batch(x.data(), {1, length}, x.data(), {1, length}, 2); }), 13 * 1024);
    }
}

TYPED_TEST(BatchDct4Test, ChecksComeInTheirOrder) {
    Planned<TypeParam> planned(64);
    std::vector<TypeParam> x(4 * 64), y(x.size(), 7), buffer(64);
    const auto untouched = y;
    constexpr std::int32_t longest = 1 << 27;
    std::int32_t bytes = 5;
    for (const std::int32_t length : {1, 0, -1, INT32_MIN, longest + 1, INT32_MAX}) {
        EXPECT_EQ(this->size(length, &bytes), StatusSizeError);
        EXPECT_EQ(bytes, 5);
    }
    EXPECT_EQ(this->size(longest, &bytes), StatusOk);
    EXPECT_EQ(bytes, longest * static_cast<int>(sizeof(TypeParam)));
    auto* const plan = planned.plan;
    EXPECT_EQ(this->batch(nullptr, 1, 64, y.data(), 1, 64, plan, -1, nullptr), StatusNullPointer);
    EXPECT_EQ(this->batch(x.data(), 1, 64, nullptr, 1, 64, plan, -1, nullptr), StatusNullPointer);
    EXPECT_EQ(this->batch(x.data(), 1, 64, y.data(), 1, 64, nullptr, -1, nullptr), StatusNullPointer);
    EXPECT_EQ(this->batch(x.data(), 2, 1, y.data(), 1, 64, plan, 2, nullptr), StatusNullPointer);
    EXPECT_EQ(this->batch(x.data(), 1, 64, y.data(), 2, 1, plan, 2, nullptr), StatusNullPointer);
    EXPECT_EQ(this->batch(x.data(), 1, 64, y.data(), 1, 64, plan, -1, nullptr), StatusSizeError);
    EXPECT_EQ(this->batch(x.data(), 1, 64, y.data(), 1, 63, plan, 2, nullptr), StatusSizeError);
    EXPECT_EQ(this->batch(x.data(), 1, INT64_MAX, y.data(), 1, 64, plan, 2, nullptr), StatusSizeError);
    EXPECT_TRUE(sameBits(y, untouched));
    std::vector<std::int32_t> noPlan(64);
    EXPECT_EQ(
        this->batch(x.data(), 1, 64, y.data(), 1, 64, reinterpret_cast<zulg::DctPlan*>(noPlan.data()), -1, nullptr),
        StatusPlanKindError);
}

// -- Shapes -----------------------------------------------------------------------------------------------------------

TEST(BatchShapes, AreDistinctWhereNoTwoElementsAreInOnePlace) {
    for (int step = -7; step <= 7; ++step) {
        for (int distance = -7; distance <= 7; ++distance) {
            for (int elements = 1; elements <= 6; ++elements) {
                for (int count = 1; count <= 6; ++count) {
                    std::vector<bool> taken(200);
                    bool due = true;
                    for (int k = 0; k < elements; ++k) {
                        for (int j = 0; j < count; ++j) {
                            const auto place = static_cast<std::size_t>(100 + k * step + j * distance);
                            due = due && !taken[place];
                            taken[place] = true;
                        }
                    }
                    ASSERT_EQ(zulg::isDistinct({step, distance}, elements, count), due)
                        << step << ", " << distance << ", " << elements << ", " << count;
                }
            }
        }
    }
}

// A way of a cache has 4096 bytes and a line 64: eight elements at one place of a way are all that stay.
TEST(BatchShapes, AreSlowWhereElementsShareSetsOfACache) {
    using zulg::isBadStep;
    EXPECT_FALSE(isBadStep(256, 16, 8));
    EXPECT_TRUE(isBadStep(256, 16, 9));
    EXPECT_TRUE(isBadStep(-256, 16, 9));
    EXPECT_TRUE(isBadStep(512, 8, 9));
    EXPECT_TRUE(isBadStep(1024, 16, 9));
    EXPECT_FALSE(isBadStep(1024, 16, 8));
    EXPECT_TRUE(isBadStep(3 * 256, 16, 9));
    EXPECT_FALSE(isBadStep(128, 16, 16));
    EXPECT_TRUE(isBadStep(128, 16, 17));
    EXPECT_FALSE(isBadStep(255, 16, 64));
    EXPECT_FALSE(isBadStep(0, 16, 64));
    EXPECT_TRUE(isBadStep(std::numeric_limits<std::int64_t>::min() / 16, 16, 9));
}

TEST(BatchShapes, FitWhereEveryPlaceHas64Bits) {
    EXPECT_TRUE(zulg::fits({INT64_MAX / 16, 0}, 2, 1, 16));
    EXPECT_FALSE(zulg::fits({INT64_MAX / 16 + 1, 0}, 2, 1, 16));
    EXPECT_TRUE(zulg::fits({1, INT64_MAX / 8 - 1}, 2, 2, 8));
    EXPECT_FALSE(zulg::fits({1, INT64_MAX / 8}, 2, 2, 8));
    EXPECT_TRUE(zulg::fits({INT64_MIN / 8, INT64_MAX / 8}, 2, 2, 8));
    EXPECT_FALSE(zulg::fits({INT64_MIN, 1}, 2, 1, 4));
    EXPECT_FALSE(zulg::fits({1, 1}, 64, INT64_MAX, 4));
    EXPECT_FALSE(zulg::fits({1, 1}, 64, 1ll << 62, 4));
    EXPECT_TRUE(zulg::fits({INT64_MIN, INT64_MIN}, 1, 1, 16)) << "neither is used";
    EXPECT_FALSE(zulg::fits({INT64_MAX, 1}, 3, 2, 4)) << "only the step is large";
    EXPECT_FALSE(zulg::fits({1, INT64_MIN}, 2, 3, 4)) << "only the distance is large";
    EXPECT_TRUE(zulg::fits({1 - (1 << 24), 1 - (1 << 24)}, INT32_MAX, INT32_MAX, 16));
    EXPECT_TRUE(zulg::fits({1 << 24, 1 << 24}, INT32_MAX, 1ll << 31, 16));
}

}  // namespace
}  // namespace test
