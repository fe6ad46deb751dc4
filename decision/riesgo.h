// Decisions under risk: a payoff table whose states of nature have known
// probabilities, judged by simple dominance, stochastic dominance and the
// mean value. The screen shows one criterion a page, browsed with arrow
// buttons; the printed page holds the three.
#pragma once

#include <array>
#include <string>

#include "decision/tablas.h"
#include "frame/arith.h"
#include "frame/model.h"

namespace vorel::decision {

inline constexpr int kMaxAlternativasRiesgo = 7;
inline constexpr int kMaxEstadosRiesgo = 8;

// The entry screen DecisionRiesgoNobayesiano. Rows are alternatives, columns
// are states: C[j - 1][i] is the cell Cj(i), state j for alternative i+1; the
// row just below the last alternative, element NA, holds the probabilities.
struct RiesgoFields {
  std::string Título = "Problema 1";
  int NumAlternativas = 3;  // list index of the combo "1" to "7"; -1 when empty
  int NumEstados = 3;       // list index of the combo "1" to "8"; -1 when empty
  Tabla<8, 8> C;
  std::array<bool, 8> LblEstado{};       // visibility of the column heads
  std::array<bool, 8> lblAlternativa{};  // visibility of the row heads
  // The row heads' captions: "Alternativa 1"... and "Ps" over the probabilities.
  std::array<std::string, 8> lblAlternativaCaption;

  RiesgoFields();  // the shape of the first load: four alternatives, four states
};

// What the activation of DecisionRiesgoNobayesiano_solucion keeps for its pages.
struct RiesgoResults {
  std::string NumAlt, NumEst;  // the combos' texts
  int na = 0, ne = 0;
  std::array<double, kMaxEstadosRiesgo> Probabilidad{};
  template <class T>
  using PorPar = std::array<std::array<T, kMaxAlternativasRiesgo>, kMaxAlternativasRiesgo>;
  PorPar<int> DominaSimple{}, DominaEstocastica{};  // 1 where a dominates b
  std::array<int, kMaxAlternativasRiesgo> NoDominadaSimple{}, NoDominadaEstocastica{};
  Integer NumNoDominadasSimple, NumNoDominadasEstocastica;
  // The distinct results in rising order, and how many there are.
  std::array<double, kMaxAlternativasRiesgo * kMaxEstadosRiesgo> ValoresOrdenados{};
  Integer NumValores;
  // Acumulada[a][k]: the probability of alternative a up to the k-th value.
  std::array<std::array<double, kMaxAlternativasRiesgo * kMaxEstadosRiesgo>, kMaxAlternativasRiesgo>
      Acumulada{};
  std::array<float, kMaxAlternativasRiesgo> ValorMedio{};
  float MejorValorMedio = 0;
};

Messages rediseñar(RiesgoFields& f);  // RediseñarTabla
void nuevo(RiesgoFields& f);
Messages check(const RiesgoFields& f);  // Resolver: the first failure, or none
RiesgoResults solve(const RiesgoFields& f);

// The report pages and the browsing between them.
enum class PaginaRiesgo { DominanciaSimple, DominanciaEstocastica, ValorMedio };
enum class BotonRiesgo { forward1, Back1, forward2, back2 };
// Whether a browsing button shows on a page; volver shows on the first only.
bool visible(PaginaRiesgo pagina, BotonRiesgo boton);
bool volverVisible(PaginaRiesgo pagina);
// The page a click leads to; a button that does not show leaves the page.
PaginaRiesgo pulsar(PaginaRiesgo pagina, BotonRiesgo boton);

Report pagina(const RiesgoFields& f, const RiesgoResults& r, PaginaRiesgo p);
Report report(const RiesgoFields& f, const RiesgoResults& r);    // the first page
Report printout(const RiesgoFields& f, const RiesgoResults& r);  // Imprimir
Pages solveAndReport(RiesgoFields& f);
void exchange(ProblemFile& file, RiesgoFields& f);  // guardar and abrir

}  // namespace vorel::decision
