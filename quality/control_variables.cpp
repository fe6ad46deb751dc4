#include "quality/control_variables.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "frame/live_text.h"
#include "quality/control_forms.h"
#include "location_equipment/selec_van.h"

namespace vorel::quality {

const std::array<const char*, 24> D2 = {"1.128", "1.693", "2.059", "2.326", "2.534", "2.704",
                                        "2.847", "2.970", "3.078", "3.173", "3.258", "3.336",
                                        "3.407", "3.472", "3.532", "3.588", "3.640", "3.689",
                                        "3.735", "3.778", "3.819", "3.858", "3.895", "3.931"};
const std::array<const char*, 24> C2 = {"0.564", "0.724", "0.798", "0.841", "0.869", "0.828",
                                        "0.903", "0.914", "0.923", "0.930", "0.936", "0.941",
                                        "0.945", "0.949", "0.952", "0.955", "0.958", "0.960",
                                        "0.962", "0.964", "0.966", "0.967", "0.965", "0.970"};
const std::array<const char*, 24> D3 = {"0",     "0",     "0",     "0",     "0",     "0.076",
                                        "0.136", "0.184", "0.223", "0.256", "0.284", "0.308",
                                        "0.329", "0.348", "0.364", "0.379", "0.392", "0.404",
                                        "0.414", "0.425", "0.434", "0.443", "0.452", "0.459"};
const std::array<const char*, 24> D4 = {"3.276", "2.575", "2.282", "2.115", "2.004", "1.924",
                                        "1.864", "1.816", "1.777", "1.744", "1.716", "1.692",
                                        "1.671", "1.652", "1.636", "1.621", "1.608", "1.596",
                                        "1.586", "1.575", "1.566", "1.557", "1.548", "1.541"};
const std::array<const char*, 24> B3 = {"0\t",   "0",     "0",     "0",     "0.030", "0.118",
                                        "0.185", "0.239", "0.284", "0.321", "0.354", "0.382",
                                        "0.406", "0.428", "0.448", "0.466", "0.482", "0.497",
                                        "0.510", "0.523", "0.534", "0.545", "0.555", "0.565"};
const std::array<const char*, 24> B4 = {"3.267", "2.568", "2.266", "2.089", "1.970", "1.882",
                                        "1.815", "1.761", "1.716", "1.679", "1.646", "1.618",
                                        "1.549", "1.572", "1.552", "1.534", "1.518", "1.503",
                                        "1.490", "1.477", "1.466", "1.455", "1.445", "1.435"};

namespace {

const std::string kNumerico = "Todas las casillas deben contener un valor numérico";

// The factor of a table for the sample size n: item Val(Tmuestras) - 2.
double factor(const std::array<const char*, 24>& table, const VariablesFields& f) {
  return Val(item(table, CInt(Val(f.Tmuestras) - 2)));
}

// Steps 2 to 9 of a chart: the values and limits of the chart `g`; with
// `single` the sums run in Single (Recalcular of the means chart).
// `values` gets the value lines of the screen, `page` those of the printed
// page, where the range chart names its centre "Recorrido medio:" for a
// recalculated set and "Recorrido Medio:" for the first.
ControlPass computePass(Grafico g, const VariablesFields& f, VariablesScreen& s, bool single,
                        bool recalculation, Report& values, Report& page) {
  const double N = Val(f.Nmuestras);
  const int rows = rowCount(N);
  const SampleSums sums = sumSamples(
      rows, [&](int i) { return cellValue(g == Grafico::Medias ? f.M : f.S, i); },
      [&](int i) { return cellValue(f.M, i); }, [&](int i) { return cellValue(f.S, i); });
  const std::vector<double>& column = sums.values;
  const std::vector<float> none;
  if (g == Grafico::Medias) {
    const float Xbar = Sng(divide(single ? sums.firstSingle : sums.first, N));
    const float Sbar = Sng(divide(single ? sums.secondSingle : sums.second, N));
    const double sigma = divide(Sbar, factor(f.Option1 ? C2 : D2, f));
    const double spread = divide(checked(3 * sigma), Sqr(Val(f.Tmuestras)));
    const float LSC = notBelowZero(Sng(Xbar + spread));
    const float LIC = notBelowZero(Sng(Xbar - spread));
    valueLine(values, "Media:", 2, Xbar);
    valueLine(values, "Smedia:", 2, Sbar);
    valueLine(values, "LSC:", 2, LSC);
    valueLine(values, "LIC:", 2, LIC);
    page = values;
    return completePass(column, std::vector<float>(column.size(), LSC),
                        std::vector<float>(column.size(), LIC), Xbar, "Medias", false);
  }
  // The mean of the Sk is only replaced when N differs from the value it holds.
  if (N != s.Sbar) s.Sbar = Sng(divide(sums.secondSingle, N));
  const bool desviaciones = g == Grafico::Desviaciones;
  const float LSC = notBelowZero(Sng(checked(factor(desviaciones ? B4 : D4, f) * s.Sbar)));
  const float LIC = notBelowZero(Sng(checked(factor(desviaciones ? B3 : D3, f) * s.Sbar)));
  if (desviaciones) {
    valueLine(values, "Smedia:", 2, s.Sbar);
    valueLine(values, "LSC:", 2, LSC);
    valueLine(values, "LIC:", 2, LIC);
    page = values;
  } else {
    valueLine(values, "Recorrido Medio :", 2, s.Sbar);
    valueLine(page, recalculation ? "Recorrido medio:" : "Recorrido Medio:", 2, s.Sbar);
    for (Report* r : {&values, &page}) {
      valueLine(*r, "LSC:", 3, LSC);
      valueLine(*r, "LIC:", 3, LIC);
    }
  }
  return completePass(column, std::vector<float>(column.size(), LSC),
                      std::vector<float>(column.size(), LIC), s.Sbar,
                      desviaciones ? "Desviaciones" : "Recorridos", !desviaciones);
}

Painted run(Grafico g, VariablesFields& f, VariablesScreen& s, const std::string& title,
            bool recalculation) {
  if (g == Grafico::Medias) {
    s.ControlDesviaciones = f.Option1;
    s.ControlRecorridos = f.Option2;
  }
  Report values, page;
  const ControlPass pass =
      computePass(g, f, s, recalculation && g == Grafico::Medias, recalculation, values, page);
  const bool medias = g == Grafico::Medias;
  const std::string inControl =
      medias ? "La media del proceso está bajo control" : "El proceso está bajo control";
  bool removed = false;
  Painted painted =
      runControl(s, recalculation, pass, values, page, title, inControl,
                 {f.Nmuestras, [&](int i) { return cellValue(medias ? f.M : f.S, i); },
                  [&](int j) {
                    if (medias) shiftUp(f.M, j);
                    shiftUp(f.S, j);
                  },
                  recalculation && medias},
                 &removed);
  if (removed && recalculation && medias) s.ControlDesviaciones = false;
  if (pass.outside.empty()) {
    s.Recalcular = false;
    if (medias) s.ControlDesviaciones = true;
  }
  return painted;
}

}  // namespace

VariablesFields::VariablesFields() { nuevo(*this); }

Messages check(const VariablesFields& f) {
  const double N = Val(f.Nmuestras);
  if (N > 45 || N < 0) return {{"El número de muestras debe estar entre 1 y 45", ""}};
  if (!IsNumeric(f.Nmuestras) || !IsNumeric(f.Tmuestras)) return {{kNumerico, ""}};
  const int rows = rowCount(N);
  for (int i = 0; i < rows; ++i)
    if (!IsNumeric(item(f.M, i).text) || !IsNumeric(item(f.S, i).text)) return {{kNumerico, ""}};
  const double n = Val(f.Tmuestras);
  if (n < 2 || n > 25) return {{"El tamaño de las muestras debe estar entre 2 y 25", ""}};
  for (int i = 0; i < rows; ++i) {
    const double m = cellValue(f.M, i);
    if (m < 0 || m > 99999)
      return {{"Las medias deben tener un valor comprendido entre 0 y 99999", ""}};
  }
  for (int i = 0; i < rows; ++i) {
    const double sk = cellValue(f.S, i);
    if (sk < 0 || sk > 99999)
      return {{"Las desviaciones típicas deben tener un valor comprendido entre 0 y 99999", ""}};
  }
  return {};
}

void nuevo(VariablesFields& f) {
  f.Nmuestras.clear();
  f.Tmuestras.clear();
  clearTable(f.K, f.M, f.S, {&f.Lblk, &f.LblM, &f.LblS});
  f.LblMkSk = true;
  // Selecting Option1 runs its click.
  optionClick(f, false);
}

void rediseñar(VariablesFields& f) {
  redesignRows(f.Nmuestras, f.K, {&f.M, &f.S}, {&f.Lblk, &f.LblM, &f.LblS, &f.LblR});
  // Of the two heads of the second column, a shown block shows the one of the
  // option; the blocks after the first show the ranges' head too.
  for (std::size_t b = 0; b < 3; ++b) {
    f.LblS[b] = f.LblS[b] && f.Option1;
    f.LblR[b] = f.LblR[b] && (f.Option2 || b > 0);
  }
}

void optionClick(VariablesFields& f, bool option2) {
  f.Option1 = !option2;
  f.Option2 = option2;
  for (std::size_t b = 0; b < 3; ++b) {
    if (!f.Lblk[b]) continue;
    f.LblS[b] = !option2;
    f.LblR[b] = option2;
  }
  f.LblMkSk = !option2;
  f.LblMkRk = option2;
}

void exchange(ProblemFile& file, VariablesFields& f) {
  file.text(f.Titulo1);
  file.flag(f.Option1);
  file.flag(f.Option2);
  file.text(f.Nmuestras);
  file.text(f.Tmuestras);
  file.flag(f.LblMkRk);
  file.flag(f.LblMkSk);
  exchangeTable(file, f.K, f.M, f.S, {&f.Lblk, &f.LblM, &f.LblR, &f.LblS});
}

Painted activate(Grafico g, VariablesFields& f, VariablesScreen& s, const std::string& title) {
  return run(g, f, s, title, false);
}

Painted recalcular(Grafico g, VariablesFields& f, VariablesScreen& s, const std::string& title) {
  return run(g, f, s, title, true);
}

Report printout(Grafico g, const VariablesFields& f, const VariablesScreen& s) {
  switch (g) {
    case Grafico::Medias:
      return controlPage("CONTROL POR VARIABLES. Gráfico de Medias ", f.Titulo1, 54, s,
                         "La media del proceso no está bajo control estadístico",
                         "La media del proceso está bajo control estadístico");
    case Grafico::Desviaciones:
      return controlPage("CONTROL POR VARIABLES. Gráfico de Desviaciones Típicas ", f.Titulo1, 61,
                         s, kNotInControl, kInControl);
    case Grafico::Recorridos:
      return controlPage("CONTROL POR VARIABLES. Gráfico de Recorridos", f.Titulo1, 61, s,
                         kNotInControl, kInControl);
  }
  return {};
}

std::string selecVanTitulo1() {
  return liveText("Selec_Van", "Titulo1").value_or(location_equipment::VanFields{}.Titulo1);
}

Pages solveAndReport(VariablesFields& f, Grafico g) {
  const std::string title = selecVanTitulo1();
  VariablesScreen medias;
  Painted painted = activate(Grafico::Medias, f, medias, title);
  if (g == Grafico::Medias) return {painted.report, printout(g, f, medias), medias.chart};
  // The other charts open only through their buttons on the means chart.
  if (g == Grafico::Desviaciones && !medias.ControlDesviaciones)
    throw Unreachable{
        "El gráfico de medias de este problema no muestra «Control de Desviaciones Típicas»: "
        "el gráfico de desviaciones típicas no se puede abrir."};
  if (g == Grafico::Recorridos && !medias.ControlRecorridos)
    throw Unreachable{
        "El gráfico de medias de este problema no muestra «Control de Recorridos» (solo aparece "
        "con «Gráfico de Medias junto con Recorridos»): el gráfico de recorridos no se puede "
        "abrir."};
  VariablesScreen other;
  painted = activate(g, f, other, title);
  return {painted.report, printout(g, f, other), other.chart};
}

// Resolver shows the means chart; the other two open from it, after its
// activation has taken the samples outside the limits out of the entry, and
// their Imprimir calls the printer dialog of an object never set.
CatalogueEntry catalogueVariables() {
  CatalogueEntry entry = catalogued<VariablesFields>(
      "control-variables", "ControlCal_V", "", exchange, check,
      [](VariablesFields& f) { return solveAndReport(f, Grafico::Medias); });
  entry.solutionHelp = "el gráfico de medias (ControlCal_V_Sol)";
  entry.form = liveForm(variablesForm());
  entry.views = {
      {"desviaciones", "el de desviaciones típicas (ControlCal_V_Sol2), abierto desde el de medias",
       [](const std::string& path) {
         return runFromFile<VariablesFields>(path, exchange, check, [](VariablesFields& f) {
           return solveAndReport(f, Grafico::Desviaciones);
         });
       },
       err::ObjectNotSet},
      {"recorridos", "el de recorridos (ControlCal_V_Sol3), abierto desde el de medias",
       [](const std::string& path) {
         return runFromFile<VariablesFields>(path, exchange, check, [](VariablesFields& f) {
           return solveAndReport(f, Grafico::Recorridos);
         });
       },
       err::ObjectNotSet},
  };
  return entry;
}

}  // namespace vorel::quality
