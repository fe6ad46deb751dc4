#include "decision/incertidumbre.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::decision {
namespace {

using Tabla = std::vector<std::vector<std::string>>;  // [alternative][state]
using Edits = std::vector<std::pair<std::string, std::string>>;

// A problem typed as a user would: choose the sizes, reshape, fill the cells.
IncertidumbreFields problema(const Tabla& resultados, const std::string& alfa = "") {
  IncertidumbreFields f;
  const int na = int(resultados.size()), ne = int(resultados[0].size());
  f.NumAlternativas = na - 1;
  f.NumEstados = ne - 1;
  EXPECT_TRUE(rediseñar(f).empty());
  for (int a = 0; a < na; ++a)
    for (int s = 0; s < ne; ++s) f.C[s][a].text = resultados[a][s];
  f.Alfa = alfa;
  return f;
}

IncertidumbreFields libro() {
  return problema({{"20", "12", "8", "4"},
                   {"16", "14", "10", "6"},
                   {"12", "12", "12", "6"},
                   {"24", "10", "2", "0"}},
                  "0.4");
}

// The fields with some texts retyped: Alfa or a cell Cj(i).
IncertidumbreFields editado(IncertidumbreFields f, const Edits& edits) {
  for (const auto& [name, text] : edits)
    *(name == "Alfa" ? &f.Alfa : &f.C[name[1] - '1'][name[3] - '0'].text) = text;
  return f;
}

// The alternatives each criterion selects, "-" for none: "23 4 1 2 4" is Wald, Maximax,
// Savage, Laplace and Hurwicz.
std::string elegidas(const IncertidumbreResults& r) {
  std::string out;
  for (const auto* sel : {&r.SelWald, &r.SelMaximax, &r.SelSavage, &r.SelLaplace, &r.SelHurwicz}) {
    std::string una;
    for (int a = 0; a < r.na; ++a)
      if ((*sel)[a] == 1) una += std::to_string(a + 1);
    out += (out.empty() ? "" : " ") + (una.empty() ? "-" : una);
  }
  return out;
}

TEST(Incertidumbre, ChecksRunRowByRowAndTheFirstFailureEnds) {
  const std::string tabla = "Debe completar la tabla de resultados";
  const std::string rango =
      "El valor de los resultados no es correcto, debe introducir un valor comprendido entre "
      "-999999999 y 999999999";
  const std::string alfa =
      "El valor del coeficiente de optimismo no es correcto, debe introducir un valor "
      "comprendido entre 0 y 1";
  const std::pair<Edits, std::string> cases[] = {
      {{{"C1(3)", ""}}, tabla + " "},  // the first column's message ends in a blank
      {{{"C1(0)", "1000000000"}},      // and its range message has a typo
       "El valor de los resulatdos no es correcto, debe introducir un valor comprendido entre "
       "-999999999 y 999999999"},
      {{{"C4(2)", "x"}}, tabla},
      {{{"C2(1)", "-1e9"}}, rango},
      {{{"C4(0)", "x"}, {"C1(1)", ""}}, tabla},    // row before column
      {{{"C3(3)", "2e9"}, {"Alfa", "7"}}, rango},  // the table before Alfa
      {{{"Alfa", "1.5"}}, alfa},
      {{{"Alfa", "-0.01"}}, alfa},
  };
  for (const auto& [edits, message] : cases)
    EXPECT_EQ(check(editado(libro(), edits)), (Messages{{message, ""}})) << edits[0].first;
}

TEST(Incertidumbre, AlfaIsOptionalAndHiddenCellsAreNotLookedAt) {
  // Extreme values in range; texts in hidden cells C5(0) and C1(4).
  const Edits extremos = {
      {"C1(0)", "-999999999"}, {"C2(0)", "999999999"}, {"C5(0)", "x"}, {"C1(4)", "x"}};
  for (const char* alfa : {"", "abc", "0", "1", "1e-1", " .5"})
    EXPECT_TRUE(check(editado(editado(libro(), extremos), {{"Alfa", alfa}})).empty()) << alfa;
}

TEST(Incertidumbre, CriteriaSelectTheirAlternatives) {
  const Tabla dos = {{"0", "10"}, {"4", "5"}};
  const std::pair<IncertidumbreFields, const char*> cases[] = {
      // clang-format off
      {libro(), "23 4 1 2 4"},
      {problema({{"-5", "10", "2.5"}}, "0.5"), "1 1 1 1 1"},
      {problema({{"3"}, {"5"}, {"5"}}, "0"), "23 23 23 23 23"},
      // Ties are all selected; a better one later clears the earlier ones.
      {problema({{"1", "5"}, {"2", "4"}, {"1", "5"}, {"2", "4"}}, "0.5"), "24 13 1234 1234 1234"},
      {problema({{"1", "9"}, {"1", "9"}, {"2", "10"}}, "0.3"), "3 3 3 3 3"},
      // Laplace is exact: the same mean by other sums does not tie.
      {problema({{"1", "1", "1", "1", "1", "1", "1"}, {"7", "0", "0", "0", "0", "0", "0"}}, "1"),
       "1 2 2 2 1"},
      {problema({{"0.1", "0.2", "0"}, {"0.3", "0", "0"}}, ""), "12 2 1 1 -"},
      // Alfa weighs the worst result: 0 is Maximax, 1 is Wald; not numeric selects nothing.
      {problema(dos, "0"), "2 1 1 1 1"},
      {problema(dos, "0.25"), "2 1 1 1 1"},
      {problema(dos, "0.8"), "2 1 1 1 2"},
      {problema(dos, "1"), "2 1 1 1 2"},
      {problema(dos, "abc"), "2 1 1 1 -"},
      // clang-format on
  };
  for (const auto& [fields, expected] : cases) {
    ASSERT_TRUE(check(fields).empty()) << expected;
    EXPECT_EQ(elegidas(solve(fields)), expected);
  }
}

TEST(Incertidumbre, ValuesOfTheCriteria) {
  const IncertidumbreResults r = solve(libro());
  EXPECT_EQ(r.MejorEstado[0], 24);
  EXPECT_EQ(r.Arrepentimiento[2][3], 10);  // state 3, alternative 4: 12 - 2
  EXPECT_EQ(r.MaxArrepentimiento[0], 4);
  EXPECT_EQ(r.MaxArrepentimiento[2], 12);
  EXPECT_EQ(Str(r.ProbLaplace), " .25");
  EXPECT_EQ(r.ValorMedio[1], 11.5);
  EXPECT_EQ(Str(r.ValorHurwicz[0]), " 13.6");  // 0.4 of the worst, 4, and 0.6 of the best, 20
  EXPECT_EQ(Str(solve(problema({{"3"}, {"-2.5"}})).ProbLaplace), " 1");

  const IncertidumbreResults sin = solve(problema({{"5", "6"}}, "abc"));
  EXPECT_FALSE(sin.hurwicz);
  EXPECT_EQ(sin.ValorHurwicz[0], 0.0);
  EXPECT_EQ(sin.alfa, "");

  IncertidumbreFields sinCombo = libro();
  sinCombo.NumEstados = -1;
  try {
    solve(sinCombo);
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number(), err::TypeMismatch);
  }
}

TEST(Incertidumbre, ButtonsVisibleOnEachPage) {
  const std::pair<Navegacion, Botones> cases[] = {
      {{Pagina::Wald, false}, {.forward1 = true, .volver = true}},
      {{Pagina::Wald, true}, {.forward1 = true, .volver = true}},
      {{Pagina::Maximax, false}, {.Back1 = true, .forward2 = true}},
      {{Pagina::SavageLaplace, true}, {.Continuar1 = true, .Continuar2 = true}},
      {{Pagina::SavageLaplace, false}, {.NoContinuar = true}},
      {{Pagina::Hurwicz, false}, {.NoContinuar2 = true}},
  };
  for (const auto& [estado, botones] : cases)
    EXPECT_EQ(botonesVisibles(estado), botones) << int(estado.pagina);
  EXPECT_EQ(Navegacion{}, (Navegacion{Pagina::Wald, false}));  // every activation starts here
}

TEST(Incertidumbre, EachClickGoesWhereItsButtonLeads) {
  const Navegacion wald{Pagina::Wald, false}, maximax{Pagina::Maximax, false},
      conAlfa{Pagina::SavageLaplace, true}, sinAlfa{Pagina::SavageLaplace, false},
      hurwicz{Pagina::Hurwicz, false};
  struct Case {
    Navegacion desde;
    Boton boton;
    const char* alfa;
    Navegacion hasta;
  } cases[] = {
      // clang-format off
      {wald, Boton::forward1, "0.5", maximax},
      {maximax, Boton::Back1, "0.5", wald},
      {maximax, Boton::forward2, "0.5", conAlfa},
      {maximax, Boton::forward2, "abc", sinAlfa},
      {maximax, Boton::forward2, "", sinAlfa},
      {conAlfa, Boton::Continuar1, "0.5", hurwicz},
      {conAlfa, Boton::Continuar1, "abc", hurwicz},  // only the arrival on Savage tests Alfa
      {conAlfa, Boton::Continuar2, "0.5", maximax},
      {sinAlfa, Boton::NoContinuar, "", maximax},
      {hurwicz, Boton::NoContinuar2, "0.5", conAlfa},
      {hurwicz, Boton::NoContinuar2, "x", sinAlfa},  // Alfa is read at the click
      // Hidden buttons cannot be clicked.
      {wald, Boton::Back1, "0.5", wald},
      {wald, Boton::forward2, "0.5", wald},
      {maximax, Boton::forward1, "0.5", maximax},
      {sinAlfa, Boton::Continuar1, "0.5", sinAlfa},
      {conAlfa, Boton::NoContinuar, "0.5", conAlfa},
      {hurwicz, Boton::Back1, "0.5", hurwicz},
      // clang-format on
  };
  for (const Case& c : cases)
    EXPECT_EQ(pulsar(c.desde, c.boton, editado(libro(), {{"Alfa", c.alfa}})), c.hasta)
        << int(c.desde.pagina) << " " << int(c.boton) << " " << c.alfa;
}

TEST(Incertidumbre, FileItemsInOrderAndHiddenTextsTravel) {
  IncertidumbreFields f = libro();
  f.Título = "Año";
  f.C[6][6].text = "oculta";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string bytes = out.bytes();
  EXPECT_TRUE(bytes.starts_with(
      "\"A\xF1o\"\r\n3\r\n3\r\n\"0.4\"\r\n#TRUE#\r\n\"20\"\r\n#TRUE#\r\n\"12\"\r\n#TRUE#\r\n"));
  // Row 0: its state head, seven cells, then its alternative head.
  EXPECT_NE(
      bytes.find("\"4\"\r\n#TRUE#\r\n\"\"\r\n#FALSE#\r\n\"\"\r\n#FALSE#\r\n\"\"\r\n#FALSE#\r\n"
                 "#TRUE#\r\n#TRUE#\r\n\"16\""),
      std::string::npos);
  EXPECT_TRUE(bytes.ends_with("\"oculta\"\r\n#FALSE#\r\n#FALSE#\r\n"));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 4 + 7 * (1 + 14 + 1));
  IncertidumbreFields back;
  ProblemFile in = ProblemFile::forReading(bytes);
  exchange(in, back);
  EXPECT_EQ(back.C[6][6].text, "oculta");

  // A list index the combo does not have stops the read there.
  const std::string path = testing::tempPath("incertidumbre.txt");
  testing::writeBytes(path, "\"T\"\r\n1\r\n7\r\n\"0.5\"\r\n");
  IncertidumbreFields half;
  EXPECT_FALSE(openProblem(path, [&](ProblemFile& p) { exchange(p, half); }));
  EXPECT_EQ(half.Título, "T");
  EXPECT_EQ(half.NumEstados, 1);
  EXPECT_EQ(half.NumAlternativas, 3);
  EXPECT_EQ(half.Alfa, "");
}

}  // namespace
}  // namespace vorel::decision
