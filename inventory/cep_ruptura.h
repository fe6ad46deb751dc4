// Economic order quantity with shortages that are back-ordered: the lot, the
// orders a year, the maximum stock, the cycle split into days with and without
// stock, the reorder advice in seven cases of the lead time, and the total cost.
#pragma once

#include <string>

#include "frame/model.h"

namespace vorel::inventory {

// The entry screen GI_CEPRuptura: every number lives as text.
struct RupturaFields {
  std::string Titulo1 = "Problema1";
  std::string D, E, A, CR, TS, dias, P;
};

// Where the lead time T falls against the days with shortage t2 and the cycle
// TR: the case that words the reorder advice.
enum class PuntoRuptura {
  Ninguno,               // two cycles or more: no advice
  DemandaInsatisfecha,   // T < t2
  Agotado,               // T = t2
  Inventario,            // t2 < T < TR
  MaximaInsatisfecha,    // T = TR
  InsatisfechaAnterior,  // TR < T < TR + t2
  MaximaAnterior,        // T - TR = t2
  InventarioAnterior,    // TR + t2 < T < 2 TR
};

// The solution screen's results, each rounded to Single when stored.
struct RupturaResults {
  float Q = 0, n = 0, S = 0, TR = 0, t1 = 0, t2 = 0, Pp = 0, CT = 0;
  PuntoRuptura caso = PuntoRuptura::Ninguno;
};

Messages check(const RupturaFields& f);  // Resolver: the first failure, or none
RupturaResults solve(const RupturaFields& f);
Report report(const RupturaFields& f, const RupturaResults& r);
Report printout(const RupturaFields& f, const RupturaResults& r);
Pages solveAndReport(RupturaFields& f);
void exchange(ProblemFile& file, RupturaFields& f);
void nuevo(RupturaFields& f);

}  // namespace vorel::inventory
