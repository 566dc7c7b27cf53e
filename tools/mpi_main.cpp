// zulspectrum-mpi: the command `batch` over many processes and machines, with MPI. Rank 0 deals the work out, to itself
// too, and every rank asks for more when it is done. A recording that is longer than a piece is split by time; rank 0
// puts the pieces together in their order. The outputs are the same bytes as those of one process.
#include <mpi.h>
#include <unistd.h>

#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <mutex>
#include <thread>

#include "batch_plan.h"
#include "command_line.h"
#include "help_texts.h"
#include "mpi_pieces.h"
#include "numbers.h"
#include "output_file.h"
#include "transform.h"
#include "user_error.h"

namespace spectrum {
namespace {

constexpr const char* program = "zulspectrum-mpi";
constexpr int workTag = 1, resultTag = 2;

// A message is a line of JSON, and after it the bytes of a piece.
void sendText(int rank, int tag, const std::string& text) {
    MPI_Send(text.data(), static_cast<int>(text.size()), MPI_CHAR, rank, tag, MPI_COMM_WORLD);
}

std::string receiveText(const MPI_Status& status) {
    int size = 0;
    MPI_Get_count(&status, MPI_CHAR, &size);
    std::string text(static_cast<std::size_t>(size), '\0');
    MPI_Recv(text.data(), size, MPI_CHAR, status.MPI_SOURCE, status.MPI_TAG, MPI_COMM_WORLD, MPI_STATUS_IGNORE);
    return text;
}

// Waits without keeping a core busy: there may be more ranks than cores.
MPI_Status waitFor(int tag) {
    MPI_Status status;
    for (int there = 0;;) {
        MPI_Iprobe(MPI_ANY_SOURCE, tag, MPI_COMM_WORLD, &there, &status);
        if (there) return status;
        usleep(200);
    }
}

// The thread of rank 0 that does its share of the work, while the main thread deals out.
class OwnWorker {
public:
    OwnWorker(const BatchOptions& given, const std::vector<BatchFile>& all)
        : options(given), files(all), thread([this] { work(); }) {}

    ~OwnWorker() {
        {
            const std::lock_guard lock(mutex);
            ended = true;
        }
        changed.notify_all();
        thread.join();
    }

    void start(const Piece& piece) {
        {
            const std::lock_guard lock(mutex);
            next = piece;
        }
        changed.notify_all();
    }

    std::optional<PieceResult> result() {
        const std::lock_guard lock(mutex);
        return std::exchange(done, std::nullopt);
    }

private:
    void work() {
        for (;;) {
            std::unique_lock lock(mutex);
            changed.wait(lock, [this] { return next || ended; });
            if (!next) return;
            const Piece piece = *std::exchange(next, std::nullopt);
            lock.unlock();
            PieceResult result = run(piece, options, files);
            lock.lock();
            done = std::move(result);
        }
    }

    const BatchOptions& options;
    const std::vector<BatchFile>& files;
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<Piece> next;
    std::optional<PieceResult> done;
    bool ended = false;
    std::thread thread;  // begins when all else is there
};

// Rank 0.
class Master {
public:
    Master(const BatchOptions& given, const std::vector<BatchFile>& all, std::int64_t mostSamples)
        : options(given),
          files(all),
          journal(given),
          summary(all.size(), given.json),
          dealer(given, all, mostSamples, [this](const BatchFile& file) { return isDone(file); }) {}

    int run() {
        const auto begun = std::chrono::steady_clock::now();
        MPI_Comm_size(MPI_COMM_WORLD, &ranks);
        OwnWorker own(options, files);
        int idle = 0;
        bool ownIsIdle = !deal(0, own);
        for (int rank = 1; rank < ranks; ++rank) idle += !deal(rank, own);
        while (idle < ranks - 1 || !ownIsIdle) {
            MPI_Status status;
            int there = 0;
            MPI_Iprobe(MPI_ANY_SOURCE, resultTag, MPI_COMM_WORLD, &there, &status);
            if (there) {
                take(pieceResultOf(receiveText(status)));
                idle += !deal(status.MPI_SOURCE, own);
            } else if (auto result = ownIsIdle ? std::nullopt : own.result()) {
                take(*result);
                ownIsIdle = !deal(0, own);
            } else {
                usleep(200);
            }
        }
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begun;
        return summary.print(program, took.count());
    }

private:
    bool isDone(const BatchFile& file) {
        const bool found = journal.isDone(file);
        if (found) summary.addEarlier();
        return found;
    }

    // Returns false where there is nothing left, which ends the rank.
    bool deal(int rank, OwnWorker& own) {
        const std::optional<Piece> piece = dealer.next();
        if (rank == 0) {
            if (piece) own.start(*piece);
        } else {
            sendText(rank, workTag, piece ? textOf(*piece) : "");
        }
        return piece.has_value();
    }

    void take(const PieceResult& result) {
        const auto finished = dealer.take(result);
        if (!finished) return;
        const BatchFile& file = files[result.piece.file];
        if (finished->status == 0) journal.noteDone(file);
        summary.add(file, *finished);
        summary.showProgress(program);
    }

    const BatchOptions& options;
    const std::vector<BatchFile>& files;
    Journal journal;
    Summary summary;
    Dealer dealer;
    int ranks = 1;
};

void workForOthers(const BatchOptions& options, const std::vector<BatchFile>& files) {
    for (;;) {
        const std::string text = receiveText(waitFor(workTag));
        if (text.empty()) return;
        sendText(0, resultTag, textOf(run(pieceOf(text), options, files)));
    }
}

// The launcher ends all ranks when one of them is lost, and says which.
void sayThatItWasStopped(int) {
    constexpr char line[] = "zulspectrum-mpi: the run was stopped; started again, it goes on where it was\n";
    (void)!write(STDERR_FILENO, line, sizeof line - 1);
    removeUnfinishedFile();
    _exit(1);
}

int rankOf() {
    int rank = 0;
    MPI_Comm_rank(MPI_COMM_WORLD, &rank);
    return rank;
}

// Rank 0 lists the files, so that all ranks have the same, and what is wrong with the words is said once.
std::vector<BatchFile> sharedFiles(const BatchOptions& options) {
    std::string text;
    if (rankOf() == 0) {
        Json list = Json::array();
        for (const BatchFile& file : batchFiles(options)) {
            list.push_back({file.path, file.name, file.output, file.channel});
        }
        text = list.dump(-1, ' ', false, Json::error_handler_t::strict);
    }
    std::uint64_t size = text.size();
    MPI_Bcast(&size, 1, MPI_UINT64_T, 0, MPI_COMM_WORLD);
    text.resize(size);
    MPI_Bcast(text.data(), static_cast<int>(size), MPI_CHAR, 0, MPI_COMM_WORLD);
    std::vector<BatchFile> files;
    for (const Json& one : Json::parse(text)) files.push_back({one[0], one[1], one[2], one[3]});
    return files;
}

// What a message between two ranks costs, and a byte in it.
int probe(bool isFirst) {
    int ranks = 1;
    MPI_Comm_size(MPI_COMM_WORLD, &ranks);
    if (ranks < 2) throw UsageError("--probe: it takes two ranks");
    const int rank = rankOf();
    if (rank > 1) return 0;
    const auto secondsOf = [&](int messages, std::size_t bytes) {
        std::string text(bytes, ' ');
        const double start = MPI_Wtime();
        for (int i = 0; i < messages; ++i) {
            if (isFirst) {
                sendText(1, workTag, "x");
                receiveText(waitFor(resultTag));
            } else {
                receiveText(waitFor(workTag));
                sendText(0, resultTag, text);
            }
        }
        return (MPI_Wtime() - start) / messages;
    };
    secondsOf(10, 1);
    const double message = secondsOf(200, 200), piece = secondsOf(50, 8 << 20);
    if (isFirst) {
        std::cout << jsonText(
            {{"seconds_of_a_message", message}, {"seconds_of_a_byte", (piece - message) / (8 << 20)}});
    }
    return 0;
}

int runRanks(const Words& words) {
    if (words.given("--probe")) return probe(rankOf() == 0);
    const BatchOptions options = batchOptionsOf(words);
    const std::int64_t most = wholeNumber("--split", words["--split"], 1000, std::int64_t{1} << 40);
    expectTransform(options.each.framing);
    const std::vector<BatchFile> files = sharedFiles(options);
    if (rankOf() != 0) {
        workForOthers(options, files);
        return 0;
    }
    std::signal(SIGTERM, sayThatItWasStopped);
    return Master(options, files, most).run();
}

const std::vector<Command>& commands() {
    static const std::vector<Command> all = {
        {"", clusterSummary, "FILE-OR-FOLDER ...", declareClusterOptions, runRanks, mpiFooter}};
    return all;
}

int runProgram(int argc, char** argv) {
    // What is wrong with the words is the same in all ranks.
    try {
        removeUnfinishedFileOnSignals();
        const int status = runCommandLine(program, commands(), argc, argv);
        if (!std::cout.flush()) throw UserError("cannot write standard output");
        return status;
    } catch (const std::exception& error) {
        const FileResult result = resultOf(error);
        if (rankOf() == 0) std::fprintf(stderr, "%s: %s\n", program, result.message.c_str());
        std::fflush(stderr);
        if (result.status != static_cast<int>(Exit::Usage)) MPI_Abort(MPI_COMM_WORLD, result.status);
        return result.status;
    }
}

}  // namespace
}  // namespace spectrum

int main(int argc, char** argv) {
    int given = 0;
    MPI_Init_thread(&argc, &argv, MPI_THREAD_FUNNELED, &given);
    const int status = spectrum::runProgram(argc, argv);
    MPI_Finalize();
    return status;
}
