// Problem files: one item per line, CR LF, Windows-1252 on disk.
//
// Items are "quoted text" (a quote inside is written as it stands), #TRUE# or
// #FALSE#, and bare whole numbers. A model lists its items once, in an
// exchange function that runs both ways: reading stores each item into its
// field at once, so a read that fails half-way leaves a half-filled screen.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace vorel {

class ProblemFile {
 public:
  static ProblemFile forReading(std::string windows1252);
  static ProblemFile forWriting();

  bool reading() const { return reading_; }

  // Each reads the next item into its target, or writes the target as an item.
  // A read past the end or an item that does not convert throws ReadFailed.
  void text(std::string& field);
  void flag(bool& value);
  void number(int& wholeNumber);  // a list index and the like, 16-bit
  // A selector's list index: an index the list does not have (outside
  // -1..count-1) fails the read and leaves the selector as it was.
  void listIndex(int& index, int count);

  // The items written so far, as the bytes of the file.
  const std::string& bytes() const { return data_; }

 private:
  struct Token {
    std::string text;
    bool quoted = false;
  };
  Token next();

  bool reading_ = false;
  std::string data_;  // Windows-1252
  std::size_t at_ = 0;
};

// Thrown by a read that cannot go on; the file operations below end silently on it.
struct ReadFailed {};

using Exchange = std::function<void(ProblemFile&)>;

// The largest file abrir reads: real problems take a few kilobytes.
inline constexpr std::size_t kMaxProblemFileBytes = 1 << 20;

// Reads a problem's items from its bytes through `exchange`; false when the
// read ended early (what was stored stays).
bool readProblem(std::string windows1252, const Exchange& exchange);

// abrir: reads the file into the fields through `exchange`. False when the
// file is not a regular file of at most kMaxProblemFileBytes, could not be
// opened, or the read ended early; what was stored stays.
bool openProblem(const std::string& path, const Exchange& exchange);

// guardar: writes the items and flushes them, and keeps the file open for the
// rest of the process, so a later openProblem or saveProblem of the same path
// fails. The bytes go to a new file beside it, renamed over the old one once
// all are written, so a write that fails leaves what was there. False when
// the file could not be written.
bool saveProblem(const std::string& path, const Exchange& exchange);

// Forget the files kept open (tests only: a new process starts with none).
void closeAllProblemFiles();

std::string toWindows1252(const std::string& utf8);
std::string fromWindows1252(const std::string& bytes);

}  // namespace vorel
