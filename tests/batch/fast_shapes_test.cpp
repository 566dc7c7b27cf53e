// Which transforms of a batch are done several at once. Bits cannot tell, since one by one they are the same: so this
// program has the dispatchers of the main library itself, which the batch library then finds first, and counts its
// calls of them. What is left over after full registers is done one by one, and so is every shape that is not fast.
#include <dlfcn.h>

#include <cstdlib>

#include "tests/batch/batches.h"

namespace {

int calls;

template <class Routine>
Routine ofLibrary(const char* name) {
    return reinterpret_cast<Routine>(test::requiredAddress(name));
}

}  // namespace

#define COUNTED(name, Element)                                                                                  \
    extern "C" __attribute__((visibility("default"))) ZulgStatus name(const Element* pSrc, Element* pDst,       \
                                                                      std::int32_t length, std::int32_t flag) { \
        ++calls;                                                                                                \
        return ofLibrary<decltype(&name)>(#name)(pSrc, pDst, length, flag);                                     \
    }
COUNTED(zulgDFTFwd_CToC_32fc, Zulg32fc)
COUNTED(zulgDFTFwd_CToC_64fc, Zulg64fc)
COUNTED(zulgDFTInv_CToC_32fc, Zulg32fc)
COUNTED(zulgDFTInv_CToC_64fc, Zulg64fc)
COUNTED(zulgDFTFwd_RToCCS_32f, float)
COUNTED(zulgDFTFwd_RToCCS_64f, double)
COUNTED(zulgDFTFwd_RToPack_32f, float)
COUNTED(zulgDFTFwd_RToPack_64f, double)
COUNTED(zulgDFTFwd_RToPerm_32f, float)
COUNTED(zulgDFTFwd_RToPerm_64f, double)
COUNTED(zulgDFTInv_CCSToR_32f, float)
COUNTED(zulgDFTInv_CCSToR_64f, double)
COUNTED(zulgDFTInv_PackToR_32f, float)
COUNTED(zulgDFTInv_PackToR_64f, double)
COUNTED(zulgDFTInv_PermToR_32f, float)
COUNTED(zulgDFTInv_PermToR_64f, double)
COUNTED(zulgHartley_32f, float)
COUNTED(zulgHartley_64f, double)
#undef COUNTED

namespace test {
namespace {

// What the tests are for: a processor with AVX2, whose registers hold this many transforms in double.
constexpr std::int64_t copiesOf(const BatchFamily& family) { return family.width == 2 ? 2 : 4; }

template <class Element>
class FastShapesTest : public ElementTest<Element> {
protected:
    void SetUp() override {
        if (!__builtin_cpu_supports("avx2")) GTEST_SKIP() << "this processor has no AVX2";
    }

    // How many transforms of a batch are done one by one.
    std::int64_t callsOf(const Job<Element>& job, Shape source, Shape destination, std::int64_t count) {
        const auto room = static_cast<std::size_t>(2 * 66 * std::max(source.step, destination.step) +
                                                   2 * count * std::max(source.distance, destination.distance));
        const std::vector<Element> x(room, 1);
        std::vector<Element> y(room);
        calls = 0;
        EXPECT_EQ(job.batch(x.data(), source, y.data(), destination, count), StatusOk);
        return calls;
    }
};

TYPED_TEST_SUITE(FastShapesTest, Elements, ElementNames);

TYPED_TEST(FastShapesTest, TransformsSideBySideAreDoneSeveralAtOnce) {
    for (const BatchFamily& family : batchFamilies) {
        for (int length = 2; length <= 64; ++length) {
            const auto job = jobOf<TypeParam>(family, length, NoDivByAny);
            for (std::int64_t count = 1; count <= 9; ++count) {
                ASSERT_EQ(this->callsOf(job, {count, 1}, {count, 1}, count), count % copiesOf(family))
                    << family.name << ", " << length << ", " << count;
            }
        }
    }
}

TYPED_TEST(FastShapesTest, BadStepsLeaveNoMoreToSingleCalls) {
    for (const BatchFamily& family : batchFamilies) {
        const auto job = jobOf<TypeParam>(family, 16, NoDivByAny);
        for (std::int64_t count = 1; count <= 9; ++count)
            ASSERT_EQ(this->callsOf(job, {512, 1}, {512, 1}, count), count % copiesOf(family)) << family.name;
    }
}

TYPED_TEST(FastShapesTest, ShortTransformsOneAfterTheOtherAreToo) {
    for (const BatchFamily& family : batchFamilies) {
        for (int length = 2; length <= (family.width == 2 ? 16 : 8); ++length) {
            const auto job = jobOf<TypeParam>(family, length, NoDivByAny);
            for (std::int64_t count = 1; count <= 9; ++count) {
                ASSERT_EQ(this->callsOf(job, {1, job.read}, {1, job.written}, count), count % copiesOf(family))
                    << family.name << ", " << length << ", " << count;
            }
        }
    }
}

TYPED_TEST(FastShapesTest, OtherShapesAreDoneOneByOne) {
    for (const BatchFamily& family : batchFamilies) {
        const auto job = jobOf<TypeParam>(family, 8, NoDivByAny);
        const std::int64_t longer = std::max(job.read, job.written);
        EXPECT_EQ(this->callsOf(job, {1, longer}, {8, 1}, 8), 8) << family.name;
        EXPECT_EQ(this->callsOf(job, {8, 1}, {1, longer}, 8), 8) << family.name;
        EXPECT_EQ(this->callsOf(job, {2, 2 * longer}, {2, 2 * longer}, 4), 4) << family.name;
    }
}

// In single nothing is done one by one, whatever the shape.
TEST(FastShapesInSingle, AreNotNeeded) {
    if (!__builtin_cpu_supports("avx2")) GTEST_SKIP() << "this processor has no AVX2";
    std::vector<float> x(4096, 1), y(4096);
    for (const BatchFamily& family : batchFamilies) {
        const auto batch =
            batchExported<Batch<float>>("zulgBatchSingle" + (family.name + ("_" + family.suffix<float>())));
        for (const int length : {2, 3, 8, 15, 16, 64}) {
            for (const Shape shape : {Shape{1, 66}, Shape{9, 1}, Shape{2, 140}}) {
                calls = 0;
                EXPECT_EQ(batch(x.data(), shape.step, shape.distance, y.data(), shape.step, shape.distance, length,
                                NoDivByAny, 9),
                          StatusOk);
                EXPECT_EQ(calls, 0) << family.name << ", " << length << ", " << shape.step;
            }
        }
    }
}

}  // namespace
}  // namespace test
