#include "location_equipment/centro_gravedad.h"

#include <gtest/gtest.h>

#include <cfloat>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::location_equipment {
namespace {

// Rows "name x y q" parted by "|", typed after choosing their number and Rediseñar.
CentroGravedadFields problema(const std::string& filas) {
  const auto rows = testing::tableRows(filas);
  CentroGravedadFields f;
  f.NLoc = int(rows.size()) - 2;
  rediseñar(f);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    f.localiz[i].text = rows[i][0];
    f.X[i].text = rows[i][1];
    f.Y[i].text = rows[i][2];
    f.Q[i].text = rows[i][3];
  }
  return f;
}

TEST(CentroGravedad, ChecksNamesThenQuantitiesThenCoordinates) {
  const struct {
    const char* filas;
    const char* message;
    const char* focus;
  } cases[] = {
      {"A 1 x y | _ 2 2 q",
       "Todas las celdas correspondientes a las localizaciones deben "
       "contener su nombre escrito",
       "localiz(1)"},
      {"A x 1 5 | B 2 y q",
       "Todas las celdas correspondientes a las cantidades deben contener "
       "un valor numérico",
       "Q(1)"},
      {"A 1 y 5 | B x 2 3",
       "Todas las celdas correspondientes a las coordenadas deben contener "
       "un valor numérico",
       "Y(0)"},
      {"A 1 2 3 | B 2,5 1e3 -4", nullptr, nullptr},  // no limits, no sign asked for
  };
  for (const auto& c : cases) {
    const Messages m = check(problema(c.filas));
    if (!c.message) {
      EXPECT_TRUE(m.empty()) << c.filas;
      continue;
    }
    ASSERT_EQ(m.size(), 1u) << c.filas;
    EXPECT_EQ(m[0], (Message{c.message, c.focus}));
  }
}

TEST(CentroGravedad, HiddenRowsAreNeitherCheckedNorCounted) {
  CentroGravedadFields f = problema("A 0 0 1 | B 10 4 3 | C x y z");
  f.NLoc = 0;  // back to two rows: C keeps its bad cells, hidden
  rediseñar(f);
  EXPECT_TRUE(check(f).empty());
  const CentroGravedadResults r = solve(f);
  EXPECT_EQ(r.SQ, 4.0f);
  EXPECT_EQ(r.Xc, 7.5f);
  EXPECT_EQ(r.Yc, 3.0f);
}

TEST(CentroGravedad, SumsInSingleBeforeDividing) {
  // Near 2^24 Singles lie 2 apart: the total quantity loses the lone unit and
  // the moment 16777219 rounds to 16777220, so Xc is 1 + 2^-22 where exact
  // arithmetic gives 1 + 2^-23 (two steps of a Single above 1, not one).
  const CentroGravedadResults r = solve(problema("A 1 1 16777216 | B 3 3 1"));
  EXPECT_EQ(r.SQ, 16777216.0f);
  EXPECT_EQ(r.Xc, 1.0f + 2 * FLT_EPSILON);
}

TEST(CentroGravedad, QuantitiesAddingUpToZeroFailAtRunTime) {
  const struct {
    const char* filas;
    int error;
  } cases[] = {{"A 1 2 0 | B 3 4 0", err::Overflow}, {"A 1 2 1 | B 3 4 -1", err::DivisionByZero}};
  for (const auto& c : cases) {
    try {
      solve(problema(c.filas));
      ADD_FAILURE() << c.filas;
    } catch (const RuntimeError& e) {
      EXPECT_EQ(e.number(), c.error);
    }
  }
}

}  // namespace
}  // namespace vorel::location_equipment
