// A process that makes the outputs of one file after the other, so that not even a crash over a broken file stops the
// rest.
#pragma once

#include <sys/types.h>

#include <optional>

#include "batch_plan.h"

namespace spectrum {

class Worker {
public:
    // Both must outlive the worker.
    Worker(const BatchOptions& options, const std::vector<BatchFile>& files);
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    // The file that it is at, if any.
    std::optional<std::size_t> current;

    // To poll for a result.
    int descriptor() const { return channel; }

    void start(std::size_t file);
    // To be called when the descriptor can be read. A process that has ended without a result is replaced.
    FileResult result();

private:
    void launch();
    void end();

    const BatchOptions& options;
    const std::vector<BatchFile>& files;
    int channel = -1;
    pid_t process = -1;
};

}  // namespace spectrum
