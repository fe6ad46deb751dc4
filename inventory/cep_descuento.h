// Economic order quantity with quantity discounts: the unit cost falls by
// intervals of the order size, and the holding cost is a fixed part plus a
// percentage of the unit cost. The search works down from the cheapest
// interval and compares a candidate only with the lower limit of the next.
#pragma once

#include <array>
#include <string>

#include "frame/model.h"

namespace vorel::inventory {

inline constexpr int kMaxIntervalos = 4;

// The entry screen GI_CEPDescuento: every number lives as text.
struct DescuentoFields {
  std::string Titulo1 = "Problema1";
  std::string D, E, A, ipor, TS, dias;
  int cmbIntervalos = 0;  // list index of the selector "2", "3", "4"; -1 when empty
  std::array<bool, kMaxIntervalos> Intervalo{};  // visibility of the row labels
  // Tabla[r][0..2] are the cells of interval r+1: lower limit, upper limit and
  // unit cost (A1 A2 A3, B1 B2 B3, C1 C2 C3, D1 D2 D3).
  std::array<std::array<Cell, 3>, kMaxIntervalos> Tabla{};

  DescuentoFields();  // as the screen loads: two intervals shown
};

// The selector's click: shows the rows of the chosen number of intervals,
// hides the others.
void cmbIntervalosClick(DescuentoFields& f);

// Which step of the search chose the quantity.
enum class Eleccion {
  Ultimo,           // q(k) reaches the lower limit of the cheapest interval
  LimiteSiguiente,  // q(r) lies in its interval but costs more than L(r+1)
  Intermedio,       // q(r) lies in its interval and costs no more than L(r+1)
  LimiteSegundo,    // no q(r) reaches its limit, and q(1) costs more than L(2)
  Primero,          // no q(r) reaches its limit, and q(1) costs no more than L(2)
};

// The solution screen's results, each rounded to Single when stored.
struct DescuentoResults {
  float Q = 0, CT = 0, Coste = 0, n = 0, TR = 0, Pp = 0;
  int intervalo = 0;  // the chosen interval, from 1
  Eleccion eleccion = Eleccion::Primero;
};

Messages check(const DescuentoFields& f);  // Resolver: the first failure, or none
DescuentoResults solve(const DescuentoFields& f);
Report report(const DescuentoFields& f, const DescuentoResults& r);
Report printout(const DescuentoFields& f, const DescuentoResults& r);
Pages solveAndReport(DescuentoFields& f);
void exchange(ProblemFile& file, DescuentoFields& f);
void nuevo(DescuentoFields& f);

}  // namespace vorel::inventory
