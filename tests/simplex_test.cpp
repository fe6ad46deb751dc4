#include "linear_programming/simplex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sstream>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::linear_programming {
namespace {

// A problem typed as a user would, from "max 3 5 | 1 0 <= 4 | 0 2 <= 12": the
// sense and the objective, then each row's cells, relation and right-hand
// side. "_" is a blank cell, "?" a relation not chosen.
SimplexFields problem(const std::string& text) {
  const auto rows = testing::tableRows(text);
  SimplexFields f;
  f.funcionObjetivo = rows[0][0] == "min";
  f.NumFactores = int(rows[0].size()) - 2;
  f.Numrestricciones = int(rows.size()) - 2;
  rediseñarTabla(f);
  for (std::size_t j = 1; j < rows[0].size(); ++j) f.X[j - 1][0].text = rows[0][j];
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const std::size_t n = rows[i].size() - 2;
    for (std::size_t j = 0; j < n; ++j) f.X[j][i].text = rows[i][j];
    const std::string& r = rows[i][n];
    f.restriccion[i - 1].ListIndex = r == "<=" ? 0 : r == ">=" ? 1 : r == "=" ? 2 : -1;
    f.existencias[i].text = rows[i][n + 1];
  }
  return f;
}

SimplexFields textbook() { return problem("max 3 5 | 1 0 <= 4 | 0 2 <= 12 | 3 2 <= 18"); }

// The end flags, each row's basic variable and value, the saved solution and Z.
std::string outcome(const SimplexEnd& e, const SimplexResults& s) {
  std::string out = e.ilimitado ? "ilimitado " : "";
  if (e.infactible) out += "infactible ";
  if (e.alternativa) out += "alternativa ";
  for (std::size_t i = 0; i < s.base.size(); ++i) out += s.base[i] + ":" + Str(s.bB[i]) + " ";
  if (!s.base2.empty()) out += "/ ";
  for (std::size_t i = 0; i < s.base2.size(); ++i) out += s.base2[i] + ":" + Str(s.bB2[i]) + " ";
  return out + "Z:" + Str(s.Z);
}

std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> out;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) out.push_back(line);
  return out;
}

int runTimeError(const std::function<void()>& run) {
  try {
    run();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

const std::string z(14, ' '), zz(28, ' '), zzz(42, ' ');

void expectShape(const SimplexFields& f, int n, int m) {
  for (int j = 0; j < 7; ++j)
    for (int i = 0; i < 8; ++i)
      EXPECT_EQ(f.X[j][i].visible, j < n && i <= m) << "X" << j + 1 << "(" << i << ")";
  for (int i = 1; i < 8; ++i) EXPECT_EQ(f.existencias[i].visible, i <= m) << i;
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(f.restriccion[i].visible, i < m) << i;
    EXPECT_EQ(f.Lblrestriccion[i], i < m) << i;
    EXPECT_EQ(f.LblFactores[i], i < n) << i;
  }
}

TEST(SimplexEntry, RediseñarShowsTheChosenTableAndKeepsHiddenCells) {
  expectShape(SimplexFields{}, 2, 2);
  for (auto [n, m] : {std::pair{1, 1}, {7, 7}, {3, 5}, {6, 2}}) {
    SCOPED_TRACE(::testing::Message() << n << " by " << m);
    SimplexFields f;
    f.X[6][7].text = "kept";
    f.NumFactores = n - 1;
    f.Numrestricciones = m - 1;
    rediseñarTabla(f);
    expectShape(f, n, m);
    EXPECT_EQ(f.X[6][7].text, "kept");
  }
  // With no number of variables chosen, X1(0) is hidden and cannot take focus.
  SimplexFields f;
  f.NumFactores = -1;
  EXPECT_EQ(runTimeError([&] { rediseñarTabla(f); }), err::InvalidCall);
}

TEST(SimplexEntry, NuevoBlanksAndRestoresButLeavesTheHeadingsOfIndexOne) {
  SimplexFields f = problem("min 1 | 2 = 3");
  nuevo(f);
  EXPECT_EQ(f.X[0][0].text + f.X[0][1].text + f.existencias[1].text, "");
  EXPECT_EQ(f.funcionObjetivo, 0);
  EXPECT_EQ(f.NumFactores, 1);
  EXPECT_EQ(f.restriccion[0].ListIndex, 0);
  // The cells take the 2 by 2 shape; the headings and relation of index 1,
  // hidden by the 1 by 1 table, are not shown again.
  EXPECT_TRUE(f.X[1][2].visible && f.existencias[2].visible);
  EXPECT_FALSE(f.LblFactores[1] || f.Lblrestriccion[1] || f.restriccion[1].visible);
}

TEST(SimplexEntry, ResolverChecksOnlyTheVisibleObjectiveCells) {
  const std::string fill = "Debe completar la tabla";
  const std::string range = "Debe introducir valores comprendidos entre -999999999 y 999999999";
  auto checked = [](const std::string& x1, const std::string& x2) {
    SimplexFields f = textbook();
    f.X[0][0].text = x1;
    f.X[1][0].text = x2;
    return check(f);
  };
  EXPECT_EQ(checked("", "5a"), (Messages{{fill, "X1(0)"}, {fill, "X2(0)"}}));
  EXPECT_EQ(checked("1000000000", "-1e10"), (Messages{{range, "X1(0)"}, {range, "X2(0)"}}));
  EXPECT_EQ(checked("-999999999", "999999999"), Messages{});
  EXPECT_EQ(checked("1e3", "0"), Messages{});
  // Constraint rows are never checked, nor a hidden objective cell.
  SimplexFields f = problem("max 1 1 | abc _ ? _ | 1 1 <= x");
  f.X[1][0] = {"", false};
  EXPECT_EQ(check(f), Messages{});
  // X5 and X7 are told in lower case.
  f = problem("max 1 1 1 1 _ _ _ | 1 1 1 1 1 1 1 <= 1");
  f.X[6][0].text = " ";
  const std::string lower = "debe completar la tabla";
  EXPECT_EQ(check(f), (Messages{{lower, "X5(0)"}, {fill, "X6(0)"}, {lower, "X7(0)"}}));
}

TEST(SimplexSolve, EdgeCasesEndAsTheMethodDoes) {
  // Cells beyond the selectors are ignored.
  SimplexFields hiddenCells = textbook();
  hiddenCells.X[2][0].text = "100";
  hiddenCells.X[0][4].text = "7";
  hiddenCells.existencias[4].text = "1";
  const std::pair<SimplexFields, std::string> cases[] = {
      // Rows in basis order.
      {hiddenCells, "h1: 2 X2: 6 X1: 2 Z: 36"},
      // A blank constraint cell counts as 0.
      {problem("max 3 5 | 1 _ <= 4 | _ 2 <= 12 | 3 2 <= 18"), "h1: 2 X2: 6 X1: 2 Z: 36"},
      // A ratio of 0 never leaves: a degenerate vertex shows as unbounded.
      {problem("max 1 | 1 <= 0"), "ilimitado h1: 0 Z: 0"},
      // An artificial left at 0 is infeasible, also after the extra pivot.
      {problem("min 1 | -1 = 0"), "infactible m1: 0 Z: 0"},
      {problem("min 1 1 | 1 1 = 2 | 1 1 = 2"),
       "infactible alternativa X2: 2 m2: 0 / X1: 2 m2: 0 Z: 0"},
      {problem("max 1 1 | 1 1 <= 2 | 1 1 >= 5"),
       "infactible alternativa X2: 2 m1: 3 / X1: 2 m1: 3 Z: 0"},
      // Ties go to the lowest column and the lowest row.
      {problem("max 1 1 | 1 1 <= 2 | 1 1 <= 2"), "alternativa X2: 2 h2: 0 / X1: 2 h2: 0 Z: 2"},
      // The extra pivot finds no row: unbounded although optimal.
      {problem("max 1 0 | 1 0 <= 4 | 0 -1 <= 3"),
       "ilimitado alternativa X1: 4 h2: 3 / X1: 4 h2: 3 Z: 0"},
      // A negative value stops without a flag; the stale reduced costs find an alternative.
      {problem("max 1 | 1 <= 4 | 1 <= -1"), "alternativa h1: 4 h2:-1 / X1: 4 h2:-5 Z: 0"},
      // An equality row has no slack; slacks are named after their rows.
      {problem("max 1 1 | 1 1 = 3 | 1 0 <= 2"), "alternativa X2: 3 h2: 2 / X2: 1 X1: 2 Z: 3"},
      // Values are Single.
      {problem("max 0.1 | 3 <= 1"), "X1: .3333333 Z: .03333334"},
  };
  for (const auto& [fields, expected] : cases) {
    SimplexResults s;
    const SimplexEnd end = solve(fields, s);
    EXPECT_EQ(outcome(end, s), expected);
    EXPECT_EQ(s.forwardAvailable, end.alternativa) << expected;
    EXPECT_FALSE(s.backAvailable);
    EXPECT_TRUE(s.volverAvailable);
  }
}

TEST(SimplexSolve, ColumnsAreVariablesThenSlacksThenArtificialsOfBigMCost) {
  const std::vector<std::string> names = {"X1", "X2", "h1", "h2", "m1", "m2", "", "", "", "", ""};
  const float minimise = Sng(1E+14), maximise = Sng(-99999999999999.0);
  SimplexResults s;
  solve(problem("min 2 3 | 1 1 >= 4 | 1 3 >= 6"), s);
  EXPECT_EQ(s.columna, names);
  EXPECT_EQ(s.cost, (std::vector<float>{2, 3, 0, 0, minimise, minimise, 0, 0, 0, 0, 0}));
  solve(problem("max 1 1 | 1 1 = 3 | 1 0 <= 2 | 1 0 >= 1"), s);
  EXPECT_EQ(s.columna[2] + s.columna[3] + s.columna[4] + s.columna[5], "h2h3m1m2");
  EXPECT_EQ(s.cost, (std::vector<float>{1, 1, 0, 0, maximise, maximise, 0, 0, 0, 0, 0}));
}

TEST(SimplexSolve, StepBudgetBoundsThePasses) {
  // The textbook problem takes three passes: two pivots and the optimality test.
  SimplexResults s;
  EXPECT_THROW(solve(textbook(), s, 2), DoesNotEnd);
  solve(textbook(), s, 3);
  EXPECT_EQ(Str(s.Z), " 36");
}

TEST(SimplexSolve, BigMRoundingCanCycleForEver) {
  // examples/simplex/sin-fin.txt: the reduced costs of two columns are lost in
  // the rounding of terms of the order of M; each enters in turn, and row 6
  // swaps them for ever.
  const SimplexFields f = problem(
      "max 10 0 1.5 1 | 0.5 -1 0 -0.5 >= 1 | 0.5 4 -3 -0.5 >= 5 | 7 0 1.5 2.5 = 3 | "
      "0 -2 -3 0.5 >= 3 | -0.5 -1 -3 1 = 2 | 10 3 10 0.25 <= 1");
  auto after = [&](long budget) {
    SimplexResults s;
    EXPECT_THROW(solve(f, s, budget), DoesNotEnd);
    return s;
  };
  const SimplexResults even = after(4), odd = after(5);
  EXPECT_EQ(outcome({}, after(6)), outcome({}, even));
  EXPECT_EQ(outcome({}, after(7)), outcome({}, odd));
  EXPECT_EQ(even.base.at(5), "h6");
  EXPECT_EQ(odd.base.at(5), "X2");
}

TEST(SimplexSolve, RunTimeErrorsOfThePlatform) {
  SimplexResults s;
  for (const char* text : {"max 1 | 1 <= 1e39", "max 1 | 1e400 <= 1"})
    EXPECT_EQ(runTimeError([&] { solve(problem(text), s); }), err::Overflow) << text;
  SimplexFields f = textbook();
  f.NumFactores = -1;
  EXPECT_EQ(runTimeError([&] { solve(f, s); }), err::Subscript);
  f = textbook();
  f.Numrestricciones = -1;
  EXPECT_EQ(runTimeError([&] { solve(f, s); }), err::Subscript);
}

TEST(SimplexReport, ObjectiveHeadsOfOneFourAndSevenVariablesAreIrregular) {
  const std::pair<std::string, std::string> heads[] = {
      {"1", "Z= 1 X1"},
      {"1 2 3 4", "Z = 1X1+ 2X2+ 3X3+ 4X4"},
      {"1 2 3 4 5 6 7", "Z =  1X1 +  2X2 +  3X3 +  4X4 +  5X5 +  6X6 +  7X7"}};
  for (const auto& [objective, head] : heads) {
    for (std::string sense : {"Maximizar ", "Minimizar "}) {
      SimplexFields f =
          problem((sense[1] == 'a' ? "max " : "min ") + objective + " | " + objective + " <= 1");
      SimplexResults s;
      const SimplexEnd end = solve(f, s);
      EXPECT_EQ(lines(renderText(report(f, s, end))).at(6), z + sense + head);
      EXPECT_EQ(lines(renderText(printout(f, s))).at(14), z + sense + head);
    }
  }
}

TEST(SimplexReport, CellsArePrintedAsTyped) {
  SimplexFields f = problem("max 3 5 | 1.0 _ ? _ | 0 2abc >= 12 | 3 2 = 18");
  f.existencias[1].text = " 4";
  SimplexResults s;
  const std::vector<std::string> r = lines(renderText(report(f, s, solve(f, s))));
  EXPECT_EQ(r.at(8), zzz + "1.0 X1 +  X2   4");
  EXPECT_EQ(r.at(9), zzz + "0 X1 + 2abc X2 >= 12");
  EXPECT_EQ(r.at(10), zzz + "3 X1 + 2 X2 = 18");
}

TEST(SimplexReport, UnboundedAndInfeasibleEndTheScreenButThePagePrintsTheZKept) {
  const std::pair<const char*, const char*> cases[] = {
      {"max 1 1 | 1 -1 <= 1 | -1 1 <= 2", "EL PROBLEMA ES ILIMITADO"},
      {"max 1 1 | 1 1 <= 2 | 1 1 >= 5", "EL PROBLEMA ES INFACTIBLE"},
      {"max 1 0 | 1 0 <= 4 | 0 -1 <= 3", "EL PROBLEMA ES ILIMITADO"},
  };
  // A first activation on a solvable problem leaves Z on the screen; the
  // second does not compute it, and the page prints the one kept.
  for (const auto& [text, last] : cases) {
    SCOPED_TRACE(text);
    const SimplexFields f = problem(text);
    SimplexResults s;
    solve(textbook(), s);
    const SimplexEnd end = solve(f, s);
    EXPECT_TRUE(renderText(report(f, s, end))
                    .ends_with(std::string(74, '_') + "  \n" + z + " \n" + z + last + "\n"));
    const std::string page = renderText(printout(f, s));
    EXPECT_EQ(page.find("EL PROBLEMA"), std::string::npos);
    EXPECT_NE(page.find("Z =  36\n"), std::string::npos);
  }
}

// The statement after "sujeto a:" and the solution, as browsing paints them.
std::string browsed(const Report& r) {
  const std::string text = renderText(r);
  return text.substr(text.find("sujeto a: \n") + 11);
}

TEST(SimplexReport, AlternativeOptimumBrowsesBetweenTwoPages) {
  SimplexFields f = problem("max 2 4 | 1 2 <= 5 | 1 1 <= 4");
  SimplexResults s;
  solve(f, s);
  const std::string statement = zzz + "5<=1X1+2X2\n" + zzz + "4<=1X1+1X2\n" + zzz + "Xi >= 0\n" +
                                z + std::string(74, '_') + "  \n" + z + " \n";
  EXPECT_EQ(browsed(forward(f, s)), statement + z + "SOLUCIÓN 2 \n\n" + z + "Procesos\n" + zz +
                                        "X2:  2.5\n\n" + z + "Holguras\n" + zz + "h2:  1.5\n\n" +
                                        z + "Z =  10\n");
  EXPECT_TRUE(!s.forwardAvailable && !s.volverAvailable && s.backAvailable);
  EXPECT_EQ(browsed(back(f, s)), statement + z + "SOLUCIÓN 1 \n\n" + z + "Procesos\n" + zz +
                                     "X2:  1\n" + zz + "X1:  3\n\n" + z + "Z =  10\n");
  EXPECT_TRUE(s.forwardAvailable && s.volverAvailable && !s.backAvailable);
}

TEST(SimplexReport, SevenConstraintsPrintNoSolutionHeadingButBrowse) {
  std::string text = "max 1 1";
  for (int i = 2; i <= 8; ++i) text += " | 1 1 <= " + std::to_string(i);
  SimplexFields f = problem(text);
  SimplexResults s;
  const SimplexEnd end = solve(f, s);
  ASSERT_TRUE(end.alternativa);
  const std::string first = renderText(report(f, s, end)), second = renderText(forward(f, s));
  EXPECT_EQ((first + second).find("SOLUCI"), std::string::npos);
  EXPECT_NE(first.find(z + "Procesos\n" + zz + "X2:  2\n\n"), std::string::npos);
  EXPECT_NE(second.find(z + "Procesos\n" + zz + "X1:  2\n\n"), std::string::npos);
}

std::string saved(SimplexFields f) {
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  return out.bytes();
}

TEST(SimplexFile, ItemsInOrderWithTheShapeOfTheTable) {
  SimplexFields f = problem("min 3 5 | 1 0 <= 4 | 0 2 <= 12 | 3 2 = 18");
  f.Título = "Fábrica";
  const std::string bytes = saved(f);
  ASSERT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 158);
  ASSERT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), 158);
  const std::vector<std::string> items = lines(bytes);
  // The title, objective, rows, variables; LblFactores(2), Lblrestriccion(2);
  // X1(0) and its Visible, X2(0), X3(0) hidden, X1(3); restriccion(0),
  // restriccion(2) shown, restriccion(3) hidden; existencias(1), (3), (4) hidden.
  std::string picked;
  for (int k : {0, 1, 2, 3, 8, 9, 18, 19, 20, 22, 23, 60, 130, 134, 135, 137, 144, 148, 151})
    picked += items[k].substr(0, items[k].size() - 1) + " ";
  EXPECT_EQ(picked,
            "\"F\xE1"
            "brica\" 1 2 1 #FALSE# #TRUE# \"3\" #TRUE# \"5\" \"\" #FALSE# \"3\" 0 2 "
            "#TRUE# #FALSE# \"4\" \"18\" #FALSE# ");
}

TEST(SimplexFile, AListIndexOutsideTheListStopsTheReadingThere) {
  SimplexFields f = textbook();
  f.Título = "Leído";
  for (auto [item, value] : {std::pair{1, "2"}, {2, "7"}, {3, "-2"}, {130, "3"}}) {
    std::string bytes = saved(f);
    std::size_t at = 0;
    for (int k = 0; k < item; ++k) at = bytes.find("\r\n", at) + 2;
    bytes.replace(at, bytes.find("\r\n", at) - at, value);
    SimplexFields back;
    back.Título = "";
    ProblemFile in = ProblemFile::forReading(bytes);
    EXPECT_THROW(exchange(in, back), ReadFailed) << item;
    EXPECT_EQ(back.Título, "Leído");
    EXPECT_EQ(back.X[0][0].text, item == 130 ? "3" : "");
  }
}

}  // namespace
}  // namespace vorel::linear_programming
