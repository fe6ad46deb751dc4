// Games of two players with two decisions each (2x2) in bimatrix form: the
// pure equilibria, the mixed equilibrium from each player's indifference, and
// the type of game.
#pragma once

#include <string>

#include "frame/model.h"
#include "games/equilibrios.h"

namespace vorel::games {

// The entry screen Juegos_2: each cell holds the payoffs of J1 and J2 for one
// pair of decisions.
struct Juegos2Fields {
  std::string Titulo1 = "Problema1";
  Pagos<2> E1;  // J1 plays Decisión 1, J2 Decisión 1
  Pagos<2> E2;  // Decisión 1 against Decisión 2
  Pagos<2> E3;  // Decisión 2 against Decisión 1
  Pagos<2> E4;  // Decisión 2 against Decisión 2

  Celdas<2> celdas() const { return {&E1, &E2, &E3, &E4}; }
  std::array<Pagos<2>*, 4> celdas() { return {&E1, &E2, &E3, &E4}; }
};

// What the commands of Juegos_2 keep for the report, beyond the pure
// equilibria: the probabilities of each player's Decisión 1 and their
// complements, and the expected payoffs of each decision.
struct Juegos2Estado : EstadoPuro<2> {
  float ProbJ2 = 0, ProbJ2c = 0, ProbJ1 = 0, ProbJ1c = 0;
  float PagoD1J1 = 0, PagoD2J1 = 0, PagoD1J2 = 0, PagoD2J2 = 0;

  bool hayMixto() const;  // both probabilities strictly between 0 and 1
};

Messages estPuras(const Juegos2Fields& f, Juegos2Estado& e);   // EstPuras
Messages estMixtas(const Juegos2Fields& f, Juegos2Estado& e);  // EstMixtas
void nuevo(Juegos2Fields& f, Juegos2Estado& e);
Report report(const Juegos2Fields& f, const Juegos2Estado& e);    // Juegos_2_Solucion
Report printout(const Juegos2Fields& f, const Juegos2Estado& e);  // Imprimir
void exchange(ProblemFile& file, Juegos2Fields& f);               // guardar and abrir

// A problem file run without the screens presses EstPuras, then EstMixtas,
// then Resolver: the checks are those that EstPuras tells.
Messages check(const Juegos2Fields& f);
Pages solveAndReport(Juegos2Fields& f);

}  // namespace vorel::games
