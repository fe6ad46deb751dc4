// Helpers shared by the test suites.
#pragma once

#include <string>

namespace vorel::testing {

// A fresh path in a temporary folder of this test run.
std::string tempPath(const std::string& name);
std::string readBytes(const std::string& path);
void writeBytes(const std::string& path, const std::string& bytes);

}  // namespace vorel::testing
