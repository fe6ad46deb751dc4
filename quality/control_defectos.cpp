#include "quality/control_defectos.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "quality/control_forms.h"

namespace vorel::quality {

namespace {

// The plotted value of a row: the defects dk, or dk / nk.
double value(bool variable, const DefectosFields& f, int row) {
  return variable ? divide(cellValue(f.r, row), cellValue(f.N, row)) : cellValue(f.r, row);
}

Painted run(bool variable, DefectosFields& f, ControlScreen& s, bool recalculation) {
  const double N = Val(f.Nmuestras);
  const int rows = rowCount(N);
  const SampleSums sums = sumSamples(
      rows, [&](int i) { return value(variable, f, i); }, [&](int i) { return cellValue(f.r, i); },
      [&](int i) { return variable ? cellValue(f.N, i) : 0; });
  const std::vector<double>& values = sums.values;
  const double sumD = recalculation ? sums.firstSingle : sums.first;
  const double sumN = recalculation ? sums.secondSingle : sums.second;
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
      const double spread = 3 * Sqr(divide(LC, cellValue(f.N, i)));
      LSC.push_back(notBelowZero(Sng(LC + spread)));
      LIC.push_back(notBelowZero(Sng(LC - spread)));
    }
    valueLine(lines, "LC:", 2, LC);
  }
  const ControlPass pass = completePass(values, LSC, LIC, LC, variable ? "u" : "c", true);
  return runControl(
      s, recalculation, pass, lines, lines, f.Titulo1, "El proceso está bajo control",
      removalOf(
          f.Nmuestras, [&](int i) { return value(variable, f, i); }, f.r, f.N, recalculation));
}

}  // namespace

DefectosFields::DefectosFields() { nuevo(*this); }

Messages check(const DefectosFields& f) {
  if (Messages m = checkSamples(f.r, f.N, f.Option2, f.Nmuestras, f.TMuestra); !m.empty()) return m;
  const double n = Val(f.TMuestra);
  if (n < 1 || n > 9999) return {{"El tamaño de las muestras debe estar entre 1 y 9999", ""}};
  if (f.Option2 && anyShown(f.N, [](const std::string& t) { return Val(t) < 0 || Val(t) > 9999; }))
    return {{"Los tamaños de las muestras deben estar entre 0 y 9999", ""}};
  return {};
}

void nuevo(DefectosFields& f) {
  f.Nmuestras.clear();
  f.TMuestra.clear();
  clearTable(f.K, f.r, f.N, {&f.Lblk, &f.Lblr, &f.Lbln});
  optionClick(f, false);
}

void rediseñar(DefectosFields& f) {
  redesignRows(f.Nmuestras, f.K, {&f.r}, {&f.Lblk, &f.Lblr});
  optionClick(f, f.Option2);
}

void optionClick(DefectosFields& f, bool option2) {
  f.Option1 = !option2;
  f.Option2 = option2;
  showColumn(f.K, f.N, f.Lblk, f.Lbln, option2);
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
  exchangeTable(file, f.K, f.r, f.N, {&f.Lblk, &f.Lblr, &f.Lbln});
}

Painted activate(bool variable, DefectosFields& f, ControlScreen& s) {
  return run(variable, f, s, false);
}
Painted recalcular(bool variable, DefectosFields& f, ControlScreen& s) {
  return run(variable, f, s, true);
}

Report printout(bool variable, const DefectosFields& f, const ControlScreen& s) {
  return variable ? controlPage("CONTROL POR Nº DE DEFECTOS. Tamaño muestral variable.", f.Titulo1,
                                59, s, kNotInControl, kInControl)
                  : controlPage("CONTROL POR Nº DE DEFECTOS. Tamaño muestral constante.", f.Titulo1,
                                60, s, kNotInControl, kInControl);
}

CatalogueEntry catalogueDefectos() {
  CatalogueEntry entry = catalogued<DefectosFields>(
      "control-defectos", "ControlCal_NDef", "", exchange, check, solveChosenChart<DefectosFields>);
  entry.solutionHelp =
      "el gráfico c (tamaño constante) o el u (variable), según la opción del fichero";
  entry.form = liveForm(defectosForm());
  return entry;
}

}  // namespace vorel::quality
