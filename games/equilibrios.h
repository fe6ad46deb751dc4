// What the games of two and of three players with two decisions each share:
// a table of cells holding one payoff per player, the numeric test of the two
// commands of the entry screen, the pure equilibria and the sums that give the
// type of game, and the report around the mixed equilibrium of each model.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "frame/arith.h"
#include "frame/model.h"

namespace vorel::games {

// The payoffs of one cell as typed, J1's first: the text boxes E(0), E(1)...
template <std::size_t J>
using Pagos = std::array<std::string, J>;

// The cells of a game of J players in the order of the entry screen's table:
// J2's decision changes first, then J1's, then J3's.
template <std::size_t J>
inline constexpr std::size_t kCeldas = std::size_t{1} << J;
template <std::size_t J>
using Celdas = std::array<const Pagos<J>*, kCeldas<J>>;

// The decision (1 or 2) of player `jugador` (0 for J1) in a cell, and the cell
// reached when that player alone changes it.
int decision(std::size_t celda, std::size_t jugador);
std::size_t cambio(std::size_t celda, std::size_t jugador);

// A frame of the entry screen with its panel: whether the frame is shown and
// the lines a command printed on the panel.
struct Panel {
  bool visible = false;
  Report lineas;
};

// What the commands leave on the entry screen for the report, beyond the
// mixed equilibrium of each model.
template <std::size_t J>
struct EstadoPuro {
  int SinPuras = 0;                    // 1: no pure equilibrium
  std::array<int, kCeldas<J>> Puro{};  // 1: the cell is a pure equilibrium
  Integer NumPuros = 0;
  std::array<Integer, kCeldas<J>> Suma{};  // the payoffs of each cell added, rounded
  int Calculado = 0;                       // 1 once a command ran on numeric data
  Panel EquilibriosPuras;                  // the frame holding SPuras
  Panel EquilibriosMixtas;                 // the frame holding SMixtas
};

// The numeric test of EstPuras and EstMixtas; when it passes the command has
// run on numeric data: Calculado is set and the sums are taken.
template <std::size_t J>
Messages comprobar(const Celdas<J>& celdas, EstadoPuro<J>& estado);

// EstPuras: a cell is an equilibrium when no player gains by changing his
// decision alone (ties count). Every cell an equilibrium is refused.
template <std::size_t J>
Messages estPuras(const Celdas<J>& celdas, EstadoPuro<J>& estado);

// Resolver: the report needs a command to have run first.
Messages resolver(int Calculado);

// nuevo: blanks the title and every payoff, clears both panels and hides
// their frames. The results stay.
template <std::size_t J>
void nuevo(std::string& Titulo1, const std::array<Pagos<J>*, kCeldas<J>>& celdas,
           EstadoPuro<J>& estado);

// "(" the texts parted by "," ")".
std::string tupla(const std::vector<std::string>& textos);
std::string tupla(const std::vector<float>& valores);  // each through Str

// A payoff of the mixed equilibrium: a negative value above -0.0001 is 0.
float redondeoCero(float pago);

// The report of Juegos_2_Solucion and Juegos_3_Solucion, on the screen or on
// the page (`pagina`: its own head and a shorter rule); `mixto` holds the
// payoffs of the mixed equilibrium, or nothing when there is none.
template <std::size_t J>
Report informe(const std::string& Titulo1, const Celdas<J>& celdas, const EstadoPuro<J>& estado,
               const std::vector<float>& mixto, bool pagina);

}  // namespace vorel::games
