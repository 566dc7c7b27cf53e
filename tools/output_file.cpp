// The unfinished file has a fixed name, so that a run that is killed leaves at most one beside each output, and the
// next run takes it over. A lock keeps two runs at one output apart.
#include "output_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

#include "user_error.h"

namespace spectrum {
namespace {

// What a signal removes.
struct Unfinished {
    std::atomic<bool> isTaken, isNamed;
    char path[4096];
};
Unfinished unfinished[16];
static_assert(std::atomic<bool>::is_always_lock_free, "a handler of signals reads it");

void removeAndEnd(int signal) {
    removeUnfinishedFile();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

// Returns where the name is kept, or -1.
int noteUnfinished(const std::string& path) {
    for (int i = 0; i < 16; ++i) {
        Unfinished& one = unfinished[i];
        if (path.size() >= sizeof one.path || one.isTaken.exchange(true)) continue;
        path.copy(one.path, path.size());
        one.path[path.size()] = '\0';
        one.isNamed = true;
        return i;
    }
    return -1;
}

void forgetUnfinished(int note) {
    if (note < 0) return;
    unfinished[note].isNamed = false;
    unfinished[note].isTaken = false;
}

bool isSame(const struct stat& one, const struct stat& other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool statusOf(const std::string& path, int stream, struct stat& status) {
    return (path == "-" ? fstat(stream, &status) : stat(path.c_str(), &status)) == 0;
}

std::filesystem::path besideOf(const std::filesystem::path& place) {
    return place.parent_path() / ("." + place.filename().string() + ".part");
}

// Opens and locks the file, or returns -1. Another run may rename the file between the two steps, and then the lock is
// on a file that has its place already.
int openLocked(const std::string& path) {
    for (;;) {
        const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666);
        if (descriptor < 0) return -1;
        struct stat opened, named;
        const bool locked = flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno == ENOLCK || errno == EOPNOTSUPP;
        if (locked && fstat(descriptor, &opened) == 0 && stat(path.c_str(), &named) == 0 && isSame(opened, named)) {
            return descriptor;
        }
        const int reason = errno;
        ::close(descriptor);
        errno = reason;
        if (!locked) return -1;
    }
}

}  // namespace

OutputFile::OutputFile(const std::string& path) : name(path == "-" ? "standard output" : printable(path)) {
    if (path == "-") {
        file = stdout;
        return;
    }
    // A link stays a link: what it leads to is replaced.
    std::error_code error;
    place = std::filesystem::weakly_canonical(path, error);
    if (error) place = path;
    // What a link leads to need not be there yet.
    for (int links = 0; links < 40 && std::filesystem::is_symlink(place, error); ++links) {
        place = place.parent_path() / std::filesystem::read_symlink(place, error);
    }
    const std::filesystem::file_status status = std::filesystem::status(place, error);
    if (std::filesystem::is_directory(status)) throw UserError("cannot write " + name + ": it is a folder");
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        place.clear();
        file = std::fopen(path.c_str(), "wb");
        if (!file) fail();
        return;
    }
    openBeside();
}

void OutputFile::openBeside() {
    struct stat earlier;
    const bool replaces = stat(place.c_str(), &earlier) == 0;
    if (replaces && access(place.c_str(), W_OK) != 0) fail();
    beside = besideOf(place);
    const int descriptor = openLocked(beside);
    if (descriptor < 0 && errno == EWOULDBLOCK) throw UserError("cannot write " + name + ": another run writes it now");
    if (descriptor < 0) {
        const std::string reason = systemReason();
        throw UserError("cannot write " + name + ": " + printable(beside.string()) + ": " + reason);
    }
    note = noteUnfinished(beside);
    if (ftruncate(descriptor, 0) != 0 || (replaces && fchmod(descriptor, earlier.st_mode & 07777) != 0) ||
        !(file = fdopen(descriptor, "w+b"))) {
        const int reason = errno;
        unlink(beside.c_str());
        forgetUnfinished(note);
        ::close(descriptor);
        errno = reason;
        fail();
    }
}

OutputFile::~OutputFile() {
    if (!file || file == stdout) return;
    if (!beside.empty()) unlink(beside.c_str());
    forgetUnfinished(note);
    std::fclose(file);
}

void OutputFile::write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) fail();
}

bool OutputFile::canGoBack() const {
    return std::fseek(file, 0, SEEK_CUR) == 0 && lseek(fileno(file), 0, SEEK_CUR) >= 0;
}

void OutputFile::writeStart(std::string_view bytes) {
    if (std::fseek(file, 0, SEEK_SET) != 0) fail();
    write(bytes);
    if (std::fseek(file, 0, SEEK_END) != 0) fail();
}

int OutputFile::descriptor() const { return fileno(file); }

void OutputFile::close() {
    if (std::fflush(file) != 0) fail();
    if (!beside.empty()) {
        // The bytes are on the disk before the name is, so that not even a loss of power leaves half a file.
        if (fsync(fileno(file)) != 0 || std::rename(beside.c_str(), place.c_str()) != 0) fail();
        beside.clear();
        forgetUnfinished(std::exchange(note, -1));
    }
    std::FILE* const open = file;
    file = nullptr;
    if (open != stdout && std::fclose(open) != 0) fail();
}

void OutputFile::fail() const { throw UserError("cannot write " + name + ": " + systemReason()); }

void refuseInputAsOutput(const std::string& input, const std::string& output) {
    struct stat from, to;
    if (!statusOf(input, STDIN_FILENO, from) || !statusOf(output, STDOUT_FILENO, to)) return;
    if (!S_ISREG(from.st_mode) || !isSame(from, to)) return;
    const std::string shownInput = input == "-" ? "standard input" : printable(input);
    throw UsageError((output == "-" ? "standard output" : "--output " + printable(output)) +
                     ": that is the input itself, " + shownInput);
}

void removeUnfinishedFile() {
    for (const Unfinished& one : unfinished) {
        if (one.isNamed) unlink(one.path);
    }
}

void removeUnfinishedFileOf(const std::string& output) { unlink(besideOf(output).c_str()); }

void removeUnfinishedFileOnSignals() {
    for (int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGXCPU}) {
        if (std::signal(signal, SIG_IGN) != SIG_IGN) std::signal(signal, removeAndEnd);
    }
    std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is an error of writing
}

}  // namespace spectrum
