// A plan in words: its tree, one record to a line, with where things lie in the block and every number of the record.
#pragma once

#include <string>

#include "dct4/records.h"

namespace test {

// Offsets count from the root record.
std::string describe(const zulg::DctPlan& plan);

}  // namespace test
