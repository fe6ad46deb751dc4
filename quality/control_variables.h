// Control by variables: the chart of the sample means, with the standard
// deviations or the ranges of the samples, and the charts of those two;
// centre lines and limits from the tables of factors, the samples outside
// the limits taken out of the entry screen, and Recalcular.
#pragma once

#include <array>
#include <string>

#include "frame/model.h"
#include "quality/control.h"

namespace vorel::quality {

// The entry screen ControlCal_V. Rows K(i), M(i), S(i) hold sample i + 1.
struct VariablesFields {
  std::string Titulo1 = "Problema1";
  bool Option1 = true;   // means with standard deviations
  bool Option2 = false;  // means with ranges
  std::string Nmuestras, Tmuestras;
  bool LblMkRk = false, LblMkSk = true;  // the legends' visibility
  std::array<bool, kMaxMuestras> K{};
  std::array<Cell, kMaxMuestras> M{}, S{};
  std::array<bool, 3> Lblk{}, LblM{}, LblR{}, LblS{};  // heads of the three blocks of 15 rows
  // What each chart screen keeps between its activations, by Grafico: its
  // mean of the Sk (see VariablesScreen::Sbar). No file holds it.
  std::array<float, 3> Sbar{};
  VariablesFields();
};

// The three charts: ControlCal_V_Sol, ControlCal_V_Sol2, ControlCal_V_Sol3.
enum class Grafico { Medias, Desviaciones, Recorridos };

// The screen-level variables of a chart screen; the means chart also shows
// ControlDesviaciones and ControlRecorridos, and the other two keep their
// mean of the Sk between activations.
struct VariablesScreen : ControlScreen {
  bool ControlDesviaciones = false, ControlRecorridos = false;
  float Sbar = 0;
};

// The hidden selectors of factors, item i for n = i + 2, as their texts.
extern const std::array<const char*, 24> D2, C2, D3, D4, B3, B4;

Messages check(const VariablesFields& f);  // Resolver: the first failure, or none
void nuevo(VariablesFields& f);
void rediseñar(VariablesFields& f);
void optionClick(VariablesFields& f, bool option2);  // Option1 or Option2 chosen
void exchange(ProblemFile& file, VariablesFields& f);

// The activation of a chart screen and its Recalcular: both compute from the
// entry's fields, paint and draw, and take the samples outside the limits out
// of the entry. `title` heads the screen report.
Painted activate(Grafico g, VariablesFields& f, VariablesScreen& s, const std::string& title);
Painted recalcular(Grafico g, VariablesFields& f, VariablesScreen& s, const std::string& title);
// Imprimir: the page of the set chosen by `recalculated`.
Report printout(Grafico g, const VariablesFields& f, const VariablesScreen& s);

// The title that heads the screen reports: Titulo1 of Selec_Van, the entry of
// the choice of equipment by net present value, as it stands on that screen
// (as that screen presets it where no screens are read).
std::string selecVanTitulo1();

// A run from the entry: Resolver shows the means chart, whose activation
// takes samples out; `g` other than Medias then opens that chart from it.
Pages solveAndReport(VariablesFields& f, Grafico g);

}  // namespace vorel::quality
