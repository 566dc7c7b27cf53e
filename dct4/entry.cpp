// The five routines of the DCT-IV. This is where to begin to read; each routine leads downwards from here.
//
//     GetSize   size.cpp      counts the bytes of a tree without building it
//     Init      build.cpp     draws and fills in the records, from the top of the tree downwards
//               tables.cpp    fills the twiddle table of each second pass
//     Free      release.cpp   gives everything back
//     dct4      run.cpp       chooses a direct body, or the two passes
//               fold.cpp      the first pass, of a plan or of a split
//               split.cpp     one sequence that is too long for a body, by both passes of a split
//               combine.cpp   the second pass of a split
//               output.cpp    the second pass of a plan
//
// What all of them go by is said once: in tree.h how a length is taken apart, which records a level has and how many
// bytes they need; in records.h what a record holds; in kinds.h how its kind follows from its length or radix; in
// tables.h how a table is laid out.
//
// A plan is one block of memory. Records are drawn from it with arena.h, refer to each other with plan_ref.h, and are
// in the lists of list.h. Counts of bytes wrap around at 32 bits, by wrap.h.
#include "dct4/build.h"
#include "dct4/dct4.h"
#include "dct4/release.h"
#include "dct4/run.h"
#include "dct4/size.h"
#include "kernel/core_library.h"

namespace zulg {

namespace {

// Releases the plan and its root. The cursor of a finished plan is then where it was before the root was drawn.
template <class Element>
void takeDown(DctPlan& plan) {
    releasePlan<sizeof(Element)>(plan.head);
    arenaRelease(plan.head.arena, &plan, plan.head.size);
}

}  // namespace

template <class Element>
Status ZULG_CALL dct4GetSize(std::int32_t length, std::int32_t* pSize) {
    const std::int32_t bytes = planBytes(length, sizeof(Element));
    if (bytes < 0) return StatusSizeError;
    *pSize = bytes;
    return StatusOk;
}

template <class Element>
Status ZULG_CALL dct4Init(DctPlan** pPlan, std::int32_t length, std::uint8_t* pBuffer) {
    if (pPlan == nullptr || pBuffer == nullptr) return StatusNullPointer;
    DctPlan* const plan = drawPlan(arenaInit(pBuffer), length, planType<Element>);
    const Status status = buildPlan(plan->head, planType<Element>);
    if (status != StatusOk) {
        takeDown<Element>(*plan);
        return status;
    }
    *pPlan = plan;
    return StatusOk;
}

template <class Element>
Status ZULG_CALL dct4InitAlloc(DctPlan** pPlan, std::int32_t length) {
    if (pPlan == nullptr) return StatusNullPointer;
    std::int32_t bytes;
    Status status = dct4GetSize<Element>(length, &bytes);
    if (status != StatusOk) return status;
    // If the block is refused, Init reports the null pointer, and zulFree gets it too.
    void* const block = zulMalloc(static_cast<std::uint32_t>(bytes));
    status = dct4Init<Element>(pPlan, length, static_cast<std::uint8_t*>(block));
    if (status != StatusOk) zulFree(block);
    return status;
}

template <class Element>
Status ZULG_CALL dct4Free(DctPlan* plan) {
    if (plan == nullptr) return StatusNullPointer;
    PlanArena* const arena = plan->head.arena;
    takeDown<Element>(*plan);
    zulFree(arena);
    return StatusOk;
}

template <class Element>
Status ZULG_CALL dct4(const Element* pSrc, Element* pDst, DctPlan* plan) {
    if (pSrc == nullptr || pDst == nullptr || plan == nullptr) return StatusNullPointer;
    if (!isKnown(plan->kind)) return StatusPlanKindError;
    runPlan<Element>(*plan, pSrc, pDst);
    return StatusOk;
}

template Status ZULG_CALL dct4GetSize<float>(std::int32_t, std::int32_t*);
template Status ZULG_CALL dct4GetSize<double>(std::int32_t, std::int32_t*);
template Status ZULG_CALL dct4Init<float>(DctPlan**, std::int32_t, std::uint8_t*);
template Status ZULG_CALL dct4Init<double>(DctPlan**, std::int32_t, std::uint8_t*);
template Status ZULG_CALL dct4InitAlloc<float>(DctPlan**, std::int32_t);
template Status ZULG_CALL dct4InitAlloc<double>(DctPlan**, std::int32_t);
template Status ZULG_CALL dct4Free<float>(DctPlan*);
template Status ZULG_CALL dct4Free<double>(DctPlan*);
template Status ZULG_CALL dct4<float>(const float*, float*, DctPlan*);
template Status ZULG_CALL dct4<double>(const double*, double*, DctPlan*);

}  // namespace zulg
