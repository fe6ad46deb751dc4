// Feeds arbitrary bytes to the problem file reader. The first byte chooses the
// sequence of targets, so texts, flags and whole numbers meet every kind of item.
#include <cstddef>
#include <cstdint>
#include <string>

#include "frame/arith.h"
#include "frame/problem_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const unsigned pattern = data[0];
  vorel::ProblemFile file =
      vorel::ProblemFile::forReading(std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
  try {
    for (unsigned k = 0; k < 64; ++k) {
      switch ((pattern >> (k % 7)) % 3) {
        case 0: { std::string s; file.text(s); vorel::IsNumeric(s); vorel::Val(s); break; }
        case 1: { bool b = false; file.flag(b); break; }
        default: { int n = 0; file.number(n); break; }
      }
    }
  } catch (const vorel::ReadFailed&) {
  } catch (const vorel::RuntimeError&) {
  }
  return 0;
}
