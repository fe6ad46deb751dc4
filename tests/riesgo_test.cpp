#include "decision/riesgo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "tests/test_support.h"

namespace vorel::decision {
namespace {

// A problem typed as a user would: "10 20 | 30 5 | .5 .5" is two alternatives
// over two states, the last row the probabilities.
RiesgoFields problema(const std::string& tabla) {
  const auto rows = testing::tableRows(tabla);
  RiesgoFields f;
  const int na = int(rows.size()) - 1, ne = int(rows[0].size());
  f.NumAlternativas = na - 1;
  f.NumEstados = ne - 1;
  EXPECT_TRUE(rediseñar(f).empty());
  for (int i = 0; i <= na; ++i)
    for (int s = 0; s < ne; ++s) f.C[s][i].text = rows[i][s];
  return f;
}

const char* const kLibro = "10 20 30 | 30 20 10 | 5 15 25 | 20 30 10 | 10 30 20 | .2 .5 .3";

// "simple; stochastic; mean": the pairs "ab" where a dominates b, then "/" and
// the non-dominated; for the mean, the alternatives of the greatest value.
std::string criterios(const RiesgoResults& r) {
  std::string out;
  for (const auto* d : {&r.DominaSimple, &r.DominaEstocastica}) {
    const auto& no = d == &r.DominaSimple ? r.NoDominadaSimple : r.NoDominadaEstocastica;
    for (int a = 0; a < r.na; ++a)
      for (int b = 0; b < r.na; ++b)
        if (a != b && (*d)[a][b] == 1) out += std::to_string(10 * a + b + 11) + " ";
    out += "/";
    for (int a = 0; a < r.na; ++a)
      if (no[a] == 1) out += std::to_string(a + 1);
    out += "; ";
  }
  for (int a = 0; a < r.na; ++a)
    if (r.ValorMedio[a] == r.MejorValorMedio) out += std::to_string(a + 1);
  return out;
}

TEST(Riesgo, ChecksWalkRowByRowAndTestOnlyTheFirstProbability) {
  const Message tabla{"Debe Completar la tabla", ""};
  const std::string fuera =
      "El valor de la probabilidad del estado de la naturaleza número 1 no es correcto, "
      "introduzca un valor comprendido entre 0 y 1";
  const std::pair<const char*, Messages> cases[] = {
      {"1 2 | 3 4 | .5 .5", {}},
      {"1 2 | 3 4 | 1 7", {}},        // the others are not looked at, nor the sum
      {"1 2 | 3 4 | 0 -3", {}},       // 0 and 1 are in range
      {"1 _ | 3 4 | 2 .5", {tabla}},  // row before the probabilities
      {"1 2 | 3 4 | _ .5", {tabla}},
      {"1 2 | 3 4 | 1.01 x", {{fuera, "C1(2)"}}},  // in its turn, before C2(2)
      {"1 2 | 3 4 | -0.1 .5", {{fuera, "C1(2)"}}},
      {"1e300 -1e300 | 3 4 | .5 .5", {}},  // results have no range
  };
  for (const auto& [tabla, messages] : cases) EXPECT_EQ(check(problema(tabla)), messages) << tabla;
  RiesgoFields oculta = problema("1 2 | 3 4 | .5 .5");
  oculta.C[2][0].text = "x";  // hidden cells are skipped
  oculta.C[0][3].text = "x";
  EXPECT_TRUE(check(oculta).empty());
}

TEST(Riesgo, DominanceAndMeanValue) {
  const std::pair<const char*, const char*> cases[] = {
      // clang-format off
      // 1 dominates 3 simply; stochastically 5 dominates all, 1 and 2 differ.
      {kLibro, "13 /1245; 12 13 42 51 52 53 54 /5; 5"},
      // Identical alternatives dominate neither way and tie on the mean.
      {"100 40 | 60 80 | 60 80 | .5 .7", "/123; /123; 23"},
      {"5 7 9 | 5 7 9 | .3 .3 .4", "/12; /12; 12"},
      // Same distribution in other states: no stochastic dominance either way.
      {"10 20 | 20 10 | 0 40 | .5 .5", "/123; /123; 3"},
      // A result of 100000000 or more is never among the sorted values.
      {"0 200000000 | 0 100000000 | .5 .5", "12 /1; /12; 1"},
      {"-3 | 1 | 1", "21 /2; 21 /2; 2"},
      // clang-format on
  };
  for (const auto& [tabla, expected] : cases) {
    ASSERT_TRUE(check(problema(tabla)).empty()) << tabla;
    EXPECT_EQ(criterios(solve(problema(tabla))), expected) << tabla;
  }
}

TEST(Riesgo, SortedValuesCumulativeProbabilitiesAndSingleMeans) {
  const RiesgoResults r = solve(problema(kLibro));
  ASSERT_EQ(int(r.NumValores), 6);
  const double valores[] = {5, 10, 15, 20, 25, 30};
  for (int k = 0; k < 6; ++k) EXPECT_EQ(r.ValoresOrdenados[k], valores[k]);
  const double a2[] = {0, .3, .3, .8, .8, 1};  // 10 with .3, 20 with .5, 30 with .2
  for (int k = 0; k < 6; ++k) EXPECT_NEAR(r.Acumulada[1][k], a2[k], 1e-15) << k;
  EXPECT_EQ(Str(r.ValorMedio[0]), " 21");  // .2 x 10 + .5 x 20 + .3 x 30
  // Kept as Single: .3 x 5 + .3 x 7 + .4 x 9 is 7.2 to seven digits.
  EXPECT_EQ(Str(solve(problema("5 7 9 | .3 .3 .4")).ValorMedio[0]), " 7.2");
  EXPECT_EQ(Str(solve(problema("1 | 2 | 1.2 | .5")).ValorMedio[2]), " .6");
}

TEST(Riesgo, BrowsingGoesOnlyWhereAnArrowShows) {
  using P = PaginaRiesgo;
  using B = BotonRiesgo;
  const std::tuple<P, B, P> cases[] = {
      {P::DominanciaSimple, B::forward1, P::DominanciaEstocastica},
      {P::DominanciaEstocastica, B::Back1, P::DominanciaSimple},
      {P::DominanciaEstocastica, B::forward2, P::ValorMedio},
      {P::ValorMedio, B::back2, P::DominanciaEstocastica},
      {P::DominanciaSimple, B::forward2, P::DominanciaSimple},  // not shown there
      {P::ValorMedio, B::Back1, P::ValorMedio},
  };
  for (const auto& [desde, boton, hacia] : cases) EXPECT_EQ(pulsar(desde, boton), hacia);
  EXPECT_TRUE(volverVisible(P::DominanciaSimple));
  EXPECT_FALSE(volverVisible(P::DominanciaEstocastica));
  EXPECT_FALSE(volverVisible(P::ValorMedio));
}

TEST(Riesgo, FileItemsAndTheRowOfProbabilities) {
  RiesgoFields f = problema("1 2 | 3 4 | .5 .5");
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string bytes = out.bytes();
  EXPECT_TRUE(bytes.starts_with(
      "\"Problema "
      "1\"\r\n1\r\n1\r\n#TRUE#\r\n\"1\"\r\n#TRUE#\r\n\"2\"\r\n#TRUE#\r\n\"\"\r\n#FALSE#"));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 3 + 8 * (2 + 16));
  // Read into a screen of another shape, the heads name the row of the file's probabilities.
  RiesgoFields back;
  ProblemFile in = ProblemFile::forReading(bytes);
  exchange(in, back);
  EXPECT_EQ(back.lblAlternativaCaption[2], "Ps");
  EXPECT_EQ(back.lblAlternativaCaption[4], "Alternativa 5");
  EXPECT_TRUE(back.C[1][2].visible);
  EXPECT_FALSE(back.C[0][3].visible);
}

}  // namespace
}  // namespace vorel::decision
