#include "location_equipment/factores_localizacion.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::location_equipment {
namespace {

// Rows "factor weight score-L1 score-L2 ..." parted by "|".
FactoresLocalizacionFields problema(const std::string& filas) {
  const auto rows = testing::tableRows(filas);
  FactoresLocalizacionFields f;
  f.NFactL = int(rows.size()) - 2;
  f.NLoc = int(rows[0].size()) - 4;
  rediseñar(f);
  for (std::size_t k = 0; k < rows.size(); ++k) {
    f.flocaliz[k].text = rows[k][0];
    f.Q1[k].text = rows[k][1];
    for (std::size_t j = 2; j < rows[k].size(); ++j) f.f[k][j - 2].text = rows[k][j];
  }
  return f;
}

TEST(FactoresLocalizacion, RediseñarShowsTheChosenShape) {
  FactoresLocalizacionFields f;
  f.NFactL = 8;  // "10"
  f.NLoc = 2;    // "4"
  rediseñar(f);
  EXPECT_EQ(f.Puntuaciones, (std::array<bool, 5>{true, true, true, false, false}));
  EXPECT_EQ(f.L, (std::array<bool, 6>{true, true, true, true, false, false}));
  EXPECT_TRUE(f.f[9][3].visible);
  EXPECT_FALSE(f.f[9][4].visible);
}

TEST(FactoresLocalizacion, ChecksNamesWeightsScoresThenTheWeightsRange) {
  const struct {
    const char* filas;
    const char* message;
    const char* focus;
  } cases[] = {
      {"A 2 x x | _ x 1 1",
       "Todas las celdas correspondientes a los factores de localización "
       "deben contener su nombre escrito",
       "flocaliz(1)"},
      {"A 2 x 1 | B _ 1 1",
       "Todas las celdas correspondientes a las ponderaciones deben "
       "contener un valor",
       "Q1(1)"},
      {"A 2 1 1 | B 0.5 1 x",
       "Todas las celdas correspondientes a las puntuaciones de cada "
       "localización deben contener un valor numérico",
       "f2(1)"},
      {"A 0.5 1 1 | B -0.1 1 1", "Las ponderaciones deben estar comprendidas entre 0 y 1", "Q1(1)"},
      {"A 1 1 1 | B 0 1 1", nullptr, nullptr},  // 0 and 1 are weights; no sum is asked for
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

TEST(FactoresLocalizacion, OnlyEqualScoresTieNotScoresThatPrintAlike) {
  // Ten weights of 0.1: every location scores 5.5 as printed, but the Single
  // sums differ in their last digits with the order of the scores, and only
  // the locations whose sum is the highest one are named.
  std::string filas;
  for (int k = 0; k < 10; ++k) {
    filas += (k ? " | F " : "F ") + std::string("0.1");
    for (int j = 0; j < 6; ++j) filas += " " + std::to_string((7 * k + 3 * j) % 10 + 1);
  }
  const FactoresLocalizacionResults r = solve(problema(filas));
  ASSERT_EQ(r.puntuacion.size(), 6u);
  float mayor = r.puntuacion[0];
  for (float p : r.puntuacion) mayor = std::max(mayor, p);
  std::vector<int> esperadas;
  for (std::size_t j = 0; j < 6; ++j) {
    EXPECT_EQ(Str(r.puntuacion[j]), " 5.5") << j;
    if (r.puntuacion[j] == mayor) esperadas.push_back(int(j));
  }
  EXPECT_LT(esperadas.size(), 6u);
  EXPECT_EQ(r.mejores, esperadas);

  // 12345678 and 12345679 both print " 1.234568E+07"; the second is higher.
  const FactoresLocalizacionResults g = solve(problema("F 1 12345678 12345679 | G 0 0 0"));
  EXPECT_EQ(Str(g.puntuacion[0]), Str(g.puntuacion[1]));
  EXPECT_EQ(g.mejores, (std::vector<int>{1}));
  // Scores that are equal do tie, every one of them named in order.
  EXPECT_EQ(solve(problema("F 0.5 4 6 4 | G 0.5 6 4 2")).mejores, (std::vector<int>{0, 1}));
}

}  // namespace
}  // namespace vorel::location_equipment
