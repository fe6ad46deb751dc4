#include <gtest/gtest.h>

#include <functional>

#include "frame/arith.h"
#include "games/juegos_2.h"
#include "games/juegos_3.h"

namespace vorel::games {
namespace {

// A 2x2 game typed cell by cell: J1's payoff, then J2's.
Juegos2Fields juego2(const std::array<Pagos<2>, 4>& celdas) {
  Juegos2Fields f;
  f.E1 = celdas[0], f.E2 = celdas[1], f.E3 = celdas[2], f.E4 = celdas[3];
  return f;
}

int errorDe(const std::function<void()>& run) {
  try {
    run();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

TEST(Juegos2, ANonNumericPayoffStopsEitherCommandBeforeItComputes) {
  Juegos2Fields f = juego2({{{"1", "2"}, {"3", "4"}, {"6", "5"}, {"7", "x"}}});
  Juegos2Estado e;
  const Messages numerico = {{"Todas las celdas deben contener un valor numérico", ""}};
  EXPECT_EQ(estPuras(f, e), numerico);
  EXPECT_EQ(estMixtas(f, e), numerico);
  EXPECT_EQ(e.Calculado, 0);
  EXPECT_FALSE(e.EquilibriosPuras.visible || e.EquilibriosMixtas.visible);
  EXPECT_EQ(
      resolver(e.Calculado),
      (Messages{{"Debe calcular primero los equilibrios en estrategias puras y mixtas", ""}}));
  f.E4[1] = "1e3";  // numeric in the platform's sense
  EXPECT_TRUE(estMixtas(f, e).empty());
  EXPECT_EQ(e.Calculado, 1);
  EXPECT_TRUE(resolver(e.Calculado).empty());
}

// The sums are 16-bit Integers, rounded half to even before they are compared.
TEST(Juegos2, TypeOfGameFromTheRoundedSums) {
  const std::pair<std::array<Pagos<2>, 4>, const char*> cases[] = {
      {{{{"1.2", "1.2"}, {"1.3", "1.3"}, {"3", "0"}, {"0", "3"}}}, "Juego de Suma Variable"},
      {{{{"1.25", "1.25"}, {"2", "0"}, {"0", "2"}, {"1.5", ".5"}}}, "Juego de Suma Constante"},
      {{{{"-1", "1"}, {"5", "-5"}, {"0", "0"}, {"1e-9", "0"}}}, "Juego de Suma Constante"},
  };
  for (const auto& [celdas, tipo] : cases) {
    Juegos2Fields f = juego2(celdas);
    Juegos2Estado e;
    ASSERT_TRUE(estPuras(f, e).empty());
    EXPECT_NE(renderText(report(f, e)).find(std::string(tipo) + "\n"), std::string::npos) << tipo;
  }
  Juegos2Estado e;
  EXPECT_EQ(errorDe([&] {
              estPuras(juego2({{{"20000", "12767.5"}, {"0", "0"}, {"0", "0"}, {"0", "0"}}}), e);
            }),
            err::Overflow);
}

TEST(Juegos2, EveryCellAnEquilibriumIsRefusedAndHidesBothFrames) {
  Juegos2Fields f = juego2({{{"1", "5"}, {"2", "5"}, {"1", "0"}, {"2", "0"}}});
  Juegos2Estado e;
  EXPECT_TRUE(estMixtas(juego2({{{"1", "0"}, {"0", "1"}, {"0", "1"}, {"1", "0"}}}), e).empty());
  EXPECT_EQ(estPuras(f, e), (Messages{{"No se puede dar esta situación de juego", ""}}));
  EXPECT_EQ(e.NumPuros, 4);
  EXPECT_FALSE(e.EquilibriosPuras.visible || e.EquilibriosMixtas.visible);
  f.E4 = {"3", "0"};  // three equilibria left, ties counting
  EXPECT_TRUE(estPuras(f, e).empty());
  EXPECT_EQ(renderText(e.EquilibriosPuras.lineas),
            "Equilibrio:   (1,5)\nEquilibrio:   (1,0)\nEquilibrio:   (3,0)\n");
}

// Expected payoffs just below 0 are 0; -0.0001 itself, in single precision,
// stays. With a11 = a22 = v and a12 = a21 = 0, J2 plays each decision with
// p = .5 and J1 expects v / 2 on either.
TEST(Juegos2, MixedPayoffsCloseBelowZeroAreZero) {
  for (const auto& [v, pago] : {std::pair{"-.0001", 0.0F}, {"-.0002", -0.0001F}}) {
    Juegos2Estado e;
    estMixtas(juego2({{{v, "1"}, {"0", "0"}, {"0", "0"}, {v, "1"}}}), e);
    EXPECT_EQ(e.ProbJ2, 0.5F);
    EXPECT_EQ(e.PagoD1J1, pago) << v;
    EXPECT_EQ(e.PagoD2J1, pago) << v;
  }
}

TEST(Juegos3, QuadraticOfJ2sPayoffs) {
  // x(E) is J2's payoff; J1's and J3's payoffs do not enter.
  Juegos3Fields f;
  const char* x[] = {"1", "20", "300", "4000", "5e4", "6e5", "7e6", "8e7"};
  std::size_t i = 0;
  for (Pagos<3>* pagos : f.celdas()) *pagos = {"9", x[i++], "9"};
  const Cuadratica k = cuadratica(f);
  EXPECT_EQ(k.a, 1 - 20 - 300 - 5e4 + 6e5 + 7e6);
  EXPECT_EQ(k.b, 300 + 4000 + 5e4 - 6e5 - 2 * 7e6);
  EXPECT_EQ(k.c, 4000 - 7e6);
}

TEST(Juegos3, NuevoBlanksTheScreenButKeepsWhatWasComputed) {
  Juegos3Fields f;
  for (Pagos<3>* pagos : f.celdas()) *pagos = {"1", "2", "3"};
  f.E41 = {"4", "5", "6"};
  Juegos3Estado e;
  ASSERT_TRUE(estPuras(f, e).empty());
  nuevo(f, e);
  EXPECT_EQ(f.Titulo1, "");
  EXPECT_EQ(f.E41, (Pagos<3>{"", "", ""}));
  EXPECT_FALSE(e.EquilibriosPuras.visible);
  EXPECT_TRUE(e.EquilibriosPuras.lineas.empty());
  EXPECT_EQ(e.Calculado, 1);
  EXPECT_EQ(e.Puro[7], 1);
}

}  // namespace
}  // namespace vorel::games
