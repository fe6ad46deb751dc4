// Economic order quantity with gradual supply: the lot arrives at p units a
// day while d units a day are consumed. Gives the lot, the orders a year, the
// cycle, the maximum stock, the days of supply of each lot, the reorder point
// with the phase of the stock in which it falls, and the total cost.
#pragma once

#include <string>

#include "frame/model.h"

namespace vorel::inventory {

// The entry screen GI_CEPGradual: every number lives as text.
struct GradualFields {
  std::string Titulo1 = "Problema1";
  std::string D, E, A, TS, P;
  std::string Pdia;  // units supplied a day, p
  std::string Ddia;  // units consumed a day, d
};

// The lead time against the cycle: the case that fixes the reorder lines.
enum class PuntoGradual {
  Ninguno,            // the lead time equals the cycle: no reorder line
  Decreciente,        // within the days of consumption only
  Creciente,          // within the days of supply, before the cycle ends
  Anterior,           // past one cycle, within its days of consumption
  AnteriorCreciente,  // past one cycle, within its days of supply
  Lejano,             // past two cycles
};

// The solution screen's results, each rounded to Single when stored.
struct GradualResults {
  float Q = 0, n = 0, TR = 0, t1 = 0, t2 = 0, S = 0, Pp = 0, CT = 0;
  PuntoGradual caso = PuntoGradual::Ninguno;
};

Messages check(const GradualFields& f);  // Resolver: the first failure, or none
GradualResults solve(const GradualFields& f);
Report report(const GradualFields& f, const GradualResults& r);
Report printout(const GradualFields& f, const GradualResults& r);
Pages solveAndReport(GradualFields& f);
void exchange(ProblemFile& file, GradualFields& f);
void nuevo(GradualFields& f);

}  // namespace vorel::inventory
