// Control by attributes: the p chart of the proportion of defective units in
// samples of any size, and the np chart of their number in samples of one
// constant size; the flow of control by variables.
#pragma once

#include <array>
#include <string>

#include "frame/model.h"
#include "quality/control.h"

namespace vorel::quality {

// The entry screen ControlCal_AtribP. Rows K(i), r(i), tamano(i) hold sample i + 1.
struct AtributosFields {
  std::string Titulo1 = "Problema1";
  std::string Nmuestras;
  bool Option1 = true;                // p chart
  bool Option2 = false;               // np chart
  bool Label5 = true, Label6 = true;  // the captions of NPTMuestra
  Cell NPTMuestra{"", true};
  bool Labelr = false, labelrn = true;  // the legends of the np and the p chart
  std::array<bool, kMaxMuestras> K{};
  std::array<Cell, kMaxMuestras> r{}, tamano{};
  std::array<bool, 3> Lblk{}, Lblr{}, Lbltamano{};  // heads of the three blocks of 15 rows
  AtributosFields();
};

Messages check(const AtributosFields& f);
void nuevo(AtributosFields& f);
void rediseñar(AtributosFields& f);
void optionClick(AtributosFields& f, bool option2);
void exchange(ProblemFile& file, AtributosFields& f);

// The p chart (ControlCAl_AtribP_Sol) or, with `np`, the np chart
// (ControlCal_AtribNP_Sol): activation, Recalcular and Imprimir.
Painted activate(bool np, AtributosFields& f, ControlScreen& s);
Painted recalcular(bool np, AtributosFields& f, ControlScreen& s);
Report printout(bool np, const AtributosFields& f, const ControlScreen& s);

}  // namespace vorel::quality
