// The version record. library.rc carries the same numbers in the file's version resource.
#include "kernel/platform.h"

namespace {

constinit const LibVersion version = {
    .major = 7,
    .minor = 0,
    .majorBuild = 205,
    .build = 544,
    .targetCpu = {'p', 'x', '\0', '\0'},
    .name = "zulgenpx-7.0.dll",
    .version = "7.0 build 205.58",
    .buildDate = "Apr 18 2011",
};

}  // namespace

extern "C" ZULG_EXPORT const LibVersion* ZULG_CALL zulgenGetLibVersion() { return &version; }
