#include "decision/valoraciones.h"

#include <cmath>

#include "frame/checks.h"

namespace vorel::decision {

namespace {

const std::string kPonderación = "Ponderación";

// Shows columns 1 to na+1 and rows 0 to nc-1 of the table and hides the rest;
// the head over column na+1 becomes the weights' head. Cell texts stay.
void aplicarForma(TablaValoraciones& f, int na, int nc) {
  for (int k = 0; k < 7; ++k) {
    auto& head = f.LblAlternativas[static_cast<std::size_t>(k)];
    head.visible = k <= na;
    head.BackColor = kColorAlternativa;
    head.caption = "Alternativa " + std::to_string(k + 1);
  }
  auto& weights = item(f.LblAlternativas, na);
  weights.caption = kPonderación;
  weights.BackColor = kColorPonderacion;
  weights.visible = true;
  for (int i = 0; i < 7; ++i) f.LblCriterios[static_cast<std::size_t>(i)] = i < nc;
  mostrarCeldas(f.C, nc, na + 1);
}

// The comparisons of the method look at each valuation as it reads back from
// its text, so values that differ only beyond the fifteenth digit are equal.
double comoTexto(double x) { return Val(Str(x)); }

}  // namespace

TablaValoraciones::TablaValoraciones() { aplicarForma(*this, 4, 4); }

Messages rediseñar(TablaValoraciones& f) {
  const std::string alternativas = selectorText(f.NumAlternativas, kMaxAlternativasElectra);
  const std::string criterios = selectorText(f.NumCriterios, kMaxCriterios);
  if (alternativas.empty()) return {{"Seleccione el número de Alternativas", ""}};
  if (criterios.empty()) return {{"Seleccione el número de Criterios", ""}};
  aplicarForma(f, static_cast<int>(CDbl(alternativas)), static_cast<int>(CDbl(criterios)));
  return {};
}

void vaciarTabla(TablaValoraciones& f) {
  f.escalaValoracion.clear();
  for (auto& column : f.C)
    for (auto& cell : column) cell.text.clear();
  f.NumAlternativas = 3;
  f.NumCriterios = 3;
  aplicarForma(f, 4, 4);
}

Messages checkEscala(const TablaValoraciones& f) {
  if (!IsNumeric(f.escalaValoracion))
    return {{"Debe introducir el valor de la escala de valoración", "escalaValoracion"}};
  const double escala = Val(f.escalaValoracion);
  if (escala < 0 || escala > 999999999)
    return {
        {"El valor de la escala de valoración no es correcto, debe introducir un valor "
         "comprendico entre 0 y 999999999",
         ""}};
  return {};
}

// Row by row, each cell first for being a number and then for its range. The
// messages follow the column: C1 to C6 speak of the valuations and C7 of the
// weights, wherever the weights stand.
Messages checkTabla(const TablaValoraciones& f) {
  return primerFallo(f.C, [](int j, int i, const Cell& cell) -> Messages {
    const std::string focus = element("C" + std::to_string(j), i);
    if (!IsNumeric(cell.text)) {
      if (j == 1) return {{"Debe completar la tabla de escalas de valoración ", focus}};
      if (j < 7) return {{"Debe completar la tabla de escalas de valoración", focus}};
      return {{"Debe completar la fila de ponderaciones", focus}};
    }
    const double value = Val(cell.text);
    if (value < -999999999 || value > 999999999) {
      if (j < 7)
        return {
            {"El valor de la escala de valoración no es correcto, debe introducir un "
             "valor comprendido entre -999999999 y 999999999",
             focus}};
      return {
          {"El valor de la ponderación no es correcto, debe introducir un valor "
           "comprendido entre -999999999 y 999999999",
           focus}};
    }
    return {};
  });
}

void longItem(ProblemFile& file, long& value) {
  if (!file.reading()) {
    int whole = static_cast<int>(value);
    file.number(whole);
    return;
  }
  std::string text;
  file.text(text);
  double number = 0;
  if (text == "#TRUE#" || text == "#true#") {
    number = -1;
  } else if (text == "#FALSE#" || text == "#false#" || text.empty()) {
    number = 0;
  } else if (IsNumeric(text, '.')) {
    try {
      number = std::nearbyint(Val(text));  // half to even, as the platform rounds
    } catch (const RuntimeError&) {
      throw ReadFailed{};
    }
  } else {
    throw ReadFailed{};
  }
  if (number < -2147483648.0 || number > 2147483647.0) throw ReadFailed{};
  value = static_cast<long>(number);
}

void exchangeCabecera(ProblemFile& file, TablaValoraciones& f) {
  file.text(f.Título);
  file.listIndex(f.NumCriterios, kMaxCriterios);
  file.listIndex(f.NumAlternativas, kMaxAlternativasElectra);
  file.text(f.escalaValoracion);
}

void exchangeFilas(ProblemFile& file, TablaValoraciones& f) {
  for (std::size_t i = 0; i < 7; ++i) {
    file.flag(f.LblCriterios[i]);
    for (auto& column : f.C) {
      file.text(column[i].text);
      file.flag(column[i].visible);
    }
    auto& head = f.LblAlternativas[i];
    file.flag(head.visible);
    file.text(head.caption);
    longItem(file, head.BackColor);
  }
}

void valorar(const TablaValoraciones& f, Valoraciones& r) {
  r.NumAlt = selectorText(f.NumAlternativas, kMaxAlternativasElectra);
  r.NumCrit = selectorText(f.NumCriterios, kMaxCriterios);
  r.na = static_cast<int>(CDbl(r.NumAlt));
  r.nc = static_cast<int>(CDbl(r.NumCrit));
  const double E = Val(f.escalaValoracion);

  // Alternative a stands in column C(a+1); the weights in the column after the last.
  for (int c = 0; c < r.nc; ++c) {
    for (int a = 0; a < r.na; ++a) item(item(r.Valoracion, a), c) = Val(item(item(f.C, a), c).text);
    item(r.Ponderacion, c) = Val(item(item(f.C, r.na), c).text);
  }
  double W = 0;
  for (int c = 0; c < r.nc; ++c) W = checked(W + item(r.Ponderacion, c));

  for (int a = 0; a < r.na; ++a)
    for (int b = 0; b < r.na; ++b) {
      const auto& va = item(r.Valoracion, a);
      const auto& vb = item(r.Valoracion, b);
      double suma = 0;
      for (int c = 0; c < r.nc; ++c)
        if (comoTexto(item(va, c)) >= comoTexto(item(vb, c)))
          suma = checked(suma + item(r.Ponderacion, c));
      item(item(r.Concordancia, a), b) = divide(suma, W);

      double& discordancia = item(item(r.Discordancia, a), b);
      discordancia = 0;
      for (int c = 0; c < r.nc; ++c)
        if (comoTexto(item(vb, c)) > comoTexto(item(va, c))) {
          const double candidata = divide(checked(item(vb, c) - item(va, c)), E);
          if (candidata > discordancia) discordancia = candidata;
        }
    }
}

}  // namespace vorel::decision
