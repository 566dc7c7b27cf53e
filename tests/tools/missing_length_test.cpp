// What is said of lengths that do not exist, or only in one direction: asked of a family made up for this, so that it
// does not depend on the lengths of the library.
#include <gtest/gtest.h>

#include "tools/transform.h"
#include "tools/user_error.h"

namespace spectrum {
namespace {

ZulgStatus answer(bool exists, std::int32_t flag) {
    if (!exists) return StatusSizeError;
    return flag == 1 || flag == 2 || flag == 4 || flag == 8 ? StatusOk : StatusFlagError;
}

// There and back: the samples themselves.
template <typename T>
ZulgStatus thereFrom3To9And12(const T* samples, std::complex<T>* bins, int length, std::int32_t flag) {
    const ZulgStatus status = answer((length >= 3 && length <= 9) || length == 12, flag);
    for (int i = 0; status == StatusOk && i < length; ++i) bins[i] = samples[i];
    return status;
}

template <typename T>
ZulgStatus backBut6And9(const std::complex<T>* bins, std::complex<T>* points, int length, std::int32_t flag) {
    const ZulgStatus status = answer(length != 6 && length != 9, flag);
    for (int i = 0; status == StatusOk && i < length; ++i) points[i] = bins[i];
    return status;
}

constexpr Family family = {
    .name = "echo",
    .binCount = [](int length) { return length; },
    .shownCount = [](int length) { return length; },
    .frequency = [](int bin, int length) { return double(bin) / length; },
    .magnitude = [](ConstBins bins, int bin) { return std::abs(bins[static_cast<std::size_t>(bin)]); },
    .restoringFlag = [](std::int32_t flag) { return flag; },
    .single = {thereFrom3To9And12<float>, backBut6And9<float>},
    .wide = {thereFrom3To9And12<double>, backBut6And9<double>},
};

// Empty where there is such a transform.
std::string refusal(int length, bool check, std::int32_t flag = DivInvByN) {
    Options options{};
    options.family = &family;
    options.length = length;
    options.flag = flag;
    options.precision = Precision::Double;
    options.check = check;
    try {
        const Transform transform(options);
    } catch (const UserError& error) {
        return error.what();
    }
    return "";
}

TEST(MissingLength, isToldWithThoseThatExist) {
    for (bool check : {false, true}) {
        for (int length : {-1, 0, 2, 10, 13, 64, 65}) {
            EXPECT_EQ(refusal(length, check), "--length " + std::to_string(length) +
                                                  ": the library has no transform of this length; the echo family "
                                                  "has 3-9, 12");
        }
        for (int length : {3, 5, 7, 8, 12}) EXPECT_EQ(refusal(length, check), "");
    }
}

TEST(MissingLength, mattersBackwardOnlyToTheCheck) {
    for (int length : {6, 9}) {
        EXPECT_EQ(refusal(length, false), "");
        EXPECT_EQ(refusal(length, true), "--check at --length " + std::to_string(length) +
                                             ": the library has no transform of this length back to the samples; "
                                             "both ways, the echo family has 3-5, 7-8, 12");
    }
}

TEST(MissingLength, outranksABadFlag) {
    EXPECT_EQ(refusal(2, true, 3).find("--length 2: "), 0u);
    EXPECT_EQ(refusal(6, true, 3).find("--flag 3: "), 0u);
}

}  // namespace
}  // namespace spectrum
