// Equipment selection by total cost: break-even analysis of two or three
// options, each with a fixed cost and a variable cost per unit, with the
// chart of their total cost lines.
#pragma once

#include <string>

#include "frame/model.h"

namespace vorel::location_equipment {

// The entry screen Select_C_Totales: Option1 chooses two options, Option2
// three (showing the frame FrmOpcion3).
struct CostesTotalesFields {
  std::string Titulo1 = "Problema1";
  bool Option1 = true, Option2 = false;
  std::string txtCF1, txtCV1, txtCF2, txtCV2, txtCF3, txtCV3;
};

// Select_C_Totales_Sol: the volume where the two options cost the same.
struct CostesDosResults {
  float x = 0, coste = 0;    // the break-even volume and the cost there
  int below = 1, above = 2;  // the option recommended below and above x
};

// Select_C_Totales_Sol1: the three crossings, sorted, and the option of each
// interval of volume.
struct CostesTresResults {
  float x12 = 0, x13 = 0, x23 = 0;
  float L = 0, M = 0, H = 0;
  int hasta = 1, entreLM = 1, entreMH = 1, mayor = 1;  // from 0 to L, L to M, M to H, above H
};

void nuevo(CostesTotalesFields& f);
Messages check(const CostesTotalesFields& f);  // Resolver
// The solution screen Resolver shows: two options or three.
std::string solutionScreen(const CostesTotalesFields& f);
CostesDosResults solveDos(const CostesTotalesFields& f);
CostesTresResults solveTres(const CostesTotalesFields& f);
Report report(const CostesTotalesFields& f, const CostesDosResults& r);
Report printout(const CostesTotalesFields& f, const CostesDosResults& r);
Chart chart(const CostesTotalesFields& f, const CostesDosResults& r);
Report report(const CostesTotalesFields& f, const CostesTresResults& r);
Report printout(const CostesTotalesFields& f, const CostesTresResults& r);
Chart chart(const CostesTotalesFields& f, const CostesTresResults& r);
Pages solveAndReport(CostesTotalesFields& f);              // on the screen the options choose
void exchange(ProblemFile& file, CostesTotalesFields& f);  // guardar and abrir

}  // namespace vorel::location_equipment
