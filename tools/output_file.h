// The file or standard output that results go to. A file appears whole or not at all: it is written beside its place,
// under a name that begins with a point, and takes its place when it is closed. Until then an earlier file stays as it
// was. Every write is checked, the last one when the file is closed: a full disk often shows only there.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

namespace spectrum {

class OutputFile {
public:
    // "-" is standard output. Throws UserError, like all calls here.
    explicit OutputFile(const std::string& path);
    // A file that is not closed before is removed, and what had its name remains.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::string_view bytes);
    // Writes over the first bytes, which cannot be done on a pipe.
    void writeStart(std::string_view bytes);
    bool canGoBack() const;
    // For libraries that write by themselves.
    int descriptor() const;

    // To be called when all is written.
    void close();

private:
    [[noreturn]] void fail() const;
    void openBeside();

    std::string name;
    std::filesystem::path place, beside;  // both empty where there is nothing to be replaced
    std::FILE* file = nullptr;
    int note = -1;  // of the unfinished file, for signals
};

// Throws UsageError when an output is the input itself, under whatever name: the input would be lost, or would grow
// while it is read. "-" are the standard streams.
void refuseInputAsOutput(const std::string& input, const std::string& output);

// Removes the file that is not finished. A handler of signals may call it.
void removeUnfinishedFile();

// What a process that has crashed left beside an output.
void removeUnfinishedFileOf(const std::string& output);

// Interrupted and terminated runs remove their unfinished file first.
void removeUnfinishedFileOnSignals();

}  // namespace spectrum
