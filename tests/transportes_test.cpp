#include "linear_programming/transportes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <tuple>
#include <vector>

#include "frame/arith.h"
#include "tests/test_support.h"

// Balancing, the north-west corner, the exchanges over rectangles, the
// degenerate refusal and the never-ending case are also run from
// examples/transporte against their golden reports.

namespace vorel::linear_programming {
namespace {

// A problem as typed after RediseñarTabla, from "1 2 5 | 3 4 5 | 5 5": each
// origin's costs and supply, then the demands. "_" is a blank cell.
TransportesFields problem(const std::string& text) {
  const auto rows = testing::tableRows(text);
  TransportesFields f;
  const int m = int(rows.size()) - 1, n = int(rows.back().size());
  f.NumOrigen = m - 1;
  f.NumDestino = n - 1;
  EXPECT_TRUE(rediseñar(f).empty());
  for (int i = 0; i <= m; ++i)
    for (std::size_t j = 0; j < rows[i].size(); ++j) f.C[j][i].text = rows[i][j];
  return f;
}

void expectShape(const TransportesFields& f, int origins, int destinations) {
  for (int i = 0; i < 8; ++i)
    for (int j = 0; j < 8; ++j)
      EXPECT_EQ(f.C[j][i].visible,
                (i < origins && j <= destinations) || (i == origins && j < destinations))
          << "C" << j + 1 << "(" << i << ")";
  EXPECT_EQ(f.LblOrigen[origins - 1].caption, "Origen " + std::to_string(origins));
  EXPECT_EQ(f.LblOrigen[origins].caption, "Demandas");
  EXPECT_EQ(f.LblDestino[destinations - 1].caption, "Destino " + std::to_string(destinations));
  EXPECT_EQ(f.LblDestino[destinations].caption, "Existencias");
  EXPECT_TRUE(f.LblOrigen[origins].visible);
  for (int k = origins + 1; k < 8; ++k) EXPECT_FALSE(f.LblOrigen[k].visible) << k;
}

TEST(Transportes, RediseñarRefusesEmptySelectorsAndReshapesTheTable) {
  expectShape(TransportesFields{}, 2, 2);
  const std::string origenes = "Introduzca el Número de Orígenes";
  const std::string destinos = "Introduzca el Número de Destinos";
  const std::tuple<int, int, std::string> cases[] = {
      {-1, 3, origenes}, {-1, -1, origenes}, {4, -1, destinos}, {0, 0, ""}, {6, 6, ""}, {2, 5, ""}};
  for (const auto& [origen, destino, message] : cases) {
    SCOPED_TRACE(::testing::Message() << origen << " " << destino);
    TransportesFields f;
    f.C[5][6].text = "hidden";
    f.NumOrigen = origen;
    f.NumDestino = destino;
    EXPECT_EQ(rediseñar(f), (message.empty() ? Messages{} : Messages{{message, ""}}));
    // A refusal changes nothing.
    expectShape(f, message.empty() ? origen + 1 : 2, message.empty() ? destino + 1 : 2);
    EXPECT_EQ(f.C[5][6].text, "hidden");
  }
}

TEST(Transportes, NuevoBlanksEverythingButTheTitle) {
  TransportesFields f = problem("1 2 3 10 | 4 5 6 10 | 7 8 9 10 | 10 10 10");
  f.Título = "Mío";
  nuevo(f);
  EXPECT_EQ(f.Título, "Mío");
  expectShape(f, 2, 2);
  for (const auto& column : f.C)
    for (const Cell& cell : column) EXPECT_EQ(cell.text, "");
}

TEST(Transportes, CheckTellsEveryNonNumericVisibleCellInRowOrder) {
  TransportesFields f = problem("1 x 5 | _ 4 1e300 | 6 6,5");
  f.C[6][7].text = "hidden and ignored";
  const std::string text = "Debe Completar la tabla de Costes Unitarios de Transporte";
  EXPECT_EQ(check(f), (Messages{{text, "C2(0)"}, {text, "C1(1)"}}));
  // Only numbers are tested: no limits, so a huge supply passes.
  f.C[1][0].text = "2";
  f.C[0][1].text = "-3";
  EXPECT_TRUE(check(f).empty());
}

// The totals, the fictitious origin and destination, the balanced table and the cost.
std::string solution(const TransportesResults& r) {
  std::ostringstream out;
  out << r.S << " " << r.D << (r.origenFicticio ? " +origen" : "")
      << (r.destinoFicticio ? " +destino" : "") << ":";
  for (int i = 0; i < r.N; ++i) {
    for (int j = 0; j < r.M; ++j) out << " " << r.X[i][j];
    out << (i + 1 < r.N ? " |" : "");
  }
  out << " = " << r.Coste;
  return out.str();
}

TEST(Transportes, ValReadsTheCellsOfTheTableTheSelectorsGive) {
  // Val stops at the comma of "2,5", and the one rectangle that would pay has
  // an empty corner.
  EXPECT_EQ(solution(solve(problem("-1 2,5 1.5 | 3.5 1 2 | 2 1.5"))),
            "3.5 3.5: 1.5 0 | 0.5 1.5 = 1.75");
  EXPECT_EQ(solution(solve(problem("1 2 -2 | 3 4 5 | 1 2"))), "3 3: -2 0 | 3 2 = 17");
  // The selector went up to three destinations without RediseñarTabla: the
  // third column, hidden and blank, counts as 0 and the supplies are read
  // from the fourth column, blank too.
  TransportesFields f = problem("1 2 5 | 3 4 7 | 6 6");
  f.NumDestino = 2;
  EXPECT_EQ(solution(solve(f)), "0 12 +origen: 0 0 0 | 0 0 0 | 6 6 0 = 0");
}

TEST(Transportes, ACornerWithTooFewFilledCellsIsRefusedAsDegenerate) {
  // 4 filled cells of the 5 needed; nothing to ship: no cell of the 1 needed.
  for (const char* text : {"1 2 3 70 | 4 5 6 50 | 30 40 20", "1 0 | 0"})
    EXPECT_TRUE(solve(problem(text)).degenerada) << text;
  // One origin and one destination: one cell is enough.
  EXPECT_FALSE(solve(problem("3 4 | 4")).degenerada);
}

TEST(Transportes, NegativeSuppliesNeverComeToRestAndTheBudgetStopsThem) {
  const TransportesFields f = problem("3 7 8 11 | 5 0 13 -5 | -4 9 -4 12 | -5 10 11");
  EXPECT_THROW(solve(f, 100000), DoesNotEnd);
}

TEST(Transportes, OverflowIsTheRuntimeError) {
  try {
    solve(problem("1 1 1e308 | 1 1 1e308 | 1 1"));
    ADD_FAILURE() << "no overflow";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number(), err::Overflow);
  }
}

TEST(Transportes, EmptySelectorsFromAFileSolveToNothing) {
  TransportesFields f;
  f.NumOrigen = f.NumDestino = -1;
  const TransportesResults r = solve(f);
  EXPECT_EQ(solution(r), "0 0: = 0");
  EXPECT_FALSE(r.degenerada);
  EXPECT_NE(renderText(report(f, r)).find("Número de orígenes:\n"), std::string::npos);
}

TEST(Transportes, FileItemsInOrderAndABadListIndexEndsTheRead) {
  TransportesFields f = problem("1 2 3 7 | 4 5 6 8 | 9 6 0");
  f.Título = "Año, uno";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string bytes = out.bytes();
  const std::string head = "\"A\xF1o, uno\"\r\n1\r\n2\r\n\"1\"\r\n#TRUE#\r\n\"2\"\r\n#TRUE#\r\n";
  EXPECT_EQ(bytes.substr(0, head.size()), head);
  // 3 items, 8 rows of 8 cells with their Visible, 8 pairs of labels.
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 3 + 8 * 8 * 2 + 8 * 4);
  EXPECT_NE(bytes.find("\"Demandas\"\r\n#TRUE#\r\n\"Destino 3\"\r\n#TRUE#\r\n"), std::string::npos);

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

}  // namespace
}  // namespace vorel::linear_programming
