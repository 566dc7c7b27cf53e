// What the user is told when a run cannot go on. The text is one line without a final stop; main puts the name of the
// program in front of it.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace spectrum {

// The exit statuses of the program.
enum class Exit {
    Done = 0,
    Failed = 1,   // an input or an output, or the transform that is asked for
    Usage = 2,    // the words of the command line
    Damaged = 3,  // a damaged or shortened input
};

class UserError : public std::runtime_error {
public:
    explicit UserError(const std::string& message, Exit status = Exit::Failed)
        : std::runtime_error(message), exit(status) {}

    Exit status() const { return exit; }

private:
    Exit exit;
};

class UsageError : public UserError {
public:
    explicit UsageError(const std::string& message) : UserError(message, Exit::Usage) {}
};

class DamagedInput : public UserError {
public:
    explicit DamagedInput(const std::string& message) : UserError(message, Exit::Damaged) {}
};

// File names and words from files may hold anything, but a message must be one short line that leaves a terminal as it
// is: control characters and bytes that are no UTF-8 become question marks.
std::string printable(std::string_view text, std::size_t most = 200);

// The last failure of the system, as errno has it, in words.
std::string systemReason();

}  // namespace spectrum
