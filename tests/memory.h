// Memory with an inaccessible page on either side: one byte read or written past an end is a fault.
#pragma once

#include <cstddef>

namespace test {

class GuardedPages {
public:
    explicit GuardedPages(std::size_t bytes);
    ~GuardedPages();
    GuardedPages(const GuardedPages&) = delete;
    GuardedPages& operator=(const GuardedPages&) = delete;

    // Where the memory begins after the front guard, and where its last `bytes` before the rear guard begin.
    std::byte* atFront() const { return inner; }
    std::byte* atRear(std::size_t bytes) const { return inner + innerBytes - bytes; }

private:
    friend class ReadOnly;
    std::byte* whole;
    std::byte* inner;
    std::size_t wholeBytes, innerBytes;
};

// While one of these lives, the memory between the guards cannot be written.
class ReadOnly {
public:
    explicit ReadOnly(const GuardedPages& of);
    ~ReadOnly();
    ReadOnly(const ReadOnly&) = delete;
    ReadOnly& operator=(const ReadOnly&) = delete;

private:
    const GuardedPages& pages;
};

// In WebAssembly, which has no such pages: the end of memory. The bytes before it, as many as are asked for, are
// nobody else's.
std::byte* endOfMemory(std::size_t bytes);

}  // namespace test
