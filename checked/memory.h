// The memory that calls work on: what is in use by which thread, and what is not the program's at all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace zulg::checked {

// One argument of a call that is an array.
struct Range {
    const char* name;  // "pSrc"
    const void* first;
    std::size_t bytes;
    bool isWritten;

    std::uintptr_t begin() const { return reinterpret_cast<std::uintptr_t>(first); }
    std::uintptr_t end() const { return begin() + bytes; }
    bool overlaps(const Range& other) const {
        return bytes != 0 && other.bytes != 0 && begin() < other.end() && other.begin() < end();
    }
};

// For the time of a call, what it reads and writes. Stops where another thread works on the same memory and one of the
// two writes, and where a tool that watches over memory says that a part of it is not to be accessed.
class Use {
public:
    Use(const char* routine, std::span<const Range> ranges);
    ~Use();
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

private:
    std::size_t count;
};

// Stops if the two overlap.
void expectApart(const char* routine, const Range& a, const Range& b);

}  // namespace zulg::checked
