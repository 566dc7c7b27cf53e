// Calls every exported routine as it is meant to be called, so that each goes all the way through.
#pragma once

#include "tests/hook/loading.h"

namespace test {

// Expects StatusOk of each. A family whose arguments are not known here is a failure.
void callEveryExport(const LoadedLibrary& library);

}  // namespace test
