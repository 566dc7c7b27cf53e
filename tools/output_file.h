// The file or standard output that a spectrum goes to. Every write is checked, the last one when the file is closed:
// a full disk often shows only there.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace spectrum {

class OutputFile {
public:
    // "-" is standard output. Throws UserError, like all calls here.
    explicit OutputFile(const std::string& path);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::string_view bytes);
    // To be called when all is written. A file that is not closed with this is unfinished, and its errors are ignored.
    void close();

private:
    [[noreturn]] void fail() const;

    std::string name;
    std::FILE* file;
};

}  // namespace spectrum
