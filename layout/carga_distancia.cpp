#include "layout/carga_distancia.h"

#include <algorithm>
#include <map>
#include <utility>

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "layout/indice.h"
#include "layout/layout_forms.h"

namespace vorel::facility {

namespace {

const std::string kRegla = std::string(74, '_') + " ";
const std::string kDistanciasIncompletas = "Debe completar la tabla de distancias";

// The products and the rows of distances the selectors give, read as text:
// an empty selector is a type mismatch.
int productos(const CargaDistanciaFields& f) {
  return static_cast<int>(CDbl(selectorText(f.NumActividades, kMaxProductos)));
}
int filas(const CargaDistanciaFields& f) {
  return static_cast<int>(CDbl(selectorText(f.NumDistancias, kMaxFilasDistancia)));
}

void aplicarForma(CargaDistanciaFields& f, int N, int T) {
  for (int k = 0; k < kMaxProductos; ++k) {
    const bool usado = k < N;
    item(f.LblActividades, k) = usado;
    item(f.Produccion, k).visible = usado;
    for (Cell& cell : item(f.C, k)) cell.visible = usado;
  }
  for (int t = 0; t < kMaxFilasDistancia; ++t)
    for (auto* columna : {&f.D1, &f.D2, &f.Distancias}) item(*columna, t).visible = t < T;
  for (int b = 0; b < 2; ++b) {
    const bool bloque = T > b * kFilasPrimerBloque;
    item(f.LblDepartamentos, b) = bloque;
    item(f.Lbldistancias, b) = bloque;
  }
}

// The report from its title line on: the screen and the page share it.
void cuerpo(Report& out, const CargaDistanciaFields& f, const CargaDistanciaResults& r) {
  const int N = static_cast<int>(r.DistanciaUnidad.size());
  out.line(Z, "Solución al problema:  " + f.Título);
  out.line(Z, kRegla);
  out.line(Z, " ");
  out.line(Z, Z, Z, "SECUENCIA", Z, Z, "PRODUCCIÓN");
  out.line(Z, " ");
  // The routes stop at the seventh product: an eighth is computed, not listed.
  for (int k = 1; k <= 7 && k <= N; ++k) {
    const auto& ruta = item(f.C, k - 1);
    std::string secuencia = ruta[0].text;
    for (int r = 1; r < kPasosRuta; ++r)
      if (IsNumeric(item(ruta, r).text)) secuencia += "-" + item(ruta, r).text;
    out.line(Z, "Producto" + std::to_string(k), Z, Z, secuencia, Z, Z,
             item(f.Produccion, k - 1).text);
  }
  out.line(Z, kRegla);
  out.line(Z, " ");
  out.line(Z, Z, Z, "DISTANCIA POR UNIDAD", Z, "DISTANCIA POR PRODUCCIÓN");
  out.line(Z, " ");
  for (int i = 0; i < N; ++i)
    out.line(Z, "Producto", printed(double(i + 1)), Z, Z, printed(item(r.DistanciaUnidad, i)), Z, Z,
             printed(item(r.DistanciaProduccion, i)));
  out.line(Z, " ");
  out.line(Z, "Distancia Total:", printed(r.Total));
}

}  // namespace

CargaDistanciaFields::CargaDistanciaFields() { aplicarForma(*this, 3, 3); }

void rediseñar(CargaDistanciaFields& f) { aplicarForma(f, productos(f), filas(f)); }

void nuevo(CargaDistanciaFields& f) {
  for (auto& ruta : f.C)
    for (Cell& cell : ruta) cell.text.clear();
  for (auto* columna : {&f.D1, &f.D2, &f.Distancias})
    for (Cell& cell : *columna) cell.text.clear();
  for (Cell& cell : f.Produccion) cell.text.clear();
  f.NumActividades = 2;
  f.NumDistancias = 2;
  aplicarForma(f, 3, 3);
}

Messages check(const CargaDistanciaFields& f) {
  const int N = productos(f);
  const int T = filas(f);
  for (int k = 1; k <= 7 && k <= N; ++k)
    if (!IsNumeric(item(f.C, k - 1)[0].text))
      return {{k == 1
                   ? "Debe introducir el primer elemento de la secuencia seguda por el producto 1"
                   : "Debe introducir el primer elemento de la secuencia seguida por el "
                     "producto " +
                         std::to_string(k),
               ""}};
  // The departments are tested down as many rows as there are products, so
  // with more than five products the walk leaves the five cells of a route
  // (error 9); the eighth product's test reads the seventh's cells again.
  for (int i = 0; i < N; ++i)
    for (int k = 1; k <= N; ++k) {
      const Cell& cell = item(item(f.C, k == 8 ? 6 : k - 1), i);
      if (!IsNumeric(cell.text)) continue;
      const double departamento = Val(cell.text);
      if (departamento > 17 || departamento < 0)
        return {{"Solo se permite el uso de 17 departamentos", ""}};
    }
  for (int i = 0; i < N; ++i) {
    const std::string& text = item(f.Produccion, i).text;
    if (!IsNumeric(text)) return {{"Debe introducir los valores de producción", ""}};
    const double produccion = Val(text);
    if (produccion < 0 || produccion > 999999999)
      return {
          {"Los valores de Producción no son correctos, deben estar comprendidos entre 0 y "
           "999999999",
           ""}};
  }
  for (int t = 0; t < T; ++t) {
    for (const auto* columna : {&f.D1, &f.D2}) {
      const std::string& text = item(*columna, t).text;
      if (!IsNumeric(text)) return {{kDistanciasIncompletas, ""}};
      const double departamento = Val(text);
      if (departamento < 0 || departamento > 17)
        return {{"Solo se permite el uso de 17 actividades", ""}};
    }
    const std::string& text = item(f.Distancias, t).text;
    if (!IsNumeric(text)) return {{kDistanciasIncompletas, ""}};
    const double distancia = Val(text);
    if (distancia < 0 || distancia > 999999999)
      return {
          {"Los valores de distancias no son correctos, deben estar comprendidos entre 0 y "
           "999999999",
           ""}};
  }
  return {};
}

CargaDistanciaResults solve(const CargaDistanciaFields& f) {
  const int N = productos(f);
  const int T = filas(f);

  // The table of distances is dimensioned by the highest department named
  // anywhere; it is kept sparse, since a pair that no row names stays 0.
  double H = 0;
  for (const auto& ruta : f.C)
    for (const Cell& cell : ruta) H = std::max(H, Val(cell.text));
  for (int t = 0; t < T; ++t) H = std::max({H, Val(item(f.D1, t).text), Val(item(f.D2, t).text)});
  const long alto = indice(H, 0, 2147483647);
  std::map<std::pair<long, long>, double> M;
  auto par = [alto](double a, double b) {
    return std::pair{indice(a, 0, alto), indice(b, 0, alto)};
  };
  for (int t = 0; t < T; ++t) {
    const double a = Val(item(f.D1, t).text), b = Val(item(f.D2, t).text);
    const double distancia = Val(item(f.Distancias, t).text);
    M[par(a, b)] = distancia;
    M[par(b, a)] = distancia;
  }
  auto distancia = [&](double a, double b) {
    const auto it = M.find(par(a, b));
    return it == M.end() ? 0.0 : it->second;
  };

  std::vector<std::array<double, kPasosRuta>> S(static_cast<std::size_t>(N));
  for (int r = 0; r < kPasosRuta; ++r)
    for (int k = 1; k <= N; ++k) {
      const std::string& text = item(item(f.C, k - 1), r).text;
      item(item(S, k - 1), r) = IsNumeric(text) ? Val(text) : 0;
    }

  CargaDistanciaResults out;
  out.DistanciaUnidad.assign(static_cast<std::size_t>(N), 0);
  out.DistanciaProduccion.assign(static_cast<std::size_t>(N), 0);
  // A stretch counts when both its departments are given; a gap in a route
  // leaves out the stretches on either side of it.
  for (int i = 0; i < N; ++i) {
    const auto& ruta = item(S, i);
    double& unidad = item(out.DistanciaUnidad, i);
    for (int c = 0; c + 1 < kPasosRuta; ++c)
      if (ruta[c] != 0 && ruta[c + 1] != 0)
        unidad = checked(unidad + distancia(ruta[c], ruta[c + 1]));
    const double produccion = Val(item(f.Produccion, i).text);
    double& porProduccion = item(out.DistanciaProduccion, i);
    for (int c = 0; c + 1 < kPasosRuta; ++c)
      if (ruta[c] != 0 && ruta[c + 1] != 0)
        porProduccion =
            checked(porProduccion + checked(distancia(ruta[c], ruta[c + 1]) * produccion));
  }
  for (double d : out.DistanciaProduccion) out.Total = checked(out.Total + d);
  return out;
}

Report report(const CargaDistanciaFields& f, const CargaDistanciaResults& r) {
  Report out;
  out.blankLines(4);
  cuerpo(out, f, r);
  return out;
}

Report printout(const CargaDistanciaFields& f, const CargaDistanciaResults& r) {
  Report out = pageHead("ANÁLISIS CARGA-DISTANCIA");
  cuerpo(out, f, r);
  return out;
}

Pages solveAndReport(CargaDistanciaFields& f) {
  return solvedPages(f);
}

void exchange(ProblemFile& file, CargaDistanciaFields& f) {
  file.text(f.Título);
  file.listIndex(f.NumActividades, kMaxProductos);
  file.listIndex(f.NumDistancias, kMaxFilasDistancia);
  for (int r = 0; r < kPasosRuta; ++r)
    for (auto& ruta : f.C) {
      Cell& cell = item(ruta, r);
      file.text(cell.text);
      file.flag(cell.visible);
    }
  for (bool& etiqueta : f.LblActividades) file.flag(etiqueta);
  for (int t = 0; t < kMaxFilasDistancia; ++t)
    for (auto* columna : {&f.D1, &f.D2, &f.Distancias}) {
      Cell& cell = item(*columna, t);
      file.text(cell.text);
      file.flag(cell.visible);
    }
  for (Cell& cell : f.Produccion) {
    file.text(cell.text);
    file.flag(cell.visible);
  }
  for (int i = 0; i < 2; ++i) {
    file.flag(item(f.LblDepartamentos, i));
    file.flag(item(f.Lbldistancias, i));
  }
}

CatalogueEntry catalogueCargaDistancia() {
  return catalogued("carga-distancia", cargaDistanciaForm());
}

}  // namespace vorel::facility
