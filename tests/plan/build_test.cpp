// What a build leaves in the block: records, shapes, addresses, and the cursor.
#include "dct4/build.h"

#include "tests/plan/describe.h"
#include "tests/plan/plan_fixture.h"

namespace test {
namespace {

using namespace zulg;

template <class Record>
const Record& recordAt(const PlanListNode* list, std::int32_t i) {
    return reinterpret_cast<const Record&>(*listNth(list, i));
}

// Fields follow one another and have one word each, as in a build with pointers of four bytes.
void expectWords(std::size_t first, std::size_t size, std::initializer_list<std::size_t> offsets) {
    std::size_t word = first;
    for (const std::size_t offset : offsets) EXPECT_EQ(offset, 4 * word++);
    EXPECT_EQ(size, 4 * word);
}

TEST(RecordLayout, OneWordToAField) {
    expectWords(
        0, sizeof(PlanHead),
        {offsetof(PlanHead, free), offsetof(PlanHead, size), offsetof(PlanHead, init), offsetof(PlanHead, arena)});
    expectWords(0, sizeof(PlanListNode),
                {offsetof(PlanListNode, value), offsetof(PlanListNode, next), offsetof(PlanListNode, arena)});
    expectWords(4, sizeof(DctPlan),
                {offsetof(DctPlan, owned), offsetof(DctPlan, post), offsetof(DctPlan, pre), offsetof(DctPlan, scratch),
                 offsetof(DctPlan, kind), offsetof(DctPlan, radix), offsetof(DctPlan, length)});
    expectWords(4, sizeof(AngleSource),
                {offsetof(AngleSource, rowLength), offsetof(AngleSource, denominator), offsetof(AngleSource, rows),
                 offsetof(AngleSource, radix), offsetof(AngleSource, rowStride)});
    expectWords(4, sizeof(RowAngleSource), {offsetof(RowAngleSource, skewLength), offsetof(RowAngleSource, radix)});
    expectWords(4, sizeof(OutputStage),
                {offsetof(OutputStage, owned), offsetof(OutputStage, table), offsetof(OutputStage, kind),
                 offsetof(OutputStage, radix), offsetof(OutputStage, length), offsetof(OutputStage, rowLength),
                 offsetof(OutputStage, rows), offsetof(OutputStage, outputLength), offsetof(OutputStage, mirrorBase),
                 offsetof(OutputStage, blockStride), offsetof(OutputStage, source)});
    expectWords(4, sizeof(FoldStage),
                {offsetof(FoldStage, owned), offsetof(FoldStage, children), offsetof(FoldStage, table),
                 offsetof(FoldStage, kind), offsetof(FoldStage, skewLength), offsetof(FoldStage, length),
                 offsetof(FoldStage, mirrorBase), offsetof(FoldStage, inputStep), offsetof(FoldStage, count),
                 offsetof(FoldStage, outputLength), offsetof(FoldStage, outputStep)});
    expectWords(4, sizeof(SkewSplit),
                {offsetof(SkewSplit, owned), offsetof(SkewSplit, post), offsetof(SkewSplit, pre),
                 offsetof(SkewSplit, scratch), offsetof(SkewSplit, active), offsetof(SkewSplit, skewLength),
                 offsetof(SkewSplit, radix), offsetof(SkewSplit, length), offsetof(SkewSplit, reach),
                 offsetof(SkewSplit, inputStep), offsetof(SkewSplit, outputLength), offsetof(SkewSplit, outputStep)});
    expectWords(4, sizeof(CombineStage),
                {offsetof(CombineStage, owned), offsetof(CombineStage, table), offsetof(CombineStage, kind),
                 offsetof(CombineStage, radix), offsetof(CombineStage, skewLength), offsetof(CombineStage, rowLength),
                 offsetof(CombineStage, rows), offsetof(CombineStage, outputLength), offsetof(CombineStage, half),
                 offsetof(CombineStage, mirrorBase), offsetof(CombineStage, outputStep),
                 offsetof(CombineStage, blockStride), offsetof(CombineStage, source)});
    expectWords(4, sizeof(FoldStep),
                {offsetof(FoldStep, owned), offsetof(FoldStep, children), offsetof(FoldStep, table),
                 offsetof(FoldStep, kind), offsetof(FoldStep, skewLength), offsetof(FoldStep, length),
                 offsetof(FoldStep, reach), offsetof(FoldStep, inputStep), offsetof(FoldStep, subStep),
                 offsetof(FoldStep, count), offsetof(FoldStep, parentSkewLength), offsetof(FoldStep, outputStep)});
}

template <class Element>
class PlanBuild : public ElementTest<Element> {};
TYPED_TEST_SUITE(PlanBuild, Elements, ElementNames);

// The whole tree, in the order of drawing: root, its three heads, then for each stage its record, heads, nodes, table.
TYPED_TEST(PlanBuild, DirectPlansHaveNoChildren) {
    BuiltPlan<TypeParam> built(16);
    EXPECT_EQ(describe(*built.plan), "DctPlan @0 size 44 (128:) (64:) (96:) scratch null kind 4 length 16\n");
}

TYPED_TEST(PlanBuild, RadixOfADirectPlanIsLeftAlone) {
    GuardedBlock block(224);
    std::memset(block.data(), 0x5A, 224);
    DctPlan* plan;
    ASSERT_EQ(dct4Init<TypeParam>(&plan, 32, block.data()), StatusOk);
    EXPECT_EQ(plan->radix, 0x5A5A5A5A);
    EXPECT_EQ(plan->kind, PlanKind::Direct32);
}

TYPED_TEST(PlanBuild, InFullWithoutASplit) {
    BuiltPlan<TypeParam> built(64);
    EXPECT_EQ(describe(*built.plan),
              perType<TypeParam>(
                  R"(DctPlan @0 size 44 (128: 224 160 608) (64: 160) (96: 608) scratch @768 kind 6 radix 8 length 64
  AngleSource @224 size 36 rowLength 16 denominator 512 rows 4 radix 8 rowStride 16
  OutputStage @160 size 60 (288:) table @352 kind 4 radix 8 length 64 rowLength 16 rows 4 outputLength 64 mirrorBase 127 blockStride 8 source @224
  FoldStage @608 size 60 (704:) (672:) table null kind 3 skewLength 8 length 64 mirrorBase 127 inputStep 16 count 8 outputLength 64 outputStep 8
)",
                  R"(DctPlan @0 size 44 (128: 224 160 864) (64: 160) (96: 864) scratch @1024 kind 6 radix 8 length 64
  AngleSource @224 size 36 rowLength 16 denominator 512 rows 4 radix 8 rowStride 16
  OutputStage @160 size 60 (288:) table @352 kind 4 radix 8 length 64 rowLength 16 rows 4 outputLength 64 mirrorBase 127 blockStride 8 source @224
  FoldStage @864 size 60 (960:) (928:) table null kind 3 skewLength 8 length 64 mirrorBase 127 inputStep 16 count 8 outputLength 64 outputStep 8
)"));
}

TYPED_TEST(PlanBuild, OneSplit) {
    BuiltPlan<TypeParam> built(4096);
    const auto& fold = recordAt<FoldStage>(built.plan->pre, 0);
    EXPECT_EQ(fold.kind, FoldKind::Split);
    const auto& split = recordAt<SkewSplit>(fold.children, 0);
    EXPECT_EQ(split.active, 1);
    EXPECT_EQ(split.radix, 8);
    EXPECT_EQ(split.skewLength, 128);
    EXPECT_EQ(split.length, 4096);
    EXPECT_EQ(split.reach, 4096);
    EXPECT_EQ(split.inputStep, 64);
    EXPECT_EQ(split.outputLength, 4096);
    EXPECT_EQ(split.outputStep, 32);
    const auto& step = recordAt<FoldStep>(split.pre, 0);
    EXPECT_EQ(step.skewLength, 16);
    EXPECT_EQ(step.inputStep, 512);
    EXPECT_EQ(step.subStep, 64);
    EXPECT_EQ(step.count, 8);
    EXPECT_EQ(step.parentSkewLength, 128);
    EXPECT_EQ(step.outputStep, 8);
}

TYPED_TEST(PlanBuild, InFullWithOneSplit) {
    BuiltPlan<TypeParam> built(4096);
    EXPECT_EQ(
        describe(*built.plan),
        perType<TypeParam>(
            R"(DctPlan @0 size 44 (128: 224 160 16736) (64: 160) (96: 16736) scratch @18368 kind 6 radix 32 length 4096
  AngleSource @224 size 36 rowLength 64 denominator 32768 rows 64 radix 32 rowStride 64
  OutputStage @160 size 60 (288:) table @352 kind 6 radix 32 length 4096 rowLength 64 rows 64 outputLength 4096 mirrorBase 8191 blockStride 128 source @224
  FoldStage @16736 size 60 (16832: 16896) (16800: 16896) table null kind 7 skewLength 128 length 4096 mirrorBase 8191 inputStep 64 count 32 outputLength 4096 outputStep 32
    SkewSplit @16896 size 64 (17024: 17152 17056 17696) (16960: 17056) (16992: 17696) scratch @17856 active 1 skewLength 128 radix 8 length 4096 reach 4096 inputStep 64 outputLength 4096 outputStep 32
      RowAngleSource @17152 size 24 skewLength 128 radix 8
      CombineStage @17056 size 68 (17184:) table @17248 kind 3 radix 8 skewLength 128 rowLength 16 rows 8 outputLength 4096 half 64 mirrorBase 127 outputStep 32 blockStride 16 source @17152
      FoldStep @17696 size 64 (17792:) (17760:) table null kind 4 skewLength 16 length 4096 reach 4096 inputStep 512 subStep 64 count 8 parentSkewLength 128 outputStep 8
)",
            R"(DctPlan @0 size 44 (128: 224 160 33120) (64: 160) (96: 33120) scratch @35712 kind 6 radix 32 length 4096
  AngleSource @224 size 36 rowLength 64 denominator 32768 rows 64 radix 32 rowStride 64
  OutputStage @160 size 60 (288:) table @352 kind 6 radix 32 length 4096 rowLength 64 rows 64 outputLength 4096 mirrorBase 8191 blockStride 128 source @224
  FoldStage @33120 size 60 (33216: 33280) (33184: 33280) table null kind 7 skewLength 128 length 4096 mirrorBase 8191 inputStep 64 count 32 outputLength 4096 outputStep 32
    SkewSplit @33280 size 64 (33408: 33536 33440 34528) (33344: 33440) (33376: 34528) scratch @34688 active 1 skewLength 128 radix 8 length 4096 reach 4096 inputStep 64 outputLength 4096 outputStep 32
      RowAngleSource @33536 size 24 skewLength 128 radix 8
      CombineStage @33440 size 68 (33568:) table @33632 kind 3 radix 8 skewLength 128 rowLength 16 rows 8 outputLength 4096 half 64 mirrorBase 127 outputStep 32 blockStride 16 source @33536
      FoldStep @34528 size 64 (34624:) (34592:) table null kind 4 skewLength 16 length 4096 reach 4096 inputStep 512 subStep 64 count 8 parentSkewLength 128 outputStep 8
)"));
}

TYPED_TEST(PlanBuild, InFullWithTwoSplits) {
    BuiltPlan<TypeParam> built(131072);
    EXPECT_EQ(
        describe(*built.plan),
        perType<TypeParam>(
            R"(DctPlan @0 size 44 (128: 224 160 524640) (64: 160) (96: 524640) scratch @559040 kind 6 radix 32 length 131072
  AngleSource @224 size 36 rowLength 64 denominator 1048576 rows 2048 radix 32 rowStride 64
  OutputStage @160 size 60 (288:) table @352 kind 6 radix 32 length 131072 rowLength 64 rows 2048 outputLength 131072 mirrorBase 262143 blockStride 4096 source @224
  FoldStage @524640 size 60 (524736: 524800) (524704: 524800) table null kind 7 skewLength 4096 length 131072 mirrorBase 262143 inputStep 64 count 32 outputLength 131072 outputStep 32
    SkewSplit @524800 size 64 (524928: 525056 524960 541024) (524864: 524960) (524896: 541024) scratch @542656 active 1 skewLength 4096 radix 32 length 131072 reach 131072 inputStep 64 outputLength 131072 outputStep 32
      RowAngleSource @525056 size 24 skewLength 4096 radix 32
      CombineStage @524960 size 68 (525088:) table @525152 kind 5 radix 32 skewLength 4096 rowLength 64 rows 64 outputLength 131072 half 2048 mirrorBase 4095 outputStep 32 blockStride 128 source @525056
      FoldStep @541024 size 64 (541120: 541184) (541088: 541184) table null kind 7 skewLength 128 length 131072 reach 131072 inputStep 2048 subStep 64 count 32 parentSkewLength 4096 outputStep 32
        SkewSplit @541184 size 64 (541312: 541440 541344 541984) (541248: 541344) (541280: 541984) scratch @542144 active 1 skewLength 128 radix 8 length 131072 reach 131072 inputStep 2048 outputLength 4096 outputStep 32
          RowAngleSource @541440 size 24 skewLength 128 radix 8
          CombineStage @541344 size 68 (541472:) table @541536 kind 3 radix 8 skewLength 128 rowLength 16 rows 8 outputLength 4096 half 64 mirrorBase 127 outputStep 32 blockStride 16 source @541440
          FoldStep @541984 size 64 (542080:) (542048:) table null kind 4 skewLength 16 length 131072 reach 131072 inputStep 16384 subStep 2048 count 8 parentSkewLength 128 outputStep 8
)",
            R"(DctPlan @0 size 44 (128: 224 160 1048928) (64: 160) (96: 1048928) scratch @1116544 kind 6 radix 32 length 131072
  AngleSource @224 size 36 rowLength 64 denominator 1048576 rows 2048 radix 32 rowStride 64
  OutputStage @160 size 60 (288:) table @352 kind 6 radix 32 length 131072 rowLength 64 rows 2048 outputLength 131072 mirrorBase 262143 blockStride 4096 source @224
  FoldStage @1048928 size 60 (1049024: 1049088) (1048992: 1049088) table null kind 7 skewLength 4096 length 131072 mirrorBase 262143 inputStep 64 count 32 outputLength 131072 outputStep 32
    SkewSplit @1049088 size 64 (1049216: 1049344 1049248 1081184) (1049152: 1049248) (1049184: 1081184) scratch @1083776 active 1 skewLength 4096 radix 32 length 131072 reach 131072 inputStep 64 outputLength 131072 outputStep 32
      RowAngleSource @1049344 size 24 skewLength 4096 radix 32
      CombineStage @1049248 size 68 (1049376:) table @1049440 kind 5 radix 32 skewLength 4096 rowLength 64 rows 64 outputLength 131072 half 2048 mirrorBase 4095 outputStep 32 blockStride 128 source @1049344
      FoldStep @1081184 size 64 (1081280: 1081344) (1081248: 1081344) table null kind 7 skewLength 128 length 131072 reach 131072 inputStep 2048 subStep 64 count 32 parentSkewLength 4096 outputStep 32
        SkewSplit @1081344 size 64 (1081472: 1081600 1081504 1082592) (1081408: 1081504) (1081440: 1082592) scratch @1082752 active 1 skewLength 128 radix 8 length 131072 reach 131072 inputStep 2048 outputLength 4096 outputStep 32
          RowAngleSource @1081600 size 24 skewLength 128 radix 8
          CombineStage @1081504 size 68 (1081632:) table @1081696 kind 3 radix 8 skewLength 128 rowLength 16 rows 8 outputLength 4096 half 64 mirrorBase 127 outputStep 32 blockStride 16 source @1081600
          FoldStep @1082592 size 64 (1082688:) (1082656:) table null kind 4 skewLength 16 length 131072 reach 131072 inputStep 16384 subStep 2048 count 8 parentSkewLength 128 outputStep 8
)"));
}

// N; r, M; rows; fold kind; r', M' of each split from the top down.
struct Shape {
    std::int32_t length, radix, skewLength, rows, foldKind;
    std::vector<std::pair<std::int32_t, std::int32_t>> splits;
};
const Shape shapes[] = {
    {64, 8, 8, 4, 3, {}},
    {128, 8, 16, 8, 4, {}},
    {256, 16, 16, 8, 4, {}},
    {512, 16, 32, 16, 5, {}},
    {1024, 32, 32, 16, 5, {}},
    {2048, 32, 64, 32, 6, {}},
    {4096, 32, 128, 64, 7, {{8, 16}}},
    {8192, 32, 256, 128, 7, {{16, 16}}},
    {16384, 32, 512, 256, 7, {{16, 32}}},
    {32768, 32, 1024, 512, 7, {{32, 32}}},
    {65536, 32, 2048, 1024, 7, {{32, 64}}},
    {131072, 32, 4096, 2048, 7, {{32, 128}, {8, 16}}},
    {9, 2, 4, 2, 2, {}},
    {17, 2, 8, 4, 3, {}},
    {33, 4, 8, 4, 3, {}},
    {65, 8, 8, 4, 3, {}},
    {4097, 32, 128, 64, 7, {{8, 16}}},
};

std::vector<const SkewSplit*> splitsOf(const DctPlan& plan) {
    std::vector<const SkewSplit*> splits;
    const PlanListNode* children = recordAt<FoldStage>(plan.pre, 0).children;
    while (const PlanHead* head = listNth(children, 0)) {
        splits.push_back(reinterpret_cast<const SkewSplit*>(head));
        children = recordAt<FoldStep>(splits.back()->pre, 0).children;
    }
    return splits;
}

TYPED_TEST(PlanBuild, Shapes) {
    for (const Shape& shape : shapes) {
        SCOPED_TRACE(shape.length);
        BuiltPlan<TypeParam> built(shape.length);
        const DctPlan& plan = *built.plan;
        EXPECT_EQ(plan.kind, PlanKind::Composite);
        EXPECT_EQ(plan.radix, shape.radix);
        EXPECT_EQ(plan.length, shape.length);
        const auto& output = recordAt<OutputStage>(plan.post, 0);
        EXPECT_EQ(output.rows, shape.rows);
        EXPECT_EQ(output.mirrorBase, 2 * shape.length - 1);
        const auto& fold = recordAt<FoldStage>(plan.pre, 0);
        EXPECT_EQ(fold.skewLength, shape.skewLength);
        EXPECT_EQ(number(fold.kind), shape.foldKind);
        const auto splits = splitsOf(plan);
        ASSERT_EQ(splits.size(), shape.splits.size());
        for (std::size_t i = 0; i < splits.size(); ++i) {
            EXPECT_EQ(splits[i]->radix, shape.splits[i].first);
            EXPECT_EQ(recordAt<FoldStep>(splits[i]->pre, 0).skewLength, shape.splits[i].second);
        }
    }
}

// The size counts list nodes that are never drawn: 96 bytes at the top and 160 for each split.
TYPED_TEST(PlanBuild, CursorEndsBelowTheSizeByNodesNeverDrawn) {
    for (const std::int32_t length : builtLengths()) {
        BuiltPlan<TypeParam> built(length);
        std::ptrdiff_t neverDrawn = 0;
        if (built.plan->kind == PlanKind::Composite) {
            neverDrawn = 96 + 160 * static_cast<std::ptrdiff_t>(splitsOf(*built.plan).size());
        }
        EXPECT_EQ(built.block.cursorOffset(), reportedSize<TypeParam>(length) - neverDrawn) << length;
    }
}

TYPED_TEST(PlanBuild, CursorInFigures) {
    EXPECT_EQ(BuiltPlan<TypeParam>(32).block.cursorOffset(), 224);
    EXPECT_EQ(BuiltPlan<TypeParam>(64).block.cursorOffset(), perType<TypeParam>(1088, 1600));
    EXPECT_EQ(BuiltPlan<TypeParam>(4096).block.cursorOffset(), perType<TypeParam>(34816, 68544));
}

TYPED_TEST(PlanBuild, FirstRecordByRemainderOfTheBlock) {
    for (std::size_t remainder = 0; remainder < 32; ++remainder) {
        BuiltPlan<TypeParam> built(4096, remainder);
        EXPECT_EQ(built.block.offset(built.plan), static_cast<std::ptrdiff_t>(64 - remainder)) << remainder;
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(built.plan->scratch.get()) % 32, 0u);
    }
}

// The `init` field of a record holds the routine that built it. That of a source holds the one that gives the values.
TYPED_TEST(PlanBuild, OperationsOfSourcesGiveValues) {
    BuiltPlan<TypeParam> built(4096);
    const auto& source = recordAt<AngleSource>(built.plan->owned, 0);
    const auto entry = source.head.init.template as<AngleOperation>();
    EXPECT_EQ(entry, &angleEntry<TypeParam>);
    const auto& split = *splitsOf(*built.plan).front();
    const auto& rows = recordAt<RowAngleSource>(split.owned, 0);
    EXPECT_EQ(rows.head.init.template as<RowAngleOperation>(), &rowAngle);
    EXPECT_EQ(source.head.free.template as<ReleaseOperation>(), &releaseNothing);
    EXPECT_EQ(rows.head.free.template as<ReleaseOperation>(), &releaseNothing);
}

TYPED_TEST(PlanBuild, OperationsOfPlanAndStages) {
    BuiltPlan<TypeParam> built(64);
    EXPECT_EQ(built.plan->head.init.template as<BuildOperation>(), &buildPlan);
    EXPECT_EQ(built.plan->head.free.template as<ReleaseOperation>(), &releasePlan<sizeof(TypeParam)>);
    EXPECT_EQ(recordAt<OutputStage>(built.plan->post, 0).head.free.template as<ReleaseOperation>(),
              &releaseOutput<sizeof(TypeParam)>);
    EXPECT_EQ(recordAt<FoldStage>(built.plan->pre, 0).head.free.template as<ReleaseOperation>(),
              &releaseLists<FoldStage>);
}

}  // namespace
}  // namespace test
