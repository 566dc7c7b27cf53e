// What a run leaves in the memory of its plan: T holds the skew transforms of the first pass, and S of each split holds
// what the last run of its passes left. A pass whose record has a kind out of range is left out without a report.
#include <cstring>
#include <utility>

#include "tests/dct4/plan_records.h"

namespace test {
namespace {

// v[s] = x[p + 2r s] in the first half, -x[2N - 1 - p - 2r s] in the second.
template <class Element>
Values foldedSequence(const std::vector<Element>& x, int r, int p) {
    const auto N = static_cast<int>(x.size()), M = N / r;
    Values v;
    for (int s = 0; s < M; ++s) {
        const int place = p + 2 * r * s;
        v.push_back(s < M / 2 ? Wide{x[static_cast<std::size_t>(place)]}
                              : -Wide{x[static_cast<std::size_t>(2 * N - 1 - place)]});
    }
    return v;
}

// u[t] = v[parts t + c].
Values decimated(const Values& v, int parts, int c) {
    Values u;
    for (std::size_t s = static_cast<std::size_t>(c); s < v.size(); s += static_cast<std::size_t>(parts))
        u.push_back(v[s]);
    return u;
}

// Relative L2 error of number `position` of R skew transforms that are side by side, over about 32 of its bins: the
// real part of bin k is at 2R k + position, its imaginary part R after it.
template <class Element>
double skewError(const Element* transforms, int R, int position, const Values& v) {
    const int M = static_cast<int>(v.size()), stride = std::max(1, M / 64) | 1, first = position % stride;
    const Values due = skewTransform(v, {first, stride});
    Wide errors = 0, squares = 0;
    for (std::size_t i = 0; i < due.size(); i += 2) {
        const int k = first + static_cast<int>(i / 2) * stride;
        const Element* const bin = transforms + static_cast<std::ptrdiff_t>(2) * R * k + position;
        errors += (bin[0] - due[i]) * (bin[0] - due[i]) + (bin[R] - due[i + 1]) * (bin[R] - due[i + 1]);
        squares += due[i] * due[i] + due[i + 1] * due[i + 1];
    }
    return static_cast<double>(std::sqrt(errors / squares));
}

template <class Element>
std::vector<Element> twice(std::vector<Element> x) {
    for (Element& value : x) value *= 2;
    return x;
}

template <class Element>
class PlanMemoryTest : public Dct4Test<Element> {
protected:
    static constexpr double errorBound = 5;  // in units of the last place, as for the whole transform

    // What S of each level must hold when the sequence v was the last to be split.
    void expectPartsOf(const Values& v, const Records<Element>& records) {
        Values whole = v;
        for (std::size_t level = 0; level < records.splits.size(); ++level) {
            const int parts = records.splits[level]->radix, length = records.plan.length;
            for (int c = 0; c < parts; c = c + 1 < parts ? std::min(parts - 1, c + std::max(1, length >> 17)) : parts) {
                EXPECT_LT(skewError(records.scratch(level), parts, c, decimated(whole, parts, c)),
                          errorBound * this->unit)
                    << length << ", level " << level << ", part " << c;
            }
            whole = decimated(whole, parts, parts - 1);
        }
    }
};

TYPED_TEST_SUITE(PlanMemoryTest, Elements, ElementNames);

TYPED_TEST(PlanMemoryTest, TheTransformsOfTheFirstPassAreInT) {
    for (int length = 64; length <= 1 << 20; length *= 2) {
        Planned<TypeParam> planned(length);
        const Records<TypeParam> records(*planned.plan);
        const int r = records.plan.radix;
        // At the long lengths only the first and the last transform are checked: a run of splits begins with the first
        // and ends with the last.
        const int step = length <= 16384 ? 1 : r - 1;
        const auto x = this->randomElements(length);
        planned.run(x);
        for (int p = 0; p < r; p += step) {
            EXPECT_LT(skewError(records.transforms(), r, p, foldedSequence(x, r, p)), this->errorBound * this->unit)
                << length << ", " << p;
        }
    }
}

// 4096 is the first length with a split, 131072 the first with two levels, 2^22 the first with three.
TYPED_TEST(PlanMemoryTest, ThePartsOfTheLastTransformAreInS) {
    for (int length : {4096, 8192, 16384, 32768, 65536, 131072, 1 << 20, 1 << 22}) {
        Planned<TypeParam> planned(length);
        const Records<TypeParam> records(*planned.plan);
        ASSERT_EQ(records.splits.size(), length < 131072 ? 1u : length < 1 << 22 ? 2u : 3u);
        const auto x = this->randomElements(length);
        planned.run(x);
        const int r = records.plan.radix;
        this->expectPartsOf(foldedSequence(x, r, r - 1), records);
    }
}

// The vectors of a plan hold elements, so that they can be copied, doubled and put back without loss.
TYPED_TEST(PlanMemoryTest, ARefusedFirstPassLeavesT) {
    for (int length : {64, 2048, 4096, 131072}) {
        Planned<TypeParam> planned(length);
        Records<TypeParam> records(*planned.plan);
        const auto x = this->randomElements(length), other = this->randomElements(length);
        const auto before = planned.run(x), due = planned.run(other);
        planned.run(x);
        const auto transforms = records.copyOfTransforms();
        const auto kind = records.fold.kind;
        for (int refused : {0, 8, -1, 1000}) {
            records.fold.kind = zulg::FoldKind{refused};
            std::copy(transforms.begin(), transforms.end(), records.transforms());
            EXPECT_EQ(planned.run(other), before) << length << ", " << refused;
            EXPECT_EQ(records.copyOfTransforms(), transforms);
            const auto doubled = twice(transforms);
            std::copy(doubled.begin(), doubled.end(), records.transforms());
            EXPECT_EQ(planned.run(other), twice(before)) << "the second pass takes what is in T";
        }
        records.fold.kind = kind;
        EXPECT_EQ(planned.run(other), due) << "mended";
    }
}

TYPED_TEST(PlanMemoryTest, ARefusedSecondPassLeavesTheResult) {
    for (int length : {64, 2048, 4096, 131072}) {
        Planned<TypeParam> planned(length);
        Records<TypeParam> records(*planned.plan);
        const auto x = this->randomElements(length);
        const auto due = planned.run(x);
        const auto transforms = records.copyOfTransforms();
        const auto kind = records.output.kind;
        for (int refused : {0, 7, -1, 1000}) {
            records.output.kind = zulg::OutputKind{refused};
            std::fill_n(records.transforms(), length, TypeParam{7});
            std::vector<TypeParam> y(x.size(), 7);
            EXPECT_EQ(this->dct4.run(x.data(), y.data(), planned.plan), StatusOk);
            EXPECT_EQ(y, std::vector<TypeParam>(x.size(), 7)) << length;
            EXPECT_EQ(records.copyOfTransforms(), transforms) << "the first pass ran";
        }
        records.output.kind = kind;
        EXPECT_EQ(planned.run(x), due) << "mended";
    }
}

TYPED_TEST(PlanMemoryTest, ASplitThatIsNotActiveLeavesTAndS) {
    for (int length : {4096, 131072}) {
        Planned<TypeParam> planned(length);
        Records<TypeParam> records(*planned.plan);
        const auto x = this->randomElements(length), other = this->randomElements(length);
        const auto due = planned.run(other), before = planned.run(x);
        const auto transforms = records.copyOfTransforms(), scratch = records.copyOfScratch(0);
        for (int active : {0, 2, -1}) {
            records.splits[0]->active = active;
            EXPECT_EQ(planned.run(other), before) << active;
            EXPECT_EQ(records.copyOfTransforms(), transforms);
            EXPECT_EQ(records.copyOfScratch(0), scratch);
        }
        records.splits[0]->active = 1;
        EXPECT_EQ(planned.run(other), due) << "mended";
    }
}

// The combine pass then takes S as it is for every transform, so that each becomes the last one of the run before.
TYPED_TEST(PlanMemoryTest, ARefusedFoldOfASplitLeavesS) {
    for (int length : {4096, 8192, 32768, 131072}) {
        Planned<TypeParam> planned(length);
        Records<TypeParam> records(*planned.plan);
        const auto x = this->randomElements(length), other = this->randomElements(length);
        const auto due = planned.run(other);
        planned.run(x);
        const auto transforms = records.copyOfTransforms(), scratch = records.copyOfScratch(0);
        const auto kind = records.step(0).kind;
        const auto r = static_cast<std::size_t>(records.plan.radix);
        for (int refused : {0, 8, -1}) {
            records.step(0).kind = zulg::FoldKind{refused};
            std::copy(scratch.begin(), scratch.end(), records.scratch(0));
            const auto y = planned.run(other);
            EXPECT_EQ(records.copyOfScratch(0), scratch);
            for (std::size_t i = 0; i < transforms.size(); ++i)
                ASSERT_EQ(records.transforms()[i], transforms[i / r * r + r - 1]) << length << ", " << i;
            const auto doubled = twice(scratch);
            std::copy(doubled.begin(), doubled.end(), records.scratch(0));
            EXPECT_EQ(planned.run(other), twice(y)) << "the combine pass takes what is in S";
        }
        records.step(0).kind = kind;
        EXPECT_EQ(planned.run(other), due) << "mended";
    }
}

TYPED_TEST(PlanMemoryTest, ARefusedCombinePassLeavesT) {
    for (int length : {4096, 8192, 32768, 131072}) {
        Planned<TypeParam> planned(length);
        Records<TypeParam> records(*planned.plan);
        const auto x = this->randomElements(length), other = this->randomElements(length);
        const auto due = planned.run(other), before = planned.run(x);
        const auto transforms = records.copyOfTransforms();
        const auto kind = records.combine(0).kind;
        const int r = records.plan.radix;
        for (int refused : {0, 6, -1}) {
            records.combine(0).kind = zulg::CombineKind{refused};
            std::fill_n(records.scratch(0), records.splits[0]->skewLength, TypeParam{7});
            EXPECT_EQ(planned.run(other), before) << length;
            EXPECT_EQ(records.copyOfTransforms(), transforms);
            this->expectPartsOf(foldedSequence(other, r, r - 1), records);
        }
        records.combine(0).kind = kind;
        EXPECT_EQ(planned.run(other), due) << "mended";
    }
}

// One level down the destination is S of the level above, and the position is the number of the part.
TYPED_TEST(PlanMemoryTest, ARefusalInTheSecondLevelLeavesWhatItLeavesInTheFirst) {
    const int length = 131072;
    Planned<TypeParam> planned(length);
    Records<TypeParam> records(*planned.plan);
    ASSERT_EQ(records.splits.size(), 2u);
    const auto x = this->randomElements(length), other = this->randomElements(length);
    const auto due = planned.run(other);
    planned.run(x);
    const auto upper = records.copyOfScratch(0), lower = records.copyOfScratch(1);
    const auto restore = [&] {
        std::copy(upper.begin(), upper.end(), records.scratch(0));
        std::copy(lower.begin(), lower.end(), records.scratch(1));
    };
    for (int refused : {0, 2, -1}) {
        records.splits[1]->active = refused;
        planned.run(other);
        EXPECT_EQ(records.copyOfScratch(0), upper) << "not active";
        EXPECT_EQ(records.copyOfScratch(1), lower);
    }
    records.splits[1]->active = 1;

    restore();
    const auto combineKind = std::exchange(records.combine(1).kind, zulg::CombineKind{6});
    planned.run(other);
    EXPECT_EQ(records.copyOfScratch(0), upper) << "no combine pass";
    EXPECT_NE(records.copyOfScratch(1), lower);
    records.combine(1).kind = combineKind;

    restore();
    const auto stepKind = std::exchange(records.step(1).kind, zulg::FoldKind{8});
    planned.run(other);
    EXPECT_EQ(records.copyOfScratch(1), lower) << "no fold pass";
    const auto parts = static_cast<std::size_t>(records.splits[0]->radix);
    const auto combined = records.copyOfScratch(0);
    for (std::size_t i = 0; i < combined.size(); ++i)
        ASSERT_EQ(combined[i], upper[i / parts * parts + parts - 1]) << "each part is the last one of the run before";
    records.step(1).kind = stepKind;
    EXPECT_EQ(planned.run(other), due) << "mended";
}

}  // namespace
}  // namespace test
