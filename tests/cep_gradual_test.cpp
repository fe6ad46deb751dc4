#include "inventory/cep_gradual.h"

#include <gtest/gtest.h>

#include "frame/arith.h"

namespace vorel::inventory {
namespace {

// Q = sqrt(2 * 100 * 50 * 10000 / (60 * 2)) = 912.8709, TR = Q / 40 = 22.82177,
// t1 = Q / 100 = 9.128709, t2 = TR - t1 = 13.69306, S = 60 * t1 = 547.7225,
// CT = 50000 + n * 50 + S * 2 / 2 = 51095.45.
GradualFields lote(const char* TS) {
  GradualFields f;
  f.D = "10000", f.E = "50", f.A = "2", f.TS = TS, f.P = "5", f.Pdia = "100", f.Ddia = "40";
  return f;
}

TEST(CepGradual, ReorderPointByPhaseOfTheCycle) {
  using enum PuntoGradual;
  // Past one cycle the point is d * (TR - T), negative as it stands.
  const struct {
    const char* T;
    PuntoGradual caso;
    const char* Pp;
  } cases[] = {
      {"13.69306", Decreciente, " 547.7224"},        // T <= t2: 40 * T
      {"20", Creciente, " 169.3064"},                // 60 * (22.82177 - 20)
      {"30", Anterior, "-287.1291"},                 // 40 * (22.82177 - 30)
      {"36.5", Anterior, "-547.129"},                // T - TR = 13.67823 <= t2
      {"36.6", AnteriorCreciente, "-551.129"},       // T - TR = 13.77823 > t2
      {"45.64354", AnteriorCreciente, "-912.8707"},  // 2 TR = 45.64355 >= T
      {"60", Lejano, "-1487.129"},                   // 40 * (22.82177 - 60)
  };
  for (const auto& c : cases) {
    const GradualResults r = solve(lote(c.T));
    EXPECT_EQ(r.caso, c.caso) << c.T;
    EXPECT_EQ(Str(r.Pp), c.Pp) << c.T;
    EXPECT_EQ(Str(r.Q) + Str(r.n) + Str(r.TR) + Str(r.t1) + Str(r.t2) + Str(r.S) + Str(r.CT),
              " 912.8709 10.95445 22.82177 9.128709 13.69306 547.7225 51095.45");
  }
}

TEST(CepGradual, LeadTimeEqualToTheCycleGivesNoPointEvenWhereOnlyItsSingleIs) {
  // Q = sqrt(2 * 2 * 50 * 1000 / 20) = 100 = TR; t1 = t2 = 50.
  GradualFields f = lote("100");
  f.D = "1000", f.A = "20", f.Pdia = "2", f.Ddia = "1";
  for (const char* T : {"100", "99.999999"}) {  // the second rounds to 100 as a Single
    f.TS = T;
    EXPECT_EQ(solve(f).caso, PuntoGradual::Ninguno) << T;
  }
  f.TS = "99.99";
  EXPECT_EQ(solve(f).caso, PuntoGradual::Creciente);
}

TEST(CepGradual, ZeroGetsTheFirstMessageAndSupplyIsBoundedByDemandAndConsumptionBySupply) {
  const struct {
    void (*edit)(GradualFields&);
    const char* message;
  } cases[] = {
      {[](GradualFields& f) { f.D = "0"; },
       "Valor de la demanda (D) no válido. Introduce un nuevo valor"},
      {[](GradualFields& f) {
         f.TS = "1000";
         f.Pdia = "x";
       },
       "Valor del Tiempo de Suministro (Ts) no válido. Introduce un nuevo valor entre 0 y 999"},
      {[](GradualFields& f) { f.Pdia = "10001"; },
       "Valor de p no válido. Introduce un nuevo valor entre 0 y el valor de D"},
      {[](GradualFields& f) { f.Pdia = "0"; }, "Valor de p no válido. Introduce un nuevo valor"},
      {[](GradualFields& f) { f.Ddia = "100.5"; },
       "Valor de d no válido. Introduce un nuevo valor entre 0 y el valor de p"},
  };
  for (const auto& c : cases) {
    GradualFields f = lote("5");
    c.edit(f);
    EXPECT_EQ(check(f), (Messages{{c.message, ""}})) << c.message;
  }
  GradualFields f = lote("5");
  f.Pdia = "10000", f.Ddia = "10000";  // at the bounds: accepted, and then p = d divides by zero
  EXPECT_TRUE(check(f).empty());
}

}  // namespace
}  // namespace vorel::inventory
