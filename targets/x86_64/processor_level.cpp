// The level of the processor, found out once.
#include "targets/x86_64/processor_level.h"

#include "targets/x86_64/has_avx2.h"

namespace zulg {
namespace {

Level foundLevel() { return hasAVX2() ? levelX86_64_v3 : levelX86_64; }

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
