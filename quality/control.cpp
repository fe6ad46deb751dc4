#include "quality/control.h"

#include <algorithm>

#include "frame/arith.h"
#include "frame/problem_file.h"

namespace vorel::quality {

int rowCount(double N) { return CInt(N - 1) + 1; }

std::string boxText(double x) {
  std::string s = Str(x);
  return s.front() == ' ' ? s.substr(1) : s;
}

double cellValue(const Column& column, int row) { return Val(item(column, row).text); }

bool anyShown(const Column& column, const std::function<bool(const std::string&)>& bad) {
  for (const Cell& c : column)
    if (c.visible && bad(c.text)) return true;
  return false;
}

void clearTable(Rows& K, Column& first, Column& second, std::initializer_list<Heads*> heads) {
  for (std::size_t i = 0; i < kMaxMuestras; ++i) {
    K[i] = true;
    first[i] = {"", true};
    second[i] = {"", true};
  }
  for (Heads* h : heads) h->fill(true);
}

void redesignRows(const std::string& Nmuestras, Rows& K, std::initializer_list<Column*> columns,
                  std::initializer_list<Heads*> heads) {
  for (std::size_t i = 0; i < kMaxMuestras; ++i) {
    K[i] = false;
    for (Column* c : columns) (*c)[i].visible = false;
  }
  for (Heads* h : heads) h->fill(false);
  const int rows = rowCount(Val(Nmuestras));
  for (int i = 0; i < rows; ++i) {
    item(K, i) = true;
    for (Column* c : columns) item(*c, i).visible = true;
  }
  for (std::size_t b = 0; b < 3; ++b)
    for (Heads* h : heads) (*h)[b] = b == 0 || K[15 * b];
}

void showColumn(const Rows& K, Column& column, const Heads& Lblk, Heads& heads, bool shown) {
  for (std::size_t i = 0; i < kMaxMuestras; ++i) column[i].visible = K[i] && shown;
  for (std::size_t b = 0; b < 3; ++b) heads[b] = Lblk[b] && shown;
}

void exchangeTable(ProblemFile& file, Rows& K, Column& first, Column& second,
                   std::initializer_list<Heads*> heads) {
  for (std::size_t i = 0; i < kMaxMuestras; ++i) {
    file.flag(K[i]);
    file.text(first[i].text);
    file.flag(first[i].visible);
    file.text(second[i].text);
    file.flag(second[i].visible);
  }
  for (std::size_t b = 0; b < 3; ++b)
    for (Heads* h : heads) file.flag((*h)[b]);
}

Messages checkSamples(const Column& r, const Column& sizes, bool sizesShown,
                      const std::string& Nmuestras, const std::string& constantSize) {
  const std::string unaNumerica = "Todas las casillas deben contener una valor numérico";
  auto notNumeric = [](const std::string& t) { return !IsNumeric(t); };
  if (anyShown(r, notNumeric)) return {{unaNumerica, ""}};
  if (anyShown(r, [](const std::string& t) { return Val(t) < 0 || Val(t) > 99999; }))
    return {{"El número de defectos en cada muestra debe estar comprendido entre 0 y 99999", ""}};
  if (sizesShown && anyShown(sizes, notNumeric)) return {{unaNumerica, ""}};
  const double N = Val(Nmuestras);
  if (N < 0 || N > 45) return {{"El número de muestras debe estar comprendido entre 1 y 45", ""}};
  if (!IsNumeric(Nmuestras) || !IsNumeric(constantSize))
    return {{"Todas las casillas deben tener un valor numérico", ""}};
  return {};
}

void shiftUp(Column& column, int j) { item(column, j).text = item(column, j + 1).text; }

SampleSums sumSamples(int rows, const std::function<double(int row)>& value,
                      const std::function<double(int row)>& first,
                      const std::function<double(int row)>& second) {
  SampleSums s;
  for (int i = 0; i < rows; ++i) {
    s.values.push_back(value(i));
    const double a = first(i), b = second(i);
    s.first = checked(s.first + a);
    s.second = checked(s.second + b);
    s.firstSingle = Sng(double(s.firstSingle) + a);
    s.secondSingle = Sng(double(s.secondSingle) + b);
  }
  return s;
}

float notBelowZero(float limit) { return limit < 0 ? 0.0f : limit; }

ControlPass completePass(std::vector<double> values, std::vector<float> LSC, std::vector<float> LIC,
                         float centre, const std::string& series, bool singleMatrix) {
  ControlPass p;
  p.values = std::move(values);
  p.LSC = std::move(LSC);
  p.LIC = std::move(LIC);
  p.centre = centre;
  p.maximum = 0;
  p.minimum = 100000000;
  for (double v : p.values) {
    if (v > p.maximum) p.maximum = Sng(v);
    if (v < p.minimum) p.minimum = Sng(v);
  }
  // The bounds take the widest limits of the rows (they differ only on the u chart).
  const float upper = p.LSC.empty() ? 0 : *std::max_element(p.LSC.begin(), p.LSC.end());
  const float lower = p.LIC.empty() ? 0 : *std::min_element(p.LIC.begin(), p.LIC.end());
  const double margin = centre / 12.0;
  p.plotMaximum = Sng((p.maximum >= upper ? p.maximum : upper) + margin);
  p.plotMinimum = Sng((p.minimum <= lower ? p.minimum : lower) - margin);

  Chart& c = p.chart;
  c.series = {series, "LSC", "LIC", "LC"};
  for (std::size_t i = 0; i < p.values.size(); ++i) {
    const double v = singleMatrix ? double(Sng(p.values[i])) : p.values[i];
    c.rows.push_back(std::to_string(i + 1));
    c.matrix.push_back({v, p.LSC[i], p.LIC[i], centre});
    if (p.values[i] > p.LSC[i] || p.values[i] < p.LIC[i]) p.outside.push_back(int(i));
  }
  if (lower > 3) c.axis = {false, p.plotMinimum, p.plotMaximum, 5};
  c.pageLeft = 0.1;
  c.pageTop = 1.0 / 3.0;
  return p;
}

bool removeOutside(const ControlPass& pass, const Removal& removal) {
  bool removed = false;
  const int last = int(pass.values.size()) - 1;
  for (Integer i = 0; i <= last; ++i) {
    const double v = removal.value(i);
    const auto row = static_cast<std::size_t>(int(i));
    const bool out = v > pass.LSC[row] || v < pass.LIC[row];
    if (!out || Val(removal.Nmuestras) == int(i) || (removal.keepFirst && i == 0)) continue;
    const Integer top = CInt(Val(removal.Nmuestras) - 1);
    // A point past the count has no rows below it to move up: every later turn
    // finds it out again and only lowers the count, until the count's Integer
    // overflows. Raise that at once rather than after some 32,000 turns.
    if (top < i) raise(err::Overflow);
    for (Integer j = 0; j <= top; ++j)
      if (j > i - 1) removal.shift(j);
    removed = true;
    --i;
    removal.Nmuestras = boxText(Val(removal.Nmuestras) - 1);
  }
  return removed;
}

Removal removalOf(std::string& Nmuestras, std::function<double(int row)> value, Column& first,
                  Column& second, bool keepFirst) {
  return {Nmuestras, std::move(value),
          [&first, &second](int j) {
            shiftUp(first, j);
            shiftUp(second, j);
          },
          keepFirst};
}

Painted runControl(ControlScreen& s, bool recalculation, const ControlPass& pass,
                   const Report& values, const Report& pageValues, const std::string& title,
                   const std::string& inControl, const Removal& removal, bool* removed) {
  s.recalculated = recalculation;
  Painted painted{controlReport(title, values, pass, inControl), pass.chart};
  (recalculation ? s.lastValues : s.firstValues) = pageValues;
  s.outside = int(pass.outside.size());
  if (!recalculation) s.chart = pass.chart;
  s.Recalcular = false;
  s.Recalcular = removeOutside(pass, removal);
  if (removed) *removed = s.Recalcular;
  return painted;
}

Report controlReport(const std::string& title, const Report& values, const ControlPass& pass,
                     const std::string& inControl) {
  Report r;
  r.blankLines(5);
  r.heading(title);
  r.append(values);
  r.line(Z, " ");
  for (int i : pass.outside)
    r.line(Z, "El punto", printed(double(i + 1)), "está fuera de los límites de control");
  if (pass.outside.empty()) r.line(Z, inControl);
  return r;
}

Report controlPage(const std::string& heading, const std::string& title, int rule,
                   const ControlScreen& screen, const std::string& notInControl,
                   const std::string& inControl) {
  Report r;
  r.blankLines(5);
  r.line(Z, Z, heading);
  r.blankLines(4);
  r.line(Z, "Solución al problema:  " + title);
  r.line(Z, std::string(std::size_t(rule), '_') + "  ");
  r.line(Z, " ");
  r.append(screen.recalculated ? screen.lastValues : screen.firstValues);
  r.line(Z, " ");
  r.line(Z, screen.outside != 0 ? notInControl : inControl);
  return r;
}

void valueLine(Report& r, const std::string& label, int zones, float value,
               const std::string& suffix) {
  r.cont(Z, label);
  for (int z = 0; z < zones; ++z) r.cont(Z);
  r.line(Str(value), suffix);
}

}  // namespace vorel::quality
