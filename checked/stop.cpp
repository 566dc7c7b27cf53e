#include "checked/stop.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace zulg::checked {

void stop(const char* routine, const char* format, ...) {
    char line[256];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    std::fprintf(stderr, "zulgenpx: %s: %s\n", routine, line);
    std::abort();
}

}  // namespace zulg::checked
