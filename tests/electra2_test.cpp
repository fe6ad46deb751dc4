#include "decision/electra2.h"

#include <gtest/gtest.h>

#include "tests/test_support.h"

namespace vorel::decision {
namespace {

// A problem typed as a user would: the table one criterion a row with its
// weight last ("8 6 4 | 7 8 3" is two criteria of weights 4 and 3), the scale,
// then "C1 C2 C3 D1 D2".
Electra2Fields problema(const std::string& tabla, const std::string& E = "10",
                        const std::string& indicadores = "0.75 0.65 0.55 0.2 0.3") {
  const auto rows = testing::tableRows(tabla);
  const auto ind = testing::tableRows(indicadores)[0];
  Electra2Fields f;
  const int nc = int(rows.size()), na = int(rows[0].size()) - 1;
  f.NumAlternativas = na - 1;
  f.NumCriterios = nc - 1;
  EXPECT_TRUE(rediseñar(f).empty());
  for (int c = 0; c < nc; ++c)
    for (int a = 0; a <= na; ++a) f.C[a][c].text = rows[c][a];
  f.escalaValoracion = E;
  f.IndicadorConcordancia1 = ind[0];
  f.IndicadorConcordancia2 = ind[1];
  f.IndicadorConcordancia3 = ind[2];
  f.IndicadorDiscordancia1 = ind[3];
  f.IndicadorDiscordancia2 = ind[4];
  return f;
}

// Five suppliers under four criteria, as in the example.
const char* const kLibro = "8 6 7 5 6 4 | 7 8 5 6 7 3 | 6 7 8 7 5 2 | 9 5 6 8 7 1";

// The places as "direct / inverse / final", one digit an alternative.
std::string puestos(const Electra2Results& r) {
  std::string out;
  for (const auto* v : {&r.Directa, &r.Inversa, &r.Final}) {
    if (!out.empty()) out += " / ";
    for (int a = 0; a < r.na; ++a) out += std::to_string(int((*v)[a]));
  }
  return out;
}

TEST(Electra2, ChecksRunInTheirOrderWithTheirFocus) {
  const std::string conc =
      "l indicador de concordancia no es correcto, debe introducir un valor comprendido entre 0 "
      "y 1";
  const std::string disc =
      "el valor del indicador de discordancia no es correcto, debe introducir un valor "
      "comprendido entre 0 y el alcance de la escala de 10";
  const std::string orden =
      "Los indicadores de concordancia deben estar ordenados de mayor a "
      "menor nivel de exigencia";
  const std::string ordenD =
      "Los indicadores de discordancia deben estar ordenados de menor a "
      "mayor nivel de exigencia";
  const std::tuple<std::string, std::string, Message> cases[] = {
      {"x",
       "a b c d e",
       {"Debe introducir el valor de la escala de valoración", "escalaValoracion"}},
      {"10",
       "x 0.6 0.5 0.1 0.2",
       {"Debe introducir el valor del índice de concordancia número uno",
        "IndicadorConcordancia1"}},
      {"10", "1.5 0.6 0.5 0.1 0.2", {"el valor de" + conc, "IndicadorConcordancia1"}},
      {"10",
       "0.7 _ 0.5 0.1 0.2",
       {"Debe introducir el valor del indicador de concordancia número dos",
        "IndicadorConcordancia2"}},
      {"10", "0.7 -0.1 x 0.1 0.2", {"El valor de" + conc, "IndicadorConcordancia2"}},
      {"10",
       "0.7 0.6 _ x x",
       {"Debe introducir el valor del indicador de concordancia número tres",
        "IndicadorConcordancia3"}},
      {"10", "0.6 0.7 0.5 x x", {orden, ""}},
      {"10", "0.7 0.6 0.65 0.1 0.2", {orden, ""}},
      {"10",
       "0.7 0.6 0.5 _ x",
       {"Debe introducir el valor del indicador de discordancia número uno",
        "IndicadorDiscordancia1"}},
      {"10", "0.7 0.6 0.5 11 x", {disc, "IndicadorDiscordancia1"}},
      {"10",
       "0.7 0.6 0.5 0.1 x",
       {"Debe introducir el valor del indicador de discordancia número dos",
        "IndicadorDiscordancia2"}},
      {"10", "0.7 0.6 0.5 0.1 -1", {disc, "IndicadorDiscordancia2"}},
      {"10", "0.7 0.6 0.5 0.3 0.2", {ordenD, ""}},
  };
  for (const auto& [E, ind, message] : cases)
    EXPECT_EQ(check(problema("1 2 1 | 2 1 1", E, ind)), Messages{message}) << ind;
  // Equal indicators keep their order; the third concordance one has no range;
  // the table is looked at last, with the messages of ELECTRE I.
  EXPECT_TRUE(check(problema("1 2 1 | 2 1 1", "10", "0.6 0.6 -4 0 10")).empty());
  EXPECT_EQ(check(problema("1 2 1 | 2 _ 1", "10", "0.7 0.6 0.5 0.1 0.2")),
            (Messages{{"Debe completar la tabla de escalas de valoración", "C2(1)"}}));
}

TEST(Electra2, Classifications) {
  const std::tuple<Electra2Fields, const char*> cases[] = {
      // clang-format off
      // 3 is separated from 5 by the weak outranking; 2 first from the top,
      // third from the bottom; 2 and 3 share the final place.
      {problema(kLibro), "11243 / 13254 / 12243"},
      // 4 outranks nothing and nothing outranks it: first and last, second overall.
      {problema("9 7 5 1 1 | 9 7 5 1 1 | 5 5 5 10 1", "10", "0.8 0.7 0.6 0.2 0.4"),
       "1231 / 1233 / 1232"},
      // A circuit of three strong outrankings counts as one alternative.
      {problema("3 1 2 0 1 | 2 3 1 0 1 | 1 2 3 0 1", "10", "0.6 0.6 0.5 0.2 0.2"),
       "1112 / 1112 / 1112"},
      {problema("4 4 4 2 | 7 7 7 1", "10", "1 0.9 0.5 0 0.1"), "111 / 111 / 111"},
      {problema("5 2 | 3 1", "5"), "1 / 1 / 1"},
      // Two alternatives of equal concordance both ways outrank each other.
      {problema("5 3 1 | 3 5 1", "10", "0.5 0.5 0.5 0.2 0.2"), "11 / 11 / 11"},
      // Concordances of a pair summing below 1 (a tie of negative weight): no outranking.
      {problema("5 4 2 | 3 3 -1", "10", "1 1 1 0 0"), "11 / 11 / 11"},
      {problema("5 4 2 | 3 3 1", "10", "1 1 1 0 0"), "12 / 12 / 12"},
      // clang-format on
  };
  for (const auto& [f, expected] : cases) {
    ASSERT_TRUE(check(f).empty()) << expected;
    EXPECT_EQ(puestos(solve(f)), expected);
  }
}

TEST(Electra2, StrongAndWeakOutrankingAtTheLimits) {
  // Concordance of 1 over 2: 4/10 + 1/10; of 2 over 1: 3/10 + 2/10.
  const Electra2Results r = solve(problema(kLibro));
  EXPECT_EQ(r.Concordancia[0][1], 0.5);
  EXPECT_DOUBLE_EQ(r.Discordancia[1][0], 0.4);  // (9 - 5) / 10
  // 1 over 3: concordance .8 >= .75 with discordance .2 <= .3; 3 over 2 only weakly (.7).
  EXPECT_EQ(r.Fuerte[0][2], 1);
  EXPECT_EQ(r.Fuerte[2][1], 0);
  EXPECT_EQ(r.Debil[2][1], 1);
  EXPECT_EQ(r.Debil[0][1] + r.Debil[1][0], 0);  // .5 each way, below .55
  for (int a = 0; a < 5; ++a) EXPECT_EQ(r.Circuito[a], a);
  const Electra2Results circuito =
      solve(problema("3 1 2 0 1 | 2 3 1 0 1 | 1 2 3 0 1", "10", "0.6 0.6 0.5 0.2 0.2"));
  EXPECT_EQ(circuito.Circuito, (std::array<int, 6>{0, 0, 0, 3, 0, 0}));
}

}  // namespace
}  // namespace vorel::decision
