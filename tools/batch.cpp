// Deals files out to processes as they ask for them.
#include "batch.h"

#include <poll.h>
#include <sched.h>

#include <chrono>
#include <memory>

#include "batch_plan.h"
#include "numbers.h"
#include "transform.h"
#include "user_error.h"
#include "worker.h"

namespace spectrum {
namespace {

// The cores that this program may use.
int coreCount() {
    cpu_set_t cores;
    return sched_getaffinity(0, sizeof cores, &cores) == 0 ? std::max(1, CPU_COUNT(&cores)) : 1;
}

}  // namespace

void declareBatch(CLI::App& app, Words& words) {
    declareBatchOptions(app, words);
    declareOption(app, words, "--jobs", "N", "Files at a time [the cores of the machine]");
}

int runBatch(const Words& words) {
    const auto begun = std::chrono::steady_clock::now();
    const BatchOptions options = batchOptionsOf(words);
    const int jobs =
        words.given("--jobs") ? static_cast<int>(wholeNumber("--jobs", words["--jobs"], 1, 1024)) : coreCount();
    expectTransform(options.each.framing);
    const std::vector<BatchFile> files = batchFiles(options);
    Journal journal(options);
    Summary summary(files.size(), options.json);
    std::vector<std::size_t> waiting;
    for (std::size_t i = files.size(); i-- > 0;) {
        if (journal.isDone(files[i])) {
            summary.addEarlier();
        } else {
            waiting.push_back(i);
        }
    }

    std::vector<std::unique_ptr<Worker>> workers;
    while (workers.size() < std::min(static_cast<std::size_t>(jobs), waiting.size())) {
        workers.push_back(std::make_unique<Worker>(options, files));
    }
    std::size_t busy = 0;
    const auto startNext = [&](Worker& worker) {
        if (waiting.empty()) return;
        worker.start(waiting.back());
        waiting.pop_back();
        ++busy;
    };
    for (auto& worker : workers) startNext(*worker);
    while (busy > 0) {
        std::vector<pollfd> ready;
        for (const auto& worker : workers) ready.push_back({worker->descriptor(), POLLIN, 0});
        if (poll(ready.data(), ready.size(), -1) < 0) continue;
        for (std::size_t i = 0; i < workers.size(); ++i) {
            if (ready[i].revents == 0 || !workers[i]->current) continue;
            const BatchFile& file = files[*workers[i]->current];
            const FileResult result = workers[i]->result();
            --busy;
            if (result.status == 0) journal.noteDone(file);
            summary.add(file, result);
            startNext(*workers[i]);
            summary.showProgress("zulspectrum");
        }
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begun;
    return summary.print("zulspectrum", took.count());
}

}  // namespace spectrum
