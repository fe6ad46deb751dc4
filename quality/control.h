// What the control charts of quality control share: one computation of a
// chart (values, limits, centre line, plot bounds, the points outside), the
// report and the printed page, and the removal that takes the samples outside
// the limits out of the entry screen so that Recalcular can compute again.
#pragma once

#include <array>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel::quality {

inline constexpr int kMaxMuestras = 45;

// The rows of a chart: For i = 0 To N - 1 with an Integer counter, N being
// Val(Nmuestras); the bound is rounded to Integer.
int rowCount(double N);

// The table of samples of an entry screen: the row numbers K(i), the columns
// of cells, and for each of the three blocks of 15 rows the visibility of a
// head.
using Rows = std::array<bool, kMaxMuestras>;
using Column = std::array<Cell, kMaxMuestras>;
using Heads = std::array<bool, 3>;

// The number in a row of a column (the platform's error 9 past the last row).
double cellValue(const Column& column, int row);

// Whether a cell shown in `column` holds a text for which `bad` is true.
bool anyShown(const Column& column, const std::function<bool(const std::string&)>& bad);

// Nuevo of the table: every row and head shown, every cell empty and shown.
void clearTable(Rows& K, Column& first, Column& second, std::initializer_list<Heads*> heads);

// Rediseñar of the table: the rows up to Val(Nmuestras) shown in K and in
// `columns`, the others hidden; each of `heads` shown on the blocks whose
// first row is shown (block 0 always). Past row 45 the platform's error 9,
// with the heads already hidden.
void redesignRows(const std::string& Nmuestras, Rows& K, std::initializer_list<Column*> columns,
                  std::initializer_list<Heads*> heads);

// A column that one option shows: its cells on the rows shown, its heads on
// the blocks shown (`Lblk`), or all hidden.
void showColumn(const Rows& K, Column& column, const Heads& Lblk, Heads& heads, bool shown);

// The table in a problem file: for each row K, then text and visibility of
// each column; then for each block the heads in the order given.
void exchangeTable(ProblemFile& file, Rows& K, Column& first, Column& second,
                   std::initializer_list<Heads*> heads);

// The checks of the entry that control by attributes and by number of
// defects share, in their order: the cells of r, those of the sizes when
// `sizesShown`, the number of samples, and the texts of the number of samples
// and of the constant size. The first failure, or none.
Messages checkSamples(const Column& r, const Column& sizes, bool sizesShown,
                      const std::string& Nmuestras, const std::string& constantSize);

// Row j of a column takes the text of row j + 1 (the platform's error 9 past
// the last row), as the removal of a sample shifts the rows below it.
void shiftUp(Column& column, int j);

// The rows of a chart read from the entry: each row's plotted value and the
// sums of two of its numbers, in Double with overflow checked and in Single.
// For each row the value is read first, then the sums grow in that order.
struct SampleSums {
  std::vector<double> values;
  double first = 0, second = 0;
  float firstSingle = 0, secondSingle = 0;
};
SampleSums sumSamples(int rows, const std::function<double(int row)>& value,
                      const std::function<double(int row)>& first,
                      const std::function<double(int row)>& second);

// The last line of the printed page of most charts.
inline const std::string kNotInControl = "El proceso no está bajo control estadístico";
inline const std::string kInControl = "El proceso está bajo control estadístico";

// The text a number takes when it is stored into a text box: Str without the
// leading blank.
std::string boxText(double x);

// One computation of a chart: the plotted value of each row, each row's
// limits, the centre line and what follows from them.
struct ControlPass {
  std::vector<double> values;
  std::vector<float> LSC, LIC;  // one per row; constant charts repeat them
  float centre = 0;
  float maximum = 0, minimum = 0;          // of the values, from 0 and from 100000000
  float plotMaximum = 0, plotMinimum = 0;  // the limits widened by centre / 12
  std::vector<int> outside;                // rows (from 0) strictly outside their limits
  Chart chart;
};

// Completes a pass from its values and limits: negatives of the limits are
// already 0. `series` names the values' column; with `singleMatrix` the
// values are stored into the matrix as Single.
ControlPass completePass(std::vector<double> values, std::vector<float> LSC, std::vector<float> LIC,
                         float centre, const std::string& series, bool singleMatrix);

// A limit below 0 is drawn and tested as 0.
float notBelowZero(float limit);

// The removal pass over the entry screen. For each row i of the pass, the
// value read afresh from the entry being outside row i's limits and the
// sample count differing from i, the rows from i on take the texts of the row
// below (`shift(j)` copies row j + 1 into row j: the platform's error 9 past
// the last row), i goes back one and the count falls by one. With
// `keepFirst` row 0 is never taken out. True when a sample was taken out.
// Rows past the lowered count are still visited: an empty one outside the
// limits is taken out again and again, the count falling below zero until
// the Integer bound of the shifting loop overflows (the platform's error 6).
struct Removal {
  std::string& Nmuestras;
  std::function<double(int row)> value;
  std::function<void(int row)> shift;
  bool keepFirst = false;
};
bool removeOutside(const ControlPass& pass, const Removal& removal);

// The removal over a table whose two columns move together.
Removal removalOf(std::string& Nmuestras, std::function<double(int row)> value, Column& first,
                  Column& second, bool keepFirst);

// What a chart solution screen keeps between its commands: the value lines
// that the page prints for the first pass and for the last Recalcular; the count
// of points outside; the first pass's matrix, which the page draws; and
// whether Recalcular is shown.
struct ControlScreen {
  bool recalculated = false;
  Report firstValues, lastValues;
  int outside = 0;
  Chart chart;
  bool Recalcular = false;
};

// What a computation paints and draws now.
struct Painted {
  Report report;
  Chart chart;
};

// The activation of a chart screen, or its Recalcular: paints the report of
// `pass` with its value lines `values` (the page's are `pageValues`), keeps
// the screen's variables (the first pass's matrix for the page), and then
// takes the samples outside out of the entry through `removal`. True in
// `*removed`, where given, when it took any.
Painted runControl(ControlScreen& s, bool recalculation, const ControlPass& pass,
                   const Report& values, const Report& pageValues, const std::string& title,
                   const std::string& inControl, const Removal& removal, bool* removed = nullptr);

// The screen report: five blank lines, the heading with `title`, the value
// lines, a blank line, then a line for each point outside or `inControl`.
Report controlReport(const std::string& title, const Report& values, const ControlPass& pass,
                     const std::string& inControl);

// The printed page: the heading of the page, the title, a rule of `rule`
// underscores, the value lines of the set chosen by `recalculated`, then
// whether the process is in control (`notInControl` or `inControl`).
Report controlPage(const std::string& heading, const std::string& title, int rule,
                   const ControlScreen& screen, const std::string& notInControl,
                   const std::string& inControl);

// The chart functions of a model whose Option2 chooses the second of two
// charts, over its fields: they are found by the type of the fields, also
// from the screens, whose members of the same names hide them.
template <class Fields>
Painted modelActivate(bool second, Fields& f, ControlScreen& s) {
  return activate(second, f, s);
}
template <class Fields>
Painted modelRecalcular(bool second, Fields& f, ControlScreen& s) {
  return recalcular(second, f, s);
}
template <class Fields>
Report modelPrintout(bool second, const Fields& f, const ControlScreen& s) {
  return printout(second, f, s);
}

// Resolver and the activation of the chart that the option chose.
template <class Fields>
Pages solveChosenChart(Fields& f) {
  ControlScreen s;
  const bool second = f.Option2;
  Painted painted = modelActivate(second, f, s);
  return {painted.report, modelPrintout(second, f, s), s.chart};
}

// One line of values: Z label, `zones` zone steps, Str of the value, suffix.
void valueLine(Report& r, const std::string& label, int zones, float value,
               const std::string& suffix = {});

}  // namespace vorel::quality
