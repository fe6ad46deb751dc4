#include "layout/carga_distancia.h"

#include <gtest/gtest.h>

#include <functional>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::facility {
namespace {

// Routes as "1 2 4 | 1 3" (one product a row, "_" a blank cell), their
// productions, and distance rows as "1 2 10 | 1 3 20".
CargaDistanciaFields planta(const std::string& rutas, const std::vector<std::string>& produccion,
                            const std::string& distancias) {
  CargaDistanciaFields f;
  const auto R = testing::tableRows(rutas), D = testing::tableRows(distancias);
  f.NumActividades = int(R.size()) - 1;
  f.NumDistancias = int(D.size()) - 1;
  rediseñar(f);
  for (std::size_t k = 0; k < R.size(); ++k) {
    for (std::size_t r = 0; r < R[k].size(); ++r) f.C[k][r].text = R[k][r];
    f.Produccion[k].text = produccion[k];
  }
  for (std::size_t t = 0; t < D.size(); ++t) {
    f.D1[t].text = D[t][0];
    f.D2[t].text = D[t][1];
    f.Distancias[t].text = D[t][2];
  }
  return f;
}

const std::string kTabla = "1 2 10 | 1 3 20 | 2 3 12 | 2 4 15 | 3 4 8 | 3 5 25 | 4 5 30";

int errorDe(const std::function<void()>& run) {
  try {
    run();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

// Worked by hand: 10 + 15 + 30 = 55 a unit of product 1, 20 + 8 = 28 of
// product 2, 12 + 25 = 37 of product 3; by production 11000, 4200 and 3700.
TEST(CargaDistancia, CostsTheLayoutByHand) {
  const auto r = solve(planta("1 2 4 5 | 1 3 4 | 2 3 5", {"200", "150", "100"}, kTabla));
  EXPECT_EQ(r.DistanciaUnidad, (std::vector<double>{55, 28, 37}));
  EXPECT_EQ(r.DistanciaProduccion, (std::vector<double>{11000, 4200, 3700}));
  EXPECT_EQ(r.Total, 18900);
}

TEST(CargaDistancia, RoutesCountOnlyTheStretchesBetweenTwoGivenDepartments) {
  const struct {
    const char* ruta;
    double unidad;
  } cases[] = {
      {"3", 0},           // one department
      {"1 _ 3 4 5", 38},  // the gap drops 1-?, ?-3
      {"1 x 3", 0},       // a text counts as a gap
      {"1 2 1 3", 40},    // back to a department
      {"3 3 4", 8},       // no row for 3-3
      {"5 1", 0},         // a pair that no row names
      {"4.4 5", 30},      // the index rounds
      {"2 1 4 3 2", 10 + 8 + 12},
  };
  for (const auto& c : cases)
    EXPECT_EQ(solve(planta(c.ruta, {"1"}, kTabla)).DistanciaUnidad[0], c.unidad) << c.ruta;
  // A later row of the same pair, either way round, overwrites an earlier one.
  EXPECT_EQ(solve(planta("1 2 1", {"1"}, "1 2 10 | 2 1 7")).DistanciaUnidad[0], 14);
}

TEST(CargaDistancia, ChecksEndAtTheFirstFailure) {
  const std::string primero = "Debe introducir el primer elemento de la secuencia segu";
  const struct {
    const char* rutas;
    const char* produccion;
    const char* distancias;
    std::string message;
  } cases[] = {
      {"_ 2 | _", "1", "1 2 1", primero + "da por el producto 1"},
      {"1 | x 2", "1", "1 2 1", primero + "ida por el producto 2"},
      {"1 | 2 18", "x", "1 2 1", "Solo se permite el uso de 17 departamentos"},
      {"1 | 2 -1", "1", "1 2 1", "Solo se permite el uso de 17 departamentos"},
      {"1 18", "1", "1 2 1", ""},  // row 1 is beyond the one product's rows
      {"1", "", "1 2 1", "Debe introducir los valores de producción"},
      {"1", "1e9", "_ 2 1",
       "Los valores de Producción no son correctos, deben estar comprendidos entre 0 y 999999999"},
      {"1", "0", "1 _ 1", "Debe completar la tabla de distancias"},
      {"1", "0", "1 18 x", "Solo se permite el uso de 17 actividades"},
      {"1", "0", "1 2 x", "Debe completar la tabla de distancias"},
      {"1", "0", "1 2 -1",
       "Los valores de distancias no son correctos, deben estar comprendidos entre 0 y 999999999"},
  };
  for (const auto& c : cases) {
    const auto f = planta(c.rutas, {c.produccion, "1"}, c.distancias);
    const Messages expected = c.message.empty() ? Messages{} : Messages{{c.message, ""}};
    EXPECT_EQ(check(f), expected) << c.rutas;
  }
}

// More than five products walk the check out of a route's five cells, and a
// department the checks never saw can still be below the table: both are the
// platform's subscript error. A product count that is no number is a type mismatch.
TEST(CargaDistancia, RunTimeErrors) {
  auto ocho = planta("1 | 1 | 1 | 1 | 1 | 1 | 1 | x", std::vector<std::string>(8, "1"), "1 2 1");
  EXPECT_EQ(errorDe([&] { check(ocho); }), err::Subscript);  // product 8 needs no first department
  auto bajo = planta("1 2 -3", {"1"}, "1 2 1");
  EXPECT_TRUE(check(bajo).empty());
  EXPECT_EQ(errorDe([&] { solve(bajo); }), err::Subscript);
  bajo.C[7][4].text = "1e12";  // a hidden cell still sizes the table
  EXPECT_EQ(errorDe([&] { solve(bajo); }), err::Overflow);
  bajo.NumActividades = -1;
  EXPECT_EQ(errorDe([&] { check(bajo); }), err::TypeMismatch);
}

}  // namespace
}  // namespace vorel::facility
