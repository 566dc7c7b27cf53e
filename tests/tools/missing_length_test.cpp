// The messages about sizes that do not exist, that exist in one direction only, or that the library must not be asked
// about. The families are made up for this, so that the tests do not depend on the sizes of the library.
#include <gtest/gtest.h>

#include <algorithm>

#include "tools/transform.h"
#include "tools/user_error.h"

namespace spectrum {
namespace {

// The transform in both directions: it gives the numbers themselves.
template <typename T>
ZulgStatus copied(bool exists, const T* from, T* to, const Call& call) {
    if (!exists) return StatusSizeError;
    if (from == nullptr || to == nullptr) return StatusNullPointer;
    if (call.flag != 1 && call.flag != 2 && call.flag != 4 && call.flag != 8) return StatusFlagError;
    std::copy_n(from, call.size, to);
    return StatusOk;
}

template <typename T>
ZulgStatus thereFrom3To9And12(const T* points, T* bins, const Call& call) {
    return copied((call.size >= 3 && call.size <= 9) || call.size == 12, points, bins, call);
}

template <typename T>
ZulgStatus backBut6And9(const T* bins, T* points, const Call& call) {
    return copied(call.size != 6 && call.size != 9, bins, points, call);
}

// Accepts each size from 4 to 64, and fails the test when it is asked for one that is no power of two.
template <typename T>
ZulgStatus anyFrom4To64(const T* from, T* to, const Call& call) {
    EXPECT_EQ(call.size & (call.size - 1), 0) << call.size;
    return copied(call.size >= 4 && call.size <= 64, from, to, call);
}

constexpr Family familyOf(Sizes sizes, Routines<float> single, Routines<double> wide) {
    return {
        .name = "echo",
        .sizes = sizes,
        .takesFlag = true,
        .numbersInPoint = 1,
        .numbersInBin = 1,
        .binCount = [](int length) { return length; },
        .axis = Axis::Frequency,
        .position = [](int bin, int length) { return double(bin) / length; },
        .shownCount = [](int length) { return length; },
        .shownBin = [](int place, int) { return place; },
        .magnitude = [](ConstBins bins, int bin) { return std::abs(bins[static_cast<std::size_t>(bin)]); },
        .powers = [](ConstBins, std::span<double>) {},
        .restoringFlag = [](std::int32_t flag) { return flag; },
        .single = single,
        .wide = wide,
    };
}

constexpr Family lengths =
    familyOf(Sizes::Lengths, {nullptr, nullptr, thereFrom3To9And12<float>, backBut6And9<float>, nullptr},
             {nullptr, nullptr, thereFrom3To9And12<double>, backBut6And9<double>, nullptr});
constexpr Family powers =
    familyOf(Sizes::PowersOfTwo, {nullptr, nullptr, anyFrom4To64<float>, anyFrom4To64<float>, nullptr},
             {nullptr, nullptr, anyFrom4To64<double>, anyFrom4To64<double>, nullptr});
constexpr Family orders = familyOf(Sizes::Orders, lengths.single, lengths.wide);

// The message, which is empty where there is such a transform.
std::string refusal(Framing framing, bool check) {
    framing.precision = Precision::Double;
    try {
        const Transform transform(framing, check ? "--check" : nullptr);
    } catch (const UserError& error) {
        return error.what();
    }
    return "";
}

std::string refusal(int length, bool check, std::int32_t flag = DivInvByN, const Family& family = lengths) {
    Framing framing{};
    framing.family = &family;
    framing.length = framing.size = length;
    framing.flag = flag;
    return refusal(framing, check);
}

std::string refusalOfOrder(int order, int length, bool byOrder) {
    Framing framing{};
    framing.family = &orders;
    framing.length = length;
    framing.size = order;
    framing.byOrder = byOrder;
    framing.flag = NoDivByAny;
    return refusal(framing, false);
}

TEST(MissingLength, IsReportedWithTheLengthsThatExist) {
    for (bool check : {false, true}) {
        for (int length : {-1, 0, 2, 10, 13, 64, 65, longestFrame, longestFrame + 1}) {
            EXPECT_EQ(refusal(length, check), "--length " + std::to_string(length) +
                                                  ": no transform of this length; the echo family has 3-9, 12");
        }
        for (int length : {3, 5, 7, 8, 12}) EXPECT_EQ(refusal(length, check), "");
    }
}

TEST(MissingLength, OfTheInverseMattersOnlyToTheCheck) {
    for (int length : {6, 9}) {
        EXPECT_EQ(refusal(length, false), "");
        EXPECT_EQ(refusal(length, true), "--check at --length " + std::to_string(length) +
                                             ": no transform of this length back to the samples; both ways, the echo "
                                             "family has 3-5, 7-8, 12");
    }
}

TEST(MissingLength, OutranksABadFlag) {
    EXPECT_EQ(refusal(2, true, 3).find("--length 2: "), 0u);
    EXPECT_EQ(refusal(6, true, 3).find("--flag 3: "), 0u);
}

TEST(LengthThatIsNoPowerOfTwo, IsNeverAskedForInAFamilyOfPowers) {
    for (int length : {-8, 0, 3, 5, 9, 17, 33, 63, 65, longestFrame + 1}) {
        EXPECT_EQ(
            refusal(length, true, NoDivByAny, powers),
            "--length " + std::to_string(length) + ": not a power of two; the echo family has the powers of two 4-64");
    }
    for (int length : {1, 2, 128, longestFrame}) {
        EXPECT_EQ(refusal(length, false, NoDivByAny, powers),
                  "--length " + std::to_string(length) +
                      ": no transform of this length; the echo family has the powers of two 4-64");
    }
    for (int length : {4, 8, 16, 32, 64}) EXPECT_EQ(refusal(length, true, NoDivByAny, powers), "");
}

TEST(LengthThatIsTooLongForAFrame, IsNeverAskedFor) {
    EXPECT_EQ(refusal(2 * longestFrame, false, NoDivByAny, powers),
              "--length 2097152: too long for one frame; the echo family has the powers of two 4-64");
}

TEST(MissingOrder, IsReportedInTheWordsThatAskForIt) {
    EXPECT_EQ(refusalOfOrder(3, 8, true), "");
    EXPECT_EQ(refusalOfOrder(12, 4096, false), "");
    for (int order : {-1, 0, 2, 13, 20, 21, 31, 1000}) {
        EXPECT_EQ(refusalOfOrder(order, 0, true), "--order " + std::to_string(order) +
                                                      ": no transform of this order; the echo family has the orders "
                                                      "3-9, 12");
    }
    EXPECT_EQ(refusalOfOrder(2, 4, false),
              "--length 4: no transform of this length; the echo family has the orders 3-9, 12");
    EXPECT_EQ(refusalOfOrder(0, 60, false), "--length 60: not a power of two; the echo family has the orders 3-9, 12");
}

}  // namespace
}  // namespace spectrum
