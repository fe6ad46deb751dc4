// Games of three players with two decisions each: the pure equilibria, and a
// symmetric mixed equilibrium, every player using the same probability, from
// a quadratic equation in J2's payoffs.
#pragma once

#include <string>

#include "frame/model.h"
#include "games/equilibrios.h"

namespace vorel::games {

// The entry screen Juegos_3: each cell holds the payoffs of J1, J2 and J3 for
// one choice of the three decisions (J1, J2, J3).
struct Juegos3Fields {
  std::string Titulo1 = "Problema1";
  Pagos<3> E1;   // 1, 1, 1
  Pagos<3> E2;   // 1, 2, 1
  Pagos<3> E3;   // 2, 1, 1
  Pagos<3> E4;   // 2, 2, 1
  Pagos<3> E11;  // 1, 1, 2
  Pagos<3> E21;  // 1, 2, 2
  Pagos<3> E31;  // 2, 1, 2
  Pagos<3> E41;  // 2, 2, 2

  Celdas<3> celdas() const { return {&E1, &E2, &E3, &E4, &E11, &E21, &E31, &E41}; }
  std::array<Pagos<3>*, 8> celdas() { return {&E1, &E2, &E3, &E4, &E11, &E21, &E31, &E41}; }
};

// The quadratic a p² + b p + c = 0 that EstMixtas solves.
struct Cuadratica {
  double a = 0, b = 0, c = 0;
};
Cuadratica cuadratica(const Juegos3Fields& f);

// What the commands of Juegos_3 keep for the report, beyond the pure
// equilibria: whether a root stood, the probability of Decisión 1 that all
// three players use and its complement, and each player's expected payoff.
struct Juegos3Estado : EstadoPuro<3> {
  bool HayMixto = false;
  float Prob = 0, ProbC = 0;
  std::array<float, 3> Pago{};  // J1, J2, J3, each on its Decisión 1
};

Messages estPuras(const Juegos3Fields& f, Juegos3Estado& e);   // EstPuras
Messages estMixtas(const Juegos3Fields& f, Juegos3Estado& e);  // EstMixtas
void nuevo(Juegos3Fields& f, Juegos3Estado& e);
Report report(const Juegos3Fields& f, const Juegos3Estado& e);    // Juegos_3_Solucion
Report printout(const Juegos3Fields& f, const Juegos3Estado& e);  // Imprimir
void exchange(ProblemFile& file, Juegos3Fields& f);               // guardar and abrir

// A problem file run without the screens presses EstPuras, then EstMixtas,
// then Resolver: the checks are those that EstPuras tells.
Messages check(const Juegos3Fields& f);
Pages solveAndReport(Juegos3Fields& f);

}  // namespace vorel::games
