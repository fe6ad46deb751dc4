// What the weighted-score models of location and equipment share: the checks
// of a column of cells, told once for the first bad cell of the column, and
// the weighted sum kept in single precision.
#pragma once

#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel::location_equipment {

// The visible cells of one column of a table, in order, each with the control
// name that takes focus when it is the bad one ("Q(2)").
struct Columna {
  struct Celda {
    const Cell* cell;
    std::string focus;
  };
  std::vector<Celda> celdas;
  // Adds the cell when it is shown; hidden cells are neither checked nor read.
  void add(const Cell& cell, const std::string& focus);
};

// Each gives `mensaje` with focus on the first cell that fails, the columns
// read row by row, and nothing when none does.
Messages sinNombre(const std::vector<Columna>& columnas, const std::string& mensaje);
Messages noNumerica(const std::vector<Columna>& columnas, const std::string& mensaje);
Messages fueraDe(const Columna& columna, double menor, double mayor, const std::string& mensaje);

// The sum of weight x value over the rows, added up in a Single: each partial
// total is rounded when stored, as the screens keep it.
float sumaPonderada(const std::vector<double>& pesos, const std::vector<double>& valores);

// The positions of the highest scores, in order; scores equal to the highest
// tie with it, and only those: two Single totals that differ are no tie even
// when Str prints them alike.
std::vector<int> mejores(const std::vector<float>& puntuaciones);

// Val of every cell of a column.
std::vector<double> valores(const Columna& columna);

}  // namespace vorel::location_equipment
