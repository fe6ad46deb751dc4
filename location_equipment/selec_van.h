// Equipment selection by net present value: two investments A and B compared
// by their VAN and, when their lives differ, by the VAN corrected for the
// duration (VANC).
#pragma once

#include <array>
#include <string>

#include "frame/model.h"

namespace vorel::location_equipment {

inline constexpr int kMaxAñosVan = 9;  // the rows of the table: years 1 to 9

// The entry screen Selec_Van. The durations are the texts of the combos
// NVarA and NVarB ("2" to "9"); AX1(i) and AX2(i) are the cash flows of A and
// B in year i + 1.
struct VanFields {
  std::string Titulo1 = "Problema1";
  std::string NVarA = "2", NVarB = "2";
  std::string txtDescuento, InicialA, InicialB;
  std::array<Cell, kMaxAñosVan> AX1, AX2;
  // The row heads LblAño(i): shown where a cell of their row is.
  std::array<bool, kMaxAñosVan> LblAño{};
  VanFields();  // the shape of the first load: two years each
};

// The solution screen Selec_Van_Solucion's screen-level results.
struct VanResults {
  float VANA = 0, VANB = 0, VANCA = 0, VANCB = 0;
  bool corrected = false;  // the durations differ: VANC decides
};

Messages rediseñar(VanFields& f);  // Rediseñar: the rows of the chosen durations
void nuevo(VanFields& f);
Messages check(const VanFields& f);  // Resolver: the first failure, or none
VanResults solve(const VanFields& f);
Report report(const VanFields& f, const VanResults& r);    // Solucion1
Report printout(const VanFields& f, const VanResults& r);  // Imprimir
Pages solveAndReport(VanFields& f);
void exchange(ProblemFile& file, VanFields& f);  // guardar and abrir

}  // namespace vorel::location_equipment
