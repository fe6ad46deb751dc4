#include "games/juegos_n.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <tuple>

#include "frame/arith.h"

namespace vorel::games {
namespace {

using Celdas = std::vector<std::vector<std::string>>;

// A game typed as Tabla(a, b): the cell A(a+1)(b). The combos are set and
// Rediseñar applied first, so the visible cells are those of the screen.
JuegosNFields juego(int n1, int n2, const Celdas& celdas) {
  JuegosNFields f;
  f.NDecA = n1 - 1;
  f.NDecB = n2 - 1;
  rediseñar(f);
  for (std::size_t a = 0; a < celdas.size(); ++a)
    for (std::size_t b = 0; b < celdas[a].size(); ++b) f.array(int(a) + 1)[b].text = celdas[a][b];
  return f;
}
JuegosNFields cuadrado(const Celdas& celdas) {
  return juego(int(celdas.size()), int(celdas.size()), celdas);
}
const Celdas kTres = {{"1", "2", "3"}, {"4", "5", "6"}, {"7", "8", "9"}};

int errorDe(const std::function<void()>& run) {
  try {
    run();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

// The screen tests reshape through the shapes; here the rule over all cells, and the empty combo.
TEST(JuegosN, RediseñarShowsArraysUpToN2AndElementsUpToN1AndKeepsTexts) {
  JuegosNFields f;
  f.A8[7].text = "7";
  f.NDecA = 2;  // three strategies for player 1
  f.NDecB = 4;  // five for player 2
  rediseñar(f);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(f.A[i], i < 3);
    EXPECT_EQ(f.B[i], i < 5);
    for (int k = 1; k <= 8; ++k) EXPECT_EQ(f.array(k)[i].visible, k <= 5 && i < 3) << k << i;
  }
  EXPECT_EQ(f.A8[7].text, "7");
  f.NDecB = -1;  // an empty combo is no number
  EXPECT_EQ(errorDe([&] { rediseñar(f); }), err::TypeMismatch);
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
      // clang-format off
      {{{"A2(1)", ""}}, incompleta, "A2(1)"},
      {{{"A1(2)", "abc"}}, incompleta, "A1(2)"},
      {{{"A3(0)", "-10000000"}}, rango, "A3(0)"},
      {{{"A1(1)", "10000000"}}, rango, "A1(1)"},
      // Element 0 of every array is read before element 1 of any.
      {{{"A1(1)", "x"}, {"A3(0)", "y"}}, incompleta, "A3(0)"},
      {{{"A2(2)", "1e8"}, {"A3(2)", "z"}}, rango, "A2(2)"},
      // clang-format on
  };
  for (const auto& c : cases) {
    JuegosNFields f = cuadrado(kTres);
    for (const auto& [name, text] : c.edits) f.array(name[1] - '0')[name[3] - '0'].text = text;
    EXPECT_EQ(check(f), (Messages{{c.message, c.focus}}));
  }
  EXPECT_TRUE(
      check(cuadrado({{"-9999999", "2", "3"}, {"4", "2.5", "6"}, {"7", "8", "9999999"}})).empty());
}

TEST(JuegosN, MorePlayerTwoStrategiesEndInASubscriptError) {
  // The read reaches A3(0) for Tabla(2, 0), beyond player 1's two rows; a bad cell met before
  // that one is still told.
  JuegosNFields f = juego(2, 3, {{"1", "2"}, {"3", "4"}, {"5", "6"}});
  EXPECT_EQ(errorDe([&] { check(f); }), err::Subscript);
  f.A2[0].text = "";
  EXPECT_EQ(check(f), (Messages{{"Debe completar la tabla de resultados", "A2(0)"}}));
}

TEST(JuegosN, HiddenCellsAndElementsBeyondPlayerTwosCountAreNotRead) {
  JuegosNFields f = cuadrado({{"1", "2"}, {"3", "4"}});
  f.A1[2].text = f.A3[0].text = "x";
  EXPECT_TRUE(check(f).empty());
  EXPECT_EQ(leerTabla(f), (Tabla{{1, 2}, {3, 4}}));
  // A1(2) and A2(2) are shown but not read; row A3 has no cells and stays 0.
  f = juego(3, 2, {{"1", "2", "x"}, {"3", "4", "y"}});
  EXPECT_TRUE(check(f).empty());
  EXPECT_EQ(leerTabla(f), (Tabla{{1, 2}, {3, 4}, {0, 0}}));
}

TEST(JuegosN, RunTimeErrorsOfDegenerateShapes) {
  JuegosNFields vacio, suelta;
  vacio.NDecA = -1;
  // A visible cell beyond the combos' shape, as a file may leave it.
  suelta.A1[0].text = suelta.A1[1].text = suelta.A2[0].text = suelta.A2[1].text = "1";
  suelta.A5[0] = {"1", true};
  const std::pair<JuegosNFields, int> cases[] = {
      // One column: the search finds column 0, whose removal reads column 1.
      {juego(2, 1, {{"1", "2"}}), err::Subscript},
      {juego(1, 1, {{"5"}}), err::Subscript},
      {vacio, err::TypeMismatch},
      {suelta, err::Subscript},
  };
  int n = 0;
  for (const auto& [f, error] : cases) EXPECT_EQ(errorDe([&] { solve(f); }), error) << n++;
}

TEST(JuegosN, SingleEliminationPass) {
  struct Case {
    const char* name;
    Tabla tabla, reducida;
    int ultimaFila, ultimaColumna;
  } cases[] = {
      // clang-format off
      {"a strict row removes column 0, then the row search runs on one column",
       {{1, 2}, {3, 3}}, {{3, 0}, {0, 0}}, 0, 0},
      {"equal lines count nothing", {{2, 2}, {2, 2}}, {{2, 2}, {2, 2}}, 1, 1},
      {"found at b = 1: the left neighbour goes; then row 0 goes",
       {{8, 1, 6}, {7, 2, 8}, {8, 9, 1}}, {{2, 8, 0}, {9, 1, 0}, {0, 0, 0}}, 1, 1},
      {"all three rows strict is not the last index: nothing goes",
       {{1, 2, 0}, {1, 2, 0}, {1, 2, 0}}, {{1, 2, 0}, {1, 2, 0}, {1, 2, 0}}, 2, 2},
      {"the last row meets row 0 in the last column only", {{3, 4}, {1, 4}}, {{3, 4}, {1, 4}}, 1,
       1},
      {"the last row smaller in the last column: row 0, its left neighbour cyclically, goes",
       {{3, 5}, {1, 4}}, {{1, 4}, {0, 0}}, 0, 1},
      {"the last column meets column 0: found at b = 1, column 0 goes",
       {{5, 1}, {3, 3}}, {{3, 0}, {0, 0}}, 0, 0},
      {"at most one column and one row, even when more are dominated",
       {{1, 2, 3, 4}, {1, 2, 3, 4}, {1, 2, 3, 4}, {9, 5, 5, 9}},
       {{2, 3, 4, 0}, {2, 3, 4, 0}, {5, 5, 9, 0}, {0, 0, 0, 0}}, 2, 2},
      // clang-format on
  };
  for (const auto& c : cases) {
    const Reduccion r = reducir(c.tabla);
    EXPECT_EQ(r.Reducida, c.reducida) << c.name;
    EXPECT_EQ(r.UltimaFila, c.ultimaFila) << c.name;
    EXPECT_EQ(r.UltimaColumna, c.ultimaColumna) << c.name;
  }
}

TEST(JuegosN, SaddlePointsOverTheTableAsTyped) {
  struct Case {
    Celdas tabla;
    std::string maximin, minimax, soluciones;
    std::vector<std::pair<int, int>> puntos;
  } cases[] = {
      // clang-format off
      {{{"5", "4", "2"}, {"9", "6", "3"}, {"7", "6", "2"}}, " 3", " 3", "1", {{1, 2}}},
      {{{"8", "1", "6"}, {"7", "2", "8"}, {"8", "9", "1"}}, " 2", " 8", "0", {}},
      {{{"1.5", "1.5"}, {"1.5", "1.5"}}, " 1.5", " 1.5", "3", {{0, 0}, {0, 1}, {1, 0}}},  // 3 of 4
      // Row and column extremes compare in single precision, the cell as a double.
      {{{".1", ".1"}, {".1", ".1"}}, " .1", " .1", "3", {{0, 0}, {0, 1}, {1, 0}}},
      {{{"1.2345678", "1.2345678"}, {"1.2345678", "1.2345678"}}, " 1.234568", " 1.234568", "0", {}},
      {{{"-4", "-2"}, {"-3", "-1"}}, "-3", "-3", "1", {{1, 0}}},
      // The reduced table's indices are used on the whole table: the row that held the true
      // saddle point was shifted, and a row beyond the reduced ones has its minimum left at 0.
      {{{"3", "5"}, {"1", "4"}}, " 1", " 1", "0", {}},
      {{{"0", "0"}, {"-1", "0"}}, " 0", " 0", "3", {{0, 0}, {0, 1}, {1, 1}}},
      // clang-format on
  };
  for (const auto& c : cases) {
    const JuegosNResults r = solve(cuadrado(c.tabla));
    SCOPED_TRACE(c.tabla[0][0] + " " + c.tabla[0][1]);
    EXPECT_EQ(r.maximin, c.maximin);
    EXPECT_EQ(r.minimax, c.minimax);
    ASSERT_EQ(r.soluciones, c.soluciones);
    EXPECT_TRUE(std::equal(c.puntos.begin(), c.puntos.end(), r.Solucion.begin()));
  }
}

TEST(JuegosN, ReportOfNegativeAndZeroValues) {
  for (auto [celdas, resultado] : {std::pair{Celdas{{"-3", "-3"}, {"-2", "-2"}}, "( -2 ,  2 )"},
                                   {Celdas{{"-1", "-1"}, {"0", "0"}}, "(  0 ,  0 )"}}) {
    const JuegosNFields f = cuadrado(celdas);
    const std::string text = renderText(report(f, solve(f)));
    EXPECT_NE(text.find("obteniendo un resultado: " + std::string(resultado) + "\n"),
              std::string::npos)
        << text;
  }
}

TEST(JuegosN, FileHasVisibilityBeforeTextAndHiddenTextsTravel) {
  JuegosNFields f = juego(3, 2, {{"1", "2", "3"}, {"4", "5", "6"}});
  f.Título = "Año";
  f.A8[7].text = "oculto";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string& bytes = out.bytes();
  EXPECT_TRUE(
      bytes.starts_with("\"A\xF1o\"\r\n2\r\n1\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n\"1\"\r\n#TRUE#"
                        "\r\n\"4\"\r\n#FALSE#\r\n"));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 3 + 8 * (2 + 16));
  EXPECT_TRUE(bytes.ends_with("#FALSE#\r\n\"oculto\"\r\n"));
  JuegosNFields back;
  ProblemFile in = ProblemFile::forReading(bytes);
  exchange(in, back);
  EXPECT_EQ(back.A8[7].text, "oculto");
  EXPECT_EQ(back.B, f.B);
}

TEST(JuegosN, ReadingStopsAtAnIndexTheComboLacks) {
  // Second and third items; then the combos as the read left them.
  const std::tuple<const char*, const char*, int, int> cases[] = {
      {"8", "1", 1, 1},    // stops at once: nothing after the title is stored
      {"3", "-2", 3, 1},   // NDecA stored, NDecB kept
      {"-1", "7", -1, 7},  // an empty combo reads well
  };
  for (const auto& [second, third, NDecA, NDecB] : cases) {
    JuegosNFields f;
    ProblemFile in =
        ProblemFile::forReading("\"T\"\r\n" + std::string(second) + "\r\n" + third + "\r\n");
    try {
      exchange(in, f);
    } catch (const ReadFailed&) {
    }
    EXPECT_EQ(f.Título, "T");
    EXPECT_EQ(f.NDecA, NDecA) << second;
    EXPECT_EQ(f.NDecB, NDecB) << third;
  }
}

}  // namespace
}  // namespace vorel::games
