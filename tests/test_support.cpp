#include "tests/test_support.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace vorel::testing {

std::string tempPath(const std::string& name) {
  static const std::filesystem::path dir = [] {
    auto d = std::filesystem::temp_directory_path() / ("vorel-tests-" + std::to_string(getpid()));
    std::filesystem::create_directories(d);
    return d;
  }();
  static int counter = 0;
  return (dir / (std::to_string(++counter) + "-" + name)).string();
}

std::string readBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

void writeBytes(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::vector<std::vector<std::string>> tableRows(const std::string& text) {
  std::vector<std::vector<std::string>> rows(1);
  std::istringstream in(text);
  for (std::string word; in >> word;) {
    if (word == "|")
      rows.emplace_back();
    else
      rows.back().push_back(word == "_" ? "" : word);
  }
  return rows;
}

}  // namespace vorel::testing
