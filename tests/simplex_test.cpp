#include "linear_programming/simplex.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "frame/arith.h"

namespace vorel::linear_programming {
namespace {

constexpr int kMax = 0, kMin = 1;
constexpr int LE = 0, GE = 1, EQ = 2;

struct Row {
  std::vector<std::string> cells;
  int relation;
  std::string rhs;
};

// A problem typed as a user would: selectors, RediseñarTabla, then the cells.
SimplexFields problem(int sense, const std::vector<std::string>& objective,
                      const std::vector<Row>& rows) {
  SimplexFields f;
  f.funcionObjetivo = sense;
  f.NumFactores = int(objective.size()) - 1;
  f.Numrestricciones = int(rows.size()) - 1;
  rediseñarTabla(f);
  for (std::size_t j = 0; j < objective.size(); ++j) f.X[j][0].text = objective[j];
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t j = 0; j < rows[i].cells.size(); ++j) f.X[j][i + 1].text = rows[i].cells[j];
    f.restriccion[i].ListIndex = rows[i].relation;
    f.existencias[i + 1].text = rows[i].rhs;
  }
  return f;
}

SimplexFields textbook() {
  return problem(kMax, {"3", "5"},
                 {{{"1", "0"}, LE, "4"}, {{"0", "2"}, LE, "12"}, {{"3", "2"}, LE, "18"}});
}

SimplexFields alternateOptimum() {
  return problem(kMax, {"2", "4"}, {{{"1", "2"}, LE, "5"}, {{"1", "1"}, LE, "4"}});
}

std::vector<std::string> strs(const std::vector<float>& values) {
  std::vector<std::string> out;
  for (float v : values) out.push_back(Str(v));
  return out;
}

std::vector<std::string> lines(const Report& r) {
  std::vector<std::string> out;
  std::istringstream in(renderText(r));
  for (std::string line; std::getline(in, line);) out.push_back(line);
  return out;
}

// The lines after the second rule: what the solving produced.
std::string results(const Report& r) {
  const std::vector<std::string> all = lines(r);
  std::string out;
  int rules = 0;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (rules == 2 && i > 0 && all[i - 1].find("____") == std::string::npos) out += all[i] + "\n";
    if (all[i].find("____") != std::string::npos) ++rules;
  }
  return out;
}

// --- Entry screen -----------------------------------------------------------

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

TEST(SimplexEntry, FormLoadPresetsTheTwoByTwoTable) {
  const SimplexFields f;
  EXPECT_EQ(f.Título, "Problema 1");
  EXPECT_EQ(f.funcionObjetivo, 0);
  EXPECT_EQ(f.NumFactores, 1);
  EXPECT_EQ(f.Numrestricciones, 1);
  for (const SimplexRelation& r : f.restriccion) EXPECT_EQ(r.ListIndex, 0);
  expectShape(f, 2, 2);
}

TEST(SimplexEntry, RediseñarShowsTheChosenTableAndKeepsHiddenCells) {
  struct Case {
    int n, m;
  } cases[] = {{1, 1}, {7, 7}, {3, 5}, {6, 2}, {2, 2}};
  for (const Case& c : cases) {
    SCOPED_TRACE(::testing::Message() << c.n << " by " << c.m);
    SimplexFields f;
    f.X[6][7].text = "kept";
    f.existencias[7].text = "9";
    f.NumFactores = c.n - 1;
    f.Numrestricciones = c.m - 1;
    rediseñarTabla(f);
    expectShape(f, c.n, c.m);
    EXPECT_EQ(f.X[6][7].text, "kept");
    EXPECT_EQ(f.existencias[7].text, "9");
  }
  // With no number of variables chosen, X1(0) is hidden and cannot take focus.
  SimplexFields f;
  f.NumFactores = -1;
  try {
    rediseñarTabla(f);
    FAIL() << "focus on a hidden cell";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number(), err::InvalidCall);
  }
}

TEST(SimplexEntry, NuevoBlanksAndRestoresButLeavesTheHeadingsOfIndexesZeroAndOne) {
  SimplexFields f = problem(kMin, {"1"}, {{{"2"}, GE, "3"}});
  f.Título = "Mío";
  f.restriccion[0].ListIndex = 2;
  nuevo(f);
  EXPECT_EQ(f.Título, "Mío");
  EXPECT_EQ(f.funcionObjetivo, 0);
  EXPECT_EQ(f.NumFactores, 1);
  EXPECT_EQ(f.Numrestricciones, 1);
  for (const auto& column : f.X)
    for (const SimplexCell& c : column) EXPECT_EQ(c.text, "");
  for (const SimplexCell& c : f.existencias) EXPECT_EQ(c.text, "");
  for (const SimplexRelation& r : f.restriccion) EXPECT_EQ(r.ListIndex, 0);
  // The cells take the 2 by 2 shape; the headings and relations of index 1,
  // hidden by the 1 by 1 table, are not shown again.
  for (int i = 0; i <= 2; ++i) EXPECT_TRUE(f.X[1][i].visible);
  EXPECT_TRUE(f.existencias[2].visible);
  EXPECT_FALSE(f.LblFactores[1]);
  EXPECT_FALSE(f.Lblrestriccion[1]);
  EXPECT_FALSE(f.restriccion[1].visible);
}

TEST(SimplexEntry, ResolverChecksOnlyTheVisibleObjectiveCells) {
  const std::string range = "Debe introducir valores comprendidos entre -999999999 y 999999999";
  struct Case {
    const char* name;
    std::function<void(SimplexFields&)> edit;
    Messages expected;
  } cases[] = {
      {"valid", [](SimplexFields&) {}, {}},
      {"two empty objective cells",
       [](SimplexFields& f) {
         f.X[0][0].text = "";
         f.X[1][0].text = "";
       },
       {{"Debe completar la tabla", "X1(0)"}, {"Debe completar la tabla", "X2(0)"}}},
      {"not a number",
       [](SimplexFields& f) { f.X[1][0].text = "5a"; },
       {{"Debe completar la tabla", "X2(0)"}}},
      {"limits",
       [](SimplexFields& f) {
         f.X[0][0].text = "-999999999";
         f.X[1][0].text = "999999999";
       },
       {}},
      {"out of range both ways",
       [](SimplexFields& f) {
         f.X[0][0].text = "1000000000";
         f.X[1][0].text = "-1e10";
       },
       {{range, "X1(0)"}, {range, "X2(0)"}}},
      {"exponent form", [](SimplexFields& f) { f.X[0][0].text = "1e3"; }, {}},
      {"constraint rows are never checked",
       [](SimplexFields& f) {
         f.X[0][1].text = "";
         f.X[1][2].text = "abc";
         f.existencias[1].text = "";
         f.existencias[3].text = "x";
         f.restriccion[1].ListIndex = -1;
       },
       {}},
      {"a hidden objective cell is not checked",
       [](SimplexFields& f) {
         f.X[1][0].visible = false;
         f.X[1][0].text = "";
       },
       {}},
      {"X5 and X7 in lower case",
       [](SimplexFields& f) {
         f.NumFactores = 6;
         rediseñarTabla(f);
         for (int j = 2; j < 7; ++j) f.X[j][0].text = j == 5 ? "" : "1";
         f.X[4][0].text = "";
         f.X[6][0].text = " ";
       },
       {{"debe completar la tabla", "X5(0)"},
        {"Debe completar la tabla", "X6(0)"},
        {"debe completar la tabla", "X7(0)"}}},
  };
  for (const Case& c : cases) {
    SimplexFields f = textbook();
    c.edit(f);
    EXPECT_EQ(check(f), c.expected) << c.name;
  }
}

// --- Solving ----------------------------------------------------------------

struct Expected {
  bool ilimitado, infactible, alternativa;
  std::vector<std::string> base, bB, base2, bB2;
  std::string Z;
};

TEST(SimplexSolve, EdgeCasesEndAsTheMethodDoes) {
  struct Case {
    const char* name;
    SimplexFields fields;
    Expected expected;
  } cases[] = {
      {"textbook: rows in basis order",
       textbook(),
       {false, false, false, {"h1", "X2", "X1"}, {" 2", " 6", " 2"}, {}, {}, " 36"}},
      {"a blank constraint cell counts as 0",
       problem(kMax, {"3", "5"},
               {{{"1", ""}, LE, "4"}, {{"", "2"}, LE, "12"}, {{"3", "2"}, LE, "18"}}),
       {false, false, false, {"h1", "X2", "X1"}, {" 2", " 6", " 2"}, {}, {}, " 36"}},
      {"minimisation with >= rows",
       problem(kMin, {"2", "3"}, {{{"1", "1"}, GE, "4"}, {{"1", "3"}, GE, "6"}}),
       {false, false, false, {"X1", "X2"}, {" 3", " 1"}, {}, {}, " 9"}},
      {"a ratio of 0 never leaves: degenerate vertex shows as unbounded",
       problem(kMax, {"1"}, {{{"1"}, LE, "0"}}),
       {true, false, false, {"h1"}, {" 0"}, {}, {}, " 0"}},
      {"an artificial left at 0 is infeasible",
       problem(kMin, {"1"}, {{{"-1"}, EQ, "0"}}),
       {false, true, false, {"m1"}, {" 0"}, {}, {}, " 0"}},
      {"equal rows: an artificial stays at 0 after the extra pivot",
       problem(kMin, {"1", "1"}, {{{"1", "1"}, EQ, "2"}, {{"1", "1"}, EQ, "2"}}),
       {false, true, true, {"X2", "m2"}, {" 2", " 0"}, {"X1", "m2"}, {" 2", " 0"}, " 0"}},
      {"infeasible with <= and >=",
       problem(kMax, {"1", "1"}, {{{"1", "1"}, LE, "2"}, {{"1", "1"}, GE, "5"}}),
       {false, true, true, {"X2", "m1"}, {" 2", " 3"}, {"X1", "m1"}, {" 2", " 3"}, " 0"}},
      {"unbounded",
       problem(kMax, {"1", "1"}, {{{"1", "-1"}, LE, "1"}, {{"-1", "1"}, LE, "2"}}),
       {true, false, false, {"X1", "h2"}, {" 1", " 3"}, {}, {}, " 0"}},
      {"alternative: solution 1 is the last reached, 2 the first",
       alternateOptimum(),
       {false, false, true, {"X2", "X1"}, {" 1", " 3"}, {"X2", "h2"}, {" 2.5", " 1.5"}, " 10"}},
      {"ties go to the lowest column and the lowest row",
       problem(kMax, {"1", "1"}, {{{"1", "1"}, LE, "2"}, {{"1", "1"}, LE, "2"}}),
       {false, false, true, {"X2", "h2"}, {" 2", " 0"}, {"X1", "h2"}, {" 2", " 0"}, " 2"}},
      {"the extra pivot finds no row: unbounded although optimal",
       problem(kMax, {"1", "0"}, {{{"1", "0"}, LE, "4"}, {{"0", "-1"}, LE, "3"}}),
       {true, false, true, {"X1", "h2"}, {" 4", " 3"}, {"X1", "h2"}, {" 4", " 3"}, " 0"}},
      {"a negative value stops without a flag; the stale reduced costs find an alternative",
       problem(kMax, {"1"}, {{{"1"}, LE, "4"}, {{"1"}, LE, "-1"}}),
       {false, false, true, {"h1", "h2"}, {" 4", "-1"}, {"X1", "h2"}, {" 4", "-5"}, " 0"}},
      {"an equality row has no slack; slacks are named after their rows",
       problem(kMax, {"1", "1"}, {{{"1", "1"}, EQ, "3"}, {{"1", "0"}, LE, "2"}}),
       {false, false, true, {"X2", "h2"}, {" 3", " 2"}, {"X2", "X1"}, {" 1", " 2"}, " 3"}},
      {"values are Single",
       problem(kMax, {"0.1"}, {{{"3"}, LE, "1"}}),
       {false, false, false, {"X1"}, {" .3333333"}, {}, {}, " .03333334"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    SimplexResults s;
    const SimplexEnd end = solve(c.fields, s);
    const Expected& x = c.expected;
    EXPECT_EQ(end.ilimitado, x.ilimitado);
    EXPECT_EQ(end.infactible, x.infactible);
    EXPECT_EQ(end.alternativa, x.alternativa);
    EXPECT_EQ(s.base, x.base);
    EXPECT_EQ(strs(s.bB), x.bB);
    EXPECT_EQ(s.base2, x.base2);
    EXPECT_EQ(strs(s.bB2), x.bB2);
    EXPECT_EQ(Str(s.Z), x.Z);
    EXPECT_EQ(s.forwardAvailable, x.alternativa);
    EXPECT_FALSE(s.backAvailable);
    EXPECT_TRUE(s.volverAvailable);
  }
}

TEST(SimplexSolve, ColumnsAreVariablesThenSlacksThenArtificialsOfBigMCost) {
  struct Case {
    SimplexFields fields;
    std::vector<std::string> columna;
    std::vector<float> cost;
  } cases[] = {
      {problem(kMin, {"2", "3"}, {{{"1", "1"}, GE, "4"}, {{"1", "3"}, GE, "6"}}),
       {"X1", "X2", "h1", "h2", "m1", "m2", "", "", "", "", ""},
       {2, 3, 0, 0, Sng(1E+14), Sng(1E+14), 0, 0, 0, 0, 0}},
      {problem(kMax, {"1", "1"},
               {{{"1", "1"}, EQ, "3"}, {{"1", "0"}, LE, "2"}, {{"1", "0"}, GE, "1"}}),
       {"X1", "X2", "h2", "h3", "m1", "m2", "", "", "", "", ""},
       {1, 1, 0, 0, Sng(-99999999999999.0), Sng(-99999999999999.0), 0, 0, 0, 0, 0}},
  };
  for (const Case& c : cases) {
    SimplexResults s;
    solve(c.fields, s);
    EXPECT_EQ(s.columna, c.columna);
    EXPECT_EQ(s.cost, c.cost);
  }
}

TEST(SimplexSolve, HiddenCellsBeyondTheSelectorsAreIgnored) {
  SimplexFields f = textbook();
  f.X[2][0].text = "100";
  f.X[2][1].text = "1";
  f.X[0][4].text = "7";
  f.existencias[4].text = "1";
  SimplexResults s;
  solve(f, s);
  EXPECT_EQ(Str(s.Z), " 36");
}

TEST(SimplexSolve, StepBudgetBoundsThePasses) {
  // The textbook problem takes three passes: two pivots and the optimality test.
  struct Case {
    long budget;
    bool ends;
  } cases[] = {{0, true}, {3, true}, {2, false}, {1, false}};
  for (const Case& c : cases) {
    SimplexResults s;
    if (c.ends) {
      solve(textbook(), s, c.budget);
      EXPECT_EQ(Str(s.Z), " 36");
    } else {
      EXPECT_THROW(solve(textbook(), s, c.budget), DoesNotEnd) << c.budget;
    }
  }
}

TEST(SimplexSolve, BigMRoundingCanCycleForEver) {
  // The reduced costs of the two columns are lost in the rounding of terms
  // of the order of M: each enters in turn, row 6 swaps them for ever.
  const SimplexFields f =
      problem(kMax, {"10", "0", "1.5", "1"},
              {{{"0.5", "-1", "0", "-0.5"}, GE, "1"}, {{"0.5", "4", "-3", "-0.5"}, GE, "5"},
               {{"7", "0", "1.5", "2.5"}, EQ, "3"}, {{"0", "-2", "-3", "0.5"}, GE, "3"},
               {{"-0.5", "-1", "-3", "1"}, EQ, "2"}, {{"10", "3", "10", "0.25"}, LE, "1"}});
  SimplexResults s;
  EXPECT_THROW(solve(f, s, 10000), DoesNotEnd);
  std::vector<std::string> seen[2];
  for (long budget : {4, 5, 6, 7}) {
    SimplexResults at;
    EXPECT_THROW(solve(f, at, budget), DoesNotEnd);
    std::vector<std::string> state = at.base;
    for (const std::string& v : strs(at.bB)) state.push_back(v);
    std::vector<std::string>& expected = seen[budget % 2];
    if (expected.empty())
      expected = state;
    else
      EXPECT_EQ(state, expected) << budget;
  }
  EXPECT_EQ(seen[0].at(5), "h6");
  EXPECT_EQ(seen[1].at(5), "X2");
}

TEST(SimplexSolve, RunTimeErrorsOfThePlatform) {
  struct Case {
    std::function<void(SimplexFields&)> edit;
    int error;
  } cases[] = {
      {[](SimplexFields& f) { f.NumFactores = -1; }, err::Subscript},
      {[](SimplexFields& f) { f.Numrestricciones = -1; }, err::Subscript},
      {[](SimplexFields& f) { f.existencias[1].text = "1e39"; }, err::Overflow},
      {[](SimplexFields& f) { f.X[0][1].text = "1e400"; }, err::Overflow},
  };
  for (const Case& c : cases) {
    SimplexFields f = textbook();
    c.edit(f);
    SimplexResults s;
    try {
      solve(f, s);
      ADD_FAILURE() << "no error " << c.error;
    } catch (const RuntimeError& e) {
      EXPECT_EQ(e.number(), c.error);
    }
  }
}

// --- Reports ----------------------------------------------------------------

TEST(SimplexReport, ObjectiveHeadsKeepTheirIrregularities) {
  const char* max[] = {
      "Maximizar Z= 1 X1",
      "Maximizar Z = 1X1 +  2X2",
      "Maximizar Z = 1X1 +  2X2 +  3X3",
      "Maximizar Z = 1X1+ 2X2+ 3X3+ 4X4",
      "Maximizar Z = 1X1 +  2X2 +  3X3 +  4X4 +  5X5",
      "Maximizar Z = 1X1 +  2X2 +  3X3 +  4X4 +  5X5 +  6X6",
      "Maximizar Z =  1X1 +  2X2 +  3X3 +  4X4 +  5X5 +  6X6 +  7X7",
  };
  for (int n = 1; n <= 7; ++n) {
    for (int sense : {kMax, kMin}) {
      std::vector<std::string> objective, row;
      for (int j = 1; j <= n; ++j) {
        objective.push_back(std::to_string(j));
        row.push_back("1");
      }
      SimplexFields f = problem(sense, objective, {{row, LE, "1"}});
      SimplexResults s;
      const SimplexEnd end = solve(f, s);
      std::string expected = std::string(14, ' ') + max[n - 1];
      if (sense == kMin) expected.replace(14, 9, "Minimizar");
      EXPECT_EQ(lines(report(f, s, end)).at(6), expected);
      EXPECT_EQ(lines(printout(f, s)).at(14), expected);
    }
  }
}

TEST(SimplexReport, CellsArePrintedAsTyped) {
  SimplexFields f =
      problem(kMax, {"3", "5"},
              {{{"1.0", ""}, LE, " 4"}, {{"0", "2abc"}, GE, "12"}, {{"3", "2"}, EQ, "18"}});
  f.restriccion[0].ListIndex = -1;
  SimplexResults s;
  const SimplexEnd end = solve(f, s);
  const std::vector<std::string> r = lines(report(f, s, end));
  const std::string zzz(42, ' ');
  EXPECT_EQ(r.at(8), zzz + "1.0 X1 +  X2   4");
  EXPECT_EQ(r.at(9), zzz + "0 X1 + 2abc X2 >= 12");
  EXPECT_EQ(r.at(10), zzz + "3 X1 + 2 X2 = 18");
}

TEST(SimplexReport, UnboundedAndInfeasibleEndTheScreenButNotThePage) {
  struct Case {
    SimplexFields fields;
    const char* last;
  } cases[] = {
      {problem(kMax, {"1", "1"}, {{{"1", "-1"}, LE, "1"}, {{"-1", "1"}, LE, "2"}}),
       "EL PROBLEMA ES ILIMITADO"},
      {problem(kMax, {"1", "1"}, {{{"1", "1"}, LE, "2"}, {{"1", "1"}, GE, "5"}}),
       "EL PROBLEMA ES INFACTIBLE"},
      {problem(kMax, {"1", "0"}, {{{"1", "0"}, LE, "4"}, {{"0", "-1"}, LE, "3"}}),
       "EL PROBLEMA ES ILIMITADO"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.last);
    // A first activation on a solvable problem leaves Z on the screen; the
    // second does not compute it, and the page prints the one kept.
    SimplexResults s;
    solve(textbook(), s);
    const SimplexEnd end = solve(c.fields, s);
    EXPECT_EQ(results(report(c.fields, s, end)), std::string(14, ' ') + c.last + "\n");
    const std::string page = renderText(printout(c.fields, s));
    EXPECT_EQ(page.find("EL PROBLEMA"), std::string::npos);
    EXPECT_NE(page.find("Procesos"), std::string::npos);
    EXPECT_NE(page.find("Z =  36\n"), std::string::npos);
  }
}

TEST(SimplexReport, AlternativeOptimumBrowsesBetweenTwoPages) {
  SimplexFields f = alternateOptimum();
  SimplexResults s;
  const SimplexEnd end = solve(f, s);
  const std::string z(14, ' '), zz(28, ' '), zzz(42, ' ');
  const std::string head = z + " \n" + z + " \n" + z + " \n" + z +
                           "Solución al problema:  Problema 1\n" + z + std::string(74, '_') +
                           "  \n" + z + " \n" + z + "Maximizar Z = 2X1 +  4X2\n" + zz +
                           "sujeto a: \n";
  const std::string rule = z + std::string(74, '_') + "  \n" + z + " \n";
  EXPECT_EQ(renderText(report(f, s, end)), head + zzz + "1 X1 + 2 X2 <= 5\n" + zzz +
                                               "1 X1 + 1 X2 <= 4\n" + zzz + "Xi >= 0\n" + rule + z +
                                               "SOLUCIÓN 1\n\n" + z + "Procesos\n" + zz +
                                               "X2:  1\n" + zz + "X1:  3\n\n" + z + "Z =  10\n");
  EXPECT_TRUE(s.forwardAvailable);

  const std::string browsingHead =
      head + zzz + "5<=1X1+2X2\n" + zzz + "4<=1X1+1X2\n" + zzz + "Xi >= 0\n" + rule;
  EXPECT_EQ(renderText(forward(f, s)), browsingHead + z + "SOLUCIÓN 2 \n\n" + z + "Procesos\n" +
                                           zz + "X2:  2.5\n\n" + z + "Holguras\n" + zz +
                                           "h2:  1.5\n\n" + z + "Z =  10\n");
  EXPECT_FALSE(s.forwardAvailable);
  EXPECT_FALSE(s.volverAvailable);
  EXPECT_TRUE(s.backAvailable);

  EXPECT_EQ(renderText(back(f, s)), browsingHead + z + "SOLUCIÓN 1 \n\n" + z + "Procesos\n" + zz +
                                        "X2:  1\n" + zz + "X1:  3\n\n" + z + "Z =  10\n");
  EXPECT_TRUE(s.forwardAvailable);
  EXPECT_TRUE(s.volverAvailable);
  EXPECT_FALSE(s.backAvailable);

  // The page prints the last solution reached, with no heading of either.
  const std::string page = renderText(printout(f, s));
  EXPECT_EQ(page.find("SOLUCI"), std::string::npos);
  EXPECT_NE(page.find(z + "X1:" + std::string(12, ' ') + "3\n"), std::string::npos);
}

TEST(SimplexReport, SevenConstraintsPrintNoSolutionHeadingButBrowse) {
  std::vector<Row> rows;
  for (int i = 1; i <= 7; ++i) rows.push_back({{"1", "1"}, LE, std::to_string(i + 1)});
  SimplexFields f = problem(kMax, {"1", "1"}, rows);
  SimplexResults s;
  const SimplexEnd end = solve(f, s);
  ASSERT_TRUE(end.alternativa);
  EXPECT_TRUE(s.forwardAvailable);
  const std::string first = results(report(f, s, end));
  const std::string second = results(forward(f, s));
  EXPECT_EQ(first.find("SOLUCI"), std::string::npos);
  EXPECT_EQ(second.find("SOLUCI"), std::string::npos);
  const std::string z(14, ' '), zz(28, ' ');
  EXPECT_EQ(first.substr(0, first.find("\n\n")), z + "Procesos\n" + zz + "X2:  2");
  EXPECT_EQ(second.substr(0, second.find("\n\n")), z + "Procesos\n" + zz + "X1:  2");
}

// --- Problem file -----------------------------------------------------------

TEST(SimplexFile, ItemsInOrderWithTheShapeOfTheTable) {
  SimplexFields f = textbook();
  f.Título = "Fábrica";
  f.funcionObjetivo = 1;
  f.restriccion[2].ListIndex = 2;
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  std::vector<std::string> items;
  std::istringstream in(out.bytes());
  for (std::string line; std::getline(in, line, '\n');) {
    ASSERT_EQ(line.back(), '\r');
    line.pop_back();
    items.push_back(line);
  }
  ASSERT_EQ(items.size(), 158u);
  EXPECT_EQ(std::vector<std::string>(items.begin(), items.begin() + 8),
            (std::vector<std::string>{"\"F\xE1"
                                      "brica\"",
                                      "1", "2", "1", "#TRUE#", "#TRUE#", "#TRUE#", "#TRUE#"}));
  EXPECT_EQ(items[8], "#FALSE#");  // LblFactores(2)
  EXPECT_EQ(items[9], "#TRUE#");   // Lblrestriccion(2)
  EXPECT_EQ(items[18], "\"3\"");   // X1(0)
  EXPECT_EQ(items[19], "#TRUE#");
  EXPECT_EQ(items[20], "\"5\"");  // X2(0)
  EXPECT_EQ(items[22], "\"\"");   // X3(0)
  EXPECT_EQ(items[23], "#FALSE#");
  EXPECT_EQ(items[18 + 14 * 3], "\"3\"");  // X1(3)
  EXPECT_EQ(items[130], "0");              // restriccion(0)
  EXPECT_EQ(items[134], "2");              // restriccion(2)
  EXPECT_EQ(items[135], "#TRUE#");
  EXPECT_EQ(items[137], "#FALSE#");  // restriccion(3) hidden
  EXPECT_EQ(items[144], "\"4\"");    // existencias(1)
  EXPECT_EQ(items[148], "\"18\"");   // existencias(3)
  EXPECT_EQ(items[151], "#FALSE#");  // existencias(4) hidden
}

TEST(SimplexFile, RoundTripRestoresTheShapeWhateverTheSelectors) {
  SimplexFields f = problem(kMin, {"1", "2", "3"},
                            {{{"1", "", "x"}, GE, "4"},
                             {{"0", "2", "1"}, EQ, ""},
                             {{"3", "2", "1"}, LE, "18"},
                             {{"1", "1", "1"}, GE, "-2"}});
  f.Título = "Año, uno";
  f.NumFactores = 6;  // chosen but not applied
  f.restriccion[5].ListIndex = -1;
  f.X[6][7].text = "hidden";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  SimplexFields back;
  ProblemFile in = ProblemFile::forReading(out.bytes());
  exchange(in, back);
  EXPECT_EQ(back.Título, "Año, uno");
  EXPECT_EQ(back.funcionObjetivo, 1);
  EXPECT_EQ(back.NumFactores, 6);
  EXPECT_EQ(back.Numrestricciones, 3);
  expectShape(back, 3, 4);
  for (int j = 0; j < 7; ++j)
    for (int i = 0; i < 8; ++i) EXPECT_EQ(back.X[j][i].text, f.X[j][i].text);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(back.restriccion[i].ListIndex, f.restriccion[i].ListIndex);
  for (int i = 1; i < 8; ++i) EXPECT_EQ(back.existencias[i].text, f.existencias[i].text);
  ProblemFile again = ProblemFile::forWriting();
  exchange(again, back);
  EXPECT_EQ(again.bytes(), out.bytes());
}

TEST(SimplexFile, AListIndexOutsideTheListStopsTheReadingThere) {
  struct Case {
    int item;
    const char* value;
  } cases[] = {{1, "2"}, {2, "7"}, {3, "-2"}, {130, "3"}};
  for (const Case& c : cases) {
    SimplexFields f = textbook();
    f.Título = "Leído";
    ProblemFile out = ProblemFile::forWriting();
    exchange(out, f);
    std::string bytes = out.bytes();
    std::size_t at = 0;
    for (int k = 0; k < c.item; ++k) at = bytes.find("\r\n", at) + 2;
    bytes.replace(at, bytes.find("\r\n", at) - at, c.value);
    SimplexFields back;
    back.Título = "";
    ProblemFile in = ProblemFile::forReading(bytes);
    EXPECT_THROW(exchange(in, back), ReadFailed) << c.item;
    EXPECT_EQ(back.Título, "Leído");
    EXPECT_EQ(back.X[0][0].text, c.item == 130 ? "3" : "");
  }
}

}  // namespace
}  // namespace vorel::linear_programming
