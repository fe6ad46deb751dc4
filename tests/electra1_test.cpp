#include "decision/electra1.h"

#include <gtest/gtest.h>

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
  const int nc = static_cast<int>(valores.size());
  const int na = static_cast<int>(valores[0].size());
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

// The textbook problem of the examples: four suppliers under four criteria.
Electra1Fields libro() {
  return problema(
      {{"8", "6", "7", "5"}, {"7", "8", "5", "6"}, {"6", "7", "8", "7"}, {"9", "5", "6", "8"}},
      {"4", "3", "2", "1"});
}

// Outranking pairs (a+1, b+1) and kernel members (a+1) of a solution.
std::vector<std::pair<int, int>> pares(const Electra1Results& r) {
  std::vector<std::pair<int, int>> out;
  for (int a = 0; a < r.na; ++a)
    for (int b = 0; b < r.na; ++b)
      if (a != b && r.Sobreclasificacion[a][b] == 1) out.push_back({a + 1, b + 1});
  return out;
}
std::vector<int> nucleo(const Electra1Results& r) {
  std::vector<int> out;
  for (int a = 0; a < r.na; ++a)
    if (r.Nucleo[a] == 1) out.push_back(a + 1);
  return out;
}

TEST(Electra1, ChecksRunInTheirOrderWithTheirFocus) {
  struct Case {
    const char* name;
    void (*edit)(Electra1Fields&);
    const char* message;
    const char* focus;
  } cases[] = {
      {"1 escala no numérica, antes que todo lo demás",
       [](Electra1Fields& f) {
         f.escalaValoracion = "x";
         f.IndiceConcordancia = "";
         f.C[0][0].text = "";
       },
       "Debe introducir el valor de la escala de valoración", "escalaValoracion"},
      {"2 escala negativa", [](Electra1Fields& f) { f.escalaValoracion = "-1"; },
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendico "
       "entre 0 y 999999999",
       ""},
      {"2 escala sobre el límite", [](Electra1Fields& f) { f.escalaValoracion = "1000000000"; },
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendico "
       "entre 0 y 999999999",
       ""},
      {"3 concordancia vacía",
       [](Electra1Fields& f) {
         f.IndiceConcordancia = "";
         f.IndiceDiscordancia = "y";
       },
       "Debe introducir el valor del índice de concordancia", "IndiceConcordancia"},
      {"4 concordancia sobre 1", [](Electra1Fields& f) { f.IndiceConcordancia = "1.01"; },
       "el valor del índice de concordancia no es correcto, debe introducir un valor comprendido "
       "entre 0 y 1",
       ""},
      {"4 concordancia negativa", [](Electra1Fields& f) { f.IndiceConcordancia = "-0.1"; },
       "el valor del índice de concordancia no es correcto, debe introducir un valor comprendido "
       "entre 0 y 1",
       ""},
      {"5 discordancia con letras", [](Electra1Fields& f) { f.IndiceDiscordancia = "abc"; },
       "Debe introducir el valor del índice de discordancia", "IndiceDiscordancia"},
      {"6 discordancia sobre 1, con foco", [](Electra1Fields& f) { f.IndiceDiscordancia = "2"; },
       "el valor del índice dediscordancia no es correcto, debe introducir un valor comprendido "
       "entre 0 y 1",
       "IndiceDiscordancia"},
      {"7 C1 vacía, con el blanco final", [](Electra1Fields& f) { f.C[0][2].text = ""; },
       "Debe completar la tabla de escalas de valoración ", "C1(2)"},
      {"8 C1 fuera de rango", [](Electra1Fields& f) { f.C[0][1].text = "-1000000000"; },
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendido "
       "entre -999999999 y 999999999",
       "C1(1)"},
      {"8 C4 fuera de rango", [](Electra1Fields& f) { f.C[3][0].text = "1e10"; },
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendido "
       "entre -999999999 y 999999999",
       "C4(0)"},
      {"9 C3 no numérica", [](Electra1Fields& f) { f.C[2][3].text = "tres"; },
       "Debe completar la tabla de escalas de valoración", "C3(3)"},
      {"9 los pesos en C5 hablan de la tabla", [](Electra1Fields& f) { f.C[4][1].text = ""; },
       "Debe completar la tabla de escalas de valoración", "C5(1)"},
      {"8 los pesos en C5 fuera de rango hablan de la tabla",
       [](Electra1Fields& f) { f.C[4][0].text = "2e9"; },
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendido "
       "entre -999999999 y 999999999",
       "C5(0)"},
      {"fila antes que columna: C4(0) antes que C1(1)",
       [](Electra1Fields& f) {
         f.C[3][0].text = "?";
         f.C[0][1].text = "?";
       },
       "Debe completar la tabla de escalas de valoración", "C4(0)"},
      {"en una celda, número antes que rango: C1(0) numérica y fuera, C2(0) vacía",
       [](Electra1Fields& f) {
         f.C[0][0].text = "1e12";
         f.C[1][0].text = "";
       },
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendido "
       "entre -999999999 y 999999999",
       "C1(0)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Electra1Fields f = libro();
    c.edit(f);
    const Messages m = check(f);
    ASSERT_EQ(m.size(), 1u);
    EXPECT_EQ(m[0].text, c.message);
    EXPECT_EQ(m[0].focus, c.focus);
  }
}

TEST(Electra1, OnlyTheSeventhColumnSpeaksOfTheWeights) {
  Tabla seis(7, {"1", "2", "3", "4", "5", "6"});
  Electra1Fields f = problema(seis, {"1", "1", "1", "1", "1", "1", "1"});
  EXPECT_TRUE(check(f).empty());
  f.C[6][4].text = "";
  EXPECT_EQ(check(f), (Messages{{"Debe completar la fila de ponderaciones", "C7(4)"}}));
  f.C[6][4].text = "-1e9";
  EXPECT_EQ(check(f), Messages({{"El valor de la ponderación no es correcto, debe introducir un "
                                 "valor comprendido entre -999999999 y 999999999",
                                 "C7(4)"}}));
}

TEST(Electra1, AcceptsWhatNoCheckRefuses) {
  struct Case {
    const char* name;
    void (*edit)(Electra1Fields&);
  } cases[] = {
      {"escala cero y límite", [](Electra1Fields& f) { f.escalaValoracion = "0"; }},
      {"escala máxima", [](Electra1Fields& f) { f.escalaValoracion = "999999999"; }},
      {"límites en sus extremos",
       [](Electra1Fields& f) {
         f.IndiceConcordancia = "0";
         f.IndiceDiscordancia = "1";
       }},
      {"concordancia bajo la discordancia",
       [](Electra1Fields& f) {
         f.IndiceConcordancia = "0.1";
         f.IndiceDiscordancia = "0.9";
       }},
      {"pesos negativos y cero",
       [](Electra1Fields& f) {
         f.C[4][0].text = "-3";
         f.C[4][1].text = "0";
       }},
      {"valoraciones en los extremos",
       [](Electra1Fields& f) {
         f.C[0][0].text = "-999999999";
         f.C[1][0].text = "999999999";
       }},
      {"celdas ocultas no se miran",
       [](Electra1Fields& f) {
         f.C[5][0].text = "x";
         f.C[0][4].text = "x";
       }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Electra1Fields f = libro();
    c.edit(f);
    EXPECT_TRUE(check(f).empty());
  }
}

TEST(Electra1, OutrankingAndKernelCases) {
  struct Case {
    const char* name;
    Electra1Fields fields;
    std::vector<std::pair<int, int>> pairs;
    std::vector<int> kernel;
  } cases[] = {
      // Textbook: concordance 0.6 and discordance 0.3 reached exactly (3 over 4, 1 over 2 and
      // 3 over 2 at the limits) still outrank.
      {"libro", libro(), {{1, 3}, {1, 4}, {2, 4}, {3, 2}, {3, 4}}, {1}},
      {"una alternativa: los pesos en C2", problema({{"5"}, {"3"}}, {"2", "1"}), {}, {1}},
      {"dos iguales se sobreclasifican mutuamente",
       problema({{"4", "4"}, {"7", "7"}}, {"1", "2"}, "10", "1", "0"),
       {{1, 2}, {2, 1}},
       {}},
      {"dos iguales y una tercera en el núcleo",
       problema({{"4", "4", "1"}, {"7", "7", "9"}}, {"1", "1"}, "10", "0.9", "0"),
       {{1, 2}, {2, 1}},
       {3}},
      {"ciclo",
       problema({{"3", "1", "2"}, {"2", "3", "1"}, {"1", "2", "3"}}, {"1", "1", "1"}, "10", "0.6",
                "0.2"),
       {{1, 3}, {2, 1}, {3, 2}},
       {}},
      {"ciclo roto por una discordancia justo sobre el límite",
       problema({{"3", "1", "2"}, {"2", "3", "1"}, {"1", "2", "3"}}, {"1", "1", "1"}, "10", "0.6",
                "0.19999"),
       {},
       {1, 2, 3}},
      {"concordancia 0 y discordancia 1: todos los pares",
       problema({{"1", "9", "5"}, {"9", "1", "5"}}, {"1", "1"}, "8", "0", "1"),
       {{1, 2}, {1, 3}, {2, 1}, {2, 3}, {3, 1}, {3, 2}},
       {}},
      {"una diferencia mayor que la escala no se satura en 1",
       problema({{"0", "30"}, {"1", "0"}}, {"1", "1"}, "10", "0.5", "1"),
       {{2, 1}},
       {2}},
      {"pesos negativos restan concordancia",
       problema({{"2", "1"}, {"1", "2"}}, {"-1", "3"}, "10", "0.5", "1"),
       {{2, 1}},
       {2}},
      {"valores iguales a través del texto aunque los dobles difieran",
       problema({{"0.30000000000000004", "0.3"}}, {"1"}, "1e-20", "1", "0"),
       {{1, 2}, {2, 1}},
       {}},
  };
  for (Case& c : cases) {
    SCOPED_TRACE(c.name);
    ASSERT_TRUE(check(c.fields).empty());
    const Electra1Results r = solve(c.fields);
    EXPECT_EQ(pares(r), c.pairs);
    EXPECT_EQ(nucleo(r), c.kernel);
    EXPECT_EQ(int(r.NumSobreclasificadas), int(c.pairs.size()));
    EXPECT_EQ(int(r.NumNucleo), int(c.kernel.size()));
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
  EXPECT_TRUE(pares(r).empty());
}

TEST(Electra1, DivisionsByZeroAreThePlatformsErrors) {
  struct Case {
    const char* name;
    Electra1Fields fields;
    int error;
  } cases[] = {
      {"escala cero con una preferencia estricta",
       problema({{"2", "1"}, {"1", "2"}}, {"1", "1"}, "0"), err::DivisionByZero},
      {"todos los pesos cero", problema({{"2", "1"}, {"1", "2"}}, {"0", "0"}), err::Overflow},
      {"pesos que suman cero", problema({{"2", "1"}, {"1", "2"}}, {"1", "-1"}), err::Overflow},
  };
  for (Case& c : cases) {
    SCOPED_TRACE(c.name);
    ASSERT_TRUE(check(c.fields).empty());  // validation admits both
    try {
      solve(c.fields);
      ADD_FAILURE() << "no error";
    } catch (const RuntimeError& e) {
      EXPECT_EQ(e.number(), c.error);
    }
  }
  // With no strict preference anywhere there is nothing to divide by E.
  const Electra1Results r = solve(problema({{"3", "3"}, {"1", "1"}}, {"1", "1"}, "0"));
  EXPECT_EQ(pares(r), (std::vector<std::pair<int, int>>{{1, 2}, {2, 1}}));
}

TEST(Electra1, AnEmptyComboIsATypeMismatchWhenSolving) {
  Electra1Fields f = libro();
  f.NumCriterios = -1;
  try {
    solve(f);
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number(), err::TypeMismatch);
  }
}

TEST(Electra1, PagePrintsTheKeptResultsWithoutRecomputing) {
  Electra1Fields f = libro();
  const Electra1Results r = solve(f);
  f.C[0][0].text = "0";  // typed after the activation: the page does not see it
  EXPECT_EQ(renderText(printout(f, r)).find("No existen"), std::string::npos);
  EXPECT_NE(renderText(printout(f, solve(f))), renderText(printout(f, r)));
}

TEST(Electra1, RediseñarShapesTheTableAndKeepsTheTexts) {
  Electra1Fields f;
  f.C[6][6].text = "guardado";
  f.NumAlternativas = 5;  // six alternatives
  f.NumCriterios = 6;     // seven criteria
  EXPECT_TRUE(rediseñar(f).empty());
  for (int j = 0; j < 7; ++j)
    for (int i = 0; i < 7; ++i) EXPECT_TRUE(f.C[j][i].visible);
  EXPECT_EQ(f.C[6][6].text, "guardado");
  EXPECT_EQ(f.LblAlternativas[6].caption, "Ponderación");
  EXPECT_EQ(f.LblAlternativas[6].BackColor, kColorPonderacion);
  EXPECT_EQ(f.LblAlternativas[5].caption, "Alternativa 6");
  EXPECT_EQ(f.LblAlternativas[5].BackColor, kColorAlternativa);

  f.NumAlternativas = 0;  // one alternative
  f.NumCriterios = 1;
  EXPECT_TRUE(rediseñar(f).empty());
  EXPECT_EQ(f.LblAlternativas[1].caption, "Ponderación");
  EXPECT_EQ(f.LblAlternativas[6].caption, "Alternativa 7");  // the preset caption is back
  EXPECT_EQ(f.LblAlternativas[6].BackColor, kColorAlternativa);
  for (int k = 0; k < 7; ++k) {
    EXPECT_EQ(f.LblAlternativas[k].visible, k <= 1) << k;
    EXPECT_EQ(f.LblCriterios[k], k <= 1) << k;
    for (int i = 0; i < 7; ++i) EXPECT_EQ(f.C[k][i].visible, k <= 1 && i <= 1) << k << i;
  }
  EXPECT_EQ(f.C[6][6].text, "guardado");

  struct Case {
    int na, nc;
    const char* message;
  } empties[] = {
      {-1, 3, "Seleccione el número de Alternativas"},
      {-1, -1, "Seleccione el número de Alternativas"},
      {3, -1, "Seleccione el número de Criterios"},
  };
  for (const Case& c : empties) {
    Electra1Fields g;
    g.NumAlternativas = c.na;
    g.NumCriterios = c.nc;
    g.C[5][0].visible = true;
    EXPECT_EQ(rediseñar(g), (Messages{{c.message, ""}}));
    EXPECT_TRUE(g.C[5][0].visible);  // nothing reshaped
  }
}

TEST(Electra1, NuevoRestoresTheFirstShapeAndKeepsTheTitle) {
  Electra1Fields f =
      problema(Tabla(7, {"1", "2", "3", "4", "5", "6"}), std::vector<std::string>(7, "1"));
  f.Título = "Mío";
  nuevo(f);
  Electra1Fields fresh;
  fresh.Título = "Mío";
  ProblemFile a = ProblemFile::forWriting(), b = ProblemFile::forWriting();
  exchange(a, f);
  exchange(b, fresh);
  EXPECT_EQ(a.bytes(), b.bytes());
  EXPECT_EQ(f.LblAlternativas[4].caption, "Ponderación");
  EXPECT_EQ(f.NumAlternativas, 3);
  EXPECT_EQ(f.NumCriterios, 3);
}

TEST(Electra1, FileItemsInOrderAndRoundTrip) {
  Electra1Fields f = libro();
  f.Título = "Año";
  f.C[6][6].text = "oculta";  // hidden texts travel with the file
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string bytes = out.bytes();
  const std::string head =
      "\"A\xF1o\"\r\n3\r\n3\r\n\"10\"\r\n\"0.6\"\r\n\"0.3\"\r\n#TRUE#\r\n\"8\"\r\n#TRUE#\r\n\"6\"";
  EXPECT_EQ(bytes.substr(0, head.size()), head);
  // Row 0 ends with the head of column 1; row 4 with the weights' head and its colour.
  EXPECT_NE(bytes.find("#TRUE#\r\n\"Alternativa 1\"\r\n12648384\r\n#TRUE#\r\n\"7\""),
            std::string::npos);
  EXPECT_NE(bytes.find("#TRUE#\r\n\"Ponderaci\xF3n\"\r\n16761024\r\n#FALSE#\r\n\"\""),
            std::string::npos);
  EXPECT_TRUE(
      bytes.ends_with("\"oculta\"\r\n#FALSE#\r\n#FALSE#\r\n\"Alternativa 7\"\r\n12648384\r\n"));
  std::size_t lines = 0;
  for (char c : bytes) lines += c == '\n';
  EXPECT_EQ(lines, 6u + 7u * (1 + 14 + 3));

  Electra1Fields back;
  back.NumAlternativas = 0;
  ProblemFile in = ProblemFile::forReading(bytes);
  exchange(in, back);
  ProblemFile again = ProblemFile::forWriting();
  exchange(again, back);
  EXPECT_EQ(again.bytes(), bytes);
  EXPECT_EQ(back.C[6][6].text, "oculta");
  EXPECT_FALSE(back.C[6][6].visible);
  EXPECT_EQ(back.LblAlternativas[4].BackColor, kColorPonderacion);
}

TEST(Electra1, AFileReadStopsAtAnItemThatDoesNotFit) {
  struct Case {
    const char* name;
    std::string file;
    std::string title;  // what the read stored before it stopped
    int na;
  } cases[] = {
      {"índice de lista fuera de la lista: alternativas", "\"T\"\r\n2\r\n6\r\n\"10\"\r\n", "T", 3},
      {"índice de lista fuera de la lista: criterios", "\"T\"\r\n7\r\n", "T", 3},
      {"combo vacío", "\"T\"\r\n-1\r\n-1\r\n\"1\"\r\n", "T", -1},
      {"colour that is no number",
       "\"T\"\r\n3\r\n3\r\n\"\"\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n" +
           [] {
             std::string s;
             for (int j = 0; j < 7; ++j) s += "\"1\"\r\n#TRUE#\r\n";
             return s;
           }() +
           "#TRUE#\r\n\"A\"\r\nazul\r\n",
       "T", 3},
  };
  for (Case& c : cases) {
    SCOPED_TRACE(c.name);
    const std::string path = testing::tempPath("electra.txt");
    testing::writeBytes(path, c.file);
    Electra1Fields f;
    f.Título = "antes";
    EXPECT_FALSE(openProblem(path, [&](ProblemFile& p) { exchange(p, f); }));
    EXPECT_EQ(f.Título, c.title);
    EXPECT_EQ(f.NumAlternativas, c.na);
  }
}

}  // namespace
}  // namespace vorel::decision
