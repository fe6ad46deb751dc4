#include "frame/problem_file.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>

#include "frame/arith.h"

namespace vorel {

namespace {

// Windows-1252 0x80..0x9F; 0 where the code page has no character.
constexpr char32_t kHighTable[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void appendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

char encode(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
  for (int k = 0; k < 32; ++k)
    if (kHighTable[k] == c) return static_cast<char>(0x80 + k);
  return '?';
}

bool iequals(const std::string& a, const char* b) {
  std::size_t i = 0;
  for (; i < a.size() && b[i]; ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) != b[i]) return false;
  return i == a.size() && !b[i];
}

}  // namespace

std::string toWindows1252(const std::string& utf8) {
  std::string out;
  for (std::size_t i = 0; i < utf8.size();) {
    unsigned char c = static_cast<unsigned char>(utf8[i]);
    int extra = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC0 ? 1 : 0;
    char32_t code = extra == 0 ? c : c & (0x3F >> extra);
    ++i;
    for (int k = 0; k < extra && i < utf8.size(); ++k, ++i)
      code = (code << 6) | (static_cast<unsigned char>(utf8[i]) & 0x3F);
    out += encode(code);
  }
  return out;
}

std::string fromWindows1252(const std::string& bytes) {
  std::string out;
  for (unsigned char c : bytes) {
    char32_t code = c;
    if (c >= 0x80 && c < 0xA0) code = kHighTable[c - 0x80] ? kHighTable[c - 0x80] : c;
    appendUtf8(out, code);
  }
  return out;
}

ProblemFile ProblemFile::forReading(std::string windows1252) {
  ProblemFile f;
  f.reading_ = true;
  f.data_ = std::move(windows1252);
  return f;
}

ProblemFile ProblemFile::forWriting() { return ProblemFile(); }

// One item as the platform's sequential input reads it: leading blanks are
// skipped; a quoted item runs to the next quote and whatever follows it up to
// the delimiter is dropped; a bare item runs to a comma or a line end.
ProblemFile::Token ProblemFile::next() {
  auto atLineEnd = [&] { return data_[at_] == '\r' || data_[at_] == '\n'; };
  auto skipDelimiter = [&] {
    if (at_ >= data_.size()) return;
    if (data_[at_] == ',') {
      ++at_;
    } else if (data_[at_] == '\r') {
      ++at_;
      if (at_ < data_.size() && data_[at_] == '\n') ++at_;
    } else if (data_[at_] == '\n') {
      ++at_;
    }
  };
  while (at_ < data_.size() && (data_[at_] == ' ' || data_[at_] == '\t')) ++at_;
  if (at_ >= data_.size()) throw ReadFailed{};

  Token token;
  if (data_[at_] == '"') {
    std::size_t close = data_.find('"', at_ + 1);
    if (close == std::string::npos) close = data_.size();
    token.text = fromWindows1252(data_.substr(at_ + 1, close - at_ - 1));
    token.quoted = true;
    at_ = close < data_.size() ? close + 1 : close;
    while (at_ < data_.size() && data_[at_] != ',' && !atLineEnd()) ++at_;
  } else {
    std::size_t start = at_;
    while (at_ < data_.size() && data_[at_] != ',' && !atLineEnd()) ++at_;
    std::string raw = data_.substr(start, at_ - start);
    while (!raw.empty() && (raw.back() == ' ' || raw.back() == '\t')) raw.pop_back();
    token.text = fromWindows1252(raw);
  }
  skipDelimiter();
  return token;
}

void ProblemFile::text(std::string& field) {
  if (reading_) {
    field = next().text;
  } else {
    data_ += "\"" + toWindows1252(field) + "\"\r\n";
  }
}

void ProblemFile::flag(bool& value) {
  if (!reading_) {
    data_ += value ? "#TRUE#\r\n" : "#FALSE#\r\n";
    return;
  }
  Token t = next();
  if (iequals(t.text, "#true#") || iequals(t.text, "true") || iequals(t.text, "verdadero")) {
    value = true;
  } else if (iequals(t.text, "#false#") || iequals(t.text, "false") || iequals(t.text, "falso")) {
    value = false;
  } else if (IsNumeric(t.text, '.')) {
    value = Val(t.text) != 0;
  } else {
    throw ReadFailed{};
  }
}

void ProblemFile::number(int& wholeNumber) {
  if (!reading_) {
    data_ += std::to_string(wholeNumber) + "\r\n";
    return;
  }
  Token t = next();
  try {
    if (!t.quoted && t.text.empty()) {
      wholeNumber = 0;
    } else if (iequals(t.text, "#true#")) {
      wholeNumber = -1;
    } else if (iequals(t.text, "#false#")) {
      wholeNumber = 0;
    } else if (IsNumeric(t.text, '.')) {
      wholeNumber = CInt(Val(t.text));
    } else {
      throw ReadFailed{};
    }
  } catch (const RuntimeError&) {
    throw ReadFailed{};
  }
}

void ProblemFile::listIndex(int& index, int count) {
  int read = index;
  number(read);
  if (!reading_) return;
  if (read < -1 || read >= count) throw ReadFailed{};
  index = read;
}

namespace {

// The files written in this process, kept open as the platform kept them.
std::map<std::string, std::unique_ptr<std::ofstream>>& openFiles() {
  static std::map<std::string, std::unique_ptr<std::ofstream>> files;
  return files;
}

std::string key(const std::string& path) {
  std::error_code ec;
  auto absolute = std::filesystem::weakly_canonical(std::filesystem::absolute(path, ec), ec);
  return ec ? path : absolute.string();
}

}  // namespace

bool readProblem(std::string windows1252, const Exchange& exchange) {
  try {
    ProblemFile file = ProblemFile::forReading(std::move(windows1252));
    exchange(file);
  } catch (const ReadFailed&) {
    return false;
  } catch (const std::exception&) {  // a run-time error of a conversion, no memory
    return false;
  }
  return true;
}

bool openProblem(const std::string& path, const Exchange& exchange) {
  if (path.empty() || openFiles().count(key(path))) return false;
  // Only a regular file of a problem's size is read: a device, a pipe or a huge
  // file fails like any other unreadable file.
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return false;
  const auto size = std::filesystem::file_size(path, error);
  if (error || size > kMaxProblemFileBytes) return false;
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  std::string contents(size, '\0');
  in.read(contents.data(), static_cast<std::streamsize>(size));
  contents.resize(static_cast<std::size_t>(in.gcount()));
  return readProblem(std::move(contents), exchange);
}

bool saveProblem(const std::string& path, const Exchange& exchange) {
  if (path.empty() || openFiles().count(key(path))) return false;
  namespace fs = std::filesystem;
  // The items go to a new file beside the one chosen, which takes its name
  // only once every byte is on the disk: a write that fails half-way (a full
  // disk, a run-time error in the items) leaves the file that was there.
  const fs::path target(path);
  std::error_code error;
  fs::path temporary;
  for (int n = 0; n < 1000 && temporary.empty(); ++n) {
    fs::path candidate = target;
    candidate.replace_filename("." + target.filename().string() + "." + std::to_string(n) + ".tmp");
    if (!fs::exists(candidate, error) && !error) temporary = candidate;
  }
  if (temporary.empty()) return false;
  auto out = std::make_unique<std::ofstream>(temporary, std::ios::binary | std::ios::trunc);
  if (!*out) return false;
  bool written = false;
  try {
    ProblemFile file = ProblemFile::forWriting();
    exchange(file);
    *out << file.bytes();
    out->flush();
    written = static_cast<bool>(*out);
  } catch (...) {
    out.reset();
    fs::remove(temporary, error);
    throw;
  }
  if (written) {
    fs::rename(temporary, target, error);
    written = !error;
  }
  if (!written) {
    out.reset();
    fs::remove(temporary, error);
    return false;
  }
  // The handle stays open, now on the file under its own name.
  openFiles()[key(path)] = std::move(out);
  return true;
}

void closeAllProblemFiles() { openFiles().clear(); }

}  // namespace vorel
