#include "queueing/colas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "frame/arith.h"

namespace vorel::queueing {
namespace {

constexpr int I = kColaIlimitada, L = kColaLimitada, F = kFuenteFinita;

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

// The option chosen: I, L or F.
std::string elegida(const ColasFields& f) {
  return std::string(f.ColaIlimitada ? "I" : "") + (f.ColaLimitada ? "L" : "") +
         (f.FuenteFinita ? "F" : "");
}

int errorDe(const std::function<void()>& run) {
  try {
    run();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

// The textbook figures from the balance equations of a birth and death process, an
// independent route to the closed forms: s servers at rate mu each, arrivals at lambda (or at
// lambda per idle source out of N), states 0 to last.
struct Textbook {
  double L = 0, Lq = 0, W = 0, Wq = 0, lambdaEf = 0;
  std::vector<double> P;
};
Textbook servidores(int s, double lambda, double mu, int last, int N = 0) {
  auto up = [=](int n) { return N ? lambda * (N - n) : lambda; };
  std::vector<double> q{1};
  for (int n = 1; n <= last; ++n) q.push_back(q.back() * up(n - 1) / (mu * std::min(n, s)));
  double total = 0;
  for (double x : q) total += x;
  Textbook t;
  for (int n = 0; n <= last; ++n) {
    const double p = q[std::size_t(n)] / total;
    t.P.push_back(p);
    t.L += n * p;
    t.Lq += std::max(0, n - s) * p;
    if (n < last) t.lambdaEf += up(n) * p;  // nobody joins a full system
  }
  t.W = t.L / t.lambdaEf;
  t.Wq = t.Lq / t.lambdaEf;
  return t;
}
// Pollaczek-Khinchine for one server, given the service time's standard deviation.
Textbook pollaczek(double lambda, double mu, double sigma) {
  const double ro = lambda / mu;
  Textbook t;
  t.lambdaEf = lambda;
  t.Lq = ro * ro * (1 + sigma * sigma * mu * mu) / (2 * (1 - ro));
  t.L = t.Lq + ro;
  t.W = t.L / lambda;
  t.Wq = t.Lq / lambda;
  for (int n = 0; n <= 9; ++n) t.P.push_back((1 - ro) * std::pow(ro, n));
  return t;
}

TEST(Colas, EveryModelAgreesWithItsClosedForm) {
  const std::pair<ColasFields, Textbook> cases[] = {
      // clang-format off
      {cola(I, 0, "1", "2", "3"), servidores(1, 2, 3, 400)},
      {cola(I, 0, "1", "0.5", "4"), servidores(1, 0.5, 4, 200)},
      {cola(I, 0, "2", "2", "3"), servidores(2, 2, 3, 400)},
      {cola(I, 0, "3", "5", "2"), servidores(3, 5, 2, 600)},
      {cola(I, 1, "1", "2", "3", "", "", "0.1"), pollaczek(2, 3, 0.1)},
      {cola(I, 2, "1", "2", "3"), pollaczek(2, 3, 0)},
      {cola(L, 0, "1", "2", "3", "3"), servidores(1, 2, 3, 3)},
      {cola(L, 0, "1", "5", "2", "6"), servidores(1, 5, 2, 6)},
      {cola(L, 0, "2", "4", "3", "5"), servidores(2, 4, 3, 5)},
      {cola(F, 0, "1", "1", "3", "", "4"), servidores(1, 1, 3, 4, 4)},
      {cola(F, 0, "2", "1", "3", "", "5"), servidores(2, 1, 3, 5, 5)},
      {cola(F, 0, "3", "0.2", "0.5", "", "8"), servidores(3, 0.2, 0.5, 8, 8)},
      // clang-format on
  };
  for (const auto& [f, t] : cases) {
    const ColasResults r = resolver(f);
    SCOPED_TRACE(f.S + " " + f.Lambda + " " + f.Nu);
    const double got[] = {r.L, r.Lq, r.W, r.Wq, r.lambdaEf};
    const double want[] = {t.L, t.Lq, t.W, t.Wq, t.lambdaEf};
    for (int k = 0; k < 5; ++k) EXPECT_NEAR(got[k], want[k], 2e-6 * std::max(1.0, want[k])) << k;
    ASSERT_EQ(r.Probabilidades.size(), 10u);
    for (std::size_t n = 0; n < 10; ++n) {
      const double p = n < t.P.size() ? t.P[n] : 0;
      EXPECT_NEAR(Val(r.Probabilidades[n]), p, 2e-6) << "P" << n;
    }
  }
}

TEST(Colas, ProbabilitiesBeyondTheCapacityAreZeroText) {
  const std::pair<ColasFields, std::size_t> cases[] = {
      {cola(L, 0, "1", "2", "3", "3"), 4},
      {cola(L, 0, "2", "2", "3", "6"), 7},
      {cola(F, 0, "1", "1", "3", "", "2"), 3},
      {cola(F, 0, "2", "1", "3", "", "9"), 10},
  };
  for (const auto& [f, first] : cases) {
    const ColasResults r = resolver(f);
    for (std::size_t n = 0; n < 10; ++n) EXPECT_EQ(r.Probabilidades[n] == "0", n >= first) << n;
  }
}

TEST(Colas, ChecksRunInOrderAndTheFirstFailureEnds) {
  // The messages differ in what they name, their fault and their lowest value.
  auto bad = [](const char* what, bool existe, char lowest) {
    return std::string("El valor correspondiente ") + what +
           (existe ? " no es correcto" : " no existe") +
           ", introduzca un valor comprendido entre " + lowest + " y 255";
  };
  const std::string estable = "El sistema no se encuentra en fase estable";
  const std::pair<ColasFields, std::string> cases[] = {
      // clang-format off
      {cola(I, 0, "", "2", "3"), bad("al número de servidores", false, '1')},
      {cola(I, 0, "dos", "", ""), bad("al número de servidores", false, '1')},
      {cola(I, 0, "0", "2", "3"), bad("al numero de servidores", true, '1')},
      {cola(I, 0, "0.5", "2", "3"), bad("al numero de servidores", true, '1')},
      {cola(I, 0, "256", "2", "3"), bad("al numero de servidores", true, '1')},
      {cola(I, 0, "255", "2", "3"), ""},
      {cola(I, 0, "1", "2", "3", "x", "y"), ""},  // K and N only for their kinds
      {cola(L, 0, "1", "2", "3", ""), bad("al tamaño de la línea de espera", false, '1')},
      {cola(L, 0, "1", "2", "3", "0"), bad("al tamaño de la línea de espera", true, '1')},
      {cola(L, 0, "1", "2", "3", "256", "x"), bad("al tamaño de la línea de espera", true, '1')},
      {cola(L, 0, "1", "2", "3", "255", "x"), ""},
      {cola(F, 0, "1", "2", "3", "x", ""), bad("al tamaño de fuente de entrada", false, '1')},
      {cola(F, 0, "1", "2", "3", "", "300"), bad("al tamaño de la fuente de entrada", true, '1')},
      {cola(F, 0, "1", "2", "3", "", "1"), ""},
      {cola(I, 0, "1", "", "3"), bad("a la tasa de llegadas", false, '0')},
      {cola(I, 0, "1", "0", "3"), bad("a la tasa de llegadas", true, '0')},
      {cola(I, 0, "1", "-1", "3"), bad("a la tasa de llegadas", true, '0')},
      {cola(I, 0, "1", "255.5", "256"), bad("a la tasa de llegadas", true, '0')},
      {cola(I, 0, "1", "2", "tres"), bad("a la tasa de servicios", false, '0')},
      {cola(I, 0, "1", "2", "0"), bad("a la tasa de servicios", true, '0')},
      {cola(I, 1, "1", "2", "", "", "", "x"), 
       bad("al valor esperado del tiempo de servicios", false, '0')},
      {cola(I, 1, "1", "2", "256", "", "", "x"), 
       bad("al valor esperado del tiempo de servicios", true, '0')},
      {cola(I, 2, "1", "2", ""), bad("al tiempo de servicio", false, '0')},
      {cola(I, 2, "1", "2", "0"), bad("al tiempo de de servicio", true, '0')},
      {cola(I, 1, "1", "2", "3", "", "", ""), 
       bad("a la varianza del tiempo de servicios", false, '0')},
      {cola(I, 1, "1", "2", "3", "", "", "0"), 
       bad("a la varianza del tiempo de servicios", true, '0')},
      {cola(I, 0, "1", "2", "3", "", "", "x"), ""},  // the variance only for "G"
      {cola(I, 0, "1", "4", "3"), estable},
      {cola(I, 0, "2", "7", "3"), estable},
      {cola(I, 2, "1", "3.0000001", "3"), estable},
      {cola(I, 0, "1", "3", "3"), ""},  // ρ = 1 passes
      {cola(I, 0, "2", "6", "3"), ""},
      {cola(L, 0, "1", "4", "3", "3"), ""},  // limited and finite are always stable
      {cola(F, 0, "1", "200", "3", "", "3"), ""},
      // clang-format on
  };
  for (const auto& [f, message] : cases)
    EXPECT_EQ(check(f), (message.empty() ? Messages{} : Messages{{message, ""}}));
}

TEST(Colas, UtilisationOneAndOverflowsEndInRunTimeErrors) {
  const std::pair<ColasFields, int> cases[] = {
      {cola(I, 0, "1", "3", "3"), err::DivisionByZero},
      {cola(I, 0, "2", "6", "3"), err::DivisionByZero},
      {cola(I, 1, "1", "3", "3", "", "", "1"), err::DivisionByZero},
      {cola(I, 2, "1", "3", "3"), err::DivisionByZero},
      {cola(L, 0, "1", "3", "3", "4"), err::DivisionByZero},
      {cola(L, 0, "2", "6", "3", "4"), err::Overflow},        // 0/0
      {cola(F, 0, "1", "1", "3", "", "171"), err::Overflow},  // 171!
      {cola(F, 0, "1", "0.001", "200", "", "170"), 0},        // 170! still fits
  };
  for (auto [f, error] : cases) {
    ASSERT_TRUE(check(f).empty()) << f.Lambda;
    EXPECT_EQ(errorDe([&] { solveAndReport(f); }), error) << f.Lambda;
  }
}

TEST(Colas, ResolverWritesTheModelNumber) {
  struct Case {
    int sistema, servicio;
    const char* S;
    int tipo;
  } cases[] = {
      {I, 0, "1", 1}, {I, 0, "2", 2}, {I, 0, "1.5", 2}, {I, 1, "1", 3}, {I, 2, "1", 4},
      {L, 0, "1", 5}, {L, 0, "3", 6}, {F, 0, "1", 7},   {F, 0, "4", 8},
  };
  for (const auto& c : cases) {
    ColasFields f = cola(c.sistema, c.servicio, c.S, "0.5", "2", "9", "9", "0.5");
    EXPECT_EQ(tipo(f), c.tipo) << c.sistema << c.servicio << c.S;
    anotar(f);
    EXPECT_EQ(f.Tipo, std::to_string(c.tipo));
    EXPECT_EQ(solve(f).Tipo, c.tipo);
  }
  ColasFields ninguna = cola(I, 0, "1", "1", "2");
  ninguna.ColaIlimitada = false;  // a file may leave no option chosen
  ninguna.Tipo = "4";
  anotar(ninguna);
  EXPECT_EQ(ninguna.Tipo, "4");
}

// The screen tests follow Servicios through its three items; no item chosen changes nothing.
TEST(Colas, ServiciosWithNothingChosenKeepsTheServiceFields) {
  ColasFields f = cola(I, 1, "3", "2", "3", "", "", "1");
  f.Servicios = -1;
  serviciosClick(f);
  EXPECT_EQ(f.DistribuciónTS, "-1");
  EXPECT_EQ(f.LblNu, "Valor esperado");
  EXPECT_EQ(f.NuToolTip, "Número medio de clientes atendidos por hora");
  EXPECT_TRUE(f.VarTSEnabled && f.LblVarEnabled);
  EXPECT_EQ(f.S, "3");
  EXPECT_FALSE(f.SEnabled);
}

TEST(Colas, FileHasEighteenItemsInOrder) {
  ColasFields f = cola(L, 0, "2", "4", "3", "5", "", "");
  f.Título = "Peluquería";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  EXPECT_EQ(
      out.bytes(),
      "\"Peluquer\xED"
      "a\"\r\n\"2\"\r\n#FALSE#\r\n#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n#TRUE#\r\n"
      "\"5\"\r\n#FALSE#\r\n#FALSE#\r\n\"\"\r\n\"4\"\r\n\"3\"\r\n#FALSE#\r\n#FALSE#\r\n\"\"\r\n"
      "0\r\n#FALSE#\r\n");
}

TEST(Colas, ReadingSetsControlsAsClicksDo) {
  // The three options, S and the index of Servicios; the rest as one file has them.
  auto leer = [](const std::string& options, const std::string& S, const std::string& index,
                 ColasFields& f) {
    ProblemFile in = ProblemFile::forReading(
        "\"T\"\r\n\"" + S + "\"\r\n" + options +
        "#FALSE#\r\n#FALSE#\r\n\"\"\r\n#FALSE#\r\n#FALSE#\r\n\"\"\r\n\"1\"\r\n\"2\"\r\n#TRUE#\r\n"
        "#TRUE#\r\n\"0.5\"\r\n" +
        index + "\r\n#TRUE#\r\n");
    try {
      exchange(in, f);
      return true;
    } catch (const ReadFailed&) {
      return false;
    }
  };
  const std::string solaI = "#TRUE#\r\n#FALSE#\r\n#FALSE#\r\n";
  ColasFields f;
  ASSERT_TRUE(leer("#FALSE#\r\n#TRUE#\r\n#FALSE#\r\n", "2", "0", f));
  EXPECT_EQ(f.Estado, "1");
  EXPECT_EQ(elegida(f), "L");
  EXPECT_EQ(tipo(f), 6);

  f = {};  // two chosen: the later click wins
  ASSERT_TRUE(leer("#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n", "2", "0", f));
  EXPECT_EQ(f.Estado, "2");
  EXPECT_EQ(elegida(f), "F");

  f = {};  // "G" read after S sets S to "1"
  ASSERT_TRUE(leer(solaI, "3", "1", f));
  EXPECT_EQ(f.S, "1");
  EXPECT_FALSE(f.SEnabled);
  EXPECT_EQ(f.LblNu, "Valor esperado");
  EXPECT_EQ(f.DistribuciónTS, "1");
  EXPECT_EQ(tipo(f), 3);

  f = {};  // an index Servicios lacks: the read stops, what came before stays
  EXPECT_FALSE(leer(solaI, "3", "3", f));
  EXPECT_EQ(f.S + f.VarTS, "30.5");
  EXPECT_EQ(f.Servicios, 0);
  EXPECT_TRUE(f.LblVarEnabled);
}

}  // namespace
}  // namespace vorel::queueing
