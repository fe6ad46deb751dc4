#include "linear_programming/asignacion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <vector>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::linear_programming {
namespace {

// Costs as typed after RediseñarTabla, from "5 3 | 3 5": a row per individual.
AsignacionFields problem(const std::string& text) {
  const auto rows = testing::tableRows(text);
  AsignacionFields f;
  f.NumIndividuos = int(rows.size()) - 1;
  f.NumTareas = int(rows[0].size()) - 1;
  rediseñar(f);
  for (std::size_t i = 0; i < rows.size(); ++i)
    for (std::size_t j = 0; j < rows[i].size(); ++j) f.C[j][i].text = rows[i][j];
  return f;
}

// The minimum, then the column of each row in each kept table; a table
// beyond the number kept must be empty.
std::string kept(const AsignacionResults& r) {
  std::ostringstream out;
  out << r.minimo << " =";
  for (int k = 0; k < 3; ++k) {
    if (k >= r.numSoluciones) {
      if (r.Sol[k] != AsignacionTabla{}) out << " / not cleared";
      continue;
    }
    if (k > 0) out << " /";
    for (int i = 0; i < r.N; ++i)
      for (int j = 0; j < r.N; ++j)
        if (r.Sol[k][i][j] == 1) out << " " << j;
  }
  return out.str();
}

void expectShape(const AsignacionFields& f, int individuos, int tareas) {
  for (int i = 0; i < 8; ++i)
    for (int j = 0; j < 8; ++j) EXPECT_EQ(f.C[j][i].visible, i < individuos && j < tareas);
  for (int k = 0; k < 7; ++k) {
    EXPECT_EQ(f.LblIndividuos[k], k < individuos);
    EXPECT_EQ(f.LblTareas[k], k < tareas);
  }
}

TEST(Asignacion, RediseñarShowsTheChosenTableAndNuevoBringsBackTheDefault) {
  AsignacionFields f;
  expectShape(f, 2, 2);
  f.C[0][0].text = "9";
  f.NumIndividuos = 4;
  f.NumTareas = 2;
  rediseñar(f);
  expectShape(f, 5, 3);
  EXPECT_EQ(f.C[0][0].text, "9");
  f.Título = "Mío";
  nuevo(f);
  expectShape(f, 2, 2);
  EXPECT_EQ(f.Título, "Mío");
  EXPECT_EQ(f.C[0][0].text, "");
  EXPECT_EQ(f.NumTareas, 1);
}

TEST(Asignacion, CheckTellsEveryBadCellWithItsColumnsWording) {
  AsignacionFields f =
      problem("1 2 3 4 5 6 7 | _ x 1e9 -1e9 _ _ _ | 999999999 -999999999 1,5 0 1000000000 a b");
  f.C[3][5].text = "hidden";
  const std::string upper = "Debe completar la tabla de costes de Asignación";
  const std::string lower = "Debe completar la tabla de costes de asignación";
  const std::string range =
      "El valor de los costes de asignación no es correcto, debe introducir un valor comprendido "
      "entre 0 y 999999999";
  EXPECT_EQ(check(f), (Messages{{upper, "C1(1)"},
                                {upper, "C2(1)"},
                                {range, "C3(1)"},
                                {range, "C4(1)"},
                                {upper, "C5(1)"},
                                {lower, "C6(1)"},
                                {lower + " ", "C7(1)"},
                                {range, "C5(2)"},
                                {lower, "C6(2)"},
                                {lower + " ", "C7(2)"}}));
  EXPECT_TRUE(check(problem("-999999999 0 | 999999999 2.5")).empty());
}

TEST(Asignacion, KeepsUpToThreeCheapestInLexicalOrder) {
  // Three of six equal optima, two optima and the added row or column of a
  // non-square table are solved in examples/asignacion.
  const std::pair<const char*, const char*> cases[] = {
      // Ties at 2 fill the three tables; the last permutation, at 0, clears them.
      {"1 1 1 0 | 1 1 0 1 | 1 0 1 1 | 0 1 1 1", "0 = 3 2 1 0"},
      {"7", "7 = 0"},
      {"-5 2 | 3 -1", "-6 = 0 1"},
  };
  for (const auto& [costs, expected] : cases) EXPECT_EQ(kept(solve(problem(costs))), expected);
}

TEST(Asignacion, OnlyTheMovesThatExistAreOffered) {
  struct Case {
    int count, page;
    AsignacionComandos offered;
  } cases[] = {
      {0, 1, {}},
      {1, 1, {}},
      {2, 1, {.forward1 = true}},
      {2, 2, {.Back1 = true}},
      {3, 1, {.forward1 = true}},
      {3, 2, {.forward2 = true, .Back1 = true}},
      {3, 3, {.back2 = true}},
  };
  for (const Case& c : cases)
    EXPECT_EQ(comandos(c.count, c.page), c.offered) << c.count << " " << c.page;
}

TEST(Asignacion, BrowsingRepaintsOneSolutionPerPage) {
  const AsignacionFields f = problem("4 4 4 | 4 4 4 | 4 4 4");
  const AsignacionResults r = solve(f);
  const std::string z(14, ' '), blank = z + " \n";
  const std::string pages[] = {
      "SOLUCIÓN 2\n" + blank + z + "Individuo 1                 Tarea 1 \n" + z +
          "Individuo 2                 Tarea 3 \n" + z + "Individuo 3                 Tarea 2 \n",
      "SOLUCIÓN 3\n" + blank + z + "Individuo 1                 Tarea 2 \n" + z +
          "Individuo 2                 Tarea 1 \n" + z + "Individuo 3                 Tarea 3 \n"};
  const std::string total = blank + z + "Coste Total:                 12 unidades monetarias\n";
  for (int k = 2; k <= 3; ++k) {
    const std::string page = renderText(report(f, r, k));
    EXPECT_TRUE(page.ends_with(blank + z + pages[k - 2] + total)) << page;
    EXPECT_EQ(page.find("SOLUCI"), page.rfind("SOLUCI"));
  }
}

TEST(Asignacion, EmptySelectorsFromAFileGiveNoSolution) {
  AsignacionFields f;
  f.NumIndividuos = f.NumTareas = -1;
  const AsignacionResults r = solve(f);
  EXPECT_EQ(r.numSoluciones, 0);
  EXPECT_NE(renderText(report(f, r)).find("Coste Total:                 0 unidades"),
            std::string::npos);
}

TEST(Asignacion, HugeCellsOverflow) {
  try {
    solve(problem("1.7e308 2 | 3 1.7e308"));
    ADD_FAILURE() << "no overflow";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number(), err::Overflow);
  }
}

TEST(Asignacion, FileItemsInOrderAndABadListIndexEndsTheRead) {
  AsignacionFields f = problem("1 2 3 | 4 5 6");
  f.Título = "Tareas";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string bytes = out.bytes();
  const std::string start = "\"Tareas\"\r\n1\r\n2\r\n\"1\"\r\n#TRUE#\r\n\"2\"\r\n#TRUE#\r\n";
  EXPECT_EQ(bytes.substr(0, start.size()), start);
  // The headings in pairs, individual then task: the third shows a task only.
  const std::string end = "#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n";
  EXPECT_EQ(bytes.substr(bytes.size() - 4 * 2 * 9 - end.size(), end.size()), end);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 3 + 8 * 8 * 2 + 7 * 2);

  std::string bad = bytes;
  bad.replace(bad.find("\r\n2\r\n"), 5, "\r\n9\r\n");
  AsignacionFields half;
  ProblemFile read = ProblemFile::forReading(bad);
  EXPECT_THROW(exchange(read, half), ReadFailed);
  EXPECT_EQ(half.NumIndividuos, 1);
  EXPECT_EQ(half.NumTareas, 1);
}

}  // namespace
}  // namespace vorel::linear_programming
