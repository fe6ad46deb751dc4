#include "location_equipment/selec_pond.h"

#include <cmath>

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "location_equipment/location_forms.h"
#include "frame/checks.h"
#include "location_equipment/ponderacion.h"

namespace vorel::location_equipment {

namespace {

Columna columna(const SelecPondFields::Celdas& celdas, const std::string& nombre) {
  Columna c;
  for (int i = 0; i < kMaxFactoresSP; ++i)
    c.add(celdas[static_cast<std::size_t>(i)], element(nombre, i));
  return c;
}

void cuerpo(Report& out, const SelecPondFields& f, const SelecPondResults& r) {
  out.heading(f.Titulo1);
  out.line(Z, "Ponderaciones y Puntuaciones:", Z, Z, "A", Z, "B");
  out.line(Z, " ");
  for (std::size_t i = 0; i < kMaxFactoresSP; ++i)
    if (f.factor[i].visible)
      out.line(Z, f.factor[i].text + ":", Z, Z, Z, f.Ponderaciones[i].text, Z, f.PuntuaA[i].text, Z,
               f.PuntuaB[i].text);
  out.rule();
  out.line(Z, "PUNTUACIÓN Proyecto A = " + Str(r.PA) + " puntos");
  out.line(Z, "PUNTUACIÓN Proyecto B = " + Str(r.PB) + " puntos");
  out.line(Z, " ");
  if (r.PA == r.PB) {
    out.line(Z, "Por el Criterio de Ponderación de Factores ambas opciones poseen igual");
    out.line(Z, "puntuación, por lo que se elegirá una u otra indistintamente.");
  } else {
    out.line(Z, "Por el Criterio de Ponderación de Factores resulta preferible ");
    out.line(Z, r.PA > r.PB ? "el proyecto o la tecnología A" : "el proyecto o la tecnología B");
  }
}

}  // namespace

SelecPondFields::SelecPondFields() { rediseñar(*this); }

void rediseñar(SelecPondFields& f) {
  const double filas = f.NFact >= 0 && f.NFact < kMaxFactoresSP ? f.NFact + 1 : 0;
  for (int i = 0; i < kMaxFactoresSP; ++i)
    for (auto* c : {&f.factor, &f.Ponderaciones, &f.PuntuaA, &f.PuntuaB})
      (*c)[static_cast<std::size_t>(i)].visible = i < filas;
}

void nuevo(SelecPondFields& f) {
  for (auto* c : {&f.factor, &f.Ponderaciones, &f.PuntuaA, &f.PuntuaB})
    for (Cell& cell : *c) cell.text.clear();
  f.NFact = 2;
  rediseñar(f);
}

Messages check(const SelecPondFields& f) {
  const Columna pesos = columna(f.Ponderaciones, "Ponderaciones");
  if (Messages m = sinNombre({columna(f.factor, "factor")},
                             "Todas las celdas correspondientes a los nombres de los factores "
                             "deben contener su nombre escrito");
      !m.empty())
    return m;
  if (Messages m = noNumerica({pesos},
                              "Todas las celdas correspondientes a las ponderaciones de los "
                              "factores deben contener un valor numérico");
      !m.empty())
    return m;
  if (Messages m = fueraDe(pesos, 0, 1, "Las ponderaciones deben estar comprendidas entre 0 y 1");
      !m.empty())
    return m;
  double suma = 0;
  for (double peso : valores(pesos)) suma += peso;
  if (std::fabs(suma - 1) > kToleranciaSuma)
    return {{"La suma de las ponderaciones debe ser 1", element("Ponderaciones", 0)}};
  return noNumerica({columna(f.PuntuaA, "PuntuaA"), columna(f.PuntuaB, "PuntuaB")},
                    "Todas las celdas correspondientes a las puntuaciones deben contener un valor "
                    "numérico");
}

SelecPondResults solve(const SelecPondFields& f) {
  const std::vector<double> pesos = valores(columna(f.Ponderaciones, "Ponderaciones"));
  return {sumaPonderada(pesos, valores(columna(f.PuntuaA, "PuntuaA"))),
          sumaPonderada(pesos, valores(columna(f.PuntuaB, "PuntuaB")))};
}

Report report(const SelecPondFields& f, const SelecPondResults& r) {
  Report out;
  out.blankLines(4);
  cuerpo(out, f, r);
  return out;
}

Report printout(const SelecPondFields& f, const SelecPondResults& r) {
  Report out = pageHead("CRITERIO DE PONDERACIÓN DE FACTORES");
  cuerpo(out, f, r);
  return out;
}

Pages solveAndReport(SelecPondFields& f) { return solvedPages(f); }

void exchange(ProblemFile& file, SelecPondFields& f) {
  file.text(f.Titulo1);
  file.listIndex(f.NFact, kMaxFactoresSP);
  for (std::size_t i = 0; i < kMaxFactoresSP; ++i)
    for (auto* c : {&f.factor, &f.Ponderaciones, &f.PuntuaA, &f.PuntuaB}) {
      file.text((*c)[i].text);
      file.flag((*c)[i].visible);
    }
}

CatalogueEntry catalogueSelecPond() {
  return catalogued("equipos-factores", selecPondForm());
}

}  // namespace vorel::location_equipment
