#include "inventory/cep_descuento.h"

#include <gtest/gtest.h>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::inventory {
namespace {

// D = 5000, E = 49, A = 0.5, i = 20 %: the intervals typed on one line, rows
// parted by "|", each "lower upper cost".
DescuentoFields problema(const std::string& tabla) {
  DescuentoFields f;
  f.D = "5000", f.E = "49", f.A = "0.5", f.ipor = "20", f.TS = "10", f.dias = "250";
  const auto filas = testing::tableRows(tabla);
  f.cmbIntervalos = static_cast<int>(filas.size()) - 2;
  cmbIntervalosClick(f);
  for (std::size_t r = 0; r < filas.size(); ++r)
    for (std::size_t c = 0; c < 3; ++c) f.Tabla[r][c].text = filas[r][c];
  return f;
}

// h = 1.5, 1.46, 1.45, 1.44 for the costs 5, 4.8, 4.75, 4.7, so q = sqrt(490000 / h)
// = 571.5, 579.3, 581.3, 583.3, and T(r) = 5000 c + 2 * sqrt(490000 * h / 2)
// at q: T(1) = 25857.32, T(2) = 24845.81.
TEST(CepDescuento, EveryStepOfTheSearch) {
  using enum Eleccion;
  const struct {
    const char* tabla;
    Eleccion eleccion;
    const char* QCosteCT;
  } cases[] = {
      // q(2) = 579.3 >= 500: no comparison.
      {"0 499 5 | 500 999999 4.8", Ultimo, " 579.3241 4.8 24845.81"},
      // q(2) in its interval; B(3) = 23750 + 122.5 + 1450 = 25322.5 > T(2).
      {"0 499 5 | 500 1999 4.8 | 2000 999999 4.75", Intermedio, " 579.3241 4.8 24845.81"},
      // B(3) = 23750 + 245 + 725 = 24720 < T(2): the lower limit of interval 3,
      // though q(4) is not compared with interval 4 at all.
      {"0 499 5 | 500 999 4.8 | 1000 1999 4.75 | 2000 999999 4.7", LimiteSiguiente,
       " 1000 4.75 24720"},
      // No q reaches its limit; B(2) = 24000 + 245 + 730 = 24975 < T(1).
      {"0 999 5 | 1000 1999 4.8 | 2000 999999 4.75", LimiteSegundo, " 1000 4.8 24975"},
      // B(2) = 24950 + 245 + (0.998 + 0.5) * 500 = 25944 > T(1).
      {"0 999 5 | 1000 999999 4.99", Primero, " 571.5476 5 25857.32"},
  };
  for (const auto& c : cases) {
    const DescuentoResults r = solve(problema(c.tabla));
    EXPECT_EQ(r.eleccion, c.eleccion) << c.tabla;
    EXPECT_EQ(Str(r.Q) + Str(r.Coste) + Str(r.CT), c.QCosteCT) << c.tabla;
  }
}

TEST(CepDescuento, ChecksOfFieldsAndOfTheVisibleIntervals) {
  const std::string tres = "0 999 5 | 1000 1999 4.8 | 2000 999999 4.75";
  const struct {
    std::string tabla;
    void (*edit)(DescuentoFields&);
    const char* message;
  } cases[] = {
      {tres, [](DescuentoFields& f) { f.A = "101"; },
       "Valor del coste de almacenamiento (A) no válido. Introduce un nuevo valor entre 0 y 100"},
      {tres,
       [](DescuentoFields& f) {
         f.TS = "1000";
         f.ipor = "x";
       },
       "Valor del Tiempo de Suministro (Ts) no válido. Introduce un nuevo valor entre 0 y 999"},
      {"0 999 5 | 998 1999 4.8", nullptr,
       "Valor del límite inferior del intervalo2 no válido. Introduce un nuevo valor entre el "
       "límite superior del intervalo 1 y 999.999.999"},
      {"0 999 -5 | 1000 1999 4.8", nullptr,
       "Costes de adquisición incorrecto. Introduce un nuevo valor"},
      {"0 999 5 | 1000 1999 4.8 | 2000 2999 4.75 | 3000 x 4",
       nullptr,  // kept as it is: the message names interval 3
       "Límite superior del intervalo3 incorrecto. Introduce un nuevo valor"},
      {"0 999 5 | 1000 1999 4.8 | 2000 2999 4.75 | 3000 4000 4.75", nullptr,
       "Valor del coste de adquisición no válido. Introduce un nuevo valor inferior al coste de "
       "adquisición del intervalo 3"},
  };
  for (const auto& c : cases) {
    DescuentoFields f = problema(c.tabla);
    if (c.edit) c.edit(f);
    const Messages m = check(f);
    EXPECT_EQ(m, (Messages{{c.message, ""}})) << (m.empty() ? "" : m[0].text);
  }
  // Hidden intervals are not looked at; unit costs of intervals 1 and 2 are
  // not compared; a blank lead time passes.
  DescuentoFields f = problema("0 999 4 | 1000 1999 4.8");
  f.Tabla[2][0] = {"x", false};
  f.TS = "";
  EXPECT_TRUE(check(f).empty());
}

TEST(CepDescuento, ReadingTheNumberOfIntervalsShowsItsRowsBeforeTheirItemsAreRead) {
  ProblemFile in = ProblemFile::forReading(
      "\"T\"\r\n\"1\"\r\n\"1\"\r\n\"1\"\r\n\"1\"\r\n\"1\"\r\n\"1\"\r\n2\r\n");
  DescuentoFields f;
  EXPECT_THROW(exchange(in, f), ReadFailed);
  EXPECT_TRUE(f.Intervalo[3] && f.Tabla[3][2].visible);
}

}  // namespace
}  // namespace vorel::inventory
