#include "inventory/cep_ruptura.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "inventory/pedido.h"
#include "inventory/pedido_forms.h"

namespace vorel::inventory {

Messages check(const RupturaFields& f) {
  std::vector<Prueba> pruebas;
  positivo(pruebas, f.D, campos::D);
  positivo(pruebas, f.E, campos::E);
  positivo(pruebas, f.A, campos::A);
  positivo(pruebas, f.CR, 999999999,
           "Valor del Coste de Ruptura no válido. Introduce un nuevo valor",
           " entre 0 y 999.999.999");
  positivo(pruebas, f.TS, campos::TS);
  positivo(pruebas, f.dias, campos::dias);
  positivo(pruebas, f.P, campos::P);
  return primerFallo(pruebas);
}

RupturaResults solve(const RupturaFields& f) {
  const double D = Val(f.D), E = Val(f.E), A = Val(f.A), CR = Val(f.CR), T = Val(f.TS),
               dias = Val(f.dias), P = Val(f.P);
  RupturaResults r;
  // Each root is kept as a Single before they are multiplied.
  const float simple = Sng(Sqr(divide(checked(2 * E * D), A)));
  const float ruptura = Sng(Sqr(divide(checked(A + CR), CR)));
  r.Q = Sng(double(simple) * ruptura);
  r.n = Sng(divide(D, r.Q));
  r.S = Sng(checked(divide(D, r.n) * divide(CR, checked(A + CR))));
  r.TR = Sng(divide(dias, r.n));
  r.t1 = Sng(divide(checked(double(r.S) * r.TR), r.Q));
  r.t2 = Sng(double(r.TR) - r.t1);
  // Holding and shortage costs with the days as they come, not years.
  const double almacenamiento = divide(checked(r.S * A * r.t1 * r.n), 2);
  const double rotura = checked((double(r.Q) - r.S) * (CR / 2) * r.t2 * r.n);
  r.CT = Sng(checked(checked(D * P) + divide(checked(D * E), r.Q) + almacenamiento + rotura));

  // The advice: a lead time compared as typed with the Single results, so an
  // equality holds only where the rounding meets the typed number.
  const double d = divide(D, dias), TR = r.TR, t2 = r.t2;
  using enum PuntoRuptura;
  if (T < t2) {
    r.caso = DemandaInsatisfecha;
    r.Pp = Sng(checked(d * (t2 - T)));
  } else if (T == t2) {
    r.caso = Agotado;
  } else if (T > t2 && T < TR) {
    r.caso = Inventario;
    r.Pp = Sng(checked(d * (T - t2)));
  } else if (T == TR) {
    r.caso = MaximaInsatisfecha;
  } else if (T - TR < t2 && T > TR) {
    r.caso = InsatisfechaAnterior;
    r.Pp = Sng(checked(d * (t2 + TR - T)));
  } else if (T - TR == t2) {
    r.caso = MaximaAnterior;
  } else if (T - TR > t2 && 2 * TR > T) {
    r.caso = InventarioAnterior;
    r.Pp = Sng(checked(d * (T - TR - t2)));
  }
  return r;
}

namespace {
// The two lines of the advice: the reorder point and the sentence after it.
void consejo(Report& out, const RupturaResults& r) {
  const std::string Pp = Str(r.Pp);
  auto punto = [&](const std::string& segunda) {
    out.line(Z, "Punto de Pedido (Pp):", Z, Z, Pp, " unidades");
    out.line(Z, segunda);
  };
  auto cero = [&](const std::string& segunda) {
    out.line(Z, "Punto de Pedido (Pp):", Z, Z, " 0 Unidades");
    out.line(Z, segunda);
  };
  switch (r.caso) {
    case PuntoRuptura::DemandaInsatisfecha:
      return punto("Se realizará el pedido cuando la demanda insatisfecha sea de " + Pp +
                   " unidades");
    case PuntoRuptura::Agotado:
      return cero("Se realizará el pedido en el momento en que se agota el stock");
    case PuntoRuptura::Inventario:
      return punto("Se realizará el pedido cuando el inventario sea de " + Pp + " unidades");
    case PuntoRuptura::MaximaInsatisfecha:
      return cero(
          "Se realizará el pedido en el momento en que se alcanza la máxima demanda insatifecha");
    case PuntoRuptura::InsatisfechaAnterior:
      return punto(
          "Se realizará el pedido cuando la demanda insatisfecha del ciclo anterior sea de" + Pp +
          " unidades");
    case PuntoRuptura::MaximaAnterior:
      return cero(
          "Se realizará el pedido en el momento en que se alcanza la máxima demanda "
          "insatifecha en el ciclo anterior");
    case PuntoRuptura::InventarioAnterior:
      return punto("Se realizará el pedido cuando el inventario en el ciclo anterior sea de" + Pp +
                   " unidades");
    case PuntoRuptura::Ninguno:
      return;
  }
}

// The report after its blank lines: the same on screen and on paper.
void body(Report& out, const RupturaFields& f, const RupturaResults& r) {
  out.line(Z, "Solución al problema:  " + f.Titulo1);
  regla(out);
  out.line(Z, " ");
  lineasCostes(out, f.D, f.E, f.A);
  out.line(Z, "Coste de ruptura por unidad y año:", Z, f.CR, " u.m.");
  lineasSuministro(out, f.TS, f.P);
  regla(out);
  out.line(Z, " ");
  out.line(Z, "Cantidad Económica de Pedido (Q);", Z, Str(r.Q), " unidades");
  lineaPedidosAlAño(out, r.n);
  out.line(Z, "Nivel de Stock Máximo (S):", Z, Z, Str(r.S), " unidades");
  lineaReaprovisionamiento(out, r.TR);
  out.line(Z, "Número de días sin rotura en cada ciclo:", Z, Str(r.t1), " días");
  out.line(Z, "Número de días con rotura en cada ciclo:", Z, Str(r.t2), " días");
  out.line(Z, " ");
  consejo(out, r);
  out.line(Z, " ");
  out.line(Z, "Coste total: ", Z, Str(r.CT), " u.m");
}
}  // namespace

Report report(const RupturaFields& f, const RupturaResults& r) {
  Report out;
  out.blankLines(6);
  body(out, f, r);
  return out;
}

Report printout(const RupturaFields& f, const RupturaResults& r) {
  Report out = pageHead("CANTIDAD ECONÓMICA DE PEDIDO CON RUPTURA");
  body(out, f, r);
  return out;
}

Pages solveAndReport(RupturaFields& f) { return solvedPages(f); }

void exchange(ProblemFile& file, RupturaFields& f) {
  for (std::string* item : {&f.Titulo1, &f.D, &f.E, &f.A, &f.CR, &f.TS, &f.dias, &f.P})
    file.text(*item);
}

void nuevo(RupturaFields& f) {
  for (std::string* field : {&f.D, &f.E, &f.A, &f.CR, &f.TS, &f.dias, &f.P}) field->clear();
}

CatalogueEntry catalogueRuptura() { return catalogued("cep-ruptura", rupturaForm()); }

}  // namespace vorel::inventory
