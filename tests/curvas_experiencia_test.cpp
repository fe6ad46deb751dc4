#include "productivity/curvas_experiencia.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorel::productivity {
namespace {

ExperienciaFields problem(const char* L, const char* N, const char* NA) {
  ExperienciaFields f;
  f.L = L, f.T1unid = "100", f.N = N, f.NAcumulado = NA;
  return f;
}

TEST(CurvasExperiencia, EachDoublingTakesTheLearningRate) {
  const ExperienciaResults r = solve(problem("80", "8", "8"));
  EXPECT_DOUBLE_EQ(r.b, std::log(0.8) / std::log(2));
  EXPECT_EQ((std::vector<float>{r.T[1], r.T[2], r.T[4], r.T[8]}),
            (std::vector<float>{100, 80, 64, 51.2f}));
  EXPECT_NEAR(r.T[3], 70.21, 0.01);  // 100 · 3^-0.3219
  EXPECT_NEAR(r.A, 534.59, 0.01);
  EXPECT_FLOAT_EQ(r.Tmedio, r.A / 8);
  EXPECT_EQ(r.units, 8);
  EXPECT_EQ(chart(r).matrix.size(), 8u);
}

TEST(CurvasExperiencia, NoLearningAndTheEconomicSide) {
  ExperienciaFields f = problem("100", "15", "4");
  f.Check1 = true;
  f.CMdeO = "30", f.MgB = "20";
  const ExperienciaResults r = solve(f);
  EXPECT_EQ(r.b, 0);
  EXPECT_EQ(r.T[15], 100);
  EXPECT_EQ(r.A, 400);
  // Cost 400 h · 30 = 12000; price 14400, 3600 a unit; mean cost 3000; profit 600 · 4.
  EXPECT_EQ((std::vector<float>{r.CosteTotal, r.PrecioPedido, r.PrecioUnitario, r.CosteMedio,
                                r.Beneficio}),
            (std::vector<float>{12000, 14400, 3600, 3000, 2400}));
}

TEST(CurvasExperiencia, ChecksInOrder) {
  const std::string numeric = "Todas las Casillas deben contener un valor numérico";
  struct Case {
    ExperienciaFields f;
    std::string message;
  } cases[] = {
      {problem("0", "x", "3"), "La Tasa de Aprendizaje debe estar comprendida entre 0 y 100"},
      {problem("101", "3", "3"), "La Tasa de Aprendizaje debe estar comprendida entre 0 y 100"},
      {problem("80", "16", "3"), "El Nº de Unidades debe estar comprendido entre 0 y 15"},
      {problem("80", "3", "0"),
       "El Nº de Unidades para calcular el Tiempo Total Acumulado debe estar comprendido entre 0 "
       "y 15"},
      {problem("80", "3 u", "3"), numeric},  // Val reads 3, but the text is no number
      {problem("80", "3", "3"), numeric},    // with Check1, an empty margin
      {problem("80", "3", "3"), ""},
  };
  cases[1].f.T1unid = "1000000";  // told after the rate
  cases[5].f.Check1 = true;
  for (const auto& c : cases) {
    const Messages expected = c.message.empty() ? Messages{} : Messages{{c.message, ""}};
    EXPECT_EQ(check(c.f), expected) << c.message;
  }
  ExperienciaFields f = problem("80", "3", "3");
  f.T1unid = "1000000";
  EXPECT_EQ(check(f).at(0).text,
            "El tiempo dedicado a la primera unidad debe estar comprendido entre 0 y 999999");
}

}  // namespace
}  // namespace vorel::productivity
