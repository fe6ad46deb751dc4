// Helpers shared by the test suites.
#pragma once

#include <string>
#include <vector>

namespace vorel::testing {

// A fresh path in a temporary folder of this test run.
std::string tempPath(const std::string& name);
std::string readBytes(const std::string& path);
void writeBytes(const std::string& path, const std::string& bytes);

// A table typed on one line, rows parted by "|": "1 2 | _ 4" gives
// {{"1", "2"}, {"", "4"}}, "_" standing for a blank cell.
std::vector<std::vector<std::string>> tableRows(const std::string& text);

}  // namespace vorel::testing
