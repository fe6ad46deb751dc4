// Experience curves: the time of each unit under a learning rate, the time
// accumulated over a number of units and, optionally, the cost, price and
// profit of an order of those units.
#pragma once

#include <array>
#include <string>

#include "frame/model.h"

namespace vorel::productivity {

inline constexpr int kMaxUnidades = 15;

// The entry screen C_Experiencia.
struct ExperienciaFields {
  std::string Titulo1 = "Problema1";
  std::string L, T1unid, N, NAcumulado;
  bool Check1 = false;  // the economic side: MgB and CMdeO available
  std::string MgB, CMdeO;
};

// The solution screen C_Experiencia_Sol: T(1..15) and the results, as Single.
struct ExperienciaResults {
  double b = 0;
  std::array<float, kMaxUnidades + 1> T{};  // T[k], k from 1
  int units = 0;                            // the k of the report: 1 to N
  float A = 0, Tmedio = 0;
  float CosteTotal = 0, PrecioPedido = 0, PrecioUnitario = 0, CosteMedio = 0, Beneficio = 0;
};

void nuevo(ExperienciaFields& f);
Messages check(const ExperienciaFields& f);  // Resolver: the first failure, or none
ExperienciaResults solve(const ExperienciaFields& f);
Report report(const ExperienciaFields& f, const ExperienciaResults& r);    // Solucion1
Report printout(const ExperienciaFields& f, const ExperienciaResults& r);  // Imprimir
Chart chart(const ExperienciaResults& r);                                  // T(k) against k
Pages solveAndReport(ExperienciaFields& f);
void exchange(ProblemFile& file, ExperienciaFields& f);  // guardar and abrir

}  // namespace vorel::productivity
