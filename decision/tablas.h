// Pieces every decision model uses: the table of cells as control arrays of
// columns, its shape, the walk of Resolver over it, its rows in the problem
// file, and the way the reports number the alternatives.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "frame/arith.h"
#include "frame/model.h"

namespace vorel::decision {

// Columns of cells: C[j - 1][i] is the cell Cj(i), column j and row i.
template <std::size_t Columnas, std::size_t Filas>
using Tabla = std::array<std::array<Cell, Filas>, Columnas>;

// Shows the cells of the first `filas` rows and `columnas` columns and hides
// the rest; texts stay.
template <std::size_t Columnas, std::size_t Filas>
void mostrarCeldas(Tabla<Columnas, Filas>& C, int filas, int columnas) {
  for (std::size_t j = 0; j < Columnas; ++j)
    for (std::size_t i = 0; i < Filas; ++i)
      C[j][i].visible = static_cast<int>(j) < columnas && static_cast<int>(i) < filas;
}

// Resolver's walk: row by row from the first, in each row the columns from
// C1, hidden cells skipped. `probar(j, i, cell)` gives the messages of a cell
// (j counting columns from 1); the first cell that has any ends the walk.
template <std::size_t Columnas, std::size_t Filas, class Probar>
Messages primerFallo(const Tabla<Columnas, Filas>& C, Probar probar) {
  for (std::size_t i = 0; i < Filas; ++i)
    for (std::size_t j = 0; j < Columnas; ++j) {
      if (!C[j][i].visible) continue;
      Messages m = probar(static_cast<int>(j) + 1, static_cast<int>(i), C[j][i]);
      if (!m.empty()) return m;
    }
  return {};
}

// The rows of a payoff table in the problem file: for each row, whether the
// head of the column of that index shows, then every cell's text and
// visibility, then whether the row's head shows.
template <std::size_t N>
void exchangeFilas(ProblemFile& file, std::array<bool, N>& cabecerasColumnas, Tabla<N, N>& C,
                   std::array<bool, N>& cabecerasFilas) {
  for (std::size_t i = 0; i < N; ++i) {
    file.flag(cabecerasColumnas[i]);
    for (auto& columna : C) {
      file.text(columna[i].text);
      file.flag(columna[i].visible);
    }
    file.flag(cabecerasFilas[i]);
  }
}

// RediseñarTabla of a payoff table: `aplicarForma(f, alternativas, estados)`
// with the numbers shown in the two selectors, or the message that asks for
// the one left empty (the states first).
template <class Fields, class AplicarForma>
Messages rediseñarPagos(Fields& f, int maxAlternativas, int maxEstados,
                        AplicarForma aplicarForma) {
  const std::string estados = selectorText(f.NumEstados, maxEstados);
  const std::string alternativas = selectorText(f.NumAlternativas, maxAlternativas);
  if (estados.empty()) return {{"Seleccione el número de estados", ""}};
  if (alternativas.empty()) return {{"Seleccione el número de alternativas", ""}};
  aplicarForma(f, static_cast<int>(CDbl(alternativas)), static_cast<int>(CDbl(estados)));
  return {};
}

// An alternative's number as the reports print it: " 3 ".
inline std::string numero(int a) { return printed(double(a + 1)); }

// A rule of underscores ended by a blank.
inline std::string regla(int subrayados) {
  return std::string(static_cast<std::size_t>(subrayados), '_') + " ";
}

}  // namespace vorel::decision
