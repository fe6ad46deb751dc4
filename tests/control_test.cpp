#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <functional>

#include "frame/arith.h"
#include "quality/control_atributos.h"
#include "quality/control_defectos.h"
#include "quality/control_forms.h"
#include "quality/control_variables.h"
#include "tests/test_support.h"

namespace vorel::quality {
namespace {

// Samples typed into the first rows, shown as after Rediseñar.
VariablesFields variables(const std::string& n, const std::vector<std::string>& M,
                          const std::vector<std::string>& S, bool ranges = false) {
  VariablesFields f;
  f.Nmuestras = std::to_string(M.size());
  f.Tmuestras = n;
  optionClick(f, ranges);
  rediseñar(f);
  for (std::size_t i = 0; i < M.size(); ++i) f.M[i].text = M[i], f.S[i].text = S[i];
  return f;
}

int errorOf(const std::function<void()>& run) {
  try {
    run();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

// Centre, LSC and LIC of the first row of the matrix (the columns 4, 2, 3).
std::vector<double> lines(const Chart& c) {
  return {c.matrix[0][3], c.matrix[0][1], c.matrix[0][2]};
}

void expectNear(const std::vector<double>& got, const std::vector<double>& want) {
  ASSERT_EQ(got.size(), want.size());
  for (std::size_t k = 0; k < got.size(); ++k) EXPECT_NEAR(got[k], want[k], 5e-5) << k;
}

// Limits worked by hand from the stored tables, where three of them differ
// from the published ones (C2 at n = 7 is 0.828, B4 at n = 14 is 1.549, D4 at
// n = 2 is 3.276); B3 at n = 2 is the text "0" and a tab.
TEST(ControlVariables, LimitsComeFromTheStoredFactors) {
  const std::vector<std::string> tens(4, "10"), twos(4, "2");
  struct Case {
    Grafico g;
    std::string n;
    bool ranges;
    std::vector<double> want;  // centre, LSC, LIC
  } cases[] = {
      // 3 (2 / 0.841) / Sqr(5) = 3.190585
      {Grafico::Medias, "5", false, {10, 13.190585, 6.809415}},
      // 3 (2 / 0.828) / Sqr(7) = 2.738873
      {Grafico::Medias, "7", false, {10, 12.738873, 7.261127}},
      // 3 (2 / 2.704) / Sqr(7) = 0.838679
      {Grafico::Medias, "7", true, {10, 10.838679, 9.161321}},
      // n = 2.5 rounds to the item of n = 2 (half to even), Sqr takes 2.5
      {Grafico::Medias,
       "2.5",
       false,
       {10, 10 + 6 / 0.564 / std::sqrt(2.5), 10 - 6 / 0.564 / std::sqrt(2.5)}},
      {Grafico::Desviaciones, "14", false, {2, 3.098, 0.812}},
      {Grafico::Desviaciones, "2", false, {2, 6.534, 0}},
      {Grafico::Recorridos, "2", true, {2, 6.552, 0}},
      {Grafico::Recorridos, "25", true, {2, 3.082, 0.918}},
  };
  for (const Case& c : cases) {
    VariablesFields f = variables(c.n, tens, twos, c.ranges);
    VariablesScreen s;
    expectNear(lines(activate(c.g, f, s, "t").chart), c.want);
  }
}

TEST(ControlVariables, ChecksInOrder) {
  const std::string numeric = "Todas las casillas deben contener un valor numérico";
  struct Case {
    std::string N, n, M, S, message;
  } cases[] = {
      {"46", "x", "x", "x", "El número de muestras debe estar entre 1 y 45"},
      {"-1", "5", "1", "1", "El número de muestras debe estar entre 1 y 45"},
      {"abc", "5", "1", "1", numeric},  // counts as 0 for the first test
      {"2", "", "1", "1", numeric},
      {"2", "5", "1", "x", numeric},
      {"2", "1.4", "-1", "1", "El tamaño de las muestras debe estar entre 2 y 25"},
      {"2", "26", "1", "1", "El tamaño de las muestras debe estar entre 2 y 25"},
      {"2", "5", "100000", "-1", "Las medias deben tener un valor comprendido entre 0 y 99999"},
      {"2", "5", "1", "100000",
       "Las desviaciones típicas deben tener un valor comprendido entre 0 y 99999"},
      {"0", "5", "", "", ""},  // no row to check
      {"2", "5", "99999", "0", ""},
  };
  for (const Case& c : cases) {
    VariablesFields f;
    f.Nmuestras = c.N;
    f.Tmuestras = c.n;
    for (int i = 0; i < 2; ++i) f.M[i].text = c.M, f.S[i].text = c.S;
    const Messages m = check(f);
    EXPECT_EQ(m.empty() ? "" : m[0].text, c.message) << c.N << " " << c.n;
  }
}

// Two points out: rows 4 and 7 leave the entry, the rows below move up (the
// stale rows 11 and 12 of an earlier, longer problem with them), N falls to 8.
TEST(ControlVariables, TheRemovalEditsTheEntry) {
  VariablesFields f =
      variables("5", {"50", "51", "49", "56", "48", "50.5", "44", "51.5", "48.5", "50", "50", "50"},
                std::vector<std::string>(12, "2"));
  f.Nmuestras = "10";
  rediseñar(f);
  VariablesScreen s;
  activate(Grafico::Medias, f, s, "t");
  EXPECT_EQ(f.Nmuestras, "8");
  const char* M[] = {"50", "51", "49", "48", "50.5", "51.5", "48.5", "50", "50", "50"};
  for (int i = 0; i < 10; ++i) EXPECT_EQ(f.M[i].text, M[i]) << i;
  EXPECT_TRUE(f.M[9].visible);  // rows beyond keep their place and text
  EXPECT_TRUE(s.Recalcular);
  EXPECT_TRUE(s.ControlDesviaciones);  // only Recalcular hides it
  EXPECT_EQ(s.outside, 2);
}

// The far sample's deviation widened the limits: once it is out, Recalcular
// finds sample 4 out, hides ControlDesviaciones, and the next is in control.
// Xbar 183 / 9, Sbar 1: LSC 20.33333 + 1.879699 = 22.21303.
TEST(ControlVariables, RecalcularFindsNewPointsOut) {
  VariablesFields f = variables("4", {"20", "20", "20", "23", "20", "20", "30", "20", "20", "20"},
                                {"1", "1", "1", "1", "1", "1", "16", "1", "1", "1"});
  VariablesScreen s;
  activate(Grafico::Medias, f, s, "t");
  EXPECT_EQ(f.Nmuestras, "9");
  const Painted second = recalcular(Grafico::Medias, f, s, "t");
  expectNear(lines(second.chart), {20.333333, 22.21303, 18.45363});
  EXPECT_EQ(f.Nmuestras, "8");
  EXPECT_FALSE(s.ControlDesviaciones);
  EXPECT_TRUE(s.recalculated);
  EXPECT_EQ(s.chart.matrix.size(), 10u);  // the page keeps the first pass's matrix
  recalcular(Grafico::Medias, f, s, "t");
  EXPECT_EQ(s.outside, 0);
  EXPECT_TRUE(s.ControlDesviaciones);
  EXPECT_FALSE(s.Recalcular);
  EXPECT_NE(renderText(printout(Grafico::Medias, f, s)).find("  Media:  "), std::string::npos);
}

TEST(ControlVariables, RowZeroStaysOnlyOnTheMeansRecalcular) {
  // Row 0 far above: the means' Recalcular keeps it, the deviations' does not,
  // and the deviations' removal moves S alone.
  VariablesFields f =
      variables("5", {"90", "50", "50", "50", "50", "50"}, {"30", "2", "2", "2", "2", "2"});
  VariablesScreen s;
  recalcular(Grafico::Medias, f, s, "t");
  EXPECT_EQ(s.outside, 1);
  EXPECT_EQ(f.Nmuestras, "6");
  VariablesScreen d;
  recalcular(Grafico::Desviaciones, f, d, "t");
  EXPECT_EQ(f.Nmuestras, "5");
  EXPECT_EQ(f.S[0].text, "2");
  EXPECT_EQ(f.M[0].text, "90");
}

TEST(ControlVariables, RunTimeErrors) {
  // Two removals with empty rows below: the pass goes on taking out the empty
  // row past the count until the count's Integer overflows.
  VariablesFields twoOut =
      variables("5", {"50", "56", "50", "44", "50", "50"}, std::vector<std::string>(6, "2"));
  // With 45 samples a removal reads M(45).
  std::vector<std::string> M(45, "50"), S(45, "2");
  M[3] = "80";
  VariablesFields full = variables("5", M, S);
  VariablesFields none = variables("5", {}, {});
  none.Nmuestras = "0";
  VariablesScreen s;
  EXPECT_EQ(errorOf([&] { activate(Grafico::Medias, twoOut, s, "t"); }), err::Overflow);
  EXPECT_EQ(errorOf([&] { activate(Grafico::Medias, full, s, "t"); }), err::Subscript);
  EXPECT_EQ(errorOf([&] { activate(Grafico::Medias, none, s, "t"); }), err::Overflow);
  // The deviations chart divides only when N differs from the mean it holds.
  EXPECT_EQ(errorOf([&] { activate(Grafico::Desviaciones, none, s, "t"); }), 0);
}

// The overflow above is certain from the first removal past the count, and
// comes at once: a hundred such runs take far less than a second.
TEST(ControlVariables, AHopelessRemovalEndsAtOnce) {
  VariablesScreen s;
  const auto start = std::chrono::steady_clock::now();
  for (int k = 0; k < 100; ++k) {
    VariablesFields twoOut =
        variables("5", {"50", "56", "50", "44", "50", "50"}, std::vector<std::string>(6, "2"));
    ASSERT_EQ(errorOf([&] { activate(Grafico::Medias, twoOut, s, "t"); }), err::Overflow);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST(ControlVariables, SbarIsKeptWhileNEqualsIt) {
  VariablesFields f = variables("5", {"1", "1"}, {"2", "2"});
  VariablesScreen s;
  activate(Grafico::Desviaciones, f, s, "t");
  EXPECT_EQ(s.Sbar, 2.0f);
  f.S[0].text = f.S[1].text = "4";  // N is 2, the value Sbar holds: Sbar stays
  activate(Grafico::Desviaciones, f, s, "t");
  EXPECT_EQ(s.Sbar, 2.0f);
  f.Nmuestras = "1";
  activate(Grafico::Desviaciones, f, s, "t");
  EXPECT_EQ(s.Sbar, 4.0f);
}

// The chart screens keep their Sbar in the entry's fields from one
// activation to the next, each its own: the deviations chart finds N = 2
// equal to the Sbar it kept and does not take the new deviations.
TEST(ControlVariables, EachChartScreenKeepsItsSbarBetweenActivations) {
  VariablesFields f = variables("5", {"1", "1"}, {"2", "2"});
  variablesChart(f, "ControlCal_V_Sol2", "t");
  f.S[0].text = f.S[1].text = "4";
  const auto desviaciones = variablesChart(f, "ControlCal_V_Sol2", "t");
  EXPECT_NE(renderText(desviaciones->pages().screen).find("Smedia:                      2\n"),
            std::string::npos);
  const auto recorridos = variablesChart(f, "ControlCal_V_Sol3", "t");
  const std::string text = renderText(recorridos->pages().screen);
  const std::size_t line = text.find("Recorrido Medio :");
  ASSERT_NE(line, std::string::npos);
  EXPECT_EQ(text.substr(text.find_first_not_of(' ', line + 17), 2), "4\n");
}

TEST(ControlVariables, RediseñarShowsRowsAndTheHeadsOfTheirBlocks) {
  VariablesFields f;
  f.Nmuestras = "16";
  rediseñar(f);
  EXPECT_TRUE(f.K[15] && f.M[15].visible && f.S[15].visible);
  EXPECT_FALSE(f.K[16] || f.M[16].visible);
  EXPECT_EQ(f.Lblk, (std::array<bool, 3>{true, true, false}));
  EXPECT_EQ(f.LblS, (std::array<bool, 3>{true, true, false}));
  EXPECT_EQ(f.LblR, (std::array<bool, 3>{false, true, false}));  // block 1 shows both
  optionClick(f, true);
  EXPECT_EQ(f.LblS, (std::array<bool, 3>{false, false, false}));
  EXPECT_TRUE(f.LblMkRk && !f.LblMkSk);
  f.Nmuestras = "46";
  EXPECT_EQ(errorOf([&] { rediseñar(f); }), err::Subscript);
}

AtributosFields atributos(bool np, const std::vector<std::string>& r,
                          const std::vector<std::string>& n, const std::string& constant) {
  AtributosFields f;
  f.Nmuestras = std::to_string(r.size());
  f.NPTMuestra.text = constant;
  optionClick(f, np);
  rediseñar(f);
  for (std::size_t i = 0; i < r.size(); ++i) {
    f.r[i].text = r[i];
    if (i < n.size()) f.tamano[i].text = n[i];
  }
  return f;
}

TEST(ControlAtributos, ChecksInOrder) {
  const std::string una = "Todas las casillas deben contener una valor numérico";
  struct Case {
    bool np;
    std::string r, n, N, constant, message;
  } cases[] = {
      {false, "x", "x", "99", "x", una},
      {false, "-1", "x", "99", "x",
       "El número de defectos en cada muestra debe estar comprendido entre 0 y 99999"},
      {false, "1", "x", "99", "x", una},
      {true, "1", "x", "46", "x", "El número de muestras debe estar comprendido entre 1 y 45"},
      {false, "1", "10", "2", "", "Todas las casillas deben tener un valor numérico"},
      {true, "1", "", "2", "10000", "El tamaño de muestra constante debe estar entre 0 y 9999"},
      {false, "11", "10", "2", "0",
       "Los datos introducidos en la tabla dan lugar a una proporción de unidades defectuosas "
       "errónea"},
      {true, "11", "", "2", "10",
       "Los datos introducidos en la tabla dan lugar a una proporción de unidades defectuosas "
       "errónea"},
      {true, "10", "", "2", "10", ""},
  };
  for (const Case& c : cases) {
    AtributosFields f = atributos(c.np, {c.r, c.r}, {c.n, c.n}, c.constant);
    f.Nmuestras = c.N;
    const Messages m = check(f);
    EXPECT_EQ(m.empty() ? "" : m[0].text, c.message) << c.r << " " << c.N;
  }
  // np with a constant size of 0: the proportion divides by zero.
  AtributosFields zero = atributos(true, {"1"}, {}, "0");
  EXPECT_EQ(errorOf([&] { check(zero); }), err::DivisionByZero);
}

// p: pbar 73 / 850, nbar 106.25, LSC = pbar + 3 Sqr(pbar (1 - pbar) / nbar).
// np: pbar 50 / 1000, LC 5, LSC 5 + 3 Sqr(0.95 * 5) = 11.53835.
TEST(ControlAtributos, LimitsWorkedByHand) {
  AtributosFields p = atributos(false, {"5", "8", "6", "4", "30", "5", "9", "6", "6"},
                                {"100", "120", "110", "90", "100", "105", "130", "95", "100"}, "1");
  p.Nmuestras = "8";
  ControlScreen s;
  const Chart c = activate(false, p, s).chart;
  expectNear(lines(c), {0.0858824, 0.1674297, 0.0043350});
  EXPECT_EQ(c.matrix[4][0], double(0.3f));  // the proportion, stored as Single
  EXPECT_EQ(p.Nmuestras, "7");
  EXPECT_EQ(p.tamano[4].text, "105");  // the size left with its sample
  AtributosFields np =
      atributos(true, {"4", "6", "5", "3", "7", "5", "4", "6", "5", "5"}, {}, "100");
  expectNear(lines(activate(true, np, s).chart), {5, 11.53835, 0});
  // No defective unit: every point on limits 0 is inside them.
  AtributosFields none = atributos(true, {"0", "0"}, {}, "50");
  EXPECT_EQ(activate(true, none, s).chart.axis.automatic, true);
  EXPECT_EQ(s.outside, 0);
}

DefectosFields defectos(bool variable, const std::vector<std::string>& d,
                        const std::vector<std::string>& n, const std::string& constant) {
  DefectosFields f;
  f.Nmuestras = std::to_string(d.size());
  f.TMuestra = constant;
  optionClick(f, variable);
  rediseñar(f);
  for (std::size_t i = 0; i < d.size(); ++i) {
    f.r[i].text = d[i];
    if (i < n.size()) f.N[i].text = n[i];
  }
  return f;
}

TEST(ControlDefectos, ChecksForTheSizes) {
  struct Case {
    bool variable;
    std::string n, constant, message;
  } cases[] = {
      {true, "x", "1", "Todas las casillas deben contener una valor numérico"},
      {false, "x", "0", "El tamaño de las muestras debe estar entre 1 y 9999"},
      {false, "x", "", "Todas las casillas deben tener un valor numérico"},
      {true, "10000", "1", "Los tamaños de las muestras deben estar entre 0 y 9999"},
      {true, "0", "1", ""},
  };
  for (const Case& c : cases) {
    const Messages m = check(defectos(c.variable, {"1"}, {c.n}, c.constant));
    EXPECT_EQ(m.empty() ? "" : m[0].text, c.message) << c.n << " " << c.constant;
  }
}

// c: 62 defects in 10 samples of 1: LC 6.2, LSC 6.2 + 3 Sqr(6.2) = 13.66994.
// u: ubar 104 / 43; each row its own limits ubar +- 3 Sqr(ubar / nk).
TEST(ControlDefectos, LimitsWorkedByHand) {
  DefectosFields c = defectos(false, {"4", "6", "5", "3", "19", "5", "4", "6", "5", "5"}, {}, "1");
  ControlScreen s;
  expectNear(lines(activate(false, c, s).chart), {6.2, 13.66994, 0});
  EXPECT_EQ(c.Nmuestras, "9");
  DefectosFields u = defectos(true, {"10", "12", "8", "30", "9", "11", "14", "10", "9"},
                              {"5", "6", "4", "5", "5", "6", "7", "5", "4"}, "1");
  u.Nmuestras = "8";
  const Chart chart = activate(true, u, s).chart;
  const double ubar = 104.0 / 43;
  for (int k : {0, 1, 2}) {
    const double n = Val(k == 1 ? "6" : k == 2 ? "4" : "5");
    expectNear(chart.matrix[std::size_t(k)],
               {chart.matrix[std::size_t(k)][0], ubar + 3 * std::sqrt(ubar / n),
                ubar - 3 * std::sqrt(ubar / n), ubar});
  }
  EXPECT_EQ(u.N[3].text, "5");  // row 4 went out with its size; row 5 moved up
  EXPECT_EQ(u.r[3].text, "9");
  // Empty rows below a removal: their 0 / 0 fails, as the test reads them all.
  DefectosFields out =
      defectos(true, {"10", "90", "8", "10", "11"}, {"5", "5", "4", "5", "5"}, "1");
  EXPECT_EQ(errorOf([&] { activate(true, out, s); }), err::Overflow);
}

}  // namespace
}  // namespace vorel::quality
