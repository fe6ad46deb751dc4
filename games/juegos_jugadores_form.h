// The screens of games of two and of three players as data: Juegos_2 and
// Juegos_3, the payoffs of each choice of decisions, EstPuras and EstMixtas
// with the panels they print on, and their reports.
#pragma once

#include <array>
#include <string>

#include "frame/form.h"
#include "games/juegos_2.h"
#include "games/juegos_3.h"

namespace vorel::games {

// An entry screen of a game: its fields, what its two commands keep for the
// report, the texts of the panels SPuras and SMixtas as they show them, and
// the cells that the shown panel of EstPuras lists as equilibria.
template <class Fields, class Estado>
struct PantallaEquilibrios {
  Fields campos;
  Estado estado;
  std::string SPuras, SMixtas;
  std::array<bool, 8> Resaltada{};
};
using Juegos2Pantalla = PantallaEquilibrios<Juegos2Fields, Juegos2Estado>;
using Juegos3Pantalla = PantallaEquilibrios<Juegos3Fields, Juegos3Estado>;

// The entry screen's own model functions: abrir and guardar the fields,
// nuevo blanks them and the panels, Resolver needs a command to have run and
// reports what the commands kept.
void exchange(ProblemFile& file, Juegos2Pantalla& p);
void exchange(ProblemFile& file, Juegos3Pantalla& p);
void nuevo(Juegos2Pantalla& p);
void nuevo(Juegos3Pantalla& p);
Messages check(const Juegos2Pantalla& p);
Messages check(const Juegos3Pantalla& p);
Pages solveAndReport(Juegos2Pantalla& p);
Pages solveAndReport(Juegos3Pantalla& p);

// Resolver reports what the commands computed, so the entry's own checks are
// that one of them has run; a file run presses both instead (juegos_2.h).
const Form<Juegos2Pantalla>& juegos2Form();
const Form<Juegos3Pantalla>& juegos3Form();

}  // namespace vorel::games
