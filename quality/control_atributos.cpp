#include "quality/control_atributos.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "quality/control_forms.h"

namespace vorel::quality {

namespace {

// The plotted value of a row: the proportion rk / nk, or rk itself.
double value(bool np, const AtributosFields& f, int row) {
  return np ? cellValue(f.r, row) : divide(cellValue(f.r, row), cellValue(f.tamano, row));
}

Painted run(bool np, AtributosFields& f, ControlScreen& s, bool recalculation) {
  const double N = Val(f.Nmuestras);
  const SampleSums sums = sumSamples(
      rowCount(N), [&](int i) { return value(np, f, i); }, [&](int i) { return cellValue(f.r, i); },
      [&](int i) { return np ? 0 : cellValue(f.tamano, i); });
  const std::vector<double>& values = sums.values;
  const double sumR = recalculation ? sums.firstSingle : sums.first;
  const double sumN = recalculation ? sums.secondSingle : sums.second;
  Report lines;
  float LC, LSC, LIC;
  if (!np) {
    const float pbar = Sng(divide(sumR, sumN));
    const float nbar = Sng(divide(sumN, N));
    const float var = Sng(divide(checked(pbar * (1.0 - pbar)), nbar));
    LC = pbar;
    LSC = notBelowZero(Sng(pbar + 3 * Sqr(var)));
    LIC = notBelowZero(Sng(pbar - 3 * Sqr(var)));
    lines.line(Z, "Número de muestras:", Z, Str(N));
    valueLine(lines, "LC:", 2, Sng(LC * 100.0), " %");
    valueLine(lines, "LSC:", 2, Sng(LSC * 100.0), " %");
    valueLine(lines, "LIC:", 2, Sng(LIC * 100.0), " %");
  } else {
    const double n = Val(f.NPTMuestra.text);
    const float pbar = Sng(divide(sumR, checked(N * n)));
    LC = Sng(n * pbar);
    const double spread = 3 * Sqr(checked((1.0 - pbar) * LC));
    LSC = notBelowZero(Sng(LC + spread));
    LIC = notBelowZero(Sng(LC - spread));
    lines.line(Z, "Tamaño de las muestras:", Z, Str(n));
    valueLine(lines, "LC:", 2, LC);
    valueLine(lines, "LSC:", 2, LSC);
    valueLine(lines, "LIC:", 2, LIC);
  }
  const ControlPass pass =
      completePass(values, std::vector<float>(values.size(), LSC),
                   std::vector<float>(values.size(), LIC), LC, np ? "np" : "p", true);
  return runControl(
      s, recalculation, pass, lines, lines, f.Titulo1, "El proceso está bajo control",
      removalOf(
          f.Nmuestras, [&](int i) { return value(np, f, i); }, f.r, f.tamano, recalculation));
}

}  // namespace

AtributosFields::AtributosFields() { nuevo(*this); }

Messages check(const AtributosFields& f) {
  if (Messages m = checkSamples(f.r, f.tamano, f.Option1, f.Nmuestras, f.NPTMuestra.text);
      !m.empty())
    return m;
  const double N = Val(f.Nmuestras);
  const double n = Val(f.NPTMuestra.text);
  if (n < 0 || n > 9999) return {{"El tamaño de muestra constante debe estar entre 0 y 9999", ""}};
  const int rows = rowCount(N);
  for (int i = 0; i < rows; ++i) {
    const float p = Sng(divide(cellValue(f.r, i), f.Option1 ? cellValue(f.tamano, i) : n));
    if (p < 0 || p > 1)
      return {
          {"Los datos introducidos en la tabla dan lugar a una proporción de unidades "
           "defectuosas errónea",
           ""}};
  }
  return {};
}

void nuevo(AtributosFields& f) {
  f.Nmuestras.clear();
  f.NPTMuestra.text.clear();
  clearTable(f.K, f.r, f.tamano, {&f.Lblk, &f.Lblr, &f.Lbltamano});
  optionClick(f, false);
}

void rediseñar(AtributosFields& f) {
  redesignRows(f.Nmuestras, f.K, {&f.r}, {&f.Lblk, &f.Lblr});
  optionClick(f, f.Option2);
}

void optionClick(AtributosFields& f, bool option2) {
  f.Option1 = !option2;
  f.Option2 = option2;
  showColumn(f.K, f.tamano, f.Lblk, f.Lbltamano, !option2);
  f.Labelr = option2;
  f.labelrn = !option2;
}

void exchange(ProblemFile& file, AtributosFields& f) {
  file.text(f.Titulo1);
  file.text(f.Nmuestras);
  file.flag(f.Option1);
  file.flag(f.Option2);
  file.flag(f.Label5);
  file.flag(f.Label6);
  file.text(f.NPTMuestra.text);
  file.flag(f.NPTMuestra.visible);
  file.flag(f.Labelr);
  file.flag(f.labelrn);
  exchangeTable(file, f.K, f.r, f.tamano, {&f.Lblk, &f.Lblr, &f.Lbltamano});
}

Painted activate(bool np, AtributosFields& f, ControlScreen& s) { return run(np, f, s, false); }
Painted recalcular(bool np, AtributosFields& f, ControlScreen& s) { return run(np, f, s, true); }

Report printout(bool np, const AtributosFields& f, const ControlScreen& s) {
  return controlPage(
      np ? "CONTROL POR ATRIBUTOS. Gráfico np." : "CONTROL POR ATRIBUTOS. Gráfico p.", f.Titulo1,
      54, s, kNotInControl, kInControl);
}

CatalogueEntry catalogueAtributos() {
  CatalogueEntry entry =
      catalogued<AtributosFields>("control-atributos", "ControlCal_AtribP", "", exchange, check,
                                  solveChosenChart<AtributosFields>);
  entry.solutionHelp = "el gráfico p o el np, según la opción del fichero";
  entry.form = liveForm(atributosForm());
  return entry;
}

}  // namespace vorel::quality
