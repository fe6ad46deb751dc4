// Load-distance analysis of a plant layout: for up to eight products, each
// with a route of up to five departments and a production, the distance per
// unit is summed from a table of distances between pairs of departments,
// multiplied by the production, and totalled.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel::facility {

inline constexpr int kMaxProductos = 8;
inline constexpr int kPasosRuta = 5;
inline constexpr int kMaxFilasDistancia = 17;
// The distance table stands in two blocks on the screen: rows 0 to 8, then 9 to 16.
inline constexpr int kFilasPrimerBloque = 9;

// The entry screen Distribucion_CargaDistancia.
struct CargaDistanciaFields {
  std::string Título = "Problema 1";
  int NumActividades = 2;  // list index of the combo "1" to "8" (products); -1 when empty
  int NumDistancias = 2;   // list index of the combo "1" to "17" (rows of distances)
  std::array<std::array<Cell, kPasosRuta>, kMaxProductos> C;  // C[k - 1][r] is the cell Ck(r)
  std::array<bool, kMaxProductos> LblActividades{};           // "Producto 1" to "Producto 8"
  std::array<Cell, kMaxFilasDistancia> D1, D2, Distancias;
  std::array<Cell, kMaxProductos> Produccion;
  std::array<bool, 2> LblDepartamentos{}, Lbldistancias{};  // the heads of the two blocks

  CargaDistanciaFields();  // the shape of the first load: three products, three distances
};

// What the solution screen keeps: per product, the distance per unit and the
// distance by production, and their total.
struct CargaDistanciaResults {
  std::vector<double> DistanciaUnidad, DistanciaProduccion;
  double Total = 0;
};

void rediseñar(CargaDistanciaFields& f);  // RediseñarTabla
void nuevo(CargaDistanciaFields& f);
Messages check(const CargaDistanciaFields& f);  // Resolver: the first failure, or none
CargaDistanciaResults solve(const CargaDistanciaFields& f);
Report report(const CargaDistanciaFields& f, const CargaDistanciaResults& r);    // Solucion1
Report printout(const CargaDistanciaFields& f, const CargaDistanciaResults& r);  // Imprimir
Pages solveAndReport(CargaDistanciaFields& f);
void exchange(ProblemFile& file, CargaDistanciaFields& f);  // guardar and abrir

}  // namespace vorel::facility
