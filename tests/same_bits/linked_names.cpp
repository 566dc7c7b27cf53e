// The routines by name where the library is linked with the program and no loader knows names.
#include <map>
#include <string>

#include "tests/same_bits/digest.h"

namespace test {

bool load(const char*) { return true; }

void* find(const std::string& name) {
#define SLOT(name, routine, bytes) {#name, reinterpret_cast<void*>(name)},
    static const std::map<std::string, void*> routines = {
#include "boundary/slots.inc"
        {"zulgenGetLibVersion", reinterpret_cast<void*>(zulgenGetLibVersion)},
    };
#undef SLOT
    const auto found = routines.find(name);
    return found == routines.end() ? nullptr : found->second;
}

}  // namespace test
