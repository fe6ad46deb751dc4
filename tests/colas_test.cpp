#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "frame/arith.h"
#include "queueing/colas.h"

namespace vorel::queueing {
namespace {

// A problem typed as the screen takes it: the option clicked, the service
// distribution chosen, then the numbers typed.
ColasFields cola(int sistema, int servicio, std::string S, std::string lambda, std::string nu,
                 std::string K = "", std::string N = "", std::string V = "") {
  ColasFields f;
  elegir(f, sistema);
  f.Servicios = servicio;
  serviciosClick(f);
  f.S = std::move(S);
  f.Lambda = std::move(lambda);
  f.Nu = std::move(nu);
  f.K = std::move(K);
  f.N = std::move(N);
  f.VarTS = std::move(V);
  return f;
}

ColasResults resolver(ColasFields f) {
  EXPECT_TRUE(check(f).empty());
  anotar(f);
  return solve(f);
}

int errorDe(const std::function<void()>& run) {
  try {
    run();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

// The textbook figures, from the balance equations of a birth and death
// process: rate up from n and rate down from n, states 0 to last.
struct Textbook {
  double L, Lq, W, Wq, lambdaEf;
  std::vector<double> P;
};
Textbook birthDeath(int last, const std::function<double(int)>& up,
                    const std::function<double(int)>& down, int servers) {
  std::vector<double> q{1};
  for (int n = 1; n <= last; ++n) q.push_back(q.back() * up(n - 1) / down(n));
  double total = 0;
  for (double x : q) total += x;
  Textbook t{0, 0, 0, 0, 0, {}};
  for (int n = 0; n <= last; ++n) {
    const double p = q[std::size_t(n)] / total;
    t.P.push_back(p);
    t.L += n * p;
    t.Lq += std::max(0, n - servers) * p;
    if (n < last) t.lambdaEf += up(n) * p;  // nobody joins a full system
  }
  t.W = t.L / t.lambdaEf;
  t.Wq = t.Lq / t.lambdaEf;
  return t;
}

// Pollaczek-Khinchine for one server, with the standard deviation of the
// service time given (zero for constant service).
Textbook pollaczek(double lambda, double mu, double sigma) {
  const double ro = lambda / mu;
  Textbook t{0, 0, 0, 0, lambda, {}};
  t.Lq = ro * ro * (1 + sigma * sigma * mu * mu) / (2 * (1 - ro));
  t.L = t.Lq + ro;
  t.W = t.L / lambda;
  t.Wq = t.Lq / lambda;
  for (int n = 0; n <= 9; ++n) t.P.push_back((1 - ro) * std::pow(ro, n));
  return t;
}

void expectNear(double actual, double expected, const std::string& what) {
  EXPECT_NEAR(actual, expected, 2e-6 * std::max(1.0, std::fabs(expected))) << what;
}

TEST(Colas, MM1GivesTheTextbookFiguresAsStrPrintsThem) {
  const ColasResults r = resolver(cola(kColaIlimitada, 0, "1", "2", "3"));
  EXPECT_EQ(r.Tipo, 1);
  EXPECT_EQ(Str(r.ro), " .6666667");
  EXPECT_EQ(Str(r.L), " 2");
  EXPECT_EQ(Str(r.Lq), " 1.333333");
  EXPECT_EQ(Str(r.W), " 1");
  EXPECT_EQ(Str(r.Wq), " .6666667");
  EXPECT_EQ(r.Probabilidades[0], " .3333333");
  EXPECT_EQ(r.Probabilidades[1], " .2222222");
}

TEST(Colas, EveryModelAgreesWithItsClosedForm) {
  struct Case {
    const char* name;
    ColasFields f;
    int tipo;
    Textbook t;
  } cases[] = {
      {"M/M/1", cola(kColaIlimitada, 0, "1", "2", "3"), 1,
       birthDeath(400, [](int) { return 2.0; }, [](int) { return 3.0; }, 1)},
      {"M/M/1 light", cola(kColaIlimitada, 0, "1", "0.5", "4"), 1,
       birthDeath(200, [](int) { return 0.5; }, [](int) { return 4.0; }, 1)},
      {"M/M/s", cola(kColaIlimitada, 0, "2", "2", "3"), 2,
       birthDeath(400, [](int) { return 2.0; }, [](int n) { return 3.0 * std::min(n, 2); }, 2)},
      {"M/M/s three servers", cola(kColaIlimitada, 0, "3", "5", "2"), 2,
       birthDeath(600, [](int) { return 5.0; }, [](int n) { return 2.0 * std::min(n, 3); }, 3)},
      {"M/G/1", cola(kColaIlimitada, 1, "1", "2", "3", "", "", "0.1"), 3, pollaczek(2, 3, 0.1)},
      {"M/D/1", cola(kColaIlimitada, 2, "1", "2", "3"), 4, pollaczek(2, 3, 0)},
      {"M/M/1/K", cola(kColaLimitada, 0, "1", "2", "3", "3"), 5,
       birthDeath(3, [](int) { return 2.0; }, [](int) { return 3.0; }, 1)},
      {"M/M/1/K above one", cola(kColaLimitada, 0, "1", "5", "2", "6"), 5,
       birthDeath(6, [](int) { return 5.0; }, [](int) { return 2.0; }, 1)},
      {"M/M/s/K", cola(kColaLimitada, 0, "2", "4", "3", "5"), 6,
       birthDeath(5, [](int) { return 4.0; }, [](int n) { return 3.0 * std::min(n, 2); }, 2)},
      {"M/M/1/N", cola(kFuenteFinita, 0, "1", "1", "3", "", "4"), 7,
       birthDeath(4, [](int n) { return 1.0 * (4 - n); }, [](int) { return 3.0; }, 1)},
      {"M/M/s/N", cola(kFuenteFinita, 0, "2", "1", "3", "", "5"), 8,
       birthDeath(5, [](int n) { return 1.0 * (5 - n); },
                  [](int n) { return 3.0 * std::min(n, 2); }, 2)},
      {"M/M/s/N three servers", cola(kFuenteFinita, 0, "3", "0.2", "0.5", "", "8"), 8,
       birthDeath(8, [](int n) { return 0.2 * (8 - n); },
                  [](int n) { return 0.5 * std::min(n, 3); }, 3)},
  };
  for (const auto& c : cases) {
    const ColasResults r = resolver(c.f);
    ASSERT_EQ(r.Tipo, c.tipo) << c.name;
    const std::string name = c.name;
    expectNear(r.L, c.t.L, name + " L");
    expectNear(r.Lq, c.t.Lq, name + " Lq");
    expectNear(r.W, c.t.W, name + " W");
    expectNear(r.Wq, c.t.Wq, name + " Wq");
    expectNear(r.lambdaEf, c.t.lambdaEf, name + " effective rate");
    ASSERT_EQ(r.Probabilidades.size(), 10u) << name;
    for (std::size_t n = 0; n < 10; ++n) {
      const double expected = n < c.t.P.size() ? c.t.P[n] : 0;
      expectNear(Val(r.Probabilidades[n]), expected, name + " P" + std::to_string(n));
    }
  }
}

TEST(Colas, ProbabilitiesBeyondTheCapacityAreZeroText) {
  struct Case { ColasFields f; std::size_t first; } cases[] = {
      {cola(kColaLimitada, 0, "1", "2", "3", "3"), 4},
      {cola(kColaLimitada, 0, "2", "2", "3", "6"), 7},
      {cola(kFuenteFinita, 0, "1", "1", "3", "", "2"), 3},
      {cola(kFuenteFinita, 0, "2", "1", "3", "", "9"), 10},
  };
  for (const auto& c : cases) {
    const ColasResults r = resolver(c.f);
    for (std::size_t n = 0; n < 10; ++n) {
      if (n < c.first) {
        EXPECT_NE(r.Probabilidades[n], "0") << n;
      } else {
        EXPECT_EQ(r.Probabilidades[n], "0") << n;
      }
    }
  }
}

TEST(Colas, ChecksRunInOrderAndTheFirstFailureEnds) {
  const std::string s1 = "El valor correspondiente al número de servidores no existe, introduzca un "
                         "valor comprendido entre 1 y 255";
  const std::string s2 = "El valor correspondiente al numero de servidores no es correcto, "
                         "introduzca un valor comprendido entre 1 y 255";
  const std::string k1 = "El valor correspondiente al tamaño de la línea de espera no existe, "
                         "introduzca un valor comprendido entre 1 y 255";
  const std::string k2 = "El valor correspondiente al tamaño de la línea de espera no es correcto, "
                         "introduzca un valor comprendido entre 1 y 255";
  const std::string n1 = "El valor correspondiente al tamaño de fuente de entrada no existe, "
                         "introduzca un valor comprendido entre 1 y 255";
  const std::string n2 = "El valor correspondiente al tamaño de la fuente de entrada no es "
                         "correcto, introduzca un valor comprendido entre 1 y 255";
  const std::string l1 = "El valor correspondiente a la tasa de llegadas no existe, introduzca un "
                         "valor comprendido entre 0 y 255";
  const std::string l2 = "El valor correspondiente a la tasa de llegadas no es correcto, "
                         "introduzca un valor comprendido entre 0 y 255";
  const std::string m1 = "El valor correspondiente a la tasa de servicios no existe, introduzca un "
                         "valor comprendido entre 0 y 255";
  const std::string m2 = "El valor correspondiente a la tasa de servicios no es correcto, "
                         "introduzca un valor comprendido entre 0 y 255";
  const std::string g1 = "El valor correspondiente al valor esperado del tiempo de servicios no "
                         "existe, introduzca un valor comprendido entre 0 y 255";
  const std::string g2 = "El valor correspondiente al valor esperado del tiempo de servicios no es "
                         "correcto, introduzca un valor comprendido entre 0 y 255";
  const std::string d1 = "El valor correspondiente al tiempo de servicio no existe, introduzca un "
                         "valor comprendido entre 0 y 255";
  const std::string d2 = "El valor correspondiente al tiempo de de servicio no es correcto, "
                         "introduzca un valor comprendido entre 0 y 255";
  const std::string v1 = "El valor correspondiente a la varianza del tiempo de servicios no existe, "
                         "introduzca un valor comprendido entre 0 y 255";
  const std::string v2 = "El valor correspondiente a la varianza del tiempo de servicios no es "
                         "correcto, introduzca un valor comprendido entre 0 y 255";
  const std::string estable = "El sistema no se encuentra en fase estable";
  const int I = kColaIlimitada, Li = kColaLimitada, F = kFuenteFinita;
  struct Case {
    ColasFields f;
    std::string message;  // empty: all pass
  } cases[] = {
      {cola(I, 0, "", "2", "3"), s1},
      {cola(I, 0, "dos", "", ""), s1},
      {cola(I, 0, "0", "2", "3"), s2},
      {cola(I, 0, "0.5", "2", "3"), s2},
      {cola(I, 0, "256", "2", "3"), s2},
      {cola(I, 0, "255", "2", "3"), ""},
      {cola(I, 0, "1", "2", "3", "x", "y"), ""},  // K and N only for their kinds
      {cola(Li, 0, "1", "2", "3", ""), k1},
      {cola(Li, 0, "1", "2", "3", "0"), k2},
      {cola(Li, 0, "1", "2", "3", "256", "x"), k2},
      {cola(Li, 0, "1", "2", "3", "255", "x"), ""},
      {cola(F, 0, "1", "2", "3", "x", ""), n1},
      {cola(F, 0, "1", "2", "3", "", "300"), n2},
      {cola(F, 0, "1", "2", "3", "", "1"), ""},
      {cola(I, 0, "1", "", "3"), l1},
      {cola(I, 0, "1", "0", "3"), l2},
      {cola(I, 0, "1", "-1", "3"), l2},
      {cola(I, 0, "1", "255.5", "256"), l2},
      {cola(I, 0, "1", "2", "tres"), m1},
      {cola(I, 0, "1", "2", "0"), m2},
      {cola(I, 1, "1", "2", "", "", "", "x"), g1},
      {cola(I, 1, "1", "2", "256", "", "", "x"), g2},
      {cola(I, 2, "1", "2", ""), d1},
      {cola(I, 2, "1", "2", "0"), d2},
      {cola(I, 1, "1", "2", "3", "", "", ""), v1},
      {cola(I, 1, "1", "2", "3", "", "", "0"), v2},
      {cola(I, 0, "1", "2", "3", "", "", "x"), ""},  // the variance only for "G"
      {cola(I, 0, "1", "4", "3"), estable},
      {cola(I, 0, "2", "7", "3"), estable},
      {cola(I, 2, "1", "3.0000001", "3"), estable},
      {cola(I, 0, "1", "3", "3"), ""},   // ρ = 1 passes
      {cola(I, 0, "2", "6", "3"), ""},
      {cola(Li, 0, "1", "4", "3", "3"), ""},  // limited and finite are always stable
      {cola(F, 0, "1", "200", "3", "", "3"), ""},
  };
  for (const auto& c : cases) {
    const Messages m = check(c.f);
    if (c.message.empty()) {
      EXPECT_TRUE(m.empty()) << (m.empty() ? "" : m[0].text);
      continue;
    }
    ASSERT_EQ(m.size(), 1u) << c.message;
    EXPECT_EQ(m[0], (Message{c.message, ""}));
  }
}

TEST(Colas, UtilisationOneAndOverflowsEndInRunTimeErrors) {
  const int I = kColaIlimitada;
  struct Case { const char* name; ColasFields f; int error; } cases[] = {
      {"M/M/1", cola(I, 0, "1", "3", "3"), err::DivisionByZero},
      {"M/M/s", cola(I, 0, "2", "6", "3"), err::DivisionByZero},
      {"M/G/1", cola(I, 1, "1", "3", "3", "", "", "1"), err::DivisionByZero},
      {"M/D/1", cola(I, 2, "1", "3", "3"), err::DivisionByZero},
      {"M/M/1/K", cola(kColaLimitada, 0, "1", "3", "3", "4"), err::DivisionByZero},
      {"M/M/s/K", cola(kColaLimitada, 0, "2", "6", "3", "4"), err::Overflow},  // 0/0
      {"M/M/1/N, 171!", cola(kFuenteFinita, 0, "1", "1", "3", "", "171"), err::Overflow},
      {"M/M/1/N, 170!", cola(kFuenteFinita, 0, "1", "0.001", "200", "", "170"), 0},
  };
  for (auto& c : cases) {
    ASSERT_TRUE(check(c.f).empty()) << c.name;
    EXPECT_EQ(errorDe([&] { solveAndReport(c.f); }), c.error) << c.name;
  }
}

TEST(Colas, ResolverWritesTheModelNumber) {
  const int I = kColaIlimitada, Li = kColaLimitada, F = kFuenteFinita;
  struct Case { int sistema, servicio; const char* S; int tipo; } cases[] = {
      {I, 0, "1", 1}, {I, 0, "2", 2}, {I, 0, "1.5", 2}, {I, 1, "1", 3}, {I, 2, "1", 4},
      {Li, 0, "1", 5}, {Li, 0, "3", 6}, {F, 0, "1", 7}, {F, 0, "4", 8},
  };
  for (const auto& c : cases) {
    ColasFields f = cola(c.sistema, c.servicio, c.S, "0.5", "2", "9", "9", "0.5");
    EXPECT_EQ(tipo(f), c.tipo) << c.sistema << c.servicio << c.S;
    anotar(f);
    EXPECT_EQ(f.Tipo, std::to_string(c.tipo));
    EXPECT_EQ(f.Ro, Str(0.5 / (Val(c.S) * 2)));
    EXPECT_EQ(solve(f).Tipo, c.tipo);
  }
  ColasFields ninguna = cola(I, 0, "1", "1", "2");
  ninguna.ColaIlimitada = false;  // a file may leave no option chosen
  ninguna.Tipo = "4";
  anotar(ninguna);
  EXPECT_EQ(ninguna.Tipo, "4");
}

TEST(Colas, OptionsEnableTheirFieldsAndPutServiciosBack) {
  struct Case { int sistema; bool TamañoCola, K, Label8, N, Servicios; } cases[] = {
      {kColaIlimitada, false, false, false, false, true},
      {kColaLimitada, true, true, false, false, false},
      {kFuenteFinita, false, false, true, true, false},
  };
  for (const auto& c : cases) {
    ColasFields f = cola(kColaIlimitada, 1, "1", "2", "3", "", "", "1");
    elegir(f, c.sistema);
    EXPECT_EQ(f.Estado, std::to_string(c.sistema));
    EXPECT_EQ(f.ColaIlimitada, c.sistema == kColaIlimitada);
    EXPECT_EQ(f.ColaLimitada, c.sistema == kColaLimitada);
    EXPECT_EQ(f.FuenteFinita, c.sistema == kFuenteFinita);
    EXPECT_EQ(f.TamañoColaEnabled, c.TamañoCola);
    EXPECT_EQ(f.KEnabled, c.K);
    EXPECT_EQ(f.Label8Enabled, c.Label8);
    EXPECT_EQ(f.NEnabled, c.N);
    EXPECT_EQ(f.ServiciosEnabled, c.Servicios);
    EXPECT_EQ(f.Servicios, 0);
    EXPECT_EQ(f.DistribuciónTS, "0");
    EXPECT_EQ(f.LblNu, "Tasa de Servicios");
    EXPECT_FALSE(f.VarTSEnabled);
    EXPECT_FALSE(f.LblVarEnabled);
    // "M" does not give S back: it stays as "G" left it.
    EXPECT_EQ(f.S, "1");
    EXPECT_FALSE(f.SEnabled);
    EXPECT_EQ(f.VarTS, "1");
  }
}

TEST(Colas, ServiciosAdaptsTheScreen) {
  struct Case {
    int index;
    const char* LblNu;
    bool varianza;
    const char* S;
    bool SEnabled;
    const char* toolTip;
  } cases[] = {
      {0, "Tasa de Servicios", false, "3", true, "previo"},
      {1, "Valor esperado", true, "1", false, "Número medio de clientes atendidos por hora"},
      {2, "Tiempo de Servicio", false, "1", false, "Número de clientes atendidos por hora"},
      {-1, "previa", true, "3", true, "previo"},
  };
  for (const auto& c : cases) {
    ColasFields f;
    f.S = "3";
    f.LblNu = "previa";
    f.NuToolTip = "previo";
    f.VarTSEnabled = f.LblVarEnabled = true;
    f.Servicios = c.index;
    serviciosClick(f);
    EXPECT_EQ(f.DistribuciónTS, std::to_string(c.index));
    EXPECT_EQ(f.LblNu, c.LblNu);
    EXPECT_EQ(f.VarTSEnabled, c.varianza);
    EXPECT_EQ(f.LblVarEnabled, c.varianza);
    EXPECT_EQ(f.S, c.S);
    EXPECT_EQ(f.SEnabled, c.SEnabled);
    EXPECT_EQ(f.NuToolTip, c.toolTip);
  }
  EXPECT_STREQ(kServicios[1].item, "G");
  EXPECT_STREQ(kLLegadas[0], "M");
}

TEST(Colas, ArrivingOnTheEntryResetsListsAndEnablingButKeepsTexts) {
  ColasFields f = cola(kColaLimitada, 0, "2", "4", "3", "5");
  f.Servicios = 2;
  serviciosClick(f);  // S becomes "1", disabled
  formActivate(f);
  EXPECT_TRUE(f.ColaLimitada);
  EXPECT_EQ(f.Estado, "1");
  EXPECT_EQ(f.Servicios, 0);
  EXPECT_EQ(f.LblNu, "Tasa de Servicios");
  EXPECT_TRUE(f.ServiciosEnabled);
  EXPECT_FALSE(f.KEnabled);
  EXPECT_FALSE(f.TamañoColaEnabled);
  EXPECT_TRUE(f.SEnabled);
  EXPECT_EQ(f.S, "1");
  EXPECT_EQ(f.K, "5");
  EXPECT_EQ(f.Lambda, "4");
}

TEST(Colas, NuevoBlanksTheNumbersAndChoosesTheUnlimitedQueue) {
  ColasFields f = cola(kFuenteFinita, 0, "2", "1", "3", "4", "5", "6");
  f.Título = "Mía";
  nuevo(f);
  EXPECT_EQ(f.Título, "Mía");
  for (const std::string* s : {&f.S, &f.K, &f.N, &f.Lambda, &f.Nu, &f.VarTS}) EXPECT_EQ(*s, "");
  EXPECT_TRUE(f.ColaIlimitada);
  EXPECT_FALSE(f.FuenteFinita);
  EXPECT_EQ(f.Estado, "0");
  EXPECT_EQ(f.Servicios, 0);
  EXPECT_TRUE(f.ServiciosEnabled);
  EXPECT_FALSE(f.KEnabled || f.NEnabled || f.TamañoColaEnabled || f.Label8Enabled);
}

TEST(Colas, FileHasEighteenItemsInOrderAndRoundTrips) {
  ColasFields f = cola(kColaLimitada, 0, "2", "4", "3", "5", "", "");
  f.Título = "Peluquería";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  EXPECT_EQ(out.bytes(),
            "\"Peluquer\xED" "a\"\r\n\"2\"\r\n#FALSE#\r\n#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n#TRUE#\r\n"
            "\"5\"\r\n#FALSE#\r\n#FALSE#\r\n\"\"\r\n\"4\"\r\n\"3\"\r\n#FALSE#\r\n#FALSE#\r\n\"\"\r\n"
            "0\r\n#FALSE#\r\n");
  for (const ColasFields& g : {f, cola(kColaIlimitada, 1, "1", "2", "3", "", "", "0.1"),
                               cola(kFuenteFinita, 0, "3", "1", "2", "", "7")}) {
    ProblemFile w = ProblemFile::forWriting();
    ColasFields copia = g;
    exchange(w, copia);
    ColasFields back;
    ProblemFile in = ProblemFile::forReading(w.bytes());
    exchange(in, back);
    ProblemFile again = ProblemFile::forWriting();
    exchange(again, back);
    EXPECT_EQ(again.bytes(), w.bytes());
    EXPECT_EQ(back.Estado, g.Estado);
    EXPECT_EQ(back.LblNu, g.LblNu);
    EXPECT_EQ(back.S, g.S);
    EXPECT_EQ(tipo(back), tipo(g));
  }
}

TEST(Colas, ReadingSetsControlsAsClicksDo) {
  auto leer = [](const std::string& options, const std::string& S, const std::string& index,
                 ColasFields& f) {
    const std::string bytes = "\"T\"\r\n\"" + S + "\"\r\n" + options +
                              "#FALSE#\r\n#FALSE#\r\n\"\"\r\n#FALSE#\r\n#FALSE#\r\n\"\"\r\n"
                              "\"1\"\r\n\"2\"\r\n#TRUE#\r\n#TRUE#\r\n\"0.5\"\r\n" +
                              index + "\r\n#TRUE#\r\n";
    ProblemFile in = ProblemFile::forReading(bytes);
    try {
      exchange(in, f);
      return true;
    } catch (const ReadFailed&) {
      return false;
    }
  };
  {
    ColasFields f;
    ASSERT_TRUE(leer("#FALSE#\r\n#TRUE#\r\n#FALSE#\r\n", "2", "0", f));
    EXPECT_EQ(f.Estado, "1");
    EXPECT_FALSE(f.ColaIlimitada);
    EXPECT_TRUE(f.ColaLimitada);
    EXPECT_EQ(tipo(f), 6);
  }
  {
    ColasFields f;  // two chosen: the later click wins
    ASSERT_TRUE(leer("#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n", "2", "0", f));
    EXPECT_EQ(f.Estado, "2");
    EXPECT_FALSE(f.ColaIlimitada);
    EXPECT_TRUE(f.FuenteFinita);
  }
  {
    ColasFields f;  // "G" read after S sets S to "1"
    ASSERT_TRUE(leer("#TRUE#\r\n#FALSE#\r\n#FALSE#\r\n", "3", "1", f));
    EXPECT_EQ(f.S, "1");
    EXPECT_FALSE(f.SEnabled);
    EXPECT_EQ(f.LblNu, "Valor esperado");
    EXPECT_EQ(f.DistribuciónTS, "1");
    EXPECT_EQ(tipo(f), 3);
  }
  {
    ColasFields f;  // an index Servicios lacks: the read stops, what came before stays
    EXPECT_FALSE(leer("#TRUE#\r\n#FALSE#\r\n#FALSE#\r\n", "3", "3", f));
    EXPECT_EQ(f.S, "3");
    EXPECT_EQ(f.VarTS, "0.5");
    EXPECT_EQ(f.Servicios, 0);
    EXPECT_TRUE(f.LblVarEnabled);
  }
}

TEST(Colas, ReportLinesFollowTheModel) {
  struct Case {
    ColasFields f;
    std::vector<std::string> present, absent;
  } cases[] = {
      {cola(kColaIlimitada, 0, "1", "2", "3"),
       {"Modelo M/M/1\n", "Tasa de servicio:", "  Servicios/unidad de tiempo"},
       {"Tasa media de llegadas:", "Tamaño", "Varianza"}},
      {cola(kColaIlimitada, 1, "1", "2", "3", "", "", "0.1"),
       {"Modelo M/G/1\n", "Valor esperado de la tasa de servicio:", "  servicios/unidad de tiempo",
        "Varianza de la tasa de servicio:          0.1\n"},
       {"Tasa de servicio:", "Tasa media de llegadas:"}},
      {cola(kColaIlimitada, 2, "1", "2", "3"), {"Modelo M/D/1\n", "Tiempo de servicio:"},
       {"Tasa de servicio:"}},
      {cola(kColaLimitada, 0, "2", "4", "3", "5"),
       {"Modelo M/M/s/K\n", "Tamaño de la línea de espera:", "Tasa media de llegadas:"},
       {"fuente"}},
      {cola(kFuenteFinita, 0, "1", "1", "3", "", "4"),
       {"Modelo M/M/1/N\n", "Tamaño de la fuente de entrada:", "Tasa media de llegadas:"},
       {"Tamaño de la línea"}},
  };
  for (auto& c : cases) {
    const Pages pages = solveAndReport(c.f);
    const std::string screen = renderText(pages.screen), page = renderText(pages.page);
    for (const std::string& s : c.present) {
      EXPECT_NE(screen.find(s), std::string::npos) << s;
      EXPECT_NE(page.find(s), std::string::npos) << s;
    }
    for (const std::string& s : c.absent) EXPECT_EQ(screen.find(s), std::string::npos) << s;
    EXPECT_NE(screen.find("              P 9 :"), std::string::npos);
    EXPECT_EQ(page.rfind("                            TEORÍA DE COLAS \n", 200), 5 * 16u);
    // The page is the screen's report after its own head.
    const std::string body = screen.substr(screen.find("              Solución"));
    EXPECT_EQ(page.substr(page.size() - body.size()), body);
  }
}

}  // namespace
}  // namespace vorel::queueing
