#include "quality/control_defectos.h"

#include "frame/arith.h"
#include "frame/catalogue.h"

namespace vorel::quality {

namespace {

const std::string kUnaNumerica = "Todas las casillas deben contener una valor numérico";

double cell(const std::array<Cell, kMaxMuestras>& column, int row) {
  return Val(item(column, row).text);
}

// The plotted value of a row: the defects dk, or dk / nk.
double value(bool variable, const DefectosFields& f, int row) {
  return variable ? divide(cell(f.r, row), cell(f.N, row)) : cell(f.r, row);
}

Painted run(bool variable, DefectosFields& f, ControlScreen& s, bool recalculation) {
  const double N = Val(f.Nmuestras);
  const int rows = rowCount(N);
  std::vector<double> values;
  double sumD = 0, sumN = 0;
  float sumDs = 0, sumNs = 0;
  for (int i = 0; i < rows; ++i) {
    const double dk = cell(f.r, i), nk = variable ? cell(f.N, i) : 0;
    values.push_back(value(variable, f, i));
    sumD = checked(sumD + dk);
    sumN = checked(sumN + nk);
    sumDs = Sng(double(sumDs) + dk);
    sumNs = Sng(double(sumNs) + nk);
  }
  if (recalculation) sumD = sumDs, sumN = sumNs;
  Report lines;
  float LC;
  std::vector<float> LSC, LIC;
  lines.line(Z, "Número de muestras:", Z, Str(N));
  if (!variable) {
    const double n = Val(f.TMuestra);
    const float cbar = Sng(divide(sumD, checked(N * n)));
    LC = Sng(n * cbar);
    const float upper = notBelowZero(Sng(LC + 3 * Sqr(LC)));
    const float lower = notBelowZero(Sng(LC - 3 * Sqr(LC)));
    LSC.assign(values.size(), upper);
    LIC.assign(values.size(), lower);
    lines.line(Z, "Tamaño de las muestras:", Z, Str(n));
    valueLine(lines, "LC:", 2, LC);
    valueLine(lines, "LSC:", 2, upper);
    valueLine(lines, "LIC:", 2, lower);
  } else {
    LC = Sng(divide(sumD, sumN));  // ubar
    for (int i = 0; i < rows; ++i) {
      const double spread = 3 * Sqr(divide(LC, cell(f.N, i)));
      LSC.push_back(notBelowZero(Sng(LC + spread)));
      LIC.push_back(notBelowZero(Sng(LC - spread)));
    }
    valueLine(lines, "LC:", 2, LC);
  }
  const ControlPass pass = completePass(values, LSC, LIC, LC, variable ? "u" : "c", true);
  bool removed = false;
  return runControl(s, recalculation, pass, lines, lines, f.Titulo1, "El proceso está bajo control",
                    {f.Nmuestras, [&](int i) { return value(variable, f, i); },
                     [&](int j) {
                       item(f.r, j).text = item(f.r, j + 1).text;
                       item(f.N, j).text = item(f.N, j + 1).text;
                     },
                     recalculation},
                    removed);
}

}  // namespace

DefectosFields::DefectosFields() { nuevo(*this); }

Messages check(const DefectosFields& f) {
  auto visibleCells = [&](const std::array<Cell, kMaxMuestras>& column, auto bad) {
    for (const Cell& c : column)
      if (c.visible && bad(c.text)) return true;
    return false;
  };
  auto notNumeric = [](const std::string& t) { return !IsNumeric(t); };
  if (visibleCells(f.r, notNumeric)) return {{kUnaNumerica, ""}};
  if (visibleCells(f.r, [](const std::string& t) { return Val(t) < 0 || Val(t) > 99999; }))
    return {{"El número de defectos en cada muestra debe estar comprendido entre 0 y 99999", ""}};
  if (f.Option2 && visibleCells(f.N, notNumeric)) return {{kUnaNumerica, ""}};
  const double N = Val(f.Nmuestras);
  if (N < 0 || N > 45) return {{"El número de muestras debe estar comprendido entre 1 y 45", ""}};
  if (!IsNumeric(f.Nmuestras) || !IsNumeric(f.TMuestra))
    return {{"Todas las casillas deben tener un valor numérico", ""}};
  const double n = Val(f.TMuestra);
  if (n < 1 || n > 9999) return {{"El tamaño de las muestras debe estar entre 1 y 9999", ""}};
  if (f.Option2 &&
      visibleCells(f.N, [](const std::string& t) { return Val(t) < 0 || Val(t) > 9999; }))
    return {{"Los tamaños de las muestras deben estar entre 0 y 9999", ""}};
  return {};
}

void nuevo(DefectosFields& f) {
  f.Nmuestras.clear();
  f.TMuestra.clear();
  for (std::size_t i = 0; i < kMaxMuestras; ++i) {
    f.K[i] = true;
    f.r[i] = {"", true};
    f.N[i] = {"", true};
  }
  f.Lblk.fill(true);
  f.Lblr.fill(true);
  f.Lbln.fill(true);
  optionClick(f, false);
}

void rediseñar(DefectosFields& f) {
  for (std::size_t i = 0; i < kMaxMuestras; ++i) f.K[i] = f.r[i].visible = false;
  for (auto* heads : {&f.Lblk, &f.Lblr}) heads->fill(false);
  const int rows = rowCount(Val(f.Nmuestras));
  for (int i = 0; i < rows; ++i) item(f.K, i) = item(f.r, i).visible = true;
  for (std::size_t b = 0; b < 3; ++b) f.Lblk[b] = f.Lblr[b] = b == 0 || f.K[15 * b];
  optionClick(f, f.Option2);
}

void optionClick(DefectosFields& f, bool option2) {
  f.Option1 = !option2;
  f.Option2 = option2;
  for (std::size_t i = 0; i < kMaxMuestras; ++i) f.N[i].visible = f.K[i] && option2;
  for (std::size_t b = 0; b < 3; ++b) f.Lbln[b] = f.Lblk[b] && option2;
  f.Labelr = !option2;
  f.labelrn = option2;
}

void exchange(ProblemFile& file, DefectosFields& f) {
  file.text(f.Titulo1);
  file.text(f.Nmuestras);
  file.flag(f.Option1);
  file.text(f.TMuestra);
  file.flag(f.Option2);
  file.flag(f.Labelr);
  file.flag(f.labelrn);
  for (std::size_t i = 0; i < kMaxMuestras; ++i) {
    file.flag(f.K[i]);
    file.text(f.r[i].text);
    file.flag(f.r[i].visible);
    file.text(f.N[i].text);
    file.flag(f.N[i].visible);
  }
  for (std::size_t b = 0; b < 3; ++b) {
    file.flag(f.Lblk[b]);
    file.flag(f.Lblr[b]);
    file.flag(f.Lbln[b]);
  }
}

Painted activate(bool variable, DefectosFields& f, ControlScreen& s) {
  return run(variable, f, s, false);
}
Painted recalcular(bool variable, DefectosFields& f, ControlScreen& s) {
  return run(variable, f, s, true);
}

Report printout(bool variable, const DefectosFields& f, const ControlScreen& s) {
  return variable ? controlPage("CONTROL POR Nº DE DEFECTOS. Tamaño muestral variable.", f.Titulo1,
                                59, s, "El proceso no está bajo control estadístico",
                                "El proceso está bajo control estadístico")
                  : controlPage("CONTROL POR Nº DE DEFECTOS. Tamaño muestral constante.", f.Titulo1,
                                60, s, "El proceso no está bajo control estadístico",
                                "El proceso está bajo control estadístico");
}

Pages solveAndReport(DefectosFields& f) {
  ControlScreen s;
  const bool variable = f.Option2;
  Painted painted = activate(variable, f, s);
  return {painted.report, printout(variable, f, s), s.chart};
}

CatalogueEntry catalogueDefectos() {
  CatalogueEntry entry = catalogued<DefectosFields>("control-defectos", "ControlCal_NDef", "",
                                                    exchange, check, solveAndReport);
  entry.solutionHelp =
      "el gráfico c (tamaño constante) o el u (variable), según la opción del fichero";
  return entry;
}

}  // namespace vorel::quality
