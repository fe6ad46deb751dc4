#include <gtest/gtest.h>

#include <functional>

#include "frame/arith.h"
#include "games/juegos_n.h"

namespace vorel::games {
namespace {

// A game typed as Tabla(a, b): the cell A(a+1)(b). The combos are set and
// Rediseñar applied first, so the visible cells are those of the screen.
JuegosNFields juego(int n1, int n2, const std::vector<std::vector<std::string>>& celdas) {
  JuegosNFields f;
  f.NDecA = n1 - 1;
  f.NDecB = n2 - 1;
  rediseñar(f);
  for (std::size_t a = 0; a < celdas.size(); ++a)
    for (std::size_t b = 0; b < celdas[a].size(); ++b)
      f.array(int(a) + 1)[b].text = celdas[a][b];
  return f;
}

JuegosNFields cuadrado(const std::vector<std::vector<std::string>>& celdas) {
  return juego(int(celdas.size()), int(celdas.size()), celdas);
}

int errorDe(const std::function<void()>& run) {
  try {
    run();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

TEST(JuegosN, FirstLoadShowsTwoStrategiesASide) {
  const JuegosNFields f;
  EXPECT_EQ(f.Título, "Problema 1");
  EXPECT_EQ(textoCombo(f.NDecA), "2");
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(f.A[i], i < 2);
    EXPECT_EQ(f.B[i], i < 2);
    for (int k = 1; k <= 8; ++k) EXPECT_EQ(f.array(k)[i].visible, k <= 2 && i < 2) << k << i;
  }
}

TEST(JuegosN, RediseñarShowsArraysUpToN2AndElementsUpToN1AndKeepsTexts) {
  struct Case { int n1, n2; } cases[] = {{3, 5}, {8, 1}, {1, 8}, {8, 8}};
  for (const auto& c : cases) {
    JuegosNFields f;
    f.A8[7].text = "7";
    f.NDecA = c.n1 - 1;
    f.NDecB = c.n2 - 1;
    rediseñar(f);
    int shown = 0;
    for (int i = 0; i < 8; ++i) {
      EXPECT_EQ(f.A[i], i < c.n1);
      EXPECT_EQ(f.B[i], i < c.n2);
      for (int k = 1; k <= 8; ++k) {
        EXPECT_EQ(f.array(k)[i].visible, k <= c.n2 && i < c.n1);
        shown += f.array(k)[i].visible;
      }
    }
    EXPECT_EQ(shown, c.n1 * c.n2);
    EXPECT_EQ(f.A8[7].text, "7");
  }
  JuegosNFields vacio;
  vacio.NDecB = -1;  // an empty combo is no number
  EXPECT_EQ(errorDe([&] { rediseñar(vacio); }), err::TypeMismatch);
}

TEST(JuegosN, NuevoResetsNothing) {
  JuegosNFields f = cuadrado({{"1", "2", "3"}, {"4", "5", "6"}, {"7", "8", "9"}});
  f.Título = "Mío";
  nuevo(f);
  EXPECT_EQ(f.Título, "Mío");
  EXPECT_EQ(f.NDecA, 2);
  EXPECT_EQ(f.A3[2].text, "9");
  EXPECT_TRUE(f.A3[2].visible);
}

TEST(JuegosN, ChecksStopAtTheFirstBadVisibleCellInReadOrder) {
  const std::string incompleta = "Debe completar la tabla de resultados";
  const std::string rango =
      "Los valores de los resultados no son correctos, deben estar comprendidos entre -9999999 "
      "y 9999999";
  struct Case {
    std::vector<std::pair<std::string, std::string>> edits;  // cell name, text
    std::string message, focus;
  } cases[] = {
      {{{"A2(1)", ""}}, incompleta, "A2(1)"},
      {{{"A1(2)", "abc"}}, incompleta, "A1(2)"},
      {{{"A3(0)", "-10000000"}}, rango, "A3(0)"},
      {{{"A1(1)", "10000000"}}, rango, "A1(1)"},
      // Element 0 of every array is read before element 1 of any.
      {{{"A1(1)", "x"}, {"A3(0)", "y"}}, incompleta, "A3(0)"},
      {{{"A2(2)", "1e8"}, {"A3(2)", "z"}}, rango, "A2(2)"},
      {{{"A1(0)", "-9999999"}, {"A3(2)", "9999999"}, {"A2(1)", "2.5"}}, "", ""},
  };
  for (const auto& c : cases) {
    JuegosNFields f = cuadrado({{"1", "2", "3"}, {"4", "5", "6"}, {"7", "8", "9"}});
    for (const auto& [name, text] : c.edits)
      f.array(name[1] - '0')[std::size_t(name[3] - '0')].text = text;
    const Messages m = check(f);
    if (c.message.empty()) {
      EXPECT_TRUE(m.empty());
      continue;
    }
    ASSERT_EQ(m.size(), 1u) << c.focus;
    EXPECT_EQ(m[0], (Message{c.message, c.focus}));
  }
}

TEST(JuegosN, HiddenCellsAreNeitherCheckedNorRead) {
  JuegosNFields f = cuadrado({{"1", "2"}, {"3", "4"}});
  f.A1[2].text = "x";
  f.A3[0].text = "y";
  EXPECT_TRUE(check(f).empty());
  EXPECT_EQ(leerTabla(f), (Tabla{{1, 2}, {3, 4}}));
}

TEST(JuegosN, MorePlayerTwoStrategiesEndInASubscriptError) {
  // The read reaches A3(0) for Tabla(2, 0), beyond player 1's two rows.
  JuegosNFields f = juego(2, 3, {{"1", "2"}, {"3", "4"}, {"5", "6"}});
  EXPECT_EQ(errorDe([&] { check(f); }), err::Subscript);
  // A bad cell met before that cell is still told.
  f.A2[0].text = "";
  EXPECT_EQ(check(f), (Messages{{"Debe completar la tabla de resultados", "A2(0)"}}));
}

TEST(JuegosN, MorePlayerOneStrategiesLeaveRowsUnreadAsZero) {
  JuegosNFields f = juego(3, 2, {{"1", "2", "x"}, {"3", "4", "y"}});
  EXPECT_TRUE(f.A1[2].visible);
  EXPECT_TRUE(check(f).empty());
  EXPECT_EQ(leerTabla(f), (Tabla{{1, 2}, {3, 4}, {0, 0}}));
}

TEST(JuegosN, RunTimeErrorsOfDegenerateShapes) {
  struct Case { const char* name; JuegosNFields f; int error; } cases[] = {
      // One column: the search finds column 0, whose removal reads column 1.
      {"one column", juego(2, 1, {{"1", "2"}}), err::Subscript},
      {"one by one", juego(1, 1, {{"5"}}), err::Subscript},
      {"empty combo", [] { JuegosNFields f; f.NDecA = -1; return f; }(), err::TypeMismatch},
      // A visible cell beyond the combos' shape, as a file may leave it.
      {"stray cell", [] { JuegosNFields f; f.A1[1].text = f.A2[0].text = f.A2[1].text = "1";
                          f.A1[0].text = "1"; f.A5[0] = {"1", true}; return f; }(),
       err::Subscript},
  };
  for (auto& c : cases)
    EXPECT_EQ(errorDe([&] { solve(c.f); }), c.error) << c.name;
}

TEST(JuegosN, SingleEliminationPass) {
  struct Case {
    const char* name;
    Tabla tabla, reducida;
    int ultimaFila, ultimaColumna;
  } cases[] = {
      {"2x2: one strict row removes column 0, then the row search runs on one column",
       {{1, 2}, {3, 3}}, {{3, 0}, {0, 0}}, 0, 0},
      {"equal lines count nothing", {{2, 2}, {2, 2}}, {{2, 2}, {2, 2}}, 1, 1},
      {"found at b = 1: the left neighbour goes; then row 0 goes",
       {{8, 1, 6}, {7, 2, 8}, {8, 9, 1}}, {{2, 8, 0}, {9, 1, 0}, {0, 0, 0}}, 1, 1},
      {"all three rows strict is not the last index: nothing goes",
       {{1, 2, 0}, {1, 2, 0}, {1, 2, 0}}, {{1, 2, 0}, {1, 2, 0}, {1, 2, 0}}, 2, 2},
      {"the last row meets row 0 in the last column only",
       {{3, 4}, {1, 4}}, {{3, 4}, {1, 4}}, 1, 1},
      {"the last row smaller in the last column: row 0, its left neighbour cyclically, goes",
       {{3, 5}, {1, 4}}, {{1, 4}, {0, 0}}, 0, 1},
      {"the last column meets column 0: found at b = 1, column 0 goes",
       {{5, 1}, {3, 3}}, {{3, 0}, {0, 0}}, 0, 0},
      {"at most one column and one row, even when more are dominated",
       {{1, 2, 3, 4}, {1, 2, 3, 4}, {1, 2, 3, 4}, {9, 5, 5, 9}},
       {{2, 3, 4, 0}, {2, 3, 4, 0}, {5, 5, 9, 0}, {0, 0, 0, 0}}, 2, 2},
  };
  for (const auto& c : cases) {
    const Reduccion r = reducir(c.tabla);
    EXPECT_EQ(r.Reducida, c.reducida) << c.name;
    EXPECT_EQ(r.UltimaFila, c.ultimaFila) << c.name;
    EXPECT_EQ(r.UltimaColumna, c.ultimaColumna) << c.name;
  }
}

TEST(JuegosN, SaddlePointsOverTheTableAsTyped) {
  using Puntos = std::vector<std::pair<int, int>>;
  struct Case {
    const char* name;
    std::vector<std::vector<std::string>> tabla;
    std::string maximin, minimax, soluciones;
    Puntos puntos;
  } cases[] = {
      {"one", {{"5", "4", "2"}, {"9", "6", "3"}, {"7", "6", "2"}}, " 3", " 3", "1", {{1, 2}}},
      {"none", {{"8", "1", "6"}, {"7", "2", "8"}, {"8", "9", "1"}}, " 2", " 8", "0", {}},
      {"four, three kept",
       {{"1.5", "1.5"}, {"1.5", "1.5"}}, " 1.5", " 1.5", "3", {{0, 0}, {0, 1}, {1, 0}}},
      // Row and column extremes compare in single precision, the cell as a double.
      {"tenths", {{".1", ".1"}, {".1", ".1"}}, " .1", " .1", "3", {{0, 0}, {0, 1}, {1, 0}}},
      {"eight digits: equal texts, no saddle point",
       {{"1.2345678", "1.2345678"}, {"1.2345678", "1.2345678"}}, " 1.234568", " 1.234568", "0",
       {}},
      {"negative", {{"-4", "-2"}, {"-3", "-1"}}, "-3", "-3", "1", {{1, 0}}},
      // The reduced table's indices are used on the whole table: the row that
      // held the true saddle point was shifted, and a row beyond the reduced
      // ones has its minimum left at 0.
      {"shifted", {{"3", "5"}, {"1", "4"}}, " 1", " 1", "0", {}},
      {"extremes left at zero", {{"0", "0"}, {"-1", "0"}}, " 0", " 0", "3",
       {{0, 0}, {0, 1}, {1, 1}}},
  };
  for (const auto& c : cases) {
    const JuegosNResults r = solve(cuadrado(c.tabla));
    EXPECT_EQ(r.maximin, c.maximin) << c.name;
    EXPECT_EQ(r.minimax, c.minimax) << c.name;
    ASSERT_EQ(r.soluciones, c.soluciones) << c.name;
    for (std::size_t k = 0; k < c.puntos.size(); ++k)
      EXPECT_EQ(r.Solucion[k], c.puntos[k]) << c.name << " " << k;
  }
}

TEST(JuegosN, ReportOfTwoSaddlePointsAndOfNegativeValues) {
  JuegosNFields f = cuadrado({{"-3", "-3"}, {"-2", "-2"}});
  f.Título = "Dos";
  const std::string text = renderText(report(f, solve(f)));
  const std::string expected =
      "              SOLUCIÓN 1\n"
      "               \n"
      "              J1 juega A 2 y J2 juega B 1 \n"
      "              obteniendo un resultado: ( -2 ,  2 )\n"
      "               \n"
      "              SOLUCIÓN 2\n"
      "               \n"
      "              J1 juega A 2 y J2 juega B 2 \n"
      "              obteniendo un resultado: ( -2 ,  2 )\n";
  ASSERT_GE(text.size(), expected.size());
  EXPECT_EQ(text.substr(text.size() - expected.size()), expected);
  EXPECT_EQ(text.find("SOLUCIÓN 3"), std::string::npos);
  EXPECT_NE(text.find("Solución al problema: Dos\n"), std::string::npos);

  JuegosNFields cero = cuadrado({{"-1", "-1"}, {"0", "0"}});
  EXPECT_NE(renderText(report(cero, solve(cero))).find("(  0 ,  0 )"), std::string::npos);
}

TEST(JuegosN, PageDiffersInRuleAndWording) {
  JuegosNFields f = cuadrado({{"8", "1", "6"}, {"7", "2", "8"}, {"8", "9", "1"}});
  const JuegosNResults r = solve(f);
  const std::string screen = renderText(report(f, r)), page = renderText(printout(f, r));
  EXPECT_NE(page.find("JUEGOS CON N JUGADORES \n"), std::string::npos);
  EXPECT_NE(page.find(std::string(64, '_') + " \n"), std::string::npos);
  EXPECT_EQ(page.find(std::string(65, '_')), std::string::npos);
  EXPECT_NE(screen.find(std::string(74, '_') + " \n"), std::string::npos);
  EXPECT_NE(page.find("número de estrategias del J1:"), std::string::npos);
  EXPECT_NE(page.find("puras\n"), std::string::npos);
  EXPECT_NE(screen.find("puras.\n"), std::string::npos);
  EXPECT_NE(page.find("se debe comprobar"), std::string::npos);
  EXPECT_NE(screen.find("Se debe comprobar"), std::string::npos);
}

TEST(JuegosN, FileHasVisibilityBeforeTextAndRoundTrips) {
  JuegosNFields f = juego(3, 2, {{"1", "2", "3"}, {"4", "5", "6"}});
  f.Título = "Año";
  f.A8[7].text = "oculto";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string& bytes = out.bytes();
  const std::string head =
      "\"A\xF1o\"\r\n2\r\n1\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n\"1\"\r\n#TRUE#\r\n\"4\"\r\n#FALSE#\r\n";
  EXPECT_EQ(bytes.substr(0, head.size()), head);
  int lines = 0;
  for (char c : bytes) lines += c == '\n';
  EXPECT_EQ(lines, 3 + 8 * (2 + 16));
  EXPECT_NE(bytes.find("#FALSE#\r\n\"oculto\"\r\n"), std::string::npos);

  JuegosNFields back;
  ProblemFile in = ProblemFile::forReading(bytes);
  exchange(in, back);
  EXPECT_EQ(back.Título, "Año");
  EXPECT_EQ(back.NDecA, 2);
  EXPECT_EQ(back.NDecB, 1);
  EXPECT_EQ(back.A, f.A);
  EXPECT_EQ(back.B, f.B);
  for (int k = 1; k <= 8; ++k)
    for (int i = 0; i < 8; ++i) {
      EXPECT_EQ(back.array(k)[i].text, f.array(k)[i].text);
      EXPECT_EQ(back.array(k)[i].visible, f.array(k)[i].visible);
    }
}

TEST(JuegosN, ReadingStopsAtAnIndexTheComboLacks) {
  struct Case { std::string second, third; int NDecA, NDecB; } cases[] = {
      {"8", "1", 1, 1},    // stops at once: nothing after the title is stored
      {"3", "-2", 3, 1},   // NDecA stored, NDecB kept
      {"-1", "7", -1, 7},  // an empty combo reads well
  };
  for (const auto& c : cases) {
    JuegosNFields f;
    ProblemFile in = ProblemFile::forReading("\"T\"\r\n" + c.second + "\r\n" + c.third + "\r\n");
    try {
      exchange(in, f);
    } catch (const ReadFailed&) {
    }
    EXPECT_EQ(f.Título, "T");
    EXPECT_EQ(f.NDecA, c.NDecA) << c.second;
    EXPECT_EQ(f.NDecB, c.NDecB) << c.third;
  }
}

}  // namespace
}  // namespace vorel::games
