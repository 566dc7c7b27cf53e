// The tables of settled counts in tests/expected. A table begins with comment lines, the last of which names the
// columns.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace test {

struct ExpectedRow {
    std::map<std::string, std::string> cells;  // by column

    const std::string& text(const std::string& column) const { return cells.at(column); }
    int number(const std::string& column) const { return std::stoi(cells.at(column)); }
};

// The rows of tests/expected/<name>.txt.
std::vector<ExpectedRow> expectedRows(const std::string& name);

}  // namespace test
