#include "tests/generator/expected.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace test {
namespace {

std::vector<std::string> cellsOf(const std::string& line) {
    std::vector<std::string> result;
    std::istringstream stream(line);
    for (std::string cell; std::getline(stream, cell, '|');) {
        const auto first = cell.find_first_not_of(' '), last = cell.find_last_not_of(' ');
        result.push_back(cell.substr(first, last - first + 1));
    }
    return result;
}

}  // namespace

std::vector<ExpectedRow> expectedRows(const std::string& name) {
    std::ifstream file(std::string(ZULG_EXPECTED) + "/" + name + ".txt");
    if (!file) throw std::runtime_error("no expected table " + name);
    std::vector<std::string> columns;
    std::vector<ExpectedRow> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("# ")) {
            columns = cellsOf(line.substr(2));
            continue;
        }
        const auto cells = cellsOf(line);
        if (cells.size() != columns.size()) throw std::runtime_error("table " + name + ", row: " + line);
        ExpectedRow row;
        for (std::size_t i = 0; i < cells.size(); ++i) row.cells[columns[i]] = cells[i];
        rows.push_back(row);
    }
    return rows;
}

}  // namespace test
