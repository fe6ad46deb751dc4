// Games with up to eight strategies a side: one pass of elimination of
// dominated lines, then maximin and minimax in single precision, and the
// pure-strategy equilibria (saddle points) of the table as typed.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "frame/model.h"

namespace vorel::games {

inline constexpr int kMaxEstrategias = 8;

// The entry screen Juegos_n. The cells shown are the arrays A1 to An2, each
// with its elements 0 to n1-1; hidden cells keep what they hold.
struct JuegosNFields {
  using Celdas = std::array<Cell, kMaxEstrategias>;

  std::string Título = "Problema 1";
  int NDecA = 1;  // list index of the combo "1" to "8" (strategies of player 1); -1 when empty
  int NDecB = 1;  // the same for player 2
  std::array<bool, kMaxEstrategias> A{}, B{};  // visibility of the heads A(i) and B(i)
  Celdas A1, A2, A3, A4, A5, A6, A7, A8;

  JuegosNFields();  // the first load: two strategies a side

  // The array Ak, k from 1 to 8; any other k is a subscript error.
  Celdas& array(int k);
  const Celdas& array(int k) const;
};

// Tabla(a, b): a indexes the arrays (A1 is a = 0), b their elements.
using Tabla = std::vector<std::vector<double>>;

// The working copy after the single elimination pass.
struct Reduccion {
  Tabla Reducida;
  int UltimaFila = 0, UltimaColumna = 0;
};

// What Resolver leaves in the hidden fields of the entry screen for the
// report: the texts of maximin, minimax and soluciones, and the saddle points
// in the list boxes Solucion1, Solucion2 and solucion3 (0-based a, b).
struct JuegosNResults {
  std::string maximin, minimax, soluciones = "0";
  std::array<std::pair<int, int>, 3> Solucion{};
  std::vector<float> MaxColumna, MinFila;  // single precision, full sizes n2 and n1
};

// The text a combo shows for a list index: "" when nothing is selected.
std::string textoCombo(int listIndex);

void rediseñar(JuegosNFields& f);  // Rediseñar: shows the heads and cells chosen
void nuevo(JuegosNFields& f);      // shows the form afresh: resets nothing
// Resolver's checks: the first bad visible cell, with focus on it. Reading a
// cell beyond the table's shape is a subscript error (player 2 with more
// strategies than player 1).
Messages check(const JuegosNFields& f);
Tabla leerTabla(const JuegosNFields& f);  // the read of Resolver, after the checks passed
Reduccion reducir(const Tabla& tabla);    // the one elimination pass
JuegosNResults solve(const JuegosNFields& f);  // the rest of Resolver
Report report(const JuegosNFields& f, const JuegosNResults& r);    // Juegos_n_solucion
Report printout(const JuegosNFields& f, const JuegosNResults& r);  // Imprimir
Pages solveAndReport(JuegosNFields& f);
void exchange(ProblemFile& file, JuegosNFields& f);  // guardar and abrir

}  // namespace vorel::games
