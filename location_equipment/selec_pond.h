// Equipment selection by weighted factors: two projects or technologies, A
// and B, score every factor; the weights add up to one, and the larger
// weighted sum is preferred.
#pragma once

#include <array>
#include <string>

#include "frame/model.h"

namespace vorel::location_equipment {

inline constexpr int kMaxFactoresSP = 10;

// The entry screen Selec_Pond: one row per factor, the first NFact shown.
struct SelecPondFields {
  using Celdas = std::array<Cell, kMaxFactoresSP>;

  std::string Titulo1 = "Problema 1";
  int NFact = 2;  // list index of the combo "1" to "10"; -1 when empty
  Celdas factor, Ponderaciones, PuntuaA, PuntuaB;

  SelecPondFields();  // the first load: three factors
};

// The solution screen's totals, in single precision.
struct SelecPondResults {
  float PA = 0, PB = 0;
};

// How far the sum of the weights may lie from 1 and still count as 1: the
// weights are typed with a few decimals, and their sum in binary is seldom
// exactly 1.
inline constexpr double kToleranciaSuma = 1e-6;

void rediseñar(SelecPondFields& f);  // choosing NFact shows that many rows
void nuevo(SelecPondFields& f);
Messages check(const SelecPondFields& f);  // Resolver: the first failure, or none
SelecPondResults solve(const SelecPondFields& f);
Report report(const SelecPondFields& f, const SelecPondResults& r);    // Solucion1
Report printout(const SelecPondFields& f, const SelecPondResults& r);  // Imprimir
Pages solveAndReport(SelecPondFields& f);
void exchange(ProblemFile& file, SelecPondFields& f);  // guardar and abrir

}  // namespace vorel::location_equipment
