#include "tests/generator/expected.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace test {
namespace {

std::vector<std::string> cells(const std::string& line) {
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
    std::vector<ExpectedRow> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        const auto row = cells(line);
        ExpectedRow expected{std::stoi(row.at(0)), row.at(1), {}};
        for (std::size_t i = 2; i < row.size(); ++i) expected.figures.push_back(std::stoi(row[i]));
        rows.push_back(expected);
    }
    return rows;
}

}  // namespace test
