#include "inventory/eoq.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "frame/checks.h"
#include "inventory/pedido.h"
#include "inventory/pedido_forms.h"

namespace vorel::inventory {

Messages check(const EoqFields& f) {
  return firstFailure({rango(f.D, campos::D), rango(f.E, campos::E), rango(f.A, campos::A),
                       rango(f.TS, campos::TS), rango(f.dias, campos::dias),
                       rango(f.P, campos::P)});
}

EoqResults solve(const EoqFields& f) {
  const double D = Val(f.D), E = Val(f.E), A = Val(f.A), TS = Val(f.TS), dias = Val(f.dias),
               P = Val(f.P);
  EoqResults r;
  r.Q = Sng(Sqr(divide(checked((E + E) * D), A)));
  r.n = Sng(divide(D, r.Q));
  r.TR = Sng(divide(dias, r.n));
  r.Pp = Sng(divide(checked(TS * D), dias));
  r.CT = Sng(checked(checked(D * P) + checked(r.n * E) + divide(checked(r.Q * A), 2)));
  return r;
}

namespace {
// Lines 2 to 15 of the report: the same on screen and on paper.
void body(Report& out, const EoqFields& f, const EoqResults& r) {
  out.heading(f.Titulo1);
  out.line(Z, "Demanda anual:", Z, Z, Z, f.D, " unidades");
  out.line(Z, "Coste de emisión por pedido:", Z, Z, f.E, " u.m.");
  out.line(Z, "Coste de almacenamiento por unidad y año:", Z, f.A, " u.m.");
  out.line(Z, "Tiempo de suministro (días):", Z, Z, Z, f.TS, " días");
  out.line(Z, "Coste unitario:", Z, Z, Z, f.P, " u.m.");
  out.rule();
  out.line(Z, "Cantidad Económica de Pedido (Q):", Z, Z, Str(r.Q), " unidades");
  out.line(Z, "Número de pedidos al año (n): ", Z, Z, Str(r.n));
  out.line(Z, "Tiempo de Reaprovisionamiento (TR):", Z, Z, Str(r.TR), " días");
  out.line(Z, "Punto de Pedido (Pp):", Z, Z, Z, Str(r.Pp), " unidades");
  out.line(Z, " ");
  out.line(Z, "Coste Total de Inventario:", Z, Z, Z, Str(r.CT), " u.m.");
}
}  // namespace

Report report(const EoqFields& f, const EoqResults& r) {
  Report out;
  out.blankLines(6);
  body(out, f, r);
  return out;
}

Report printout(const EoqFields& f, const EoqResults& r) {
  Report out = pageHead("CANTIDAD ECONÓMICA DE PEDIDO");
  body(out, f, r);
  return out;
}

Pages solveAndReport(EoqFields& f) { return solvedPages(f); }

void exchange(ProblemFile& file, EoqFields& f) {
  for (std::string* item : {&f.Titulo1, &f.D, &f.E, &f.A, &f.TS, &f.dias, &f.P}) file.text(*item);
}

void nuevo(EoqFields& f) {
  for (std::string* field : {&f.D, &f.E, &f.A, &f.TS, &f.dias, &f.P}) field->clear();
}

CatalogueEntry catalogueEoq() { return catalogued("cep", eoqForm()); }

}  // namespace vorel::inventory
