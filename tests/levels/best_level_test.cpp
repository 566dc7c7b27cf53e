// Which level of a routine the library runs: on a processor with AVX2 that of AVX2, and nothing of the first one. Bits
// cannot tell, since both levels give the same. Instructions of AVX write whole vector registers, those of SSE leave
// the upper halves as they are. The first level by itself, where these stay, shows that the test can tell the two
// apart.
#include "tests/tested_library.h"
#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

void fillUpperHalves() {
#define FILL(n) "vcmptrueps %%ymm" #n ", %%ymm" #n ", %%ymm" #n "\n\t"
    __asm__ volatile(FILL(0) FILL(1) FILL(2) FILL(3) FILL(4) FILL(5) FILL(6) FILL(7) FILL(8) FILL(9) FILL(10) FILL(11)
                         FILL(12) FILL(13) FILL(14) FILL(15)::
                             : "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7", "xmm8", "xmm9", "xmm10",
                               "xmm11", "xmm12", "xmm13", "xmm14", "xmm15", "memory");
#undef FILL
}

// Whether every bit is set that fillUpperHalves has set. Clears the upper halves.
bool upperHalvesAreFull() {
    std::uint64_t common[2];
#define AND(n) "vandps %%ymm" #n ", %%ymm0, %%ymm0\n\t"
    __asm__ volatile(AND(1) AND(2) AND(3) AND(4) AND(5) AND(6) AND(7) AND(8) AND(9) AND(10) AND(11) AND(12) AND(13)
                         AND(14) AND(15) "vextractf128 $1, %%ymm0, %0\n\tvzeroupper"
                     : "=m"(common)
                     :
                     : "xmm0", "memory");
#undef AND
    return (common[0] & common[1]) == ~std::uint64_t{0};
}

class BestLevelTest : public KernelTest {
protected:
    void SetUp() override {
        if (!__builtin_cpu_supports("avx2")) GTEST_SKIP() << "this processor has no AVX2";
    }

    void expectLevel(bool isFirst) {
        withSubject([&]<class Element>(Subject<Element>& subject) {
            const auto source = subject.randomSource();
            auto destination = subject.destination();
            const auto expectIt = [&](const Call<Element>& call) {
                call(source.data(), destination.data(), NoDivByAny);  // what the loader settles late is settled
                fillUpperHalves();
                const ZulgStatus status = call(source.data(), destination.data(), NoDivByAny);
                const bool areFull = upperHalvesAreFull();
                EXPECT_EQ(status, StatusOk);
                EXPECT_EQ(areFull, isFirst);
            };
            expectIt(subject.call);
            if (transform.takes != Takes::Plan) expectIt(dispatchedCallOf<Element>(transform));
        });
    }
};

TEST_P(BestLevelTest, IsThatOfTheProcessor) {
    if (transform.takes == Takes::Plan && transform.length <= 32) GTEST_SKIP() << "all levels share one routine";
    expectLevel(std::string(testedLibrary("")).find("levels/x86_64/") != std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(All, BestLevelTest, testing::ValuesIn(allTransforms()), testName);

}  // namespace
}  // namespace test
