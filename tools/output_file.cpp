// Checked writing over the C streams, which keep the reason of a failure in errno.
// Standard output is flushed and not closed: it is not ours.
#include "output_file.h"

#include <cerrno>
#include <cstring>

#include "user_error.h"

namespace spectrum {

OutputFile::OutputFile(const std::string& path)
    : name(path == "-" ? "standard output" : printable(path)),
      file(path == "-" ? stdout : std::fopen(path.c_str(), "wb")) {
    if (!file) fail();
}

OutputFile::~OutputFile() {
    if (file && file != stdout) std::fclose(file);
}

void OutputFile::write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) fail();
}

void OutputFile::close() {
    std::FILE* const open = file;
    file = nullptr;
    if ((open == stdout ? std::fflush(open) : std::fclose(open)) != 0) fail();
}

void OutputFile::fail() const { throw UserError("cannot write " + name + ": " + std::strerror(errno)); }

}  // namespace spectrum
