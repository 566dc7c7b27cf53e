#include "tests/plan/fakes.h"

#include <cstdlib>
#include <cstring>

#include "dct4/run.h"

using namespace test;

namespace {

void* ZULG_CALL fakeMalloc(std::uint32_t bytes) {
    core.asked.push_back(bytes);
    core.given.push_back(core.refusing ? nullptr : std::malloc(bytes));
    return core.given.back();
}

void ZULG_CALL fakeFree(void* block) {
    core.freed.push_back(block);
    if (block == nullptr) return;
    std::memcpy(&core.cursorAtFree, block, sizeof core.cursorAtFree);
    std::free(block);
}

}  // namespace

extern "C" {
#ifdef _WIN32
// Callers reach an imported routine through a pointer of this name.
extern const auto importedMalloc __asm__("__imp__zulMalloc@4") = &fakeMalloc;
extern const auto importedFree __asm__("__imp__zulFree@4") = &fakeFree;
#else
void* zulMalloc(std::uint32_t bytes) { return fakeMalloc(bytes); }
void zulFree(void* block) { fakeFree(block); }
#endif
}

namespace zulg {

template <class Element>
void runPlan(const DctPlan& plan, const Element* pSrc, Element* pDst) {
    runs.push_back({&plan, pSrc, pDst, sizeof(Element)});
}
template void runPlan<float>(const DctPlan&, const float*, float*);
template void runPlan<double>(const DctPlan&, const double*, double*);

}  // namespace zulg
