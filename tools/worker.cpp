// Numbers of files go to the process over a pair of sockets, and results come back, each as a text with its length in
// front.
#include "worker.h"

#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "output_file.h"
#include "user_error.h"

namespace spectrum {
namespace {

bool readAll(int from, void* to, std::size_t size) {
    char* place = static_cast<char*>(to);
    while (size > 0) {
        const ssize_t got = read(from, place, size);
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return false;
        place += got;
        size -= static_cast<std::size_t>(got);
    }
    return true;
}

bool writeAll(int to, const void* from, std::size_t size) {
    const char* place = static_cast<const char*>(from);
    while (size > 0) {
        const ssize_t put = send(to, place, size, MSG_NOSIGNAL);
        if (put < 0 && errno == EINTR) continue;
        if (put <= 0) return false;
        place += put;
        size -= static_cast<std::size_t>(put);
    }
    return true;
}

[[noreturn]] void work(int channel, const BatchOptions& options, const std::vector<BatchFile>& files) {
    std::uint64_t file;
    while (readAll(channel, &file, sizeof file)) {
        const std::string text = jsonLine(jsonOf(runFile(options, files[file])));
        const std::uint64_t size = text.size();
        if (!writeAll(channel, &size, sizeof size) || !writeAll(channel, text.data(), text.size())) break;
    }
    _exit(0);
}

std::string endOf(int status) {
    if (!WIFSIGNALED(status)) return "its process ended with status " + std::to_string(WEXITSTATUS(status));
    return std::string("its process was ended by a signal: ") + strsignal(WTERMSIG(status));
}

}  // namespace

Worker::Worker(const BatchOptions& given, const std::vector<BatchFile>& all) : options(given), files(all) { launch(); }
Worker::~Worker() { end(); }

void Worker::launch() {
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        throw UserError("cannot start a process: " + systemReason());
    }
    const pid_t parent = getpid();
    process = fork();
    if (process < 0) throw UserError("cannot start a process: " + systemReason());
    if (process == 0) {
        close(ends[0]);
        // No process outlives the run, whose files a new run takes over.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) _exit(1);
        work(ends[1], options, files);
    }
    close(ends[1]);
    channel = ends[0];
}

void Worker::end() {
    if (channel < 0) return;
    // Processes that were started later have a copy of this end, so that closing it would not be seen.
    shutdown(channel, SHUT_RDWR);
    close(channel);
    channel = -1;
    int status;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
}

void Worker::start(std::size_t file) {
    current = file;
    const std::uint64_t number = file;
    writeAll(channel, &number, sizeof number);  // what goes wrong shows in the result
}

FileResult Worker::result() {
    const std::size_t file = current.value();
    current.reset();
    std::uint64_t size;
    if (readAll(channel, &size, sizeof size)) {
        std::string text(size, '\0');
        if (readAll(channel, text.data(), size)) return resultOf(Json::parse(text));
    }
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    close(channel);
    channel = -1;
    removeUnfinishedFileOf(files[file].output);
    launch();
    FileResult failure;
    failure.status = 1;
    failure.message = endOf(status);
    return failure;
}

}  // namespace spectrum
