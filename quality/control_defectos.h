// Control by number of defects: the c chart for samples of one constant size
// and the u chart for samples of variable size, whose limits change from
// sample to sample; the flow of control by variables.
#pragma once

#include <array>
#include <string>

#include "frame/model.h"
#include "quality/control.h"

namespace vorel::quality {

// The entry screen ControlCal_NDef. Rows K(i), r(i), N(i) hold sample i + 1.
struct DefectosFields {
  std::string Titulo1 = "Problema1";
  std::string Nmuestras;
  bool Option1 = true;                  // constant size: c chart
  std::string TMuestra;                 // the constant size
  bool Option2 = false;                 // variable size: u chart
  bool Labelr = true, labelrn = false;  // the legends of the constant and the variable size
  std::array<bool, kMaxMuestras> K{};
  std::array<Cell, kMaxMuestras> r{}, N{};
  std::array<bool, 3> Lblk{}, Lblr{}, Lbln{};  // heads of the three blocks of 15 rows
  DefectosFields();
};

Messages check(const DefectosFields& f);
void nuevo(DefectosFields& f);
void rediseñar(DefectosFields& f);
void optionClick(DefectosFields& f, bool option2);
void exchange(ProblemFile& file, DefectosFields& f);

// The c chart (ControlCal_NDef_Sol) or, with `variable`, the u chart
// (ControlCal_NDef_Sol1): activation, Recalcular and Imprimir.
Painted activate(bool variable, DefectosFields& f, ControlScreen& s);
Painted recalcular(bool variable, DefectosFields& f, ControlScreen& s);
Report printout(bool variable, const DefectosFields& f, const ControlScreen& s);

}  // namespace vorel::quality
