// The records of a plan. Each is charged exactly its size, on every target. Lists named `owned` own their records and
// are what a teardown walks; `post`, `pre` and `children` are second views of the same records.
//
//     DctPlan    owns AngleSource, OutputStage, FoldStage             N = r M
//     FoldStage  owns a SkewSplit if its kind is Split                r skew transforms of length M
//     SkewSplit  owns RowAngleSource, CombineStage, FoldStep          M = r' M'
//     FoldStep   owns a deeper SkewSplit if its kind is Split         r' skew transforms of length M'
//
// The lists of a record are in `lists` as well, in the order in which their heads are drawn.
//
// Tables and scratch vectors hold elements of the plan's type. No record states that type: the routines that build or
// run a plan know it.
#pragma once

#include <cstddef>
#include <cstdint>

#include "dct4/arena.h"
#include "dct4/kinds.h"
#include "dct4/list.h"
#include "dct4/plan_ref.h"
#include "kernel/kernel.h"

namespace zulg {

// The type of the routine in `free`, which gives back what the record owns, but not the record itself.
using ReleaseOperation = void(PlanHead& record);
// The type of the routine in `init` of plans, stages and splits, which fills in the record and builds all below it.
struct PlanType;
using BuildOperation = Status(PlanHead& record, const PlanType& type);

// How every record begins.
struct PlanHead {
    PlanOperation free;
    std::int32_t size;   // the bytes charged for the record
    PlanOperation init;  // a BuildOperation; for the two angle sources the operation that gives a value
    PlanRef<PlanArena> arena;
};

// What the caller holds: the plan of one length.
struct DctPlan {
    PlanHead head;
    PlanList owned;
    PlanList post;          // the one OutputStage, run second
    PlanList pre;           // the one FoldStage, run first
    PlanRef<void> scratch;  // N elements; null for the direct kinds
    PlanKind kind;
    std::int32_t radix;   // r; of a composite plan only
    std::int32_t length;  // N

    static constexpr PlanList DctPlan::*lists[] = {&DctPlan::post, &DctPlan::pre, &DctPlan::owned};
};

// Gives the entries of the table of an OutputStage.
struct AngleSource {
    PlanHead head;
    std::int32_t rowLength;    // 2r
    std::int32_t denominator;  // 8N
    std::int32_t rows;         // N/(2r)
    std::int32_t radix;        // r
    std::int32_t rowStride;    // 2r
};

// Gives the angles of the rows of a CombineStage.
struct RowAngleSource {
    PlanHead head;
    std::int32_t skewLength;  // M
    std::int32_t radix;       // r'
};

struct OutputStage {
    PlanHead head;
    PlanList owned;  // stays empty
    PlanRef<void> table;
    OutputKind kind;
    std::int32_t radix;         // r
    std::int32_t length;        // N
    std::int32_t rowLength;     // 2r
    std::int32_t rows;          // N/(2r)
    std::int32_t outputLength;  // N
    std::int32_t mirrorBase;    // 2N - 1
    std::int32_t blockStride;   // N/r
    PlanRef<AngleSource> source;

    static constexpr PlanList OutputStage::*lists[] = {&OutputStage::owned};
    // Of the table: a cosine and a sine for each of the r inputs of a row.
    static constexpr std::int32_t rowEntries(std::int32_t radix) { return 2 * radix; }
};

struct FoldStage {
    PlanHead head;
    PlanList owned;
    PlanList children;    // the SkewSplit of kind Split
    PlanRef<void> table;  // always null
    FoldKind kind;
    std::int32_t skewLength;    // M = N/r
    std::int32_t length;        // N
    std::int32_t mirrorBase;    // 2N - 1
    std::int32_t inputStep;     // 2r
    std::int32_t count;         // r
    std::int32_t outputLength;  // N
    std::int32_t outputStep;    // r

    static constexpr PlanList FoldStage::*lists[] = {&FoldStage::children, &FoldStage::owned};
};

// A skew transform that is too long for one body.
struct SkewSplit {
    PlanHead head;
    PlanList owned;
    PlanList post;              // the one CombineStage, run second
    PlanList pre;               // the one FoldStep, run first
    PlanRef<void> scratch;      // M elements
    std::int32_t active;        // 1 once its build has begun; the level is run only then
    std::int32_t skewLength;    // M
    std::int32_t radix;         // r'
    std::int32_t length;        // the parent's
    std::int32_t reach;         // a FoldStage's `length`, a FoldStep's `reach`
    std::int32_t inputStep;     // the parent's
    std::int32_t outputLength;  // a FoldStage's `outputLength`, a FoldStep's `parentSkewLength`
    std::int32_t outputStep;    // the parent's

    static constexpr PlanList SkewSplit::*lists[] = {&SkewSplit::post, &SkewSplit::pre, &SkewSplit::owned};
};

struct CombineStage {
    PlanHead head;
    PlanList owned;  // stays empty
    PlanRef<void> table;
    CombineKind kind;
    std::int32_t radix;       // r'
    std::int32_t skewLength;  // M
    std::int32_t rowLength;   // 2r'
    std::int32_t rows;        // M/(2r')
    std::int32_t outputLength;
    std::int32_t half;        // M/2
    std::int32_t mirrorBase;  // M - 1
    std::int32_t outputStep;
    std::int32_t blockStride;  // M/r'
    PlanRef<RowAngleSource> source;

    static constexpr PlanList CombineStage::*lists[] = {&CombineStage::owned};
    // Of the table: a cosine and a sine for each of the r' inputs of a row but the first, whose angle is 0.
    static constexpr std::int32_t rowEntries(std::int32_t radix) { return 2 * (radix - 1); }
};

struct FoldStep {
    PlanHead head;
    PlanList owned;
    PlanList children;    // the deeper SkewSplit of kind Split
    PlanRef<void> table;  // always null
    FoldKind kind;
    std::int32_t skewLength;  // M' = M/r'
    std::int32_t length;
    std::int32_t reach;
    std::int32_t inputStep;         // the split's, times r'
    std::int32_t subStep;           // the split's
    std::int32_t count;             // r'
    std::int32_t parentSkewLength;  // M
    std::int32_t outputStep;        // r'

    static constexpr PlanList FoldStep::*lists[] = {&FoldStep::children, &FoldStep::owned};
};

static_assert(sizeof(PlanHead) == 16);
static_assert(sizeof(DctPlan) == 44 && offsetof(DctPlan, scratch) == 28 && offsetof(DctPlan, length) == 40);
static_assert(sizeof(AngleSource) == 36 && offsetof(AngleSource, rowStride) == 32);
static_assert(sizeof(RowAngleSource) == 24 && offsetof(RowAngleSource, radix) == 20);
static_assert(sizeof(OutputStage) == 60 && offsetof(OutputStage, kind) == 24 && offsetof(OutputStage, source) == 56);
static_assert(sizeof(FoldStage) == 60 && offsetof(FoldStage, kind) == 28 && offsetof(FoldStage, outputStep) == 56);
static_assert(sizeof(SkewSplit) == 64 && offsetof(SkewSplit, active) == 32 && offsetof(SkewSplit, outputStep) == 60);
static_assert(sizeof(CombineStage) == 68 && offsetof(CombineStage, kind) == 24 && offsetof(CombineStage, source) == 64);
static_assert(sizeof(FoldStep) == 64 && offsetof(FoldStep, kind) == 28 && offsetof(FoldStep, outputStep) == 60);

// The record of a head, which is the record's first member.
template <class Record>
Record& recordOf(PlanHead& head) {
    return reinterpret_cast<Record&>(head);
}

// The first record of a list, which must have one. A run reads only lists of at most one record.
template <class Record>
const Record& firstOf(const PlanListNode* list) {
    return reinterpret_cast<const Record&>(*listNth(list, 0));
}

// Draw a record, whose memory is not cleared, and an empty list. Each is charged its size.
template <class Record>
Record* drawRecord(PlanArena* arena) {
    return static_cast<Record*>(arenaAlloc(arena, sizeof(Record)));
}
inline PlanListNode* drawList(PlanArena* arena) { return listInit(drawRecord<PlanListNode>(arena), arena); }

}  // namespace zulg
