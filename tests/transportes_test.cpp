#include "linear_programming/transportes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "frame/arith.h"

namespace vorel::linear_programming {
namespace {

using Rows = std::vector<std::vector<std::string>>;

// A problem as typed after RediseñarTabla: costs by origin, then supplies and demands.
TransportesFields problem(const Rows& costs, const std::vector<std::string>& supplies,
                          const std::vector<std::string>& demands) {
  TransportesFields f;
  const int m = int(costs.size()), n = int(demands.size());
  f.NumOrigen = m - 1;
  f.NumDestino = n - 1;
  EXPECT_TRUE(rediseñar(f).empty());
  for (int i = 0; i < m; ++i) {
    for (int j = 0; j < n; ++j) f.C[j][i].text = costs[i][j];
    f.C[n][i].text = supplies[i];
  }
  for (int j = 0; j < n; ++j) f.C[j][m].text = demands[j];
  return f;
}

TEST(Transportes, FormLoadShowsTwoByTwoWithSupplyColumnAndDemandRow) {
  const TransportesFields f;
  EXPECT_EQ(f.Título, "Problema 1");
  EXPECT_EQ(f.NumOrigen, 1);
  EXPECT_EQ(f.NumDestino, 1);
  for (int i = 0; i < 8; ++i)
    for (int j = 0; j < 8; ++j)
      EXPECT_EQ(f.C[j][i].visible, (i < 2 && j <= 2) || (i == 2 && j < 2)) << i << "," << j;
  EXPECT_EQ(f.LblOrigen[2].caption, "Demandas");
  EXPECT_EQ(f.LblDestino[2].caption, "Existencias");
  EXPECT_TRUE(f.LblOrigen[2].visible);
  EXPECT_FALSE(f.LblOrigen[3].visible);
}

TEST(Transportes, RediseñarRefusesEmptySelectorsAndReshapesTheTable) {
  struct Case {
    int origen, destino;
    const char* message;
  } cases[] = {
      {-1, 3, "Introduzca el Número de Orígenes"},
      {-1, -1, "Introduzca el Número de Orígenes"},
      {4, -1, "Introduzca el Número de Destinos"},
      {0, 0, nullptr},
      {6, 6, nullptr},
      {2, 5, nullptr},
  };
  for (const Case& c : cases) {
    TransportesFields f;
    f.C[0][0].text = "kept";
    f.C[5][6].text = "hidden";
    f.NumOrigen = c.origen;
    f.NumDestino = c.destino;
    const Messages m = rediseñar(f);
    if (c.message) {
      ASSERT_EQ(m.size(), 1u);
      EXPECT_EQ(m[0].text, c.message);
      EXPECT_TRUE(f.C[2][1].visible);  // nothing changed
      continue;
    }
    ASSERT_TRUE(m.empty());
    const int rows = c.origen + 1, cols = c.destino + 1;
    for (int i = 0; i < 8; ++i)
      for (int j = 0; j < 8; ++j)
        EXPECT_EQ(f.C[j][i].visible, (i < rows && j <= cols) || (i == rows && j < cols));
    for (int k = 0; k < rows; ++k)
      EXPECT_EQ(f.LblOrigen[k].caption, "Origen " + std::to_string(k + 1));
    EXPECT_EQ(f.LblOrigen[rows].caption, "Demandas");
    EXPECT_EQ(f.LblDestino[cols].caption, "Existencias");
    EXPECT_EQ(f.LblDestino[cols - 1].caption, "Destino " + std::to_string(cols));
    EXPECT_EQ(f.C[0][0].text, "kept");
    EXPECT_EQ(f.C[5][6].text, "hidden");
  }
}

TEST(Transportes, NuevoBlanksEverythingButTheTitle) {
  TransportesFields f = problem({{"1", "2", "3"}, {"4", "5", "6"}, {"7", "8", "9"}},
                                {"10", "10", "10"}, {"10", "10", "10"});
  f.Título = "Mío";
  nuevo(f);
  EXPECT_EQ(f.Título, "Mío");
  EXPECT_EQ(f.NumOrigen, 1);
  EXPECT_FALSE(f.C[3][0].visible);
  for (const auto& column : f.C)
    for (const TransportesCell& cell : column) EXPECT_EQ(cell.text, "");
}

TEST(Transportes, CheckTellsEveryNonNumericVisibleCellInRowOrder) {
  TransportesFields f = problem({{"1", "x"}, {"", "4"}}, {"5", "1e300"}, {"6", "6,5"});
  f.C[6][7].text = "hidden and ignored";
  const Messages m = check(f);
  const std::string text = "Debe Completar la tabla de Costes Unitarios de Transporte";
  EXPECT_EQ(m, (Messages{{text, "C2(0)"}, {text, "C1(1)"}}));
  // Only numbers are tested: no limits, so a huge supply passes.
  f.C[1][0].text = "2";
  f.C[0][1].text = "-3";
  EXPECT_TRUE(check(f).empty());
}

struct Solved {
  const char* name;
  TransportesFields f;
  double S, D, coste;
  bool origen, destino;
  std::vector<std::vector<double>> X;  // rows of the balanced table
};

TEST(Transportes, BalancesStartsAtTheCornerAndExchangesOverRectangles) {
  const Solved cases[] = {
      // Balanced; the corner costs 520 and the rectangles reach 435.
      {"balanced",
       problem({{"10", "2", "20", "11"}, {"12", "7", "9", "20"}, {"4", "14", "16", "18"}},
               {"15", "25", "10"}, {"5", "15", "15", "15"}),
       50,
       50,
       435,
       false,
       false,
       {{0, 5, 0, 10}, {0, 10, 15, 0}, {5, 0, 0, 5}}},
      // Supplies above demands: the extra column takes 20 at no cost. Moving
      // 20 more into it would save 60, but the two corners hold 20 each and
      // equal corners are never exchanged: the result stops at 510, not 450.
      {"excess",
       problem({{"4", "6", "9"}, {"5", "3", "8"}}, {"70", "50"}, {"30", "50", "20"}),
       120,
       100,
       510,
       false,
       true,
       {{30, 20, 20, 0}, {0, 30, 0, 20}}},
      // Demands above supplies: a fictitious origin with the 30 missing.
      {"shortage",
       problem({{"8", "6", "10"}, {"9", "12", "13"}, {"14", "9", "16"}}, {"30", "40", "20"},
               {"40", "35", "45"}),
       90,
       120,
       855,
       true,
       false,
       {{15, 0, 15}, {25, 15, 0}, {0, 20, 0}, {0, 0, 30}}},
      // Equal costs: no exchange gains, the corner stays.
      {"equal",
       problem({{"5", "5"}, {"5", "5"}}, {"4", "6"}, {"7", "3"}),
       10,
       10,
       50,
       false,
       false,
       {{4, 0}, {3, 3}}},
      // Decimals and a negative cost; Val stops at the comma of "2,5", and
      // the one rectangle that would pay has an empty corner.
      {"val",
       problem({{"-1", "2,5"}, {"3.5", "1"}}, {"1.5", "2"}, {"2", "1.5"}),
       3.5,
       3.5,
       1.75,
       false,
       false,
       {{1.5, 0}, {0.5, 1.5}}},
      // A negative supply gives a negative quantity, left out of the cost.
      {"negative",
       problem({{"1", "2"}, {"3", "4"}}, {"-2", "5"}, {"1", "2"}),
       3,
       3,
       17,
       false,
       false,
       {{-2, 0}, {3, 2}}},
      // A negative quantity at (p, i) works out no gain of its own and moves
      // on the gain of the rectangle before it.
      {"stale gain",
       problem({{"13", "1", "-4"}, {"12", "2", "4"}}, {"8", "-4"}, {"10", "6", "2"}),
       4,
       18,
       -2,
       true,
       false,
       {{0, 6, 2}, {-4, 0, 0}, {14, 0, 0}}},
  };
  for (const Solved& c : cases) {
    SCOPED_TRACE(c.name);
    const TransportesResults r = solve(c.f);
    ASSERT_FALSE(r.degenerada);
    EXPECT_EQ(r.S, c.S);
    EXPECT_EQ(r.D, c.D);
    EXPECT_EQ(r.Coste, c.coste);
    EXPECT_EQ(r.origenFicticio, c.origen);
    EXPECT_EQ(r.destinoFicticio, c.destino);
    ASSERT_EQ(r.N, int(c.X.size()));
    ASSERT_EQ(r.M, int(c.X[0].size()));
    for (int i = 0; i < r.N; ++i)
      for (int j = 0; j < r.M; ++j) EXPECT_EQ(r.X[i][j], c.X[i][j]) << i << "," << j;
  }
}

TEST(Transportes, ACornerWithTooFewFilledCellsIsRefusedAsDegenerate) {
  const TransportesFields cases[] = {
      problem({{"1", "2"}, {"3", "4"}}, {"5", "5"}, {"5", "5"}),
      problem({{"1", "2", "3"}, {"4", "5", "6"}}, {"70", "50"}, {"30", "40", "20"}),  // 4 < 5
      problem({{"1"}}, {"0"}, {"0"}),  // nothing to ship: no cell, 0 < 1
  };
  for (const TransportesFields& f : cases) {
    EXPECT_TRUE(solve(f).degenerada);
    const RunOutcome o = resolver(f);
    EXPECT_EQ(o.status, RunStatus::CheckFailed);
    EXPECT_EQ(o.messages, (Messages{{"la solución es degenerada", ""}}));
  }
  // One origin and one destination: one cell is enough.
  EXPECT_FALSE(solve(problem({{"3"}}, {"4"}, {"4"})).degenerada);
}

TEST(Transportes, SelectorsNotVisibilityGiveTheDimensions) {
  // The selector went up to three destinations without RediseñarTabla: the
  // third column, hidden and blank, counts as 0 and the supplies are read
  // from the fourth column, blank too.
  TransportesFields f = problem({{"1", "2"}, {"3", "4"}}, {"5", "7"}, {"6", "6"});
  f.NumDestino = 2;
  const TransportesResults r = solve(f);
  EXPECT_EQ(r.S, 0);
  EXPECT_EQ(r.D, 12);
  EXPECT_TRUE(r.origenFicticio);
}

TEST(Transportes, NegativeSuppliesNeverComeToRestAndTheBudgetStopsThem) {
  const TransportesFields f = problem({{"3", "7", "8"}, {"5", "0", "13"}, {"-4", "9", "-4"}},
                                      {"11", "-5", "12"}, {"-5", "10", "11"});
  EXPECT_THROW(solve(f, 100000), DoesNotEnd);
  EXPECT_THROW(resolver(f), DoesNotEnd);
}

TEST(Transportes, OverflowIsTheRuntimeError) {
  const TransportesFields f = problem({{"1", "1"}, {"1", "1"}}, {"1e308", "1e308"}, {"1", "1"});
  EXPECT_THROW(
      try { solve(f); } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number(), err::Overflow);
        throw;
      },
      RuntimeError);
}

TEST(Transportes, FileRoundTripsAndABadListIndexEndsTheRead) {
  TransportesFields f = problem({{"1", "2", "3"}, {"4", "5", "6"}}, {"7", "8"}, {"9", "6", "0"});
  f.Título = "Año, uno";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string bytes = out.bytes();
  const std::string head = "\"A\xF1o, uno\"\r\n1\r\n2\r\n\"1\"\r\n#TRUE#\r\n\"2\"\r\n#TRUE#\r\n";
  EXPECT_EQ(bytes.substr(0, head.size()), head);
  // 3 items, 8 rows of 8 cells with their Visible, 8 pairs of labels.
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 3 + 8 * 8 * 2 + 8 * 4);

  TransportesFields back;
  ProblemFile in = ProblemFile::forReading(bytes);
  exchange(in, back);
  ProblemFile again = ProblemFile::forWriting();
  exchange(again, back);
  EXPECT_EQ(again.bytes(), bytes);
  EXPECT_EQ(back.LblOrigen[2].caption, "Demandas");
  EXPECT_EQ(back.LblDestino[3].caption, "Existencias");

  // A list index the selector has no item for stops abrir after the title.
  for (const char* index : {"7", "-2"}) {
    std::string bad = bytes;
    bad.replace(bad.find("\r\n1\r\n"), 5, std::string("\r\n") + index + "\r\n");
    TransportesFields half;
    ProblemFile read = ProblemFile::forReading(bad);
    EXPECT_THROW(exchange(read, half), ReadFailed);
    EXPECT_EQ(half.Título, "Año, uno");
    EXPECT_EQ(half.NumOrigen, 1);
  }
}

TEST(Transportes, EmptySelectorsFromAFileSolveToNothing) {
  TransportesFields f;
  f.NumOrigen = -1;
  f.NumDestino = -1;
  const TransportesResults r = solve(f);
  EXPECT_FALSE(r.degenerada);
  EXPECT_EQ(r.Coste, 0);
  EXPECT_NE(renderText(report(f, r)).find("Número de orígenes:\n"), std::string::npos);
}

}  // namespace
}  // namespace vorel::linear_programming
