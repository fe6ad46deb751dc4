// Location by factor rating: each candidate location scores every factor, and
// the weighted sum of its scores ranks it; the best one, or all the best when
// they tie, is the location chosen.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel::location_equipment {

inline constexpr int kMaxLocalizacionesPF = 6;
inline constexpr int kMaxFactoresPF = 10;

// The entry screen Localizacion_PF. Rows are factors, columns locations: the
// score of factor k at location j is the cell fk(j), f[k - 1][j] here.
struct FactoresLocalizacionFields {
  std::string Titulo1 = "Problema 1";
  int NFactL = 1;                      // list index of the combo "2" to "10"; -1 when empty
  int NLoc = 1;                        // list index of the combo "2" to "6"; -1 when empty
  std::array<bool, 5> Puntuaciones{};  // visibility of Puntuaciones2 to Puntuaciones6
  std::array<Cell, kMaxFactoresPF> flocaliz, Q1;
  std::array<bool, kMaxLocalizacionesPF> L{};  // visibility of the location heads L(j)
  std::array<std::array<Cell, kMaxLocalizacionesPF>, kMaxFactoresPF> f;

  FactoresLocalizacionFields();  // the first load: three factors, three locations
};

// What Localizacion_PF_Solucion keeps: the score of each location shown, in
// single precision, and the best ones.
struct FactoresLocalizacionResults {
  std::vector<int> localizaciones;  // the location j of each score
  std::vector<float> puntuacion;
  std::vector<int> mejores;  // positions in `puntuacion`
};

// The caption of the location head L(j).
std::string nombreLocalizacion(int j);

void rediseñar(FactoresLocalizacionFields& f);  // Rediseñar: the shape the combos say
void nuevo(FactoresLocalizacionFields& f);
Messages check(const FactoresLocalizacionFields& f);  // Resolver: the first failure, or none
FactoresLocalizacionResults solve(const FactoresLocalizacionFields& f);
Report report(const FactoresLocalizacionFields& f, const FactoresLocalizacionResults& r);
Report printout(const FactoresLocalizacionFields& f, const FactoresLocalizacionResults& r);
Pages solveAndReport(FactoresLocalizacionFields& f);
void exchange(ProblemFile& file, FactoresLocalizacionFields& f);  // guardar and abrir

}  // namespace vorel::location_equipment
