#include "location_equipment/ponderacion.h"

#include <algorithm>

#include "frame/arith.h"

namespace vorel::location_equipment {

void Columna::add(const Cell& cell, const std::string& focus) {
  if (cell.visible) celdas.push_back({&cell, focus});
}

namespace {

// Row by row, across the columns: the first bad cell as a student reads the table.
template <class Falla>
Messages primera(const std::vector<Columna>& columnas, const std::string& mensaje, Falla falla) {
  std::size_t filas = 0;
  for (const Columna& columna : columnas) filas = std::max(filas, columna.celdas.size());
  for (std::size_t i = 0; i < filas; ++i)
    for (const Columna& columna : columnas) {
      if (i >= columna.celdas.size()) continue;
      const Columna::Celda& c = columna.celdas[i];
      if (falla(c.cell->text)) return {{mensaje, c.focus}};
    }
  return {};
}

}  // namespace

Messages sinNombre(const std::vector<Columna>& columnas, const std::string& mensaje) {
  return primera(columnas, mensaje, [](const std::string& text) { return text.empty(); });
}

Messages noNumerica(const std::vector<Columna>& columnas, const std::string& mensaje) {
  return primera(columnas, mensaje, [](const std::string& text) { return !IsNumeric(text); });
}

Messages fueraDe(const Columna& columna, double menor, double mayor, const std::string& mensaje) {
  return primera({columna}, mensaje, [&](const std::string& text) {
    const double v = Val(text);
    return v < menor || v > mayor;
  });
}

float sumaPonderada(const std::vector<double>& pesos, const std::vector<double>& valores) {
  float total = 0;
  for (std::size_t i = 0; i < pesos.size() && i < valores.size(); ++i)
    total = Sng(double(total) + checked(pesos[i] * valores[i]));
  return total;
}

std::vector<int> mejores(const std::vector<float>& puntuaciones) {
  std::vector<int> posiciones;
  if (puntuaciones.empty()) return posiciones;
  float mayor = puntuaciones.front();
  for (float p : puntuaciones)
    if (p > mayor) mayor = p;
  for (std::size_t j = 0; j < puntuaciones.size(); ++j)
    if (puntuaciones[j] == mayor) posiciones.push_back(static_cast<int>(j));
  return posiciones;
}

std::vector<double> valores(const Columna& columna) {
  std::vector<double> v;
  for (const Columna::Celda& c : columna.celdas) v.push_back(Val(c.cell->text));
  return v;
}

}  // namespace vorel::location_equipment
