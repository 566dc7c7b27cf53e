// Blocks are taken as they come, so that numbers from a pipe are not held back until a block is full.
#include "byte_stream.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "user_error.h"

namespace spectrum {

ByteStream::ByteStream(const std::string& path)
    : shown(path == "-" ? "standard input" : printable(path)),
      descriptor(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor < 0) throw UserError("cannot read " + shown + ": " + systemReason());
}

ByteStream::~ByteStream() {
    if (descriptor != STDIN_FILENO) close(descriptor);
}

std::string_view ByteStream::held() {
    if (next == filled) fill();
    return std::string_view(block.data() + next, filled - next);
}

bool ByteStream::fill() {
    ssize_t got;
    do {
        got = read(descriptor, block.data(), block.size());
    } while (got < 0 && errno == EINTR);
    if (got < 0) throw UserError("cannot read " + shown + ": " + systemReason());
    next = 0;
    filled = static_cast<std::size_t>(got);
    return got > 0;
}

}  // namespace spectrum
