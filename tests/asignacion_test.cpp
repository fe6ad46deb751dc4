#include "linear_programming/asignacion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

#include "frame/arith.h"

namespace vorel::linear_programming {
namespace {

using Rows = std::vector<std::vector<std::string>>;

// Costs by individual, as typed after RediseñarTabla.
AsignacionFields problem(const Rows& costs) {
  AsignacionFields f;
  f.NumIndividuos = int(costs.size()) - 1;
  f.NumTareas = int(costs[0].size()) - 1;
  rediseñar(f);
  for (std::size_t i = 0; i < costs.size(); ++i)
    for (std::size_t j = 0; j < costs[i].size(); ++j) f.C[j][i].text = costs[i][j];
  return f;
}

// The column of each row in a kept table.
std::vector<int> columns(const AsignacionResults& r, int k) {
  std::vector<int> out;
  for (int i = 0; i < r.N; ++i)
    for (int j = 0; j < r.N; ++j)
      if (r.Sol[k][i][j] == 1) out.push_back(j);
  return out;
}

TEST(Asignacion, RediseñarShowsTheChosenTableAndNuevoBringsBackTheDefault) {
  AsignacionFields f;
  EXPECT_TRUE(f.C[1][1].visible);
  EXPECT_FALSE(f.C[2][0].visible);
  f.C[0][0].text = "9";
  f.NumIndividuos = 4;
  f.NumTareas = 2;
  rediseñar(f);
  for (int i = 0; i < 8; ++i)
    for (int j = 0; j < 8; ++j) EXPECT_EQ(f.C[j][i].visible, i < 5 && j < 3);
  for (int k = 0; k < 7; ++k) {
    EXPECT_EQ(f.LblIndividuos[k], k < 5);
    EXPECT_EQ(f.LblTareas[k], k < 3);
  }
  EXPECT_EQ(f.C[0][0].text, "9");
  EXPECT_EQ(asignacionHeading(false, 4), "Individuo 5");
  EXPECT_EQ(asignacionHeading(true, 0), "Tarea 1");
  f.Título = "Mío";
  nuevo(f);
  EXPECT_EQ(f.Título, "Mío");
  EXPECT_EQ(f.C[0][0].text, "");
  EXPECT_EQ(f.NumTareas, 1);
  EXPECT_FALSE(f.C[2][0].visible);
}

TEST(Asignacion, CheckTellsEveryBadCellWithItsColumnsWording) {
  AsignacionFields f = problem({{"1", "2", "3", "4", "5", "6", "7"},
                                {"", "x", "1e9", "-1e9", "", "", ""},
                                {"999999999", "-999999999", "1,5", "0", "1000000000", "a", "b"}});
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
  EXPECT_TRUE(check(problem({{"-999999999", "0"}, {"999999999", "2.5"}})).empty());
}

TEST(Asignacion, KeepsUpToThreeCheapestInLexicalOrder) {
  struct Case {
    const char* name;
    Rows costs;
    int count;
    double minimo;
    std::vector<std::vector<int>> sols;
  } cases[] = {
      {"all equal",
       {{"4", "4", "4"}, {"4", "4", "4"}, {"4", "4", "4"}},
       3,
       12,
       {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}}},
      {"two optima",
       {{"5", "3", "4"}, {"3", "5", "4"}, {"4", "4", "9"}},
       2,
       11,
       {{1, 2, 0}, {2, 0, 1}}},
      // Ties at 2 fill the three tables; the last permutation, at 0, clears them.
      {"ties then lower",
       {{"1", "1", "1", "0"}, {"1", "1", "0", "1"}, {"1", "0", "1", "1"}, {"0", "1", "1", "1"}},
       1,
       0,
       {{3, 2, 1, 0}}},
      {"one", {{"7"}}, 1, 7, {{0}}},
      {"negative", {{"-5", "2"}, {"3", "-1"}}, 1, -6, {{0, 1}}},
      // Three individuals, two tasks: the added column is "Sin tarea".
      {"more individuals", {{"5", "8"}, {"3", "9"}, {"7", "2"}}, 1, 5, {{2, 0, 1}}},
      // Two individuals, three tasks: the added row is a task not assigned.
      {"more tasks", {{"6", "4", "9"}, {"5", "8", "3"}}, 1, 7, {{1, 2, 0}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const AsignacionResults r = solve(problem(c.costs));
    EXPECT_EQ(r.numSoluciones, c.count);
    EXPECT_EQ(r.minimo, c.minimo);
    for (int k = 0; k < 3; ++k) {
      if (k < c.count)
        EXPECT_EQ(columns(r, k), c.sols[k]);
      else
        EXPECT_EQ(r.Sol[k], AsignacionTabla{});
    }
  }
}

TEST(Asignacion, AgreesWithAnOrderedSearchOnRandomTables) {
  std::mt19937 random(2024);
  for (int trial = 0; trial < 60; ++trial) {
    const int individuos = 1 + int(random() % 7), tareas = 1 + int(random() % 7);
    Rows costs(individuos, std::vector<std::string>(tareas));
    for (auto& row : costs)
      for (auto& cell : row) cell = std::to_string(int(random() % 6));  // many ties
    const AsignacionResults r = solve(problem(costs));
    const int N = std::max(individuos, tareas);
    std::vector<int> p(N);
    std::iota(p.begin(), p.end(), 0);
    std::vector<std::vector<int>> best;
    double minimo = 0;
    do {
      double total = 0;
      for (int i = 0; i < N; ++i)
        total += i < individuos && p[i] < tareas ? std::stod(costs[i][p[i]]) : 0;
      if (best.empty() || total < minimo) {
        minimo = total;
        best = {p};
      } else if (total == minimo && best.size() < 3) {
        best.push_back(p);
      }
    } while (std::next_permutation(p.begin(), p.end()));
    ASSERT_EQ(r.numSoluciones, int(best.size())) << trial;
    EXPECT_EQ(r.minimo, minimo);
    for (std::size_t k = 0; k < best.size(); ++k) EXPECT_EQ(columns(r, int(k)), best[k]);
  }
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

const std::string kBlank = "               \n";
std::string head(const std::string& title, const std::string& individuos, const std::string& tareas,
                 const std::string& count) {
  return "              Solución al problema:  " + title +
         "\n"
         "              " +
         std::string(74, '_') + "  \n" + kBlank +
         "              Número de individuos:                     " + individuos +
         "\n"
         "              Número de tareas:                         " +
         tareas + "\n" + kBlank + "              " + std::string(74, '_') + "  \n" + kBlank +
         "              Número de soluciones:       " + count + "\n" + kBlank;
}

TEST(Asignacion, BrowsingRepaintsOneSolutionPerPage) {
  AsignacionFields f = problem({{"4", "4", "4"}, {"4", "4", "4"}, {"4", "4", "4"}});
  f.Título = "Iguales";
  const AsignacionResults r = solve(f);
  const std::string lists[] = {
      "              Individuo 1                 Tarea 1 \n"
      "              Individuo 2                 Tarea 2 \n"
      "              Individuo 3                 Tarea 3 \n",
      "              Individuo 1                 Tarea 1 \n"
      "              Individuo 2                 Tarea 3 \n"
      "              Individuo 3                 Tarea 2 \n",
      "              Individuo 1                 Tarea 2 \n"
      "              Individuo 2                 Tarea 1 \n"
      "              Individuo 3                 Tarea 3 \n",
  };
  const std::string total = "              Coste Total:                 12 unidades monetarias\n";
  std::string page;
  for (int k = 1; k <= 3; ++k) {
    const std::string block =
        "              SOLUCIÓN " + std::to_string(k) + "\n" + kBlank + lists[k - 1] + kBlank;
    EXPECT_EQ(renderText(report(f, r, k)),
              kBlank + kBlank + kBlank + head("Iguales", "3", "3", " 3") + block + total);
    page += block;
  }
  EXPECT_EQ(renderText(printout(f, r)),
            kBlank + kBlank + kBlank + kBlank + kBlank +
                "                            PROBLEMA DE ASIGNACIÓN \n" + kBlank + kBlank + kBlank +
                kBlank + kBlank + head("Iguales", "3", "3", " 3") + page + total);
}

TEST(Asignacion, EmptySelectorsFromAFileGiveNoSolution) {
  AsignacionFields f;
  f.NumIndividuos = -1;
  f.NumTareas = -1;
  const AsignacionResults r = solve(f);
  EXPECT_EQ(r.numSoluciones, 0);
  EXPECT_EQ(comandos(r.numSoluciones, 1), AsignacionComandos{});
  EXPECT_NE(renderText(report(f, r)).find("Coste Total:                 0 unidades"),
            std::string::npos);
}

TEST(Asignacion, HugeCellsOverflow) {
  AsignacionFields f = problem({{"1.7e308", "2"}, {"3", "1.7e308"}});
  EXPECT_THROW(
      try { solve(f); } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number(), err::Overflow);
        throw;
      },
      RuntimeError);
}

TEST(Asignacion, FileRoundTripsAndABadListIndexEndsTheRead) {
  AsignacionFields f = problem({{"1", "2", "3"}, {"4", "5", "6"}});
  f.Título = "Tareas";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string bytes = out.bytes();
  const std::string start = "\"Tareas\"\r\n1\r\n2\r\n\"1\"\r\n#TRUE#\r\n\"2\"\r\n#TRUE#\r\n";
  EXPECT_EQ(bytes.substr(0, start.size()), start);
  const std::string end = "#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n";
  EXPECT_EQ(bytes.substr(bytes.size() - 4 * 2 * 9 - end.size(), end.size()), end);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 3 + 8 * 8 * 2 + 7 * 2);

  AsignacionFields back;
  ProblemFile in = ProblemFile::forReading(bytes);
  exchange(in, back);
  ProblemFile again = ProblemFile::forWriting();
  exchange(again, back);
  EXPECT_EQ(again.bytes(), bytes);
  EXPECT_EQ(back.C[2][1].text, "6");

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
