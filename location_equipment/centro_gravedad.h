// Location by centre of gravity: the centre of a set of locations, each
// weighted by the quantity it sends or receives.
#pragma once

#include <array>
#include <string>

#include "frame/model.h"

namespace vorel::location_equipment {

inline constexpr int kMaxLocalizacionesCG = 10;

// The entry screen Localizacion_CG: one row per location, the first NLoc shown.
struct CentroGravedadFields {
  using Celdas = std::array<Cell, kMaxLocalizacionesCG>;

  std::string Titulo1 = "Problema 1";
  int NLoc = 1;  // list index of the combo "2" to "10"; -1 when empty
  Celdas localiz, X, Y, Q;

  CentroGravedadFields();  // the first load: three locations
};

// What Localizacion_CG_Solucion keeps, in single precision.
struct CentroGravedadResults {
  float SQ = 0, Xc = 0, Yc = 0;
};

// The text of the combo NLoc for a list index: "2" to "10", "" when none.
std::string textoNLoc(int listIndex);

void rediseñar(CentroGravedadFields& f);  // Rediseñar: shows the rows NLoc says
void nuevo(CentroGravedadFields& f);
Messages check(const CentroGravedadFields& f);  // Resolver: the first failure, or none
CentroGravedadResults solve(const CentroGravedadFields& f);
Report report(const CentroGravedadFields& f, const CentroGravedadResults& r);    // Solucion1
Report printout(const CentroGravedadFields& f, const CentroGravedadResults& r);  // Imprimir
Pages solveAndReport(CentroGravedadFields& f);
void exchange(ProblemFile& file, CentroGravedadFields& f);  // guardar and abrir

}  // namespace vorel::location_equipment
