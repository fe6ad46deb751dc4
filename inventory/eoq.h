// Economic order quantity: the order size that minimises the total inventory
// cost, with the number of orders, the replenishment interval, the reorder
// point and the total cost.
#pragma once

#include <string>

#include "frame/model.h"

namespace vorel::inventory {

// The entry screen GI_CantidadEconómicaPedido: every number lives as text.
struct EoqFields {
  std::string Titulo1 = "Problema1";
  std::string D, E, A, TS, dias, P;
};

// The solution screen's results, each rounded to Single when stored.
struct EoqResults {
  float Q = 0, n = 0, TR = 0, Pp = 0, CT = 0;
};

Messages check(const EoqFields& f);                        // Resolver: the first failure, or none
EoqResults solve(const EoqFields& f);                      // the solution screen's activation
Report report(const EoqFields& f, const EoqResults& r);    // painted on Solucion1
Report printout(const EoqFields& f, const EoqResults& r);  // Imprimir
Pages solveAndReport(EoqFields& f);
void exchange(ProblemFile& file, EoqFields& f);  // guardar and abrir
void nuevo(EoqFields& f);

}  // namespace vorel::inventory
