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

// Two scores tie when they print alike: sums of weights such as 0.1 differ in
// their last binary digits by the order they were added in, and a student
// who reads the same score twice is told of a tie.
bool igualesAlImprimir(float a, float b);
// The positions of the highest scores, in order; ties give several.
std::vector<int> mejores(const std::vector<float>& puntuaciones);

// Val of every cell of a column.
std::vector<double> valores(const Columna& columna);

}  // namespace vorel::location_equipment
