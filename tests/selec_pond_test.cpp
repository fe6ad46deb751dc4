#include "location_equipment/selec_pond.h"

#include <gtest/gtest.h>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::location_equipment {
namespace {

// Rows "factor weight scoreA scoreB" parted by "|".
SelecPondFields problema(const std::string& filas) {
  const auto rows = testing::tableRows(filas);
  SelecPondFields f;
  f.NFact = int(rows.size()) - 1;
  rediseñar(f);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    f.factor[i].text = rows[i][0];
    f.Ponderaciones[i].text = rows[i][1];
    f.PuntuaA[i].text = rows[i][2];
    f.PuntuaB[i].text = rows[i][3];
  }
  return f;
}

TEST(SelecPond, ChecksInOrderWithTheSumBeforeTheScores) {
  const struct {
    const char* filas;
    const char* message;
    const char* focus;
  } cases[] = {
      {"A x x x | _ 0.5 1 1",
       "Todas las celdas correspondientes a los nombres de los factores "
       "deben contener su nombre escrito",
       "factor(1)"},
      {"A 0.5 x x | B x 1 1",
       "Todas las celdas correspondientes a las ponderaciones de los "
       "factores deben contener un valor numérico",
       "Ponderaciones(1)"},
      {"A 0.5 x x | B 1.5 1 1", "Las ponderaciones deben estar comprendidas entre 0 y 1",
       "Ponderaciones(1)"},
      {"A 0.5 x x | B 0.4 1 1", "La suma de las ponderaciones debe ser 1", "Ponderaciones(0)"},
      {"A 0.3333 1 1 | B 0.3333 1 1 | C 0.3333 1 1", "La suma de las ponderaciones debe ser 1",
       "Ponderaciones(0)"},
      {"A 0.5 1 1 | B 0.5 1 x",
       "Todas las celdas correspondientes a las puntuaciones deben "
       "contener un valor numérico",
       "PuntuaB(1)"},
      {"A 0.333333 1 1 | B 0.333333 1 1 | C 0.333334 1 1", nullptr, nullptr},
      {"A 0.1 1 1 | B 0.2 1 1 | C 0.7 1 1", nullptr, nullptr},
      {"A 1 3 4", nullptr, nullptr},  // one factor weighing 1
      {"A 0 5 5 | B 1 5 5", nullptr, nullptr},
  };
  for (const auto& c : cases) {
    const Messages m = check(problema(c.filas));
    if (!c.message) {
      EXPECT_TRUE(m.empty()) << c.filas;
      continue;
    }
    ASSERT_EQ(m.size(), 1u) << c.filas;
    EXPECT_EQ(m[0], (Message{c.message, c.focus}));
  }
}

TEST(SelecPond, TotalsInSingleAndTheirTie) {
  const SelecPondResults r = solve(problema("A 0.4 6 8 | B 0.3 9 6 | C 0.2 7 7 | D 0.1 5 9"));
  EXPECT_EQ(Str(r.PA), " 7");    // 2.4 + 2.7 + 1.4 + 0.5
  EXPECT_EQ(Str(r.PB), " 7.3");  // 3.2 + 1.8 + 1.4 + 0.9
  // Equal totals are a tie.
  const std::string igual = renderText(
      report(problema("A 0.5 4 6 | B 0.5 6 4"), solve(problema("A 0.5 4 6 | B 0.5 6 4"))));
  EXPECT_NE(igual.find("ambas opciones poseen igual"), std::string::npos);
  // Totals that differ are no tie even when they print alike: 12345678 and
  // 12345679 are both " 1.234568E+07".
  const SelecPondFields grande = problema("A 1 12345678 12345679");
  const SelecPondResults g = solve(grande);
  EXPECT_EQ(Str(g.PA), Str(g.PB));
  const std::string texto = renderText(report(grande, g));
  EXPECT_EQ(texto.find("ambas opciones poseen igual"), std::string::npos);
  EXPECT_NE(texto.find("el proyecto o la tecnología B"), std::string::npos);
  // Ten weights of 0.1: each Single sum rounds at every step, so A sums to
  // 5.4999995 and B to 5.5, both printed " 5.5"; B wins.
  const int a[10] = {1, 8, 5, 2, 9, 6, 3, 10, 7, 4}, b[10] = {4, 1, 8, 5, 2, 9, 6, 3, 10, 7};
  std::string filas;
  for (int i = 0; i < 10; ++i)
    filas += (i > 0 ? " | F 0.1 " : "F 0.1 ") + std::to_string(a[i]) + " " + std::to_string(b[i]);
  const SelecPondResults t = solve(problema(filas));
  EXPECT_EQ(Str(t.PA), " 5.5");
  EXPECT_EQ(Str(t.PB), " 5.5");
  EXPECT_LT(t.PA, t.PB);
  const std::string diez = renderText(report(problema(filas), t));
  EXPECT_EQ(diez.find("ambas opciones poseen igual"), std::string::npos);
  EXPECT_NE(diez.find("el proyecto o la tecnología B"), std::string::npos);
}

}  // namespace
}  // namespace vorel::location_equipment
