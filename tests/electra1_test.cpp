#include "decision/electra1.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::decision {
namespace {

using Tabla = std::vector<std::vector<std::string>>;  // [criterion][alternative]

// A problem typed as a user would: choose the sizes, reshape, fill the cells.
Electra1Fields problema(const Tabla& valores, const std::vector<std::string>& pesos,
                        const std::string& E = "10", const std::string& LC = "0.6",
                        const std::string& LD = "0.3") {
  Electra1Fields f;
  const int nc = int(valores.size()), na = int(valores[0].size());
  f.NumAlternativas = na - 1;
  f.NumCriterios = nc - 1;
  EXPECT_TRUE(rediseñar(f).empty());
  for (int c = 0; c < nc; ++c) {
    for (int a = 0; a < na; ++a) f.C[a][c].text = valores[c][a];
    f.C[na][c].text = pesos[c];
  }
  f.escalaValoracion = E;
  f.IndiceConcordancia = LC;
  f.IndiceDiscordancia = LD;
  return f;
}

// Four suppliers under four criteria, as in the examples.
Electra1Fields libro() {
  return problema(
      {{"8", "6", "7", "5"}, {"7", "8", "5", "6"}, {"6", "7", "8", "7"}, {"9", "5", "6", "8"}},
      {"4", "3", "2", "1"});
}

// The outranking pairs as "ab" (alternative a outranks b), then "|" and the kernel; the
// counts the report prints must agree.
std::string sobreclasifica(const Electra1Results& r) {
  std::string out;
  int pares = 0, nucleo = 0;
  for (int a = 0; a < r.na; ++a)
    for (int b = 0; b < r.na; ++b)
      if (a != b && r.Sobreclasificacion[a][b] == 1) {
        out += std::to_string(a * 10 + b + 11) + " ";
        ++pares;
      }
  out += "|";
  for (int a = 0; a < r.na; ++a)
    if (r.Nucleo[a] == 1) {
      out += " " + std::to_string(a + 1);
      ++nucleo;
    }
  EXPECT_EQ(int(r.NumSobreclasificadas), pares);
  EXPECT_EQ(int(r.NumNucleo), nucleo);
  return out;
}

using Edits = std::vector<std::pair<std::string, std::string>>;

// The fields with some texts retyped: E, LC, LD or a cell Cj(i).
Electra1Fields editado(Electra1Fields f, const Edits& edits) {
  for (const auto& [name, text] : edits)
    *(name == "E"    ? &f.escalaValoracion
      : name == "LC" ? &f.IndiceConcordancia
      : name == "LD" ? &f.IndiceDiscordancia
                     : &f.C[name[1] - '1'][name[3] - '0'].text) = text;
  return f;
}

int errorDe(const std::function<void()>& run) {
  try {
    run();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

TEST(Electra1, ChecksRunInTheirOrderWithTheirFocus) {
  const std::string escala =
      "El valor de la escala de valoración no es correcto, debe introducir un valor comprendico "
      "entre 0 y 999999999";
  const std::string lc =
      "el valor del índice de concordancia no es correcto, debe introducir un valor comprendido "
      "entre 0 y 1";
  const std::string ld =
      "el valor del índice dediscordancia no es correcto, debe introducir un valor comprendido "
      "entre 0 y 1";
  const std::string tabla = "Debe completar la tabla de escalas de valoración";
  const std::string celda =
      "El valor de la escala de valoración no es correcto, debe introducir un valor comprendido "
      "entre -999999999 y 999999999";
  struct Case {
    Edits edits;
    std::string message, focus;
  } cases[] = {
      // clang-format off
      {{{"E", "x"}, {"LC", ""}, {"C1(0)", ""}},  // before everything else
       "Debe introducir el valor de la escala de valoración",
       "escalaValoracion"},
      {{{"E", "-1"}}, escala, ""},
      {{{"E", "1000000000"}}, escala, ""},
      {{{"LC", ""}, {"LD", "y"}},
       "Debe introducir el valor del índice de concordancia",
       "IndiceConcordancia"},
      {{{"LC", "1.01"}}, lc, ""},
      {{{"LC", "-0.1"}}, lc, ""},
      {{{"LD", "abc"}},
       "Debe introducir el valor del índice de discordancia",
       "IndiceDiscordancia"},
      {{{"LD", "2"}}, ld, "IndiceDiscordancia"},
      {{{"C1(2)", ""}}, tabla + " ", "C1(2)"},  // the first column's message ends in a blank
      {{{"C1(1)", "-1000000000"}}, celda, "C1(1)"},
      {{{"C4(0)", "1e10"}}, celda, "C4(0)"},
      {{{"C3(3)", "tres"}}, tabla, "C3(3)"},
      {{{"C5(1)", ""}}, tabla, "C5(1)"},  // the weights in C5 speak of the table
      {{{"C5(0)", "2e9"}}, celda, "C5(0)"},
      {{{"C4(0)", "?"}, {"C1(1)", "?"}}, tabla, "C4(0)"},  // row before column
      {{{"C1(0)", "1e12"}, {"C2(0)", ""}}, celda, "C1(0)"},
      // clang-format on
  };
  for (const Case& c : cases)
    EXPECT_EQ(check(editado(libro(), c.edits)), (Messages{{c.message, c.focus}})) << c.focus;
  // With six alternatives the weights are in C7 and speak of themselves.
  const Electra1Fields seis =
      problema(Tabla(7, {"1", "2", "3", "4", "5", "6"}), std::vector<std::string>(7, "1"));
  EXPECT_TRUE(check(seis).empty());
  EXPECT_EQ(check(editado(seis, {{"C7(4)", ""}})),
            (Messages{{"Debe completar la fila de ponderaciones", "C7(4)"}}));
  EXPECT_EQ(check(editado(seis, {{"C7(4)", "-1e9"}})),
            Messages({{"El valor de la ponderación no es correcto, debe introducir un valor "
                       "comprendido entre -999999999 y 999999999",
                       "C7(4)"}}));
}

TEST(Electra1, AcceptsWhatNoCheckRefuses) {
  const Edits cases[] = {
      {{"E", "0"}},
      {{"E", "999999999"}},
      {{"LC", "0"}, {"LD", "1"}},
      {{"LC", "0.1"}, {"LD", "0.9"}},
      {{"C5(0)", "-3"}, {"C5(1)", "0"}},  // weights
      {{"C1(0)", "-999999999"}, {"C2(0)", "999999999"}},
      {{"C6(0)", "x"}, {"C1(4)", "x"}},  // hidden cells
  };
  for (const Edits& edits : cases) EXPECT_TRUE(check(editado(libro(), edits)).empty());
}

TEST(Electra1, OutrankingAndKernelCases) {
  const Tabla ciclo = {{"3", "1", "2"}, {"2", "3", "1"}, {"1", "2", "3"}};
  const Tabla iguales = {{"4", "4"}, {"7", "7"}}, cruzada = {{"2", "1"}, {"1", "2"}};
  const std::pair<Electra1Fields, const char*> cases[] = {
      // clang-format off
      // 3 over 4, 1 over 2 and 3 over 2 reach the limits exactly and still outrank.
      {libro(), "13 14 24 32 34 | 1"},
      {problema({{"5"}, {"3"}}, {"2", "1"}), "| 1"},  // one alternative: weights in C2
      {problema(iguales, {"1", "2"}, "10", "1", "0"), "12 21 |"},
      {problema({{"4", "4", "1"}, {"7", "7", "9"}}, {"1", "1"}, "10", "0.9", "0"), "12 21 | 3"},
      {problema(ciclo, {"1", "1", "1"}, "10", "0.6", "0.2"), "13 21 32 |"},
      {problema(ciclo, {"1", "1", "1"}, "10", "0.6", "0.19999"), "| 1 2 3"},
      {problema({{"1", "9", "5"}, {"9", "1", "5"}}, {"1", "1"}, "8", "0", "1"),
       "12 13 21 23 31 32 |"},
      // A difference beyond the scale is not cut to 1; negative weights subtract.
      {problema({{"0", "30"}, {"1", "0"}}, {"1", "1"}, "10", "0.5", "1"), "21 | 2"},
      {problema(cruzada, {"-1", "3"}, "10", "0.5", "1"), "21 | 2"},
      // Equal as texts though the doubles differ.
      {problema({{"0.30000000000000004", "0.3"}}, {"1"}, "1e-20", "1", "0"), "12 21 |"},
      // clang-format on
  };
  int n = 0;
  for (const auto& [fields, expected] : cases) {
    ASSERT_TRUE(check(fields).empty()) << n;
    EXPECT_EQ(sobreclasifica(solve(fields)), expected) << n++;
  }
}

TEST(Electra1, ConcordanceCountsTiesForBothAndDiscordanceUsesTheOneScale) {
  const Electra1Results r =
      solve(problema({{"5", "5"}, {"2", "6"}, {"9", "1"}}, {"1", "1", "2"}, "4", "0.5", "0.5"));
  EXPECT_EQ(r.Concordancia[0][0], 1.0);
  EXPECT_EQ(r.Concordancia[0][1], 0.75);  // the tie and criterion 3
  EXPECT_EQ(r.Concordancia[1][0], 0.5);   // the tie and criterion 2: 1.25 in all
  EXPECT_EQ(r.Discordancia[0][0], 0.0);
  EXPECT_EQ(r.Discordancia[0][1], 1.0);      // (6 - 2) / 4
  EXPECT_EQ(r.Discordancia[1][0], 2.0);      // (9 - 1) / 4, beyond 1
  EXPECT_EQ(r.Sobreclasificacion[0][0], 1);  // itself, never counted nor reported
  EXPECT_EQ(sobreclasifica(r), "| 1 2");
}

TEST(Electra1, RunTimeErrorsOfTheSolve) {
  const Tabla cruzada = {{"2", "1"}, {"1", "2"}};
  Electra1Fields sinCombo = libro();
  sinCombo.NumCriterios = -1;
  const std::pair<Electra1Fields, int> cases[] = {
      {problema(cruzada, {"1", "1"}, "0"), err::DivisionByZero},  // a strict preference over E 0
      {problema(cruzada, {"0", "0"}), err::Overflow},             // weights 0 / 0
      {problema(cruzada, {"1", "-1"}), err::Overflow},            // weights summing to zero
      {sinCombo, err::TypeMismatch},                              // an empty combo
  };
  for (const auto& [f, error] : cases) EXPECT_EQ(errorDe([&] { solve(f); }), error);
  // With no strict preference anywhere there is nothing to divide by E.
  EXPECT_EQ(sobreclasifica(solve(problema({{"3", "3"}, {"1", "1"}}, {"1", "1"}, "0"))), "12 21 |");
}

TEST(Electra1, PagePrintsTheKeptResultsWithoutRecomputing) {
  Electra1Fields f = libro();
  const Electra1Results r = solve(f);
  f.C[0][0].text = "0";  // typed after the activation: the page does not see it
  EXPECT_EQ(renderText(printout(f, r)).find("No existen"), std::string::npos);
  EXPECT_NE(renderText(printout(f, solve(f))), renderText(printout(f, r)));
}

TEST(Electra1, FileItemsInOrderAndHiddenTextsTravel) {
  Electra1Fields f = libro();
  f.Título = "Año";
  f.C[6][6].text = "oculta";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string bytes = out.bytes();
  EXPECT_TRUE(
      bytes.starts_with("\"A\xF1o\"\r\n3\r\n3\r\n\"10\"\r\n\"0.6\"\r\n\"0.3\"\r\n#TRUE#"
                        "\r\n\"8\"\r\n#TRUE#\r\n\"6\""));
  // Row 0 ends with the head of column 1; row 4 with the weights' head and its colour.
  EXPECT_NE(bytes.find("#TRUE#\r\n\"Alternativa 1\"\r\n12648384\r\n#TRUE#\r\n\"7\""),
            std::string::npos);
  EXPECT_NE(bytes.find("#TRUE#\r\n\"Ponderaci\xF3n\"\r\n16761024\r\n#FALSE#\r\n\"\""),
            std::string::npos);
  EXPECT_TRUE(
      bytes.ends_with("\"oculta\"\r\n#FALSE#\r\n#FALSE#\r\n\"Alternativa 7\"\r\n12648384\r\n"));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 6 + 7 * (1 + 14 + 3));

  Electra1Fields back;
  ProblemFile in = ProblemFile::forReading(bytes);
  exchange(in, back);
  EXPECT_EQ(back.C[6][6].text, "oculta");
  EXPECT_FALSE(back.C[6][6].visible);
  EXPECT_EQ(back.LblAlternativas[4].BackColor, kColorPonderacion);
}

TEST(Electra1, AFileReadStopsAtAnItemThatDoesNotFit) {
  std::string sieteCeldas;
  for (int j = 0; j < 7; ++j) sieteCeldas += "\"1\"\r\n#TRUE#\r\n";
  // A file that stops at an item, and the alternatives' combo as the read left it.
  const std::pair<std::string, int> cases[] = {
      {"\"T\"\r\n2\r\n6\r\n\"10\"\r\n", 3},    // alternatives beyond the list
      {"\"T\"\r\n7\r\n", 3},                   // criteria beyond the list
      {"\"T\"\r\n-1\r\n-1\r\n\"1\"\r\n", -1},  // empty combos read; the file ends
      {"\"T\"\r\n3\r\n3\r\n\"\"\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n" + sieteCeldas +
           "#TRUE#\r\n\"A\"\r\nazul\r\n",
       3},  // a colour that is no number
  };
  for (const auto& [file, na] : cases) {
    const std::string path = testing::tempPath("electra.txt");
    testing::writeBytes(path, file);
    Electra1Fields f;
    EXPECT_FALSE(openProblem(path, [&](ProblemFile& p) { exchange(p, f); })) << file;
    EXPECT_EQ(f.Título, "T");
    EXPECT_EQ(f.NumAlternativas, na) << file;
  }
}

}  // namespace
}  // namespace vorel::decision
