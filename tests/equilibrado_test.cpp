#include "layout/equilibrado.h"

#include <gtest/gtest.h>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::facility {
namespace {

// One activity a row: its time, then its immediate predecessors:
// "5 | 3 1 | 4 1" is activity 1 of 5 with none, 2 and 3 of 3 and 4 after 1.
EquilibradoFields linea(const std::string& actividades) {
  EquilibradoFields f;
  const auto rows = testing::tableRows(actividades);
  f.NumActividades = int(rows.size()) - 1;
  rediseñar(f);
  for (int a = 1; a <= int(rows.size()); ++a) {
    const auto& row = rows[std::size_t(a - 1)];
    f.TiempoOperacion[std::size_t(a - 1)].text = row[0];
    for (std::size_t p = 1; p < row.size(); ++p) f.anterior(a, int(p - 1)).text = row[p];
  }
  return f;
}

// Each element's column, with "<" and its maximum transfer where that differs;
// then the columns' durations and the accumulated ones.
std::string balance(const EquilibradoFields& f) {
  const EquilibradoResults r = solve(f);
  std::string out;
  for (std::size_t a = 0; a < r.Columna.size(); ++a) {
    out += numerosRomanos()[std::size_t(r.Columna[a] - 1)];
    if (r.Transferencia[a] != r.Columna[a])
      out += "<" + numerosRomanos()[std::size_t(r.Transferencia[a] - 1)];
    out += " ";
  }
  out += "|";
  for (double d : r.DuracionColumna) out += Str(d);
  out += " |";
  for (double d : r.DuracionAcumulada) out += Str(d);
  return out;
}

// The textbook line of the examples, balanced by hand: 10 and 12 stand in
// column III but may wait until V and VI; 3 goes before 5, 6 and 12, so II.
const char* kLibro = "5 | 3 1 | 4 1 | 6 2 | 2 2 3 | 7 3 | 4 4 5 | 3 6 | 5 7 8 | 2 2 | 6 9 10 | 1 3";

TEST(Equilibrado, BalancesLinesByHand) {
  const struct {
    const char* linea;
    const char* balance;
  } cases[] = {
      {kLibro, "I II II III III III IV IV V III<V VI III<VI | 5 7 18 7 5 6 | 5 12 30 37 42 48"},
      {"4 | 2 1 | 6 2 | 1.5 3", "I II III IV | 4 2 6 1.5 | 4 6 12 13.5"},  // a chain
      {"4 | 2 | 6", "I I I | 12 | 12"},                                    // no predecessors
      {"2 | 3 1 | 4 2 | 5 1 | 1 4 | 6 1 | 2 3 5 6",                        // three branches
       "I II III II III II<III IV | 2 14 5 2 | 2 16 21 23"},
      {"1 | 1 _ 1", "I II | 1 1 | 1 2"},  // a blank cell is no predecessor
      {"1 | 1 1.4", "I II | 1 1 | 1 2"},  // an activity number rounds
  };
  for (const auto& c : cases) {
    ASSERT_TRUE(check(linea(c.linea)).empty()) << c.linea;
    EXPECT_EQ(balance(linea(c.linea)), c.balance) << c.linea;
  }
}

TEST(Equilibrado, ActivitiesEightToFourteenTakeRowsFiveToNine) {
  EquilibradoFields f = linea("1 | 1 | 1 | 1 | 1 | 1 | 1 | 1 | 1 | 1 | 1 | 1 | 1 | 1 5 4 3 2 1");
  EXPECT_EQ(&f.anterior(14, 4), &f.C[6][9]);
  EXPECT_EQ(&f.anterior(8, 0), &f.C[0][5]);
  EXPECT_EQ(balance(f), "I I I I I I<II I<II I<II I<II I<II I<II I<II I<II II | 13 1 | 13 14");
}

// The checks of the cells, in order, each ending Resolver at its failure.
// Predecessor cells are checked only where shown, for a number from 0 to N.
TEST(Equilibrado, ChecksEndAtTheFirstFailure) {
  const std::string numero = "El numero de actividades no es correcto",
                    tiempos =
                        "el valor de los tiempos de operacion no es correcto, debe introducir un "
                        "valor comprendido entre 0 y 999999999",
                    vacio = "Debe introducir los tiempos de operacion";
  const struct {
    const char* linea;
    std::string message;
  } cases[] = {
      {"1 | 1 x", numero},   {"1 | 1 -1", numero},  {"1 | 1 2.5", numero}, {"x | 1 3", numero},
      {"x | _", tiempos},    {"-1 | 1", tiempos},   {"1e9 | 1", tiempos},  {"_ | 1", vacio},
      {"0 | 999999999", ""}, {"1 | 1 1", ""},       {"1 | 1 0", ""},       {"1 | 1 0.4", ""},
      {"1 | 1 2", ""},       {"1 | 1 3 | 1 2", ""},
  };
  for (const auto& c : cases) {
    const Messages expected = c.message.empty() ? Messages{} : Messages{{c.message, ""}};
    EXPECT_EQ(check(linea(c.linea)), expected) << c.linea;
  }
  EquilibradoFields f = linea("1 | 1");
  f.anterior(2, 0).visible = false;
  f.anterior(2, 0).text = "7";      // hidden, so not checked
  f.TiempoOperacion[9].text = "x";  // hidden times are checked all the same
  EXPECT_EQ(check(f), (Messages{{tiempos, ""}}));
  f.TiempoOperacion[9].text = "";
  EXPECT_EQ(check(f), Messages{});
  // The solution reads it all the same: P(2, 7) is beyond the array.
  try {
    solve(f);
    ADD_FAILURE() << "no run-time error";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number(), 9);
  }
}

// Predecessors that no column can take (a cycle, an element after itself,
// element 0) pass the checks and leave the placing passes without an end:
// the method stops where its step budget is spent.
TEST(Equilibrado, PrecedencesInACycleNeverEnd) {
  for (const char* l :
       {"1 | 1 3 | 1 2", "1 | 1 2", "1 | 1 0", "1 | 1 0.4", "1 | 1 1 | 1 4 | 1 3"}) {
    const EquilibradoFields f = linea(l);
    ASSERT_TRUE(check(f).empty()) << l;
    EXPECT_THROW(solve(f, 1000), DoesNotEnd) << l;
    EquilibradoFields g = f;
    EXPECT_THROW(solveAndReport(g, 1000), DoesNotEnd) << l;
  }
  // A chain typed backwards places one element a pass: four passes end
  // within a budget of 4, not of 3.
  const EquilibradoFields cadena = linea("2 2 | 3 3 | 4 4 | 1");
  EXPECT_EQ(solve(cadena, 4).NumColumnas, 4);
  EXPECT_THROW(solve(cadena, 3), DoesNotEnd);
}

}  // namespace
}  // namespace vorel::facility
