#include "quality/control_atributos.h"

#include "frame/arith.h"
#include "frame/catalogue.h"

namespace vorel::quality {

namespace {

const std::string kUnaNumerica = "Todas las casillas deben contener una valor numérico";

double cell(const std::array<Cell, kMaxMuestras>& column, int row) {
  return Val(item(column, row).text);
}

// The plotted value of a row: the proportion rk / nk, or rk itself.
double value(bool np, const AtributosFields& f, int row) {
  return np ? cell(f.r, row) : divide(cell(f.r, row), cell(f.tamano, row));
}

Painted run(bool np, AtributosFields& f, ControlScreen& s, bool recalculation) {
  const double N = Val(f.Nmuestras);
  const int rows = rowCount(N);
  std::vector<double> values;
  double sumR = 0, sumN = 0;
  float sumRs = 0, sumNs = 0;
  for (int i = 0; i < rows; ++i) {
    const double rk = cell(f.r, i), nk = np ? 0 : cell(f.tamano, i);
    values.push_back(value(np, f, i));
    sumR = checked(sumR + rk);
    sumN = checked(sumN + nk);
    sumRs = Sng(double(sumRs) + rk);
    sumNs = Sng(double(sumNs) + nk);
  }
  if (recalculation) sumR = sumRs, sumN = sumNs;
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
  bool removed = false;
  return runControl(s, recalculation, pass, lines, lines, f.Titulo1, "El proceso está bajo control",
                    {f.Nmuestras, [&](int i) { return value(np, f, i); },
                     [&](int j) {
                       item(f.r, j).text = item(f.r, j + 1).text;
                       item(f.tamano, j).text = item(f.tamano, j + 1).text;
                     },
                     recalculation},
                    removed);
}

}  // namespace

AtributosFields::AtributosFields() { nuevo(*this); }

Messages check(const AtributosFields& f) {
  auto visibleCells = [&](const std::array<Cell, kMaxMuestras>& column, auto bad) {
    for (const Cell& c : column)
      if (c.visible && bad(c.text)) return true;
    return false;
  };
  auto notNumeric = [](const std::string& t) { return !IsNumeric(t); };
  if (visibleCells(f.r, notNumeric)) return {{kUnaNumerica, ""}};
  if (visibleCells(f.r, [](const std::string& t) { return Val(t) < 0 || Val(t) > 99999; }))
    return {{"El número de defectos en cada muestra debe estar comprendido entre 0 y 99999", ""}};
  if (f.Option1 && visibleCells(f.tamano, notNumeric)) return {{kUnaNumerica, ""}};
  const double N = Val(f.Nmuestras);
  if (N < 0 || N > 45) return {{"El número de muestras debe estar comprendido entre 1 y 45", ""}};
  if (!IsNumeric(f.Nmuestras) || !IsNumeric(f.NPTMuestra.text))
    return {{"Todas las casillas deben tener un valor numérico", ""}};
  const double n = Val(f.NPTMuestra.text);
  if (n < 0 || n > 9999) return {{"El tamaño de muestra constante debe estar entre 0 y 9999", ""}};
  const int rows = rowCount(N);
  for (int i = 0; i < rows; ++i) {
    const float p = Sng(divide(cell(f.r, i), f.Option1 ? cell(f.tamano, i) : n));
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
  for (std::size_t i = 0; i < kMaxMuestras; ++i) {
    f.K[i] = true;
    f.r[i] = {"", true};
    f.tamano[i] = {"", true};
  }
  f.Lblk.fill(true);
  f.Lblr.fill(true);
  f.Lbltamano.fill(true);
  optionClick(f, false);
}

void rediseñar(AtributosFields& f) {
  for (std::size_t i = 0; i < kMaxMuestras; ++i) f.K[i] = f.r[i].visible = false;
  for (auto* heads : {&f.Lblk, &f.Lblr}) heads->fill(false);
  const int rows = rowCount(Val(f.Nmuestras));
  for (int i = 0; i < rows; ++i) item(f.K, i) = item(f.r, i).visible = true;
  for (std::size_t b = 0; b < 3; ++b) f.Lblk[b] = f.Lblr[b] = b == 0 || f.K[15 * b];
  optionClick(f, f.Option2);
}

void optionClick(AtributosFields& f, bool option2) {
  f.Option1 = !option2;
  f.Option2 = option2;
  for (std::size_t i = 0; i < kMaxMuestras; ++i) f.tamano[i].visible = f.K[i] && !option2;
  for (std::size_t b = 0; b < 3; ++b) f.Lbltamano[b] = f.Lblk[b] && !option2;
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
  for (std::size_t i = 0; i < kMaxMuestras; ++i) {
    file.flag(f.K[i]);
    file.text(f.r[i].text);
    file.flag(f.r[i].visible);
    file.text(f.tamano[i].text);
    file.flag(f.tamano[i].visible);
  }
  for (std::size_t b = 0; b < 3; ++b) {
    file.flag(f.Lblk[b]);
    file.flag(f.Lblr[b]);
    file.flag(f.Lbltamano[b]);
  }
}

Painted activate(bool np, AtributosFields& f, ControlScreen& s) { return run(np, f, s, false); }
Painted recalcular(bool np, AtributosFields& f, ControlScreen& s) { return run(np, f, s, true); }

Report printout(bool np, const AtributosFields& f, const ControlScreen& s) {
  return controlPage(
      np ? "CONTROL POR ATRIBUTOS. Gráfico np." : "CONTROL POR ATRIBUTOS. Gráfico p.", f.Titulo1,
      54, s, "El proceso no está bajo control estadístico",
      "El proceso está bajo control estadístico");
}

Pages solveAndReport(AtributosFields& f) {
  ControlScreen s;
  const bool np = f.Option2;
  Painted painted = activate(np, f, s);
  return {painted.report, printout(np, f, s), s.chart};
}

CatalogueEntry catalogueAtributos() {
  CatalogueEntry entry = catalogued<AtributosFields>("control-atributos", "ControlCal_AtribP", "",
                                                     exchange, check, solveAndReport);
  entry.solutionHelp = "el gráfico p o el np, según la opción del fichero";
  return entry;
}

}  // namespace vorel::quality
