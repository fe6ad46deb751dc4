#include "decision/riesgo.h"

#include "decision/decision_forms.h"
#include "frame/catalogue.h"
#include "frame/checks.h"

namespace vorel::decision {

namespace {

// The row heads: the alternatives, and "Ps" over the probabilities below the last one.
void rotular(RiesgoFields& f, int na) {
  for (int k = 0; k < 8; ++k)
    item(f.lblAlternativaCaption, k) = k == na ? "Ps" : "Alternativa " + std::to_string(k + 1);
}

// Shows the rows of the na alternatives and of the probabilities, and the
// columns of the ne states, with their heads; hides the rest.
void aplicarForma(RiesgoFields& f, int na, int ne) {
  for (int k = 0; k < 8; ++k) {
    item(f.LblEstado, k) = k < ne;
    item(f.lblAlternativa, k) = k <= na;
  }
  rotular(f, na);
  mostrarCeldas(f.C, na + 1, ne);
}

// The number of alternatives of the combo, -1 when it is empty.
int alternativas(const RiesgoFields& f) {
  const std::string text = selectorText(f.NumAlternativas, kMaxAlternativasRiesgo);
  return text.empty() ? -1 : static_cast<int>(Val(text));
}

using Marcas = std::array<int, kMaxAlternativasRiesgo>;

// An order of dominance: a dominates b when `compara` finds it nowhere worse
// and somewhere better; the non-dominated are those that no other dominates.
template <class Compara>
void dominancia(int na, Compara compara, RiesgoResults::PorPar<int>& domina, Marcas& noDominada,
                Integer& cuenta) {
  for (int a = 0; a < na; ++a)
    for (int b = 0; b < na; ++b) {
      if (a == b) continue;
      bool peor = false, mejor = false;
      compara(a, b, peor, mejor);
      item(item(domina, a), b) = !peor && mejor ? 1 : 0;
    }
  for (int a = 0; a < na; ++a) {
    item(noDominada, a) = 1;
    for (int b = 0; b < na; ++b)
      if (b != a && item(item(domina, b), a) == 1) item(noDominada, a) = 0;
    if (item(noDominada, a) == 1) ++cuenta;
  }
}

void cabecera(Report& out, const RiesgoFields& f, const RiesgoResults& r,
              const std::string& linea) {
  out.line(Z, "Solución al problema: " + f.Título);
  out.line(Z, linea);
  out.line(Z, " ");
  out.line(Z, "Número de alternativas:", Z, Z, r.NumAlt);
  out.line(Z, "Número de estados de la naturaleza:", Z, r.NumEst);
  out.line(Z, linea);
  out.line(Z, " ");
}

void lineasDominancia(Report& out, const RiesgoResults& r, bool estocastica) {
  out.line(Z, estocastica ? "CRITERIO DE LA DOMINANCIA ESTOCÁSTICA"
                          : "CRITERIO DE LA DOMINANCIA SIMPLE");
  out.line(Z, "");
  const auto& domina = estocastica ? r.DominaEstocastica : r.DominaSimple;
  for (int a = 0; a < r.na; ++a)
    for (int b = 0; b < r.na; ++b)
      if (a != b && item(item(domina, a), b) == 1)
        out.line(Z, "La alternativa", numero(a),
                 estocastica ? "domina estocasticamente a la alternativa"
                             : "domina simplemente a la alternativa",
                 numero(b));
  out.line(Z, "");
  out.line(Z, "ALTERNATIVAS NO DOMINADAS");
  out.line(Z, "");
  const auto& noDominada = estocastica ? r.NoDominadaEstocastica : r.NoDominadaSimple;
  for (int a = 0; a < r.na; ++a)
    if (item(noDominada, a) == 1) out.line(Z, "Alternativa", numero(a));
  if ((estocastica ? r.NumNoDominadasEstocastica : r.NumNoDominadasSimple) == 0)
    out.line(Z, estocastica ? "No existe ninguna alternativa no dominada"
                            : "No existen alternativas no dominadas");
}

void lineasValorMedio(Report& out, const RiesgoResults& r) {
  out.line(Z, "CRITERIO DEL VALOR MEDIO");
  out.line(Z, "");
  out.line(Z, "VALORES MEDIOS OBTENIDOS");
  out.line(Z, "");
  for (int a = 0; a < r.na; ++a)
    out.line(Z, "alternativas", numero(a), ":", Z, Str(item(r.ValorMedio, a)));
  out.line(Z, "");
  out.line(Z, "ALTERNATIVAS QUE GENERAN UN MAYOR VALOR MEDIO");
  out.line(Z, "");
  for (int a = 0; a < r.na; ++a)
    if (item(r.ValorMedio, a) == r.MejorValorMedio)
      out.line(Z, "Alternativa", numero(a), Str(item(r.ValorMedio, a)));
}

}  // namespace

RiesgoFields::RiesgoFields() { aplicarForma(*this, 4, 4); }

Messages rediseñar(RiesgoFields& f) {
  return rediseñarPagos(f, kMaxAlternativasRiesgo, kMaxEstadosRiesgo, aplicarForma);
}

void nuevo(RiesgoFields& f) {
  for (auto& column : f.C)
    for (auto& cell : column) cell.text.clear();
  f.NumAlternativas = 3;
  f.NumEstados = 3;
  aplicarForma(f, 4, 4);
}

// Every visible cell must be a number; the probability of the first state,
// in the row below the last alternative, must lie between 0 and 1. The other
// probabilities are taken as they are, whatever they sum to.
Messages check(const RiesgoFields& f) {
  const int na = alternativas(f);
  return primerFallo(f.C, [na](int j, int i, const Cell& cell) -> Messages {
    if (!IsNumeric(cell.text)) return {{"Debe Completar la tabla", ""}};
    if (j == 1 && i == na) {
      const double p = Val(cell.text);
      if (p < 0 || p > 1)
        return {
            {"El valor de la probabilidad del estado de la naturaleza número 1 no es "
             "correcto, introduzca un valor comprendido entre 0 y 1",
             element("C1", i)}};
    }
    return {};
  });
}

RiesgoResults solve(const RiesgoFields& f) {
  RiesgoResults r;
  r.NumAlt = selectorText(f.NumAlternativas, kMaxAlternativasRiesgo);
  r.NumEst = selectorText(f.NumEstados, kMaxEstadosRiesgo);
  r.na = static_cast<int>(CDbl(r.NumAlt));
  r.ne = static_cast<int>(CDbl(r.NumEst));
  const int na = r.na, ne = r.ne;
  // Resultado(s, a): the cell of state s for alternative a; the probabilities below.
  auto Resultado = [&](int s, int a) { return Val(item(item(f.C, s), a).text); };
  for (int s = 0; s < ne; ++s) item(r.Probabilidad, s) = Val(item(item(f.C, s), na).text);

  dominancia(
      na,
      [&](int a, int b, bool& peor, bool& mejor) {
        for (int s = 0; s < ne; ++s) {
          if (Resultado(s, a) < Resultado(s, b)) peor = true;
          if (Resultado(s, a) > Resultado(s, b)) mejor = true;
        }
      },
      r.DominaSimple, r.NoDominadaSimple, r.NumNoDominadasSimple);

  // The distinct results, rising: the smallest, then each time the smallest
  // above the last one taken, looked for below 100000000.
  double menor = Resultado(0, 0);
  for (int a = 0; a < na; ++a)
    for (int s = 0; s < ne; ++s)
      if (Resultado(s, a) < menor) menor = Resultado(s, a);
  item(r.ValoresOrdenados, 0) = menor;
  r.NumValores = 1;
  for (;;) {
    const double anterior = item(r.ValoresOrdenados, r.NumValores - 1);
    double siguiente = 100000000;
    for (int a = 0; a < na; ++a)
      for (int s = 0; s < ne; ++s)
        if (Resultado(s, a) > anterior && Resultado(s, a) < siguiente) siguiente = Resultado(s, a);
    if (siguiente == 100000000) break;
    item(r.ValoresOrdenados, r.NumValores) = siguiente;
    ++r.NumValores;
  }
  // Each alternative's probability accumulated along the values.
  for (int a = 0; a < na; ++a) {
    double acumulada = 0;
    for (int k = 0; k < r.NumValores; ++k) {
      for (int s = 0; s < ne; ++s)
        if (Resultado(s, a) == item(r.ValoresOrdenados, k))
          acumulada = checked(acumulada + item(r.Probabilidad, s));
      item(item(r.Acumulada, a), k) = acumulada;
    }
  }
  // Less probability up to every value is the better: a's cumulative nowhere
  // above b's and somewhere below.
  dominancia(
      na,
      [&](int a, int b, bool& peor, bool& mejor) {
        for (int k = 0; k < r.NumValores; ++k) {
          const double pa = item(item(r.Acumulada, a), k), pb = item(item(r.Acumulada, b), k);
          if (pa > pb) peor = true;
          if (pa < pb) mejor = true;
        }
      },
      r.DominaEstocastica, r.NoDominadaEstocastica, r.NumNoDominadasEstocastica);

  for (int a = 0; a < na; ++a) {
    float suma = 0;
    for (int s = 0; s < ne; ++s)
      suma = Sng(checked(double(suma) + checked(item(r.Probabilidad, s) * Resultado(s, a))));
    item(r.ValorMedio, a) = suma;
  }
  r.MejorValorMedio = item(r.ValorMedio, 0);
  for (int a = 1; a < na; ++a)
    if (item(r.ValorMedio, a) > r.MejorValorMedio) r.MejorValorMedio = item(r.ValorMedio, a);
  return r;
}

bool visible(PaginaRiesgo pagina, BotonRiesgo boton) {
  switch (boton) {
    case BotonRiesgo::forward1:
      return pagina == PaginaRiesgo::DominanciaSimple;
    case BotonRiesgo::Back1:
    case BotonRiesgo::forward2:
      return pagina == PaginaRiesgo::DominanciaEstocastica;
    case BotonRiesgo::back2:
      return pagina == PaginaRiesgo::ValorMedio;
  }
  return false;
}

bool volverVisible(PaginaRiesgo pagina) { return pagina == PaginaRiesgo::DominanciaSimple; }

PaginaRiesgo pulsar(PaginaRiesgo pagina, BotonRiesgo boton) {
  if (!visible(pagina, boton)) return pagina;
  switch (boton) {
    case BotonRiesgo::Back1:
      return PaginaRiesgo::DominanciaSimple;
    case BotonRiesgo::forward1:
    case BotonRiesgo::back2:
      return PaginaRiesgo::DominanciaEstocastica;
    case BotonRiesgo::forward2:
      return PaginaRiesgo::ValorMedio;
  }
  return pagina;
}

Report pagina(const RiesgoFields& f, const RiesgoResults& r, PaginaRiesgo p) {
  Report out;
  out.blankLines(4);
  cabecera(out, f, r, regla(74));
  if (p == PaginaRiesgo::ValorMedio)
    lineasValorMedio(out, r);
  else
    lineasDominancia(out, r, p == PaginaRiesgo::DominanciaEstocastica);
  return out;
}

Report report(const RiesgoFields& f, const RiesgoResults& r) {
  return pagina(f, r, PaginaRiesgo::DominanciaSimple);
}

Report printout(const RiesgoFields& f, const RiesgoResults& r) {
  const std::string linea = regla(64);
  Report out;
  for (int k = 0; k < 5; ++k) out.line(Z, "");
  out.line(Z, Z, "TOMA DE DECISIONES EN AMBIENTE DE RIESGO");
  out.blankLines(4);
  cabecera(out, f, r, linea);
  lineasDominancia(out, r, false);
  for (bool estocastica : {true, false}) {
    out.line(Z, " ");
    out.line(Z, linea);
    out.line(Z, " ");
    if (estocastica)
      lineasDominancia(out, r, true);
    else
      lineasValorMedio(out, r);
  }
  return out;
}

Pages solveAndReport(RiesgoFields& f) {
  return solvedPages(f);
}

// The file carries the heads' visibility but not their captions: reading the
// number of alternatives puts "Ps" over the row of probabilities it names.
void exchange(ProblemFile& file, RiesgoFields& f) {
  file.text(f.Título);
  file.listIndex(f.NumEstados, kMaxEstadosRiesgo);
  file.listIndex(f.NumAlternativas, kMaxAlternativasRiesgo);
  if (file.reading() && f.NumAlternativas >= 0) rotular(f, f.NumAlternativas + 1);
  exchangeFilas(file, f.LblEstado, f.C, f.lblAlternativa);
}

// The screen report is the first page, simple dominance.
CatalogueEntry catalogueRiesgo() {
  return catalogued("riesgo", riesgoForm());
}

}  // namespace vorel::decision
