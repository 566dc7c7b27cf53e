// A plan in words: its tree, one record to a line, with the offset of each record, list and vector and with all
// numbers.
#pragma once

#include <string>

#include "dct4/records.h"

namespace test {

// Offsets count from the root record.
std::string describe(const zulg::DctPlan& plan);

}  // namespace test
