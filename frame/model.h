// What every model offers the frame: its check messages and a way to run it
// from a problem file without any window (the command-line program).
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "frame/chart.h"
#include "frame/problem_file.h"
#include "frame/report.h"

namespace vorel {

// A text box of an entry screen's table, an element of a control array: its
// text and whether it is shown. Hidden cells keep what they hold.
struct Cell {
  std::string text;
  bool visible = false;
};

// A validation message. `focus` names the control that takes focus ("X1(0)"
// for an element of a control array), or is empty where no focus is set.
struct Message {
  std::string text;
  std::string focus;
  bool operator==(const Message&) const = default;
};
// Every check returns its messages in order: none when all is valid; at most
// one in the first-failure family; one per bad cell in the table family.
using Messages = std::vector<Message>;

// What a solution screen paints when it activates, and what Imprimir prints;
// a charted screen also draws `chart` (empty elsewhere).
struct Pages {
  Pages() = default;
  Pages(Report screen, Report page, Chart chart = {})
      : screen(std::move(screen)), page(std::move(page)), chart(std::move(chart)) {}
  Report screen;
  Report page;
  Chart chart;
};

// The pages of a model whose results make both reports: its own solve, then
// report (the screen) and printout (the page), found beside its fields.
template <class Fields>
Pages solvedPages(Fields& f) {
  const auto r = solve(f);
  return {report(f, r), printout(f, r)};
}

enum class RunStatus { Solved = 0, CheckFailed = 1, Unreadable = 2, RuntimeError = 3 };

// Thrown by a method that would run for ever (a cycling simplex) once the step
// budget its caller gave it is spent. The desktop program gives no budget; the
// command-line program does, and exits with status 4.
struct DoesNotEnd {};
// Thrown by a file run asked for a solution screen that the problem gives the
// user no way to open (a chart whose button its means chart hides); the
// message says why.
struct Unreachable {
  std::string message;
};
inline constexpr long kCommandLineStepBudget = 1'000'000;
// The budget a file run gives: kCommandLineStepBudget, unless a caller (the
// fuzzer, which runs many files) sets a smaller one.
inline long& fileRunStepBudget() {
  static long budget = kCommandLineStepBudget;
  return budget;
}

struct RunOutcome {
  RunStatus status = RunStatus::Solved;
  Messages messages;
  Pages pages;
};

// Opens `path` into freshly loaded fields as abrir does, runs Resolver's
// checks and, when they pass, the solution screen's activation. Run-time
// errors propagate (the caller reports them).
template <class Fields>
RunOutcome runFromFile(const std::string& path, void (*exchange)(ProblemFile&, Fields&),
                       Messages (*check)(const Fields&), Pages (*solveAndReport)(Fields&)) {
  Fields fields;
  if (!openProblem(path, [&](ProblemFile& f) { exchange(f, fields); }))
    return {RunStatus::Unreadable, {}, {}};
  Messages messages = check(fields);
  if (!messages.empty()) return {RunStatus::CheckFailed, messages, {}};
  return {RunStatus::Solved, {}, solveAndReport(fields)};
}

// Opens `path` into fresh fields and writes them back as guardar would: the
// bytes of the file that the program itself writes for the same problem.
template <class Fields>
std::string resave(const std::string& path, void (*exchange)(ProblemFile&, Fields&)) {
  Fields fields;
  openProblem(path, [&](ProblemFile& f) { exchange(f, fields); });
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, fields);
  return out.bytes();
}

}  // namespace vorel
