// zulspectrum: short-time spectra of sound files and of numbers, with the transforms of the library beside it.
// --help tells what it can do.
#include <cstdio>
#include <exception>
#include <iostream>

#include "commands.h"
#include "output_file.h"
#include "user_error.h"

namespace spectrum {
namespace {

// Reports and the help go to standard output too, and its disk may be full.
void flushStandardOutput() {
    if (!std::cout.flush() || std::fflush(stdout) != 0) throw UserError("cannot write standard output");
}

int runProgram(int argc, char** argv) {
    removeUnfinishedFileOnSignals();
    const int status = runCommandLine("zulspectrum", commands(), argc, argv);
    flushStandardOutput();
    return status;
}

}  // namespace
}  // namespace spectrum

int main(int argc, char** argv) {
    try {
        return spectrum::runProgram(argc, argv);
    } catch (const spectrum::UserError& error) {
        std::fprintf(stderr, "zulspectrum: %s\n", error.what());
        return static_cast<int>(error.status());
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "zulspectrum: there is not enough memory\n");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zulspectrum: %s\n", error.what());
    }
    return 1;
}
