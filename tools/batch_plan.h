// What a run over many files consists of, for the program of one machine and for that of many: the files, what became
// of each, and the journal that lets a run go on where an earlier one was stopped.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "json.h"
#include "option_words.h"
#include "options.h"

namespace spectrum {

struct BatchFile {
    std::string path;    // as it is opened
    std::string name;    // within the inputs, for messages, the journal, and the output
    std::string output;  // path
    int channel;         // as InputOptions have it; everyChannel only where the channels could not be counted
};

struct FileResult {
    int status = 0;  // of Exit
    std::string message;
    std::int64_t samples = 0, frames = 0;
    std::vector<std::string> warnings;
};

// The options of the command line that both programs share.
void declareBatchOptions(CLI::App& app, Words& words);
// Those of zulspectrum-mpi.
void declareClusterOptions(CLI::App& app, Words& words);
BatchOptions batchOptionsOf(const Words& words);

// In the order of their names, with --channel each one after the other for each channel. Throws UserError.
std::vector<BatchFile> batchFiles(const BatchOptions& options);

// The options for one of the files.
Options optionsFor(const BatchOptions& options, const BatchFile& file);

// Makes the output of one file. Never throws: what goes wrong is the result.
FileResult runFile(const BatchOptions& options, const BatchFile& file);
FileResult resultOf(const std::exception& error);

Json jsonOf(const FileResult& result);
FileResult resultOf(const Json& json);

// The journal of a folder of outputs. It is locked as long as it is open. Throws UserError.
class Journal {
public:
    explicit Journal(const BatchOptions& options);
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    // Whether an earlier run made the output of this very file, and it is still there.
    bool isDone(const BatchFile& file) const;
    void noteDone(const BatchFile& file);

private:
    void read(const std::string& words, bool startsAgain);
    void append(const Json& line);

    std::string path;
    int descriptor = -1;
    std::map<std::string, std::string> done;  // by name: what the file and its output were
};

// Counts results and prints them at the end.
class Summary {
public:
    Summary(std::size_t files, bool asJson) : total(files), json(asJson) {}

    void addEarlier() { ++earlier; }
    void add(const BatchFile& file, const FileResult& result);

    // A line on standard error for people at a terminal, which ends with the last file.
    void showProgress(const std::string& program) const;

    // The summary to standard output and a line for each failed file to standard error. Returns the exit status.
    int print(const std::string& program, double seconds) const;

private:
    std::size_t finished() const { return done + earlier + failed.size(); }

    struct Line {
        std::string name;
        FileResult result;
    };

    std::size_t total, done = 0, earlier = 0;
    bool json;
    std::int64_t samples = 0;
    std::vector<Line> failed, damaged;  // damaged: those that are done, with damage allowed
};

}  // namespace spectrum
