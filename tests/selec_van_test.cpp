#include "location_equipment/selec_van.h"

#include <gtest/gtest.h>

#include "frame/arith.h"

namespace vorel::location_equipment {
namespace {

// A at 10 %: 1000 now, 600 and 600; B: 1000 now, 400 a year for `yearsB` years.
VanFields problem(const char* yearsB) {
  VanFields f;
  f.txtDescuento = "10";
  f.InicialA = "1000";
  f.InicialB = "1000";
  f.NVarA = "2";
  f.NVarB = yearsB;
  rediseñar(f);
  f.AX1[0].text = f.AX1[1].text = "600";
  for (Cell& c : f.AX2) c.text = "400";
  return f;
}

TEST(SelecVan, DiscountedFlowsAndTheCorrectionForUnequalLives) {
  // Equal lives: -1000 + 600/1.1 + 600/1.21 = 41.3223; -1000 + 400/1.1 + 400/1.21 = -305.785.
  VanResults r = solve(problem("2"));
  EXPECT_NEAR(r.VANA, 41.3223, 1e-3);
  EXPECT_NEAR(r.VANB, -305.785, 1e-3);
  EXPECT_FALSE(r.corrected);
  // B over 3 years: -5.2592; VANC = ((1.1^n - 1) / (0.1 * 1.1^n)) * VAN.
  r = solve(problem("3"));
  EXPECT_NEAR(r.VANB, -5.2592, 1e-3);
  EXPECT_NEAR(r.VANCA, 0.21 / 0.121 * 41.3223, 1e-3);
  EXPECT_NEAR(r.VANCB, 0.331 / 0.1331 * -5.2592, 1e-3);
  // The running total is a Single at each year.
  EXPECT_EQ(r.VANA, Sng(Sng(-1000 + 600 / 1.1) + 600 / 1.21));
}

template <class F>
int runtimeError(F f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

TEST(SelecVan, RunTimeErrors) {
  VanFields f = problem("3");
  f.txtDescuento = "0";  // VANC: 0 · VAN / 0
  EXPECT_EQ(runtimeError([&] { solve(f); }), err::Overflow);
  f = problem("3");
  f.NVarB = "4";  // no Rediseñar: year 4 of B is a hidden, empty cell
  f.AX2[3].text = "";
  EXPECT_EQ(runtimeError([&] { solve(f); }), err::TypeMismatch);
  f.NVarA = "10";  // a tenth year has no row
  EXPECT_EQ(runtimeError([&] { rediseñar(f); }), err::Subscript);
}

TEST(SelecVan, ChecksInOrder) {
  struct Case {
    void (*edit)(VanFields&);
    const char* message;
  } cases[] = {
      {[](VanFields& f) { f.txtDescuento = "x", f.InicialA = ""; },
       "La casilla de tipo de descuento debe contener un valor numérico"},
      {[](VanFields& f) { f.InicialB = "", f.AX1[0].text = ""; },
       "Las casillas correspondientes al valor inicial de la inversión deben contener un valor "
       "numérico"},
      {[](VanFields& f) { f.AX2[2].text = "a"; },
       "Todas las celdas correspondientes a los flujos de caja deben contener un valor numérico"},
      {[](VanFields& f) { f.AX2[3].text = "a"; }, nullptr},  // a hidden row is not looked at
  };
  for (const auto& c : cases) {
    VanFields f = problem("3");
    c.edit(f);
    const Messages expected = c.message ? Messages{{c.message, ""}} : Messages{};
    EXPECT_EQ(check(f), expected) << (c.message ? c.message : "");
  }
}

}  // namespace
}  // namespace vorel::location_equipment
