#include "inventory/cep_gradual.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "inventory/pedido.h"
#include "inventory/pedido_forms.h"

namespace vorel::inventory {

Messages check(const GradualFields& f) {
  std::vector<Prueba> pruebas;
  positivo(pruebas, f.D, campos::D);
  positivo(pruebas, f.E, campos::E);
  positivo(pruebas, f.A, campos::A);
  positivo(pruebas, f.TS, campos::TS);
  positivo(pruebas, f.P, campos::P);
  // p is bounded by the demand, d by p, each read when its turn comes.
  const std::string p = "Valor de p no válido. Introduce un nuevo valor";
  pruebas.push_back({[&f] { return !IsNumeric(f.Pdia) || Val(f.Pdia) <= 0; }, p});
  pruebas.push_back({[&f] { return Val(f.Pdia) > Val(f.D); }, p + " entre 0 y el valor de D"});
  const std::string d = "Valor de d no válido. Introduce un nuevo valor";
  pruebas.push_back({[&f] { return !IsNumeric(f.Ddia) || Val(f.Ddia) <= 0; }, d});
  pruebas.push_back({[&f] { return Val(f.Ddia) > Val(f.Pdia); }, d + " entre 0 y el valor de p"});
  return primerFallo(pruebas);
}

GradualResults solve(const GradualFields& f) {
  const double D = Val(f.D), E = Val(f.E), A = Val(f.A), T = Val(f.TS), P = Val(f.P),
               p = Val(f.Pdia), d = Val(f.Ddia);
  GradualResults r;
  // p = d passes the checks and divides by zero here.
  r.Q = Sng(Sqr(divide(checked(2 * p * E * D), checked((p - d) * A))));
  r.n = Sng(divide(D, r.Q));
  r.TR = Sng(divide(r.Q, d));
  r.t1 = Sng(divide(r.Q, p));
  r.t2 = Sng(double(r.TR) - r.t1);
  r.S = Sng(checked((p - d) * r.t1));
  r.CT = Sng(checked(checked(D * P) + checked(r.n * E) + divide(checked(r.S * A), 2)));

  // The reorder point. Past one cycle it is d * (TR - T) as it stands, a
  // negative number; a lead time equal to the cycle falls in no case.
  using enum PuntoGradual;
  if (T <= r.t2) {
    r.caso = Decreciente;
    r.Pp = Sng(checked(d * T));
  } else if (T > r.t2 && Sng(T) < r.TR) {
    r.caso = Creciente;
    r.Pp = Sng(checked((p - d) * (r.TR - T)));
  } else if (T > r.TR && T - r.TR <= r.t2) {
    r.caso = Anterior;
  } else if (T > r.TR && T - r.TR > r.t2 && 2 * double(r.TR) >= T) {
    r.caso = AnteriorCreciente;
  } else if (2 * double(r.TR) < T) {
    r.caso = Lejano;
  }
  if (r.caso == Anterior || r.caso == AnteriorCreciente || r.caso == Lejano)
    r.Pp = Sng(checked(d * (r.TR - T)));
  return r;
}

namespace {
// The report after its blank lines: the same on screen and on paper.
void body(Report& out, const GradualFields& f, const GradualResults& r) {
  out.line(Z, "Solución al problema:  " + f.Titulo1);
  regla(out);
  lineasCostes(out, f.D, f.E, f.A);
  lineasSuministro(out, f.TS, f.P);
  out.line(Z, "Artículos suministrados al día:", Z, f.Pdia, " unidades");
  out.line(Z, "Artículos consumidos al día:", Z, Z, f.Ddia, " unidades");
  regla(out);
  out.line(Z, " ");
  out.line(Z, "Cantidad Económica de Pedido (Q):", Z, Str(r.Q), " unidades");
  lineaPedidosAlAño(out, r.n);
  lineaReaprovisionamiento(out, r.TR);
  out.line(Z, "Stock Máximo (S):", Z, Z, Str(r.S), " unidades");
  out.line(Z, "Tiempo empleado en producir cada lote (t1):", Str(r.t1), " días");
  const std::string Pp = Str(r.Pp);
  const std::string decreciente = "(cuando el inventario está en fase decreciente)";
  const std::string creciente = "(cuando el inventario está en fase creciente)";
  switch (r.caso) {
    case PuntoGradual::Decreciente:
    case PuntoGradual::Anterior:
      out.line("Punto de Pedido (Pp):", Pp, " unidades ");
      out.line(decreciente);
      break;
    case PuntoGradual::Creciente:
      out.line("Punto de Pedido (Pp):", Pp, " unidades");
      out.line(Z, Z, Z, Z, Z, creciente);
      break;
    case PuntoGradual::AnteriorCreciente:
      out.line("Punto de Pedido (Pp):", Pp, " unidades");
      out.line(creciente);
      break;
    case PuntoGradual::Lejano:
      out.line("Punto de Pedido (Pp).", Pp, " unidades");
      break;
    case PuntoGradual::Ninguno:
      break;
  }
  out.line(" ");
  out.line(Z, "Coste Total de Inventario:", Z, Str(r.CT), " u.m.");
}
}  // namespace

Report report(const GradualFields& f, const GradualResults& r) {
  Report out;
  out.blankLines(6);
  body(out, f, r);
  return out;
}

Report printout(const GradualFields& f, const GradualResults& r) {
  Report out = pageHead("CANTIDAD ECONÓMICA DE PEDIDO CON SUMINISTRO GRADUAL");
  body(out, f, r);
  return out;
}

Pages solveAndReport(GradualFields& f) { return solvedPages(f); }

void exchange(ProblemFile& file, GradualFields& f) {
  for (std::string* item : {&f.Titulo1, &f.D, &f.E, &f.A, &f.TS, &f.P, &f.Pdia, &f.Ddia})
    file.text(*item);
}

void nuevo(GradualFields& f) {
  for (std::string* field : {&f.D, &f.E, &f.A, &f.TS, &f.P, &f.Pdia, &f.Ddia}) field->clear();
}

CatalogueEntry catalogueGradual() { return catalogued("cep-gradual", gradualForm()); }

}  // namespace vorel::inventory
