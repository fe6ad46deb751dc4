#include "productivity/productividad_global.h"

#include <gtest/gtest.h>

#include "frame/arith.h"

namespace vorel::productivity {
namespace {

using F = ProductividadGlobalFields;

// Types a row of each group ("units0 price0 units1") and presses AÑADIR.
Messages añade(F& f, const char* uf0, const char* pu0, const char* uf1, const char* uo0,
               const char* po0, const char* uo1) {
  f.CmbUFI0.text = uf0;
  f.CmbPUI0.text = pu0;
  f.CmbUFI1.text = uf1;
  f.CmbUFO0.text = uo0;
  f.CmbPUO0.text = po0;
  f.CmbUFO1.text = uo1;
  return añadir(f);
}

std::string mensaje(const Messages& m) { return m.empty() ? "" : m[0].focus + ": " + m[0].text; }

TEST(ProductividadGlobal, AñadirChecksTheInputRowThenTheOutputRow) {
  const struct {
    const char* row[6];
    std::string told;
  } cases[] = {
      {{"", "x", "x", "x", "x", "x"},
       "CmbUFI0: El valor de las unidades físicas del input correspondiente al año 0 no existe, "
       "introduzca un valor comprendido entre 0 y 9999999"},
      {{"0", "1", "1", "1", "1", "1"},
       "CmbUFI0: El Valor de las unidades físicas del input correspondiente al año 0 no es "
       "correcto, introduzca un nuevo valor comprendido entre 0 y 999999999"},
      {{"1", "a", "1", "1", "1", "1"},
       "CmbPUI0: El valor correspondiente al precio unitario del input no es correcto, introduzca "
       "un nuevo valor comprendido entre 0 y 999999999"},
      {{"1", "1", "", "1", "1", "1"},
       "CmbUFI1: El valor de las unidades físicas del input correspondiente al año 1 no existe, "
       "introduzca un valor comprendido entre 0 y 9999999"},
      {{"1", "1", "1", "1e10", "1", "1"},
       "CmbUFO0: El valor de las unidades físicas del output correspondiente al año 0 no es "
       "correcto, introduzca un nuevo valor comprendido entre 0 y 999999999"},
      {{"1", "1", "1", "1", "", "1"},
       "CmbPUO0: El valor correspondiente al precio unitario del output no existe, introduzca un "
       "valor comprendido entre 0 y 9999999"},
      {{"1", "1", "1", "1", "1", "-1"},
       "CmbUFO1: El valor de las unidades físicas del output correspondiente al año 1 no es "
       "correcto, introduzca un nuevo valor comprendido entre 0 y 999999999"},
  };
  for (const auto& c : cases) {
    F f;
    const auto& r = c.row;
    EXPECT_EQ(mensaje(añade(f, r[0], r[1], r[2], r[3], r[4], r[5])), c.told);
    EXPECT_TRUE(f.CmbUFI0.items.empty() && f.CmbUFO0.items.empty());
  }
}

TEST(ProductividadGlobal, ListsHoldAtMost255Rows) {
  F f;
  for (int i = 0; i < kMaxElementosLista; ++i)
    ASSERT_TRUE(añade(f, "1", "2", "3", "4", "5", "6").empty());
  EXPECT_EQ(f.numeroimput, "255");
  EXPECT_EQ(f.TxtPT, "255");
  EXPECT_EQ(f.CmbUFI0.text, "");  // the texts are emptied after each row
  EXPECT_EQ(mensaje(añade(f, "1", "2", "3", "4", "5", "6")),
            ": Se ha superado el número máximo de elementos en la lista, no puede introducir "
            "ningún elemento más");
  f.grupo = Grupo::Inputs;
  seleccionar(f, Grupo::Inputs, 0);
  eliminar(f);
  EXPECT_EQ(mensaje(añade(f, "1", "2", "3", "4", "5", "6")),
            ": Se ha superado el número máximo de elementos en la lista, no puede introducir "
            "nungún elemento más");
}

TEST(ProductividadGlobal, SustituirAndEliminarWorkOnTheRowInHand) {
  F f;
  añade(f, "10", "2", "11", "5", "3", "6");
  añade(f, "20", "4", "21", "7", "1", "8");
  // No row in hand yet: Sustituir asks for the values.
  EXPECT_EQ(mensaje(sustituir(f)),
            ": Introduzca los nuevos valores de las unidades físicas del input y del precio "
            "unitario del mismo");
  seleccionar(f, Grupo::Outputs, 1);
  EXPECT_EQ(f.TxtProd, "2");
  EXPECT_EQ(f.CmbPUO0.text, "1");
  f.CmbUFO0.text = "0";
  EXPECT_EQ(mensaje(sustituir(f)),
            "CmbUFO0: El valor de las unidades físicas del output correspondiente al año 0 no es "
            "correcto, introduzca un nuevo valor comprendido entre 0 y 999999999");
  seleccionar(f, Grupo::Inputs, 0);
  f.CmbUFI0.text = "x";
  EXPECT_EQ(mensaje(sustituir(f)).substr(0, 19), "CmbUFI0: El valor d");  // small v here
  f.CmbUFI0.text = "12";
  EXPECT_TRUE(sustituir(f).empty());
  EXPECT_EQ(f.CmbUFI0.items, (std::vector<std::string>{"12", "20"}));
  EXPECT_EQ(f.CmbUFO0.items, (std::vector<std::string>{"5", "7"}));
  // GotFocus on a list of the outputs puts eliminar on their row in hand.
  f.CmbUFO1.ListIndex = 1;
  enfocar(f, Grupo::Outputs, 1);
  eliminar(f);
  EXPECT_EQ(f.CmbUFO1.items, (std::vector<std::string>{"6"}));
  EXPECT_EQ(f.CmbUFI1.items.size(), 2u);
  EXPECT_EQ(f.numerooutput + f.TxtPT + f.numeroimput, "112");
  eliminar(f);  // no row in hand now: nothing
  EXPECT_EQ(f.CmbUFO1.items.size(), 1u);
}

TEST(ProductividadGlobal, ResolverValuesBothYearsAtTheFirstYearsPrices) {
  F f;
  añade(f, "1000", "12", "1100", "200", "90", "230");
  añade(f, "500", "4", "450", "100", "50", "95");
  resolver(f);
  // Outputs 23000 and 25450, inputs 14000 and 15000.
  EXPECT_EQ(f.PO, "1.642857");
  EXPECT_EQ(f.P1, "1.696667");
  // The index and the rate read those texts back: 1.696667 / 1.642857.
  EXPECT_EQ(f.IPG, "1.032754");
  EXPECT_EQ(f.TPG, "0.03275391");  // a text box's form: a zero before the point
  F vacio;
  try {
    resolver(vacio);
    ADD_FAILURE();
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number(), err::Overflow);  // 0 / 0
  }
}

TEST(ProductividadGlobal, ReadingTakesTheRowsItsCountSays) {
  auto lee = [](const std::string& cuenta, const std::string& filas) {
    std::string file = "\"T\"\r\n\"0\"\r\n\"1\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"" + cuenta +
                       "\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"0\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n" + filas;
    ProblemFile in = ProblemFile::forReading(file);
    F f;
    f.CmbUFI0.items = {"viejo"};
    try {
      exchange(in, f);
    } catch (const ReadFailed&) {
      return "falla con " + std::to_string(f.CmbUFI0.items.size());
    }
    return std::to_string(f.CmbUFI0.items.size()) + " " + f.CmbUFI1.items.back();
  };
  EXPECT_EQ(lee("2", "\"1\"\r\n\"2\"\r\n\"3\"\r\n\"4\"\r\n\"5\"\r\n\"6\"\r\n"), "2 6");
  EXPECT_EQ(lee("2", "\"1\"\r\n\"2\"\r\n\"3\"\r\n\"4\"\r\n"), "falla con 2");  // half read
  EXPECT_EQ(lee("256", ""), "falla con 1");  // more than a list holds: the lists stay
  EXPECT_EQ(lee("1e9", ""), "falla con 1");
}

}  // namespace
}  // namespace vorel::productivity
