// The assignment problem: costs of up to seven individuals by up to seven
// tasks. Every assignment is tried, permutation by permutation in lexical
// order, and up to three of the cheapest are kept and shown one at a time.
// A non-square table is made square with a row or column of zeros: an added
// row is a task nobody does, an added column an individual without a task.
#pragma once

#include <array>
#include <string>

#include "frame/model.h"

namespace vorel::linear_programming {

inline constexpr int kAsignacionMax = 7;     // individuals, tasks
inline constexpr int kAsignacionArrays = 8;  // C1..C8, and rows 0..7 of each

// The entry screen PL_Asignación. C[j][i] is the cell C<j+1>(i): the cost of
// individual i+1 doing task j+1. The headings are "Individuo 1".. and
// "Tarea 1".. (see asignacionHeading); only their visibility changes.
struct AsignacionFields {
  AsignacionFields();  // Form_Load: two individuals, two tasks

  std::string Título = "Problema 1";
  int NumIndividuos = 1;  // list index of "1".."7"; -1 when nothing is chosen
  int NumTareas = 1;
  std::array<std::array<Cell, kAsignacionArrays>, kAsignacionArrays> C;
  std::array<bool, kAsignacionMax> LblIndividuos{}, LblTareas{};  // Visible
};

inline constexpr const char* kAsignacionCaption = "Problemas de Asignación";
std::string asignacionHeading(bool tarea, int index);  // "Individuo 3", "Tarea 1"

void rediseñar(AsignacionFields& f);  // RediseñarTabla: shows the chosen table
void nuevo(AsignacionFields& f);      // Form_Load's presets again, all cells blank; title stays
Messages check(const AsignacionFields& f);  // Resolver: every bad cell told

// One kept assignment: Sol[i][j] is 1 where individual i does task j.
using AsignacionTabla = std::array<std::array<int, kAsignacionMax>, kAsignacionMax>;

// What the solution screen keeps. N is the side of the square table.
struct AsignacionResults {
  int individuos = 0, tareas = 0, N = 0;
  int numSoluciones = 0;  // 0 to 3
  double minimo = 0;
  std::array<AsignacionTabla, 3> Sol{};  // Sol1, Sol2, Sol3
};

AsignacionResults solve(const AsignacionFields& f);  // the solution screen's activation

// Browsing: the report shows one solution page at a time, 1 to numSoluciones.
// forward1 leads to page 2, forward2 to page 3, Back1 to page 1, back2 to page 2.
struct AsignacionComandos {
  bool forward1 = false, forward2 = false, back2 = false, Back1 = false;
  bool operator==(const AsignacionComandos&) const = default;
};
// The commands offered on a page: only the moves that exist.
AsignacionComandos comandos(int numSoluciones, int pagina);

Report report(const AsignacionFields& f, const AsignacionResults& r, int pagina = 1);  // Solucion1
Report printout(const AsignacionFields& f, const AsignacionResults& r);  // Imprimir: every solution
Pages solveAndReport(AsignacionFields& f);  // page 1 and the printed page

void exchange(ProblemFile& file, AsignacionFields& f);  // guardar and abrir

}  // namespace vorel::linear_programming
