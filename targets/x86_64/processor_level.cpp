// The level of the processor, found out once.
#include <cpuid.h>

#include "levels.h"

namespace zulg {
namespace {

bool savesWideRegisters() {
    std::uint32_t low, high;
    asm volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return (low & 6) == 6;  // the lower and the upper halves of the vector registers
}

Level foundLevel() {
    unsigned a, b, c, d;
    if (!__get_cpuid(1, &a, &b, &c, &d) || !(c & bit_OSXSAVE) || !(c & bit_AVX) || !savesWideRegisters()) {
        return levelX86_64;
    }
    return __get_cpuid_count(7, 0, &a, &b, &c, &d) && (b & bit_AVX2) ? levelX86_64_v3 : levelX86_64;
}

using LevelResolver = Level (*)();

[[gnu::noinline]] Level resolvedLevel() {
    asm(".type %c0, @gnu_indirect_function" : : "i"(&resolvedLevel));
    return foundLevel();
}

// The dynamic linker stores the level here as if it were an address. It settles these words in the order of their
// addresses, and this source is linked first, so that the processor is asked once: on virtual machines a question takes
// as long as a thousand slots.
union LevelWord {
    LevelResolver resolver;
    Level level;
};
[[gnu::section(".data.rel.ro.local")]] constinit const volatile LevelWord levelWord{&resolvedLevel};

}  // namespace

Level processorLevel() noexcept {
    const Level settled = levelWord.level;  // or, before the word is settled, whatever the linker left there
    return settled == levelX86_64 || settled == levelX86_64_v3 ? settled : foundLevel();
}

}  // namespace zulg
