#include "frame/problem_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel {
namespace {

using testing::readBytes;
using testing::tempPath;
using testing::writeBytes;

struct Sample {
  std::string title = "Título: Solución ñ";
  std::string value = "1,5";
  bool visible = true;
  bool hidden = false;
  int index = -1;
  int big = 32767;
};

void exchange(ProblemFile& f, Sample& s) {
  f.text(s.title);
  f.text(s.value);
  f.flag(s.visible);
  f.flag(s.hidden);
  f.number(s.index);
  f.number(s.big);
}

class ProblemFileTest : public ::testing::Test {
 protected:
  void TearDown() override { closeAllProblemFiles(); }
};

TEST_F(ProblemFileTest, WritesTheThreeItemKindsInWindows1252WithCrLf) {
  Sample s;
  std::string path = tempPath("sample.txt");
  ASSERT_TRUE(saveProblem(path, [&](ProblemFile& f) { exchange(f, s); }));
  EXPECT_EQ(readBytes(path),
            "\"T\xEDtulo: Soluci\xF3n \xF1\"\r\n\"1,5\"\r\n#TRUE#\r\n#FALSE#\r\n-1\r\n32767\r\n");
}

TEST_F(ProblemFileTest, RoundTripsInALaterRunButNotInTheSameOne) {
  Sample written;
  written.title = "Año €";
  written.index = 3;
  std::string path = tempPath("round.txt");
  ASSERT_TRUE(saveProblem(path, [&](ProblemFile& f) { exchange(f, written); }));

  Sample read{"", "", false, true, 0, 0};
  EXPECT_FALSE(openProblem(path, [&](ProblemFile& f) { exchange(f, read); }));
  EXPECT_EQ(read.title, "");  // the file is still open for writing: nothing read
  EXPECT_FALSE(saveProblem(path, [&](ProblemFile& f) { exchange(f, written); }));

  closeAllProblemFiles();  // as a new process would
  ASSERT_TRUE(openProblem(path, [&](ProblemFile& f) { exchange(f, read); }));
  EXPECT_EQ(read.title, "Año €");
  EXPECT_EQ(read.value, "1,5");
  EXPECT_TRUE(read.visible);
  EXPECT_FALSE(read.hidden);
  EXPECT_EQ(read.index, 3);
  EXPECT_EQ(read.big, 32767);
}

// guardar over a good file whose new bytes cannot all be written (here the
// process may write files of 16 bytes at most, as a full disk would stop
// it) fails silently and leaves the good file as it was, with nothing beside.
TEST_F(ProblemFileTest, AFailedWriteLeavesTheFileThatWasThere) {
  const std::string dir = tempPath("guardar");
  std::filesystem::remove_all(dir);
  std::filesystem::create_directories(dir);
  const std::string path = dir + "/problema.txt";
  writeBytes(path, "\"bueno\"\r\n");
  Sample s;
  s.title = std::string(200, 'x');
  struct rlimit before {};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto previousSignal = std::signal(SIGXFSZ, SIG_IGN);
  struct rlimit small = before;
  small.rlim_cur = 16;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const bool saved = saveProblem(path, [&](ProblemFile& f) { exchange(f, s); });
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, previousSignal);
  EXPECT_FALSE(saved);
  EXPECT_EQ(readBytes(path), "\"bueno\"\r\n");
  // A run-time error while the items are made leaves it too.
  EXPECT_THROW(saveProblem(path,
                           [&](ProblemFile& f) {
                             f.text(s.title);
                             throw RuntimeError(6);
                           }),
               RuntimeError);
  EXPECT_EQ(readBytes(path), "\"bueno\"\r\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir), {}), 1);
  // A write that succeeds replaces it.
  s.title = "nuevo";
  ASSERT_TRUE(saveProblem(path, [&](ProblemFile& f) { exchange(f, s); }));
  EXPECT_EQ(readBytes(path).substr(0, 9), "\"nuevo\"\r\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir), {}), 1);
}

TEST_F(ProblemFileTest, ReaderSplitsAtCommasOutsideQuotes) {
  std::string path = tempPath("commas.txt");
  writeBytes(path, "\"a, b\",\"c\"\r\n#TRUE#,#FALSE#\n 4 , 5\r\n");
  Sample s;
  ASSERT_TRUE(openProblem(path, [&](ProblemFile& f) { exchange(f, s); }));
  EXPECT_EQ(s.title, "a, b");
  EXPECT_EQ(s.value, "c");
  EXPECT_TRUE(s.visible);
  EXPECT_FALSE(s.hidden);
  EXPECT_EQ(s.index, 4);
  EXPECT_EQ(s.big, 5);
}

TEST_F(ProblemFileTest, AQuoteInsideATitleBreaksTheReadingOfThatItem) {
  Sample s;
  s.title = "El \"mejor\" plan";
  std::string path = tempPath("quote.txt");
  ASSERT_TRUE(saveProblem(path, [&](ProblemFile& f) { exchange(f, s); }));
  EXPECT_EQ(readBytes(path).substr(0, 19), "\"El \"mejor\" plan\"\r\n");
  closeAllProblemFiles();
  Sample read;
  ASSERT_TRUE(openProblem(path, [&](ProblemFile& f) { exchange(f, read); }));
  EXPECT_EQ(read.title, "El ");
}

TEST_F(ProblemFileTest, AnyFailureEndsSilentlyKeepingWhatWasStored) {
  struct Case {
    const char* name;
    std::string bytes;
    bool missing;
    std::string title;
    std::string value;
    bool visible;
  };
  const Case cases[] = {
      {"past the end", "\"uno\"\r\n\"dos\"\r\n", false, "uno", "dos", false},
      {"bad flag", "\"uno\"\r\n\"dos\"\r\n\"tal vez\"\r\n", false, "uno", "dos", false},
      {"empty file", "", false, "x", "y", false},
      {"missing file", "", true, "x", "y", false},
      // Not a problem's file at all: read nothing, however it starts.
      {"too large", "\"uno\"\r\n" + std::string(kMaxProblemFileBytes, ' '), false, "x", "y", false},
      {"a folder", "", true, "x", "y", false},
      {"/dev/zero", "", true, "x", "y", false},
  };
  for (const Case& c : cases) {
    std::string path = c.name[0] == '/' ? c.name : tempPath("fail.txt");
    if (std::string(c.name) == "a folder") std::filesystem::create_directory(path);
    if (!c.missing) writeBytes(path, c.bytes);
    Sample s{"x", "y", false, false, 9, 9};
    EXPECT_FALSE(openProblem(path, [&](ProblemFile& f) { exchange(f, s); })) << c.name;
    EXPECT_EQ(s.title, c.title) << c.name;
    EXPECT_EQ(s.value, c.value) << c.name;
    EXPECT_EQ(s.visible, c.visible) << c.name;
    EXPECT_EQ(s.index, 9) << c.name;
  }
}

TEST_F(ProblemFileTest, WholeNumbersConvertToSixteenBits) {
  struct Case {
    const char* item;
    bool ok;
    int value;
  } cases[] = {
      {"7", true, 7},      {"\"12\"", true, 12}, {"2.5", true, 2},   {"#TRUE#", true, -1},
      {"40000", false, 0}, {"abc", false, 0},    {"\"\"", false, 0}, {"-32768", true, -32768},
  };
  for (const auto& c : cases) {
    ProblemFile f = ProblemFile::forReading(std::string(c.item) + "\r\n");
    int value = 0;
    if (c.ok) {
      f.number(value);
      EXPECT_EQ(value, c.value) << c.item;
    } else {
      EXPECT_THROW(f.number(value), ReadFailed) << c.item;
    }
  }
}

TEST_F(ProblemFileTest, AListIndexTheSelectorLacksEndsTheRead) {
  ProblemFile f = ProblemFile::forReading("3\r\n-1\r\n7\r\n");
  int index = 5;
  f.listIndex(index, 7);
  EXPECT_EQ(index, 3);
  f.listIndex(index, 7);
  EXPECT_EQ(index, -1);
  EXPECT_THROW(f.listIndex(index, 7), ReadFailed);
  EXPECT_EQ(index, -1);
}

TEST(Windows1252, MapsTheHighRangeBothWays) {
  const std::string utf8 = "€ “ñ” — Á";
  const std::string cp = toWindows1252(utf8);
  EXPECT_EQ(cp, "\x80 \x93\xF1\x94 \x97 \xC1");
  EXPECT_EQ(fromWindows1252(cp), utf8);
  EXPECT_EQ(toWindows1252("中"), "?");
}

}  // namespace
}  // namespace vorel
