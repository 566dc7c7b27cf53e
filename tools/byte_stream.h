// The bytes of a file or of standard input, in blocks, with a look at the first block before anything is taken.
#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace spectrum {

class ByteStream {
public:
    // "-" is standard input. Throws UserError, like all calls here.
    explicit ByteStream(const std::string& path);
    ~ByteStream();
    ByteStream(const ByteStream&) = delete;
    ByteStream& operator=(const ByteStream&) = delete;

    const std::string& name() const { return shown; }

    // What is held and not yet taken; at the start these are the first bytes. Empty only at the end.
    std::string_view held();
    void take(std::size_t bytes) { next += bytes; }

    // The next byte, or EOF, and the step over it.
    int peek() {
        if (next == filled && !fill()) return EOF;
        return static_cast<unsigned char>(block[next]);
    }
    void step() { ++next; }

private:
    bool fill();

    std::string shown;
    int descriptor;
    std::array<char, 65536> block;
    std::size_t next = 0, filled = 0;
};

}  // namespace spectrum
