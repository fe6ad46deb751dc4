// ELECTRE II: from the concordance and discordance of every pair, three
// concordance indicators and two discordance indicators define a strong and a
// weak outranking; alternatives on a circuit of the strong outranking count
// as one. A direct classification from the best, an inverse one from the
// worst, and the mean of both give every alternative its final place.
#pragma once

#include <array>
#include <string>

#include "decision/valoraciones.h"
#include "frame/arith.h"
#include "frame/model.h"

namespace vorel::decision {

// The entry screen DecisionElectra2: the table of valuations and five indicators.
struct Electra2Fields : TablaValoraciones {
  std::string IndicadorConcordancia1, IndicadorConcordancia2, IndicadorConcordancia3;
  std::string IndicadorDiscordancia1, IndicadorDiscordancia2;
};

// The rank vectors' mark of an alternative not yet placed.
inline constexpr float kSinPuesto = 100;

template <class T>
using PorPar = std::array<std::array<T, kMaxAlternativasElectra>, kMaxAlternativasElectra>;
using Puestos = std::array<float, kMaxAlternativasElectra>;

// The solution screen DecisionElectra2_solucion: what its activation keeps.
struct Electra2Results : Valoraciones {
  double C1 = 0, C2 = 0, C3 = 0, D1 = 0, D2 = 0;  // the indicators' values
  PorPar<int> Fuerte{}, Debil{};                  // 1 where a outranks b strongly, weakly
  // The alternatives linked on a strong circuit share a number: the lowest
  // index among them. An alternative on no circuit has its own index.
  std::array<int, kMaxAlternativasElectra> Circuito{};
  Puestos Directa{}, Inversa{}, Media{}, Final{};
};

void nuevo(Electra2Fields& f);
Messages check(const Electra2Fields& f);  // Resolver: the first failure, or none
Electra2Results solve(const Electra2Fields& f);
Report report(const Electra2Fields& f, const Electra2Results& r);    // Solucion1
Report printout(const Electra2Fields& f, const Electra2Results& r);  // Imprimir
Pages solveAndReport(Electra2Fields& f);
void exchange(ProblemFile& file, Electra2Fields& f);  // guardar and abrir

}  // namespace vorel::decision
