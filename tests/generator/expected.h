// The tables of settled counts in tests/expected.
#pragma once

#include <string>
#include <vector>

namespace test {

struct ExpectedRow {
    int length;
    std::string construction;
    std::vector<int> figures;  // the numbers after the construction, in the order of the file's head line
};

// The rows of tests/expected/<name>.txt.
std::vector<ExpectedRow> expectedRows(const std::string& name);

}  // namespace test
