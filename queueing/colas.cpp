#include "queueing/colas.h"

#include <optional>

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "queueing/colas_form.h"

namespace vorel::queueing {

const std::array<Servicio, 3> kServicios = {{
    {"M", "Tasa de Servicios", false, false, nullptr},
    {"G", "Valor esperado", true, true, "Número medio de clientes atendidos por hora"},
    {"D", "Tiempo de Servicio", false, true, "Número de clientes atendidos por hora"},
}};

const std::array<std::string, 8> kModelos = {
    "Modelo M/M/1",   "Modelo M/M/s",   "Modelo M/G/1",   "Modelo M/D/1",
    "Modelo M/M/1/K", "Modelo M/M/s/K", "Modelo M/M/1/N", "Modelo M/M/s/N",
};

namespace {

// Single arithmetic: an operation between Singles gives a Single.
float sAdd(float a, float b) { return Sng(double(a) + double(b)); }
float sSub(float a, float b) { return Sng(double(a) - double(b)); }
float sMul(float a, float b) { return Sng(double(a) * double(b)); }
float sDiv(float a, float b) { return Sng(divide(a, b)); }

// x! as a product of Doubles over 2, 3, ... up to x.
double fact(double x) {
  double p = 1;
  for (double i = 2; i <= x; i += 1) p = checked(p * i);
  return p;
}

double mul(double a, double b) { return checked(a * b); }
double add(double a, double b) { return checked(a + b); }

std::string texto(double p) { return Str(Sng(p)); }

// A field tested for a number and for its range; the lower bound is closed
// for the sizes (1 to 255) and open for the rates (above 0).
std::optional<Message> prueba(const std::string& text, double minimo, bool abierto,
                              const char* noExiste, const char* noCorrecto) {
  if (!IsNumeric(text)) return Message{noExiste, ""};
  const double v = Val(text);
  if ((abierto ? v <= minimo : v < minimo) || v > 255) return Message{noCorrecto, ""};
  return std::nullopt;
}

double factorRo(const ColasFields& f) {
  return divide(Val(f.Lambda), checked(Val(f.S) * Val(f.Nu)));
}

void aplicar(ColasFields& f, const Habilitacion& h) {
  f.TamañoColaEnabled = h.TamañoCola;
  f.KEnabled = h.K;
  f.Label8Enabled = h.Label8;
  f.NEnabled = h.N;
  f.ServiciosEnabled = h.Servicios;
}

// Probabilities 0 to 9 of the models with one server and an unlimited queue.
void probabilidadesUnServidor(ColasResults& r) {
  const float libre = sSub(1, r.ro);
  r.Probabilidades.push_back(Str(libre));
  for (int n = 1; n <= 9; ++n) r.Probabilidades.push_back(texto(mul(libre, power(r.ro, n))));
}

// The rest of the body after the title: parameters, measures, probabilities.
void cuerpo(Report& out, const ColasFields& f, const ColasResults& r) {
  out.heading(f.Título);
  if (r.Tipo < 1 || r.Tipo > 8) return;
  out.line(Z, item(kModelos, r.Tipo - 1));
  out.line();
  out.line(Z, "Número de servidores:", Z, Z, f.S);
  out.line(Z, "Tasa de llegadas:", Z, Z, printed(r.lambda), " Accesos/unidad de tiempo");
  if (r.Tipo == 3) {
    out.line(Z, "Valor esperado de la tasa de servicio:", Z, Z, printed(r.mu),
             " servicios/unidad de tiempo");
    out.line(Z, "Varianza de la tasa de servicio:", Z, f.VarTS);
  } else {
    out.line(Z, r.Tipo == 4 ? "Tiempo de servicio:" : "Tasa de servicio:", Z, Z, printed(r.mu),
             " Servicios/unidad de tiempo");
  }
  if (r.Tipo == 5 || r.Tipo == 6) out.line(Z, "Tamaño de la línea de espera:", Z, Z, f.K);
  if (r.Tipo == 7 || r.Tipo == 8) out.line(Z, "Tamaño de la fuente de entrada:", Z, Z, f.N);
  out.line(Z, "Factor de utilización:", Z, Z, Str(r.ro));
  out.rule();
  out.line(Z, "MEDIDAS DE RENDIMIENTO");
  out.line();
  if (r.Tipo >= 5)
    out.line(Z, "Tasa media de llegadas:", Z, Z, Z, Str(r.lambdaEf), " Accesos/unidad de tiempo");
  out.line(Z, "Número medio de clientes en el sistema:", Z, Z, Str(r.L));
  out.line(Z, "Número medio de clientes en la línea de espera:", Z, Str(r.Lq));
  out.line(Z, "Tiempo medio de estancia en el sistema:", Z, Z, Str(r.W), " Unidades de tiempo");
  out.line(Z, "Tiempo medio de permanencia en la línea de espera:", Z, Str(r.Wq),
           " Unidades de tiempo");
  out.line();
  out.line(Z, "PROBABILIDADES");
  out.line();
  for (int n = 0; n <= 9; ++n)
    out.line(Z, "P", printed(double(n)), ":", Z, Z, item(r.Probabilidades, n));
}

}  // namespace

Habilitacion habilitacion(int sistema) {
  return {sistema == kColaLimitada, sistema == kColaLimitada, sistema == kFuenteFinita,
          sistema == kFuenteFinita, sistema == kColaIlimitada};
}

void serviciosClick(ColasFields& f) {
  f.DistribuciónTS = std::to_string(f.Servicios);
  if (f.Servicios < 0 || f.Servicios >= static_cast<int>(kServicios.size())) return;
  const Servicio& s = item(kServicios, f.Servicios);
  f.LblNu = s.LblNu;
  f.LblVarEnabled = s.varianza;
  f.VarTSEnabled = s.varianza;
  if (s.unServidor) {
    f.S = "1";
    f.SEnabled = false;
  }
  if (s.toolTip) f.NuToolTip = s.toolTip;
}

void elegir(ColasFields& f, int sistema) {
  f.ColaIlimitada = sistema == kColaIlimitada;
  f.ColaLimitada = sistema == kColaLimitada;
  f.FuenteFinita = sistema == kFuenteFinita;
  f.Estado = std::to_string(sistema);
  aplicar(f, habilitacion(sistema));
  f.Servicios = 0;
  serviciosClick(f);
}

void formActivate(ColasFields& f) {
  // The lists are filled afresh, which selects "M"; the enabling goes back
  // to that of the first arrival, whatever option is chosen. Texts stay.
  f.Servicios = 0;
  serviciosClick(f);
  aplicar(f, habilitacion(kColaIlimitada));
  f.SEnabled = true;
}

void nuevo(ColasFields& f) {
  for (std::string* field : {&f.S, &f.K, &f.N, &f.Lambda, &f.Nu, &f.VarTS}) field->clear();
  elegir(f, kColaIlimitada);
}

Messages check(const ColasFields& f) {
  std::optional<Message> m =
      prueba(f.S, 1, false,
             "El valor correspondiente al número de servidores no existe, introduzca un valor "
             "comprendido entre 1 y 255",
             "El valor correspondiente al numero de servidores no es correcto, introduzca un valor "
             "comprendido entre 1 y 255");
  if (!m && f.ColaLimitada)
    m = prueba(f.K, 1, false,
               "El valor correspondiente al tamaño de la línea de espera no existe, introduzca un "
               "valor comprendido entre 1 y 255",
               "El valor correspondiente al tamaño de la línea de espera no es correcto, "
               "introduzca un valor comprendido entre 1 y 255");
  if (!m && f.FuenteFinita)
    m = prueba(f.N, 1, false,
               "El valor correspondiente al tamaño de fuente de entrada no existe, introduzca un "
               "valor comprendido entre 1 y 255",
               "El valor correspondiente al tamaño de la fuente de entrada no es correcto, "
               "introduzca un valor comprendido entre 1 y 255");
  if (!m)
    m = prueba(f.Lambda, 0, true,
               "El valor correspondiente a la tasa de llegadas no existe, introduzca un valor "
               "comprendido entre 0 y 255",
               "El valor correspondiente a la tasa de llegadas no es correcto, introduzca un valor "
               "comprendido entre 0 y 255");
  if (!m && f.Servicios == 0)
    m = prueba(f.Nu, 0, true,
               "El valor correspondiente a la tasa de servicios no existe, introduzca un valor "
               "comprendido entre 0 y 255",
               "El valor correspondiente a la tasa de servicios no es correcto, introduzca un "
               "valor comprendido entre 0 y 255");
  if (!m && f.Servicios == 1)
    m = prueba(f.Nu, 0, true,
               "El valor correspondiente al valor esperado del tiempo de servicios no existe, "
               "introduzca un valor comprendido entre 0 y 255",
               "El valor correspondiente al valor esperado del tiempo de servicios no es "
               "correcto, introduzca un valor comprendido entre 0 y 255");
  if (!m && f.Servicios == 2)
    m = prueba(f.Nu, 0, true,
               "El valor correspondiente al tiempo de servicio no existe, introduzca un valor "
               "comprendido entre 0 y 255",
               "El valor correspondiente al tiempo de de servicio no es correcto, introduzca un "
               "valor comprendido entre 0 y 255");
  if (!m && f.Servicios == 1)
    m = prueba(f.VarTS, 0, true,
               "El valor correspondiente a la varianza del tiempo de servicios no existe, "
               "introduzca un valor comprendido entre 0 y 255",
               "El valor correspondiente a la varianza del tiempo de servicios no es correcto, "
               "introduzca un valor comprendido entre 0 y 255");
  if (m) return {*m};
  // ρ goes through the hidden field Ro as text; exactly 1 passes.
  if (Val(Str(factorRo(f))) > 1 && Val(f.Estado) == 0)
    return {{"El sistema no se encuentra en fase estable", ""}};
  return {};
}

int tipo(const ColasFields& f) {
  const bool uno = Val(f.S) == 1;
  if (f.ColaIlimitada) {
    switch (f.Servicios) {
      case 0:
        return uno ? 1 : 2;
      case 1:
        return 3;
      case 2:
        return 4;
      default:
        return 0;
    }
  }
  if (f.ColaLimitada) return uno ? 5 : 6;
  if (f.FuenteFinita) return uno ? 7 : 8;
  return 0;
}

void anotar(ColasFields& f) {
  f.Ro = Str(factorRo(f));
  if (const int t = tipo(f)) f.Tipo = std::to_string(t);
}

ColasResults solve(const ColasFields& f) {
  ColasResults r;
  r.Tipo = static_cast<int>(Val(f.Tipo));
  r.mu = Sng(Val(f.Nu));
  r.lambda = Sng(Val(f.Lambda));
  r.s = Sng(Val(f.S));
  r.K = Sng(Val(f.K));
  r.N = Sng(Val(f.N));
  r.V = Sng(Val(f.VarTS));
  r.ro = sDiv(r.lambda, sMul(r.s, r.mu));
  r.lambdaEf = r.lambda;
  const float s = r.s, K = r.K, N = r.N, ro = r.ro;
  const float rr = sDiv(r.lambda, r.mu);  // r = λ/μ
  auto& P = r.Probabilidades;

  switch (r.Tipo) {
    case 1:
      r.L = sDiv(ro, sSub(1, ro));
      probabilidadesUnServidor(r);
      break;
    case 2: {
      double suma = 0;
      for (int n = 0; n <= s - 1; ++n) suma = add(suma, divide(power(rr, n), fact(n)));
      suma = add(suma, divide(divide(power(rr, s), fact(s)), sSub(1, ro)));
      const double P0 = divide(1, suma);
      r.Lq = Sng(divide(mul(mul(P0, power(rr, s)), ro), mul(fact(s), power(sSub(1, ro), 2))));
      P.push_back(texto(P0));
      for (int n = 1; n <= 9; ++n)
        P.push_back(texto(n <= s ? mul(divide(power(rr, n), fact(n)), P0)
                                 : mul(divide(power(rr, n), mul(fact(s), power(s, n - s))), P0)));
      break;
    }
    case 3:
      r.Lq = Sng(
          divide(add(mul(power(r.V, 2), power(r.lambda, 2)), power(ro, 2)), sMul(2, sSub(1, ro))));
      probabilidadesUnServidor(r);
      break;
    case 4:
      r.Lq = Sng(divide(power(ro, 2), sMul(2, sSub(1, ro))));
      probabilidadesUnServidor(r);
      break;
    case 5: {
      const float K1 = sAdd(K, 1);
      const double primero = sDiv(ro, sSub(1, ro));
      r.L = Sng(primero - divide(mul(K1, power(ro, K1)), 1 - power(ro, K1)));
      const double P0 = divide(sSub(1, ro), 1 - power(ro, K1));
      r.lambdaEf = Sng(mul(r.lambda, 1 - mul(P0, power(ro, K))));
      for (int n = 0; n <= 9; ++n) P.push_back(n <= K ? texto(mul(P0, power(ro, n))) : "0");
      break;
    }
    case 6: {
      double suma = 0;
      for (int n = 0; n <= s - 1; ++n) suma = add(suma, divide(power(rr, n), fact(n)));
      suma =
          add(suma, divide(mul(divide(power(rr, s), fact(s)), 1 - power(ro, sAdd(sSub(K, s), 1))),
                           sSub(1, ro)));
      const double P0 = divide(1, suma);
      float acumulada = 0;
      for (double n = s; n <= K; n += 1)
        acumulada = Sng(acumulada + mul(sSub(float(n), s), power(ro, sSub(float(n), s))));
      r.Lq = Sng(mul(divide(mul(acumulada, P0), fact(s)), power(rr, s)));
      r.lambdaEf =
          Sng(mul(r.lambda, 1 - mul(divide(power(rr, K), mul(fact(s), power(s, sSub(K, s)))), P0)));
      for (int n = 0; n <= 9; ++n) {
        if (n <= s) {
          P.push_back(texto(mul(divide(power(rr, n), fact(n)), P0)));
        } else if (n <= K) {
          P.push_back(texto(mul(divide(power(rr, n), mul(fact(s), power(s, n - s))), P0)));
        } else {
          P.push_back("0");
        }
      }
      break;
    }
    case 7: {
      auto termino = [&](int n) {  // N!/(N-n)! r^n, without P0
        return mul(divide(fact(N), fact(sSub(N, float(n)))), power(rr, n));
      };
      double suma = 0;
      for (int n = 0; n <= N; ++n) suma = add(suma, termino(n));
      const double P0 = divide(1, suma);
      for (int n = 1; n <= N; ++n) {
        const double t = mul(termino(n), P0);
        r.L = Sng(r.L + mul(n, t));
        r.Lq = Sng(r.Lq + mul(n - 1, t));
      }
      r.lambdaEf = sMul(sSub(N, r.L), r.lambda);
      r.W = sDiv(r.L, r.lambdaEf);
      r.Wq = sDiv(r.Lq, r.lambdaEf);
      for (int n = 0; n <= 9; ++n) P.push_back(n <= N ? texto(mul(termino(n), P0)) : "0");
      break;
    }
    case 8: {
      auto termino = [&](int n) {  // without P0
        const double resto = fact(sSub(N, float(n)));
        return n <= s
                   ? mul(divide(fact(N), mul(resto, fact(n))), power(rr, n))
                   : mul(divide(fact(N), mul(mul(resto, fact(s)), power(s, n - s))), power(rr, n));
      };
      double suma = 0;
      for (int n = 0; n <= N; ++n) suma = add(suma, termino(n));
      const double P0 = divide(1, suma);
      float acumulada = 0;
      for (int n = 0; n <= N; ++n) acumulada = Sng(acumulada + mul(n, termino(n)));
      r.L = Sng(mul(P0, acumulada));
      r.lambdaEf = sMul(sSub(N, r.L), r.lambda);
      for (int n = 0; n <= 9; ++n) P.push_back(n <= N ? texto(mul(termino(n), P0)) : "0");
      break;
    }
    default:
      return r;
  }

  const float l = r.lambdaEf;
  switch (r.Tipo) {
    case 1:
    case 5:
    case 8:
      r.Lq = sSub(r.L, sDiv(l, r.mu));
      r.W = sDiv(r.L, l);
      r.Wq = sDiv(r.Lq, l);
      break;
    case 7:
      break;
    default:
      r.L = sAdd(r.Lq, sDiv(l, r.mu));
      r.W = sDiv(r.L, l);
      r.Wq = sDiv(r.Lq, l);
      break;
  }
  return r;
}

Report report(const ColasFields& f, const ColasResults& r) {
  Report out;
  out.blankLines(3);
  cuerpo(out, f, r);
  return out;
}

Report printout(const ColasFields& f, const ColasResults& r) {
  Report out = pageHead("TEORÍA DE COLAS");
  cuerpo(out, f, r);
  return out;
}

Pages solveAndReport(ColasFields& f) {
  anotar(f);
  const ColasResults r = solve(f);
  return {report(f, r), printout(f, r)};
}

void exchange(ProblemFile& file, ColasFields& f) {
  // Reading an option as chosen clicks it, and reading the list index of
  // Servicios clicks that item, as the controls do when they are set.
  auto opcion = [&](bool& value, int sistema) {
    bool v = value;
    file.flag(v);
    if (!file.reading()) return;
    if (v) {
      elegir(f, sistema);
    } else {
      value = false;
    }
  };
  file.text(f.Título);
  file.text(f.S);
  opcion(f.ColaIlimitada, kColaIlimitada);
  opcion(f.ColaLimitada, kColaLimitada);
  opcion(f.FuenteFinita, kFuenteFinita);
  file.flag(f.TamañoColaEnabled);
  file.flag(f.KEnabled);
  file.text(f.K);
  file.flag(f.Label8Enabled);
  file.flag(f.NEnabled);
  file.text(f.N);
  file.text(f.Lambda);
  file.text(f.Nu);
  file.flag(f.LblVarEnabled);
  file.flag(f.VarTSEnabled);
  file.text(f.VarTS);
  file.listIndex(f.Servicios, static_cast<int>(kServicios.size()));
  if (file.reading()) serviciosClick(f);
  file.flag(f.ServiciosEnabled);
}

CatalogueEntry catalogueColas() {
  return catalogued("colas", colasForm());
}

}  // namespace vorel::queueing
