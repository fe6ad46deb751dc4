#include "inventory/cep_descuento.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "inventory/pedido.h"
#include "inventory/pedido_forms.h"

namespace vorel::inventory {

namespace {
constexpr int kInferior = 0, kSuperior = 1, kCoste = 2;  // the columns of the table
constexpr double kMaximo = 999999999;

// The number of intervals the selector shows: 0 when nothing is chosen.
int intervalos(const DescuentoFields& f) {
  return f.cmbIntervalos >= 0 && f.cmbIntervalos < 3 ? f.cmbIntervalos + 2 : 0;
}

double valor(const DescuentoFields& f, int fila, int columna) {
  return Val(item(item(f.Tabla, fila), columna).text);
}
}  // namespace

DescuentoFields::DescuentoFields() { cmbIntervalosClick(*this); }

void cmbIntervalosClick(DescuentoFields& f) {
  const int k = intervalos(f);
  for (std::size_t r = 0; r < kMaxIntervalos; ++r) {
    const bool visible = static_cast<int>(r) < k;
    f.Intervalo[r] = visible;
    for (Cell& c : f.Tabla[r]) c.visible = visible;
  }
}

Messages check(const DescuentoFields& f) {
  std::vector<Prueba> pruebas;
  positivo(pruebas, f.D, campos::D);
  positivo(pruebas, f.E, campos::E);
  positivo(pruebas, f.A, 100, campos::A.mensaje, " entre 0 y 100");
  pruebas.push_back({[&f] { return Val(f.TS) > campos::TS.tope; },
                     std::string(campos::TS.mensaje) + campos::TS.rango});
  pruebas.push_back({[&f] { return Val(f.dias) > campos::dias.tope; },
                     std::string(campos::dias.mensaje) + campos::dias.rango});

  // The visible cells, row by row: a text that is not numeric or below 0 gets
  // the first message; a value out of order with the cell before it, or above
  // the maximum, the second.
  struct Celda {
    const char* incorrecto;
    const char* noValido;
  };
  const Celda celdas[kMaxIntervalos][3] = {
      {{"Límite inferior del intervalo1 incorrecto. Introduce un nuevo valor",
        "Valor del límite inferior del intervalo1 no válido. Introduce un nuevo valor entre 0 y "
        "999.999.999"},
       {"Límite superior del intervalo1 incorrecto. Introduce un nuevo valor",
        "Valor del límite superior del intervalo1 no válido. Introduce un nuevo valor entre el "
        "límite inferior y 999.999.999"},
       {"Costes de adquisición incorrecto. Introduce un nuevo valor",
        "Valor del coste de adquisición no válido. Introduce un nuevo valor entre 0 y "
        "999.999.999"}},
      {{"Límite inferior del intervalo2 incorrecto. Introduce un nuevo valor",
        "Valor del límite inferior del intervalo2 no válido. Introduce un nuevo valor entre el "
        "límite superior del intervalo 1 y 999.999.999"},
       {"Límite superior del intervalo2 incorrecto. Introduce un nuevo valor",
        "Valor del límite superior del intervalo2 no válido. Introduce un nuevo valor entre el "
        "límite inferior y 999.999.999"},
       {"Costes de adquisición incorrecto. Introduce un nuevo valor",
        "Valor del coste de adquisición no válido. Introduce un nuevo valor entre 0 y "
        "999.999.999"}},
      {{"Límite inferior del intervalo3 incorrecto. Introduce un nuevo valor",
        "Valor del límite inferior del intervalo3 no válido. Introduce un nuevo valor entre el "
        "límite superior del intervalo 2 y 999.999.999"},
       {"Límite superior del intervalo3 incorrecto. Introduce un nuevo valor",
        "Valor del límite superior del intervalo3 no válido. Introduce un nuevo valor entre el "
        "límite inferior y 999.999.999"},
       {"Coste de adquisición del intervalo3 incorrecto. Introduce un nuevo valor",
        "Valor del coste de adquisición del intervalo3 no válido. Introduce un nuevo valor "
        "inferior al coste de adquisición del intervalo 2"}},
      {{"Límite inferior del intervalo4 incorrecto. Introduce un nuevo valor",
        "Valor del límite inferior del intervalo4 no válido. Introduce un nuevo valor entre el "
        "límite superior del intervalo 3 y 999.999.999"},
       {"Límite superior del intervalo3 incorrecto. Introduce un nuevo valor",
        "Valor del límite superior del intervalo4 no válido. Introduce un nuevo valor entre el "
        "límite inferior y 999.999.999"},
       {"Costes de adquisición incorrecto. Introduce un nuevo valor",
        "Valor del coste de adquisición no válido. Introduce un nuevo valor inferior al coste de "
        "adquisición del intervalo 3"}},
  };
  for (int r = 0; r < kMaxIntervalos; ++r) {
    for (int c = 0; c < 3; ++c) {
      const Cell& celda = f.Tabla[std::size_t(r)][std::size_t(c)];
      if (!celda.visible) continue;
      // Limits may not fall below the limit before them (an upper limit its
      // lower one, a lower limit the upper one of the interval before); the
      // costs of intervals 3 and 4 must be lower than the cost before them,
      // while those of intervals 1 and 2 are not compared.
      auto fueraDeOrden = [&f, r, c] {
        const double v = valor(f, r, c);
        if (c == kSuperior) return v < valor(f, r, kInferior);
        if (c == kInferior) return r > 0 && v < valor(f, r - 1, kSuperior);
        return r >= 2 && v >= valor(f, r - 1, kCoste);
      };
      const Celda& textos = celdas[r][c];
      pruebas.push_back(
          {[&celda] { return !IsNumeric(celda.text) || Val(celda.text) < 0; }, textos.incorrecto});
      pruebas.push_back(
          {[&celda, fueraDeOrden] { return fueraDeOrden() || Val(celda.text) > kMaximo; },
           textos.noValido});
    }
  }
  return primerFallo(pruebas);
}

DescuentoResults solve(const DescuentoFields& f) {
  const double D = Val(f.D), E = Val(f.E), A = Val(f.A), ipor = Val(f.ipor), TS = Val(f.TS),
               dias = Val(f.dias);
  const int k = intervalos(f);
  // h holding cost, q unconstrained quantity, T its total cost, B the total
  // cost at the lower limit L; index r - 1 for the interval r.
  std::array<double, kMaxIntervalos> c{}, L{}, h{}, q{}, T{}, B{};
  for (int r = 1; r <= k; ++r) {
    const std::size_t i = std::size_t(r - 1);
    c[i] = valor(f, r - 1, kCoste);
    L[i] = valor(f, r - 1, kInferior);
    h[i] = checked(divide(checked(ipor * c[i]), 100) + A);
    q[i] = Sqr(divide(checked(2 * E * D), h[i]));
    T[i] = checked(checked(D * c[i]) + divide(checked(E * D), q[i]) + checked(h[i] * q[i]) / 2);
  }
  for (int r = 2; r <= k; ++r) {
    const std::size_t i = std::size_t(r - 1);
    B[i] = checked(checked(D * c[i]) + divide(checked(D * E), L[i]) + checked(h[i] * L[i]) / 2);
  }

  DescuentoResults res;
  auto elegir = [&](int r, double cantidad, double coste, Eleccion eleccion) {
    res.Q = Sng(cantidad);
    res.CT = Sng(coste);
    res.Coste = Sng(item(c, r - 1));
    res.intervalo = r;
    res.eleccion = eleccion;
  };
  // Down from the cheapest interval: its own quantity if it reaches its
  // lower limit; else the first interval whose quantity reaches its limit,
  // against the lower limit of the next one up; else the first interval
  // against the lower limit of the second.
  bool elegido = false;
  if (item(q, k - 1) >= item(L, k - 1)) {
    elegir(k, q[std::size_t(k - 1)], T[std::size_t(k - 1)], Eleccion::Ultimo);
    elegido = true;
  }
  for (int r = k - 1; r >= 2 && !elegido; --r) {
    const std::size_t i = std::size_t(r - 1);
    if (q[i] < L[i]) continue;
    if (T[i] > B[i + 1])
      elegir(r + 1, L[i + 1], B[i + 1], Eleccion::LimiteSiguiente);
    else
      elegir(r, q[i], T[i], Eleccion::Intermedio);
    elegido = true;
  }
  if (!elegido) {
    if (T[0] > B[1])
      elegir(2, L[1], B[1], Eleccion::LimiteSegundo);
    else
      elegir(1, q[0], T[0], Eleccion::Primero);
  }
  res.n = Sng(divide(D, res.Q));
  res.TR = Sng(divide(dias, res.n));
  res.Pp = Sng(divide(checked(TS * D), dias));
  return res;
}

namespace {
// The report after its blank lines: the same on screen and on paper.
void body(Report& out, const DescuentoFields& f, const DescuentoResults& r) {
  out.line(Z, "Solución al problema: " + f.Titulo1);
  regla(out);
  out.line(" ");
  out.line("Demanda anual:", f.D, " unidades");
  out.line("Coste de emisión por pedido:", f.E, " u.m.");
  out.line("Coste de almacenamiento:", f.A, " u.m.");
  out.line("Coste de almacenamiento como % del coste:", f.ipor, " %");
  out.line("Tiempo de suministro (días):", f.TS, " días");
  regla(out);
  out.line(" ");
  out.line("Cantidad Económica de Pedido (Q):", Str(r.Q), " unidades");
  out.line("Coste unitario:", Str(r.Coste), " u.m.");
  out.line("Número de pedidos al año (n):", Str(r.n));
  out.line("Tiempo de Reaprovisionamiento (TR):", Str(r.TR), " días");
  out.line("Punto de Pedido (Pp):", Str(r.Pp), " unidades");
  out.line(" ");
  out.line("Coste Total de Inventario:", Str(r.CT), " u.m.");
}
}  // namespace

Report report(const DescuentoFields& f, const DescuentoResults& r) {
  Report out;
  out.blankLines(6);
  body(out, f, r);
  return out;
}

Report printout(const DescuentoFields& f, const DescuentoResults& r) {
  Report out = pageHead("CANTIDAD ECONÓMICA DE PEDIDO CON DESCUENTO");
  body(out, f, r);
  return out;
}

Pages solveAndReport(DescuentoFields& f) { return solvedPages(f); }

void exchange(ProblemFile& file, DescuentoFields& f) {
  for (std::string* item : {&f.Titulo1, &f.D, &f.E, &f.A, &f.TS, &f.dias, &f.ipor})
    file.text(*item);
  file.listIndex(f.cmbIntervalos, 3);
  // Choosing an index fires the selector's click, before the visibility
  // items that follow it are read.
  if (file.reading()) cmbIntervalosClick(f);
  for (bool& visible : f.Intervalo) file.flag(visible);
  for (auto& fila : f.Tabla)
    for (Cell& celda : fila) {
      file.text(celda.text);
      file.flag(celda.visible);
    }
}

void nuevo(DescuentoFields& f) {
  const std::string titulo = f.Titulo1;
  f = DescuentoFields();
  f.Titulo1 = titulo;
}

CatalogueEntry catalogueDescuento() { return catalogued("cep-descuento", descuentoForm()); }

}  // namespace vorel::inventory
