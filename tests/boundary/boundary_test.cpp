// The boundary: version record, dispatchers, and the order of checks where no kernel is reached.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "tests/exports.h"
#include "tests/transforms/transform.h"

namespace test {
namespace {

TEST(Version, TheRecordHoldsItsNumbers) {
    const auto call = exported<const LibVersion*(ZULG_CALL*)()>("zulgenGetLibVersion");
    const LibVersion* const version = call();
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version->major, 7);
    EXPECT_EQ(version->minor, 0);
    EXPECT_EQ(version->major, ZULG_VERSION_MAJOR);
    EXPECT_EQ(version->minor, ZULG_VERSION_MINOR);
    EXPECT_EQ(version->majorBuild, 205);
    EXPECT_EQ(version->build, 544);
    EXPECT_EQ(std::memcmp(version->targetCpu, "px\0\0", 4), 0);
    EXPECT_STREQ(version->name, "zulgenpx-7.0.dll");
    EXPECT_STREQ(version->version, "7.0 build 205.58");
    EXPECT_STREQ(version->buildDate, "Apr 18 2011");
    EXPECT_EQ(call(), version) << "another address at the second call";
}

TEST(Exports, OtherNamesAreNotExported) {
    EXPECT_EQ(exportedAddress("zulgDFTFwd_CToC_1_32fc"), nullptr);
    EXPECT_EQ(exportedAddress("zulgDFTFwd_CToC_65_32fc"), nullptr);
    EXPECT_EQ(exportedAddress("zulgSlots"), nullptr);
}

// The transforms of one length, one for each dispatcher.
std::vector<Transform> ofLength(int length) {
    std::vector<Transform> chosen;
    for (const Transform& transform : dftTransforms()) {
        if (transform.length == length) chosen.push_back(transform);
    }
    return chosen;
}

class DispatcherTest : public testing::TestWithParam<Transform> {
protected:
    // The status of a call. Calls that are to be refused never touch the arrays, so that small ones will do.
    ZulgStatus call(const void* from, void* to, int length, int flag) {
        const std::string name = GetParam().dispatcherName();
        return GetParam().isSingle() ? exported<Dispatcher<float>>(name)(static_cast<const float*>(from),
                                                                         static_cast<float*>(to), length, flag)
                                     : exported<Dispatcher<double>>(name)(static_cast<const double*>(from),
                                                                          static_cast<double*>(to), length, flag);
    }

    double source[256] = {}, destination[256] = {};
};

TEST_P(DispatcherTest, RefusesALengthOutOfRangeBeforeAnythingElse) {
    for (int length : {1, 65, 0, -1, -2, 66, 128, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        for (int flag : {1, 2, 4, 8, 0, 3, 16, -1}) {
            EXPECT_EQ(call(source, destination, length, flag), StatusSizeError) << length;
            EXPECT_EQ(call(nullptr, destination, length, flag), StatusSizeError) << length;
            EXPECT_EQ(call(source, nullptr, length, flag), StatusSizeError) << length;
            EXPECT_EQ(call(nullptr, nullptr, length, flag), StatusSizeError) << length;
        }
    }
}

TEST_P(DispatcherTest, LeavesAllOtherChecksToTheKernel) {
    for (int length : {2, 64}) {
        EXPECT_EQ(call(nullptr, destination, length, 8), StatusNullPointer);
        EXPECT_EQ(call(source, nullptr, length, 8), StatusNullPointer);
        EXPECT_EQ(call(nullptr, destination, length, 3), StatusNullPointer);
        EXPECT_EQ(call(source, destination, length, 3), StatusFlagError);
        EXPECT_EQ(call(source, destination, length, 8), StatusOk);
    }
}

TEST_P(DispatcherTest, ReachesEveryLength) {
    for (int length = 2; length <= 64; ++length) EXPECT_EQ(call(source, destination, length, 8), StatusOk) << length;
}

INSTANTIATE_TEST_SUITE_P(All, DispatcherTest, testing::ValuesIn(ofLength(2)),
                         [](const testing::TestParamInfo<Transform>& test) { return test.param.dispatcherName(); });

}  // namespace
}  // namespace test
