#include "inventory/cep_ruptura.h"

#include <gtest/gtest.h>

#include <cmath>

#include "frame/arith.h"

namespace vorel::inventory {
namespace {

RupturaFields problema(const char* D, const char* E, const char* A, const char* CR, const char* TS,
                       const char* dias) {
  RupturaFields f;
  f.D = D, f.E = E, f.A = A, f.CR = CR, f.TS = TS, f.dias = dias, f.P = "1";
  return f;
}

// Q = sqrt(2 * 150 * 400 / 3) * sqrt(4 / 1) = 400, n = 1, S = 400 * 1/4 = 100,
// TR = 200, t1 = 100 * 200 / 400 = 50, t2 = 150, d = 400 / 200 = 2,
// CT = 400 + 150 + 100 * 3 * 50 / 2 + 300 * 0.5 * 150 = 30550.
TEST(CepRuptura, SevenCasesOfTheLeadTime) {
  using enum PuntoRuptura;
  const struct {
    const char* T;
    PuntoRuptura caso;
    const char* Pp;
  } cases[] = {
      {"100", DemandaInsatisfecha, " 100"},  // 2 * (150 - 100)
      {"150", Agotado, " 0"},
      {"180", Inventario, " 60"},  // 2 * (180 - 150)
      {"200", MaximaInsatisfecha, " 0"},
      {"250", InsatisfechaAnterior, " 200"},  // 2 * (150 + 200 - 250)
      {"350", MaximaAnterior, " 0"},
      {"380", InventarioAnterior, " 60"},  // 2 * (380 - 200 - 150)
      {"400", Ninguno, " 0"},              // two cycles
  };
  for (const auto& c : cases) {
    const RupturaResults r = solve(problema("400", "150", "3", "1", c.T, "200"));
    EXPECT_EQ(r.caso, c.caso) << c.T;
    EXPECT_EQ(Str(r.Pp), c.Pp) << c.T;
    EXPECT_EQ(Str(r.Q) + Str(r.n) + Str(r.S) + Str(r.TR) + Str(r.t1) + Str(r.t2) + Str(r.CT),
              " 400 1 100 200 50 150 30550");
  }
}

TEST(CepRuptura, RootsAreSinglesBeforeTheyMultiplyAndEqualitiesRarelyHold) {
  // sqrt(25000) = 158.1139 and sqrt(16 / 12) = 1.154701, each as a Single.
  const RupturaFields f = problema("1000", "50", "4", "12", "10", "250");
  const RupturaResults r = solve(f);
  EXPECT_EQ(r.Q, Sng(double(Sng(std::sqrt(25000.0))) * Sng(std::sqrt(16.0 / 12))));
  EXPECT_NE(r.Q, Sng(std::sqrt(25000.0) * std::sqrt(16.0 / 12)));
  // t2 = 11.41088 (as printed) = TR 45.64354 - t1 34.23266; d = 4;
  // CT = 1000 + 273.8613 + 51348.67 + 17116.64 with the days as they come.
  EXPECT_EQ(Str(r.t2) + Str(r.Pp) + Str(r.CT), " 11.41088 5.643539 69739.17");
  // The lead time typed as t2 is printed is not t2's Single: an inequality case.
  RupturaFields g = f;
  g.TS = "11.41088";
  EXPECT_EQ(solve(g).caso, PuntoRuptura::DemandaInsatisfecha);
  // A shortage cost far above the holding cost gives the simple model's
  // quantity, S = Q and no days of shortage.
  g.CR = "999999999";
  const RupturaResults s = solve(g);
  EXPECT_EQ(Str(s.Q) + Str(s.S) + Str(s.t2), " 158.1139 158.1139 0");
  EXPECT_EQ(s.caso, PuntoRuptura::Inventario);
}

TEST(CepRuptura, ZeroGetsTheFirstMessage) {
  const struct {
    void (*edit)(RupturaFields&);
    const char* message;
  } cases[] = {
      {[](RupturaFields& f) {
         f.A = "0";
         f.CR = "x";
       },
       "Valor del coste de almacenamiento (A) no válido. Introduce un nuevo valor"},
      {[](RupturaFields& f) { f.CR = "0"; },
       "Valor del Coste de Ruptura no válido. Introduce un nuevo valor"},
      {[](RupturaFields& f) { f.CR = "1e9"; },
       "Valor del Coste de Ruptura no válido. Introduce un nuevo valor entre 0 y 999.999.999"},
  };
  for (const auto& c : cases) {
    RupturaFields f = problema("1000", "50", "4", "12", "10", "250");
    c.edit(f);
    EXPECT_EQ(check(f), (Messages{{c.message, ""}})) << c.message;
  }
}

}  // namespace
}  // namespace vorel::inventory
