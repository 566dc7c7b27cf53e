// How the checked library ends a program: one line that says which routine was misused and how.
#pragma once

namespace zulg::checked {

// Prints "zulgenpx: <routine>: <what>" to the standard error, where `format` and what follows it are those of printf,
// and aborts.
[[noreturn, gnu::format(printf, 2, 3)]] void stop(const char* routine, const char* format, ...);

}  // namespace zulg::checked
