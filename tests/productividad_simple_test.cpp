#include "productivity/productividad_simple.h"

#include <gtest/gtest.h>

#include "frame/arith.h"

namespace vorel::productivity {
namespace {

ProductividadSimpleFields libro() {
  ProductividadSimpleFields f;
  f.Anio0 = "2003";
  f.Anio1 = "2004";
  f.Factores0 = "100";
  f.Factores1 = "120";
  f.Produccion0 = "1000";
  f.Produccion1 = "1320";
  return f;
}

TEST(ProductividadSimple, EachFieldEmptyOrNotValidInTheOrderOfTheYears) {
  const std::string año0 = "El valor correspondiente a los factores productivos del año 0 ";
  const struct {
    std::string ProductividadSimpleFields::*field;
    const char* text;
    std::string message;
  } cases[] = {
      {&ProductividadSimpleFields::Factores0, "",
       año0 + "no ha sido introducido. Introduzca un valor comprendido entre 0 y 999999999"},
      {&ProductividadSimpleFields::Factores0, "0",  // refused: it would divide by zero
       año0 + "no es válido. Introduzca un nuevo valorcomprendido entre 0 y 999999999"},
      {&ProductividadSimpleFields::Produccion0, " ",
       "El valor de la producción del año 0 no es válido. Introduzca un nuevo valor comprendido "
       "entre 0 y 999999999"},
      {&ProductividadSimpleFields::Factores1, "",
       "El valor correspondiente a los factores productivos del año 1 no ha sido intoroducido. "
       "Introduce un nuevo valor comprendido entre 0 y 999999999"},
      {&ProductividadSimpleFields::Factores1, "-3",
       "El valor correspondiente a los factores productivos del año 1 no es válido. Introduce un "
       "nuevo valor comprendido entre 0 y 999999999"},
      {&ProductividadSimpleFields::Produccion1, "1000000000",
       "El valor de la producción del año 1 no es válido. Introduce un nuevo valor comprendido "
       "entre 0 y 999999999"},
  };
  for (const auto& c : cases) {
    ProductividadSimpleFields f = libro();
    f.*c.field = c.text;
    f.Produccion1 = c.field == &ProductividadSimpleFields::Produccion1 ? c.text : "";
    const Messages m = check(f);
    ASSERT_EQ(m.size(), 1u) << c.message;
    EXPECT_EQ(m[0].text, c.message);
  }
  ProductividadSimpleFields f = libro();
  f.Factores0 = "999999999";
  f.Produccion0 = "1e-3";
  EXPECT_TRUE(check(f).empty());
}

TEST(ProductividadSimple, RateIsAPercentageOfTheFirstYear) {
  const ProductividadSimpleResults r = solve(libro());  // 10 and then 11 units per factor
  EXPECT_EQ(r.P0, 10.0f);
  EXPECT_EQ(r.P1, 11.0f);
  EXPECT_EQ(r.Tasa, 10.0f);
}

}  // namespace
}  // namespace vorel::productivity
