#include "location_equipment/factores_localizacion.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "location_equipment/location_forms.h"
#include "frame/checks.h"
#include "location_equipment/ponderacion.h"

namespace vorel::location_equipment {

namespace {

std::string textoCombo(int listIndex, int mayor) {
  if (listIndex < 0 || listIndex > mayor - 2) return "";
  return std::to_string(listIndex + 2);
}

std::string celda(int k, int j) { return element("f" + std::to_string(k + 1), j); }

Columna columna(const std::array<Cell, kMaxFactoresPF>& celdas, const std::string& nombre) {
  Columna c;
  for (int i = 0; i < kMaxFactoresPF; ++i)
    c.add(celdas[static_cast<std::size_t>(i)], element(nombre, i));
  return c;
}

// The scores of location j, one per factor row shown.
Columna puntuaciones(const FactoresLocalizacionFields& f, int j) {
  Columna c;
  for (int k = 0; k < kMaxFactoresPF; ++k)
    if (f.flocaliz[static_cast<std::size_t>(k)].visible)
      c.celdas.push_back(
          {&f.f[static_cast<std::size_t>(k)][static_cast<std::size_t>(j)], celda(k, j)});
  return c;
}

void cuerpo(Report& out, const FactoresLocalizacionFields& f,
            const FactoresLocalizacionResults& r) {
  out.heading(f.Titulo1);
  out.line(Z, "Factor de Localización", Z, "Ponderacion");
  for (std::size_t i = 0; i < kMaxFactoresPF; ++i)
    if (f.flocaliz[i].visible) out.line(Z, f.flocaliz[i].text, Z, Z, f.Q1[i].text);
  out.rule();
  out.line(Z, "Las puntuaciones obtenidas para cada localización son: ");
  for (std::size_t n = 0; n < r.puntuacion.size(); ++n)
    out.line(Z, "L" + printed(double(r.localizaciones[n] + 1)) + ":", Z, Str(r.puntuacion[n]));
  out.line(Z, " ");
  out.line(Z, "Siguiendo el Criterio de Ponderación de Factores:  ");
  out.line(Z, " ");
  for (int n : r.mejores)
    out.line(Z, "Localización adecuada: ", Z,
             nombreLocalizacion(r.localizaciones[static_cast<std::size_t>(n)]));
}

}  // namespace

FactoresLocalizacionFields::FactoresLocalizacionFields() { rediseñar(*this); }

std::string nombreLocalizacion(int j) { return "L" + std::to_string(j + 1); }

void rediseñar(FactoresLocalizacionFields& f) {
  const double factores = Val(textoCombo(f.NFactL, kMaxFactoresPF));
  const double localizaciones = Val(textoCombo(f.NLoc, kMaxLocalizacionesPF));
  for (int j = 0; j < kMaxLocalizacionesPF; ++j) {
    f.L[static_cast<std::size_t>(j)] = j < localizaciones;
    if (j >= 1) f.Puntuaciones[static_cast<std::size_t>(j - 1)] = j < localizaciones;
  }
  for (int k = 0; k < kMaxFactoresPF; ++k) {
    const auto i = static_cast<std::size_t>(k);
    f.flocaliz[i].visible = f.Q1[i].visible = k < factores;
    for (int j = 0; j < kMaxLocalizacionesPF; ++j)
      f.f[i][static_cast<std::size_t>(j)].visible = k < factores && j < localizaciones;
  }
}

void nuevo(FactoresLocalizacionFields& f) {
  for (std::size_t i = 0; i < kMaxFactoresPF; ++i) {
    f.flocaliz[i].text.clear();
    f.Q1[i].text.clear();
    for (Cell& c : f.f[i]) c.text.clear();
  }
  f.NFactL = 1;
  f.NLoc = 1;
  rediseñar(f);
}

Messages check(const FactoresLocalizacionFields& f) {
  const Columna pesos = columna(f.Q1, "Q1");
  if (Messages m = sinNombre({columna(f.flocaliz, "flocaliz")},
                             "Todas las celdas correspondientes a los factores de localización "
                             "deben contener su nombre escrito");
      !m.empty())
    return m;
  if (Messages m = noNumerica({pesos},
                              "Todas las celdas correspondientes a las ponderaciones deben "
                              "contener un valor");
      !m.empty())
    return m;
  // The scores of the table as it reads: factor by factor, location by location.
  std::vector<Columna> tabla;
  for (int j = 0; j < kMaxLocalizacionesPF; ++j) {
    Columna c;
    for (int k = 0; k < kMaxFactoresPF; ++k)
      c.add(f.f[static_cast<std::size_t>(k)][static_cast<std::size_t>(j)], celda(k, j));
    tabla.push_back(c);
  }
  if (Messages m = noNumerica(tabla,
                              "Todas las celdas correspondientes a las puntuaciones de cada "
                              "localización deben contener un valor numérico");
      !m.empty())
    return m;
  return fueraDe(pesos, 0, 1, "Las ponderaciones deben estar comprendidas entre 0 y 1");
}

FactoresLocalizacionResults solve(const FactoresLocalizacionFields& f) {
  // The factor rows shown give the weights; each location head shown, a score.
  std::vector<double> pesos;
  for (std::size_t i = 0; i < kMaxFactoresPF; ++i)
    if (f.flocaliz[i].visible) pesos.push_back(Val(f.Q1[i].text));
  FactoresLocalizacionResults r;
  for (int j = 0; j < kMaxLocalizacionesPF; ++j) {
    if (!f.L[static_cast<std::size_t>(j)]) continue;
    r.localizaciones.push_back(j);
    r.puntuacion.push_back(sumaPonderada(pesos, valores(puntuaciones(f, j))));
  }
  r.mejores = mejores(r.puntuacion);
  return r;
}

Report report(const FactoresLocalizacionFields& f, const FactoresLocalizacionResults& r) {
  Report out;
  out.blankLines(4);
  cuerpo(out, f, r);
  return out;
}

Report printout(const FactoresLocalizacionFields& f, const FactoresLocalizacionResults& r) {
  Report out = pageHead("LOCALIZACIÓN POR PONDERACIÓN DE FACTORES");
  cuerpo(out, f, r);
  return out;
}

Pages solveAndReport(FactoresLocalizacionFields& f) {
  return solvedPages(f);
}

void exchange(ProblemFile& file, FactoresLocalizacionFields& f) {
  file.text(f.Titulo1);
  file.listIndex(f.NFactL, kMaxFactoresPF - 1);
  file.listIndex(f.NLoc, kMaxLocalizacionesPF - 1);
  for (bool& visible : f.Puntuaciones) file.flag(visible);
  for (std::size_t i = 0; i < kMaxFactoresPF; ++i) {
    file.text(f.flocaliz[i].text);
    file.flag(f.flocaliz[i].visible);
    file.text(f.Q1[i].text);
    file.flag(f.Q1[i].visible);
  }
  for (std::size_t j = 0; j < kMaxLocalizacionesPF; ++j) {
    file.flag(f.L[j]);
    for (auto& fila : f.f) {
      file.text(fila[j].text);
      file.flag(fila[j].visible);
    }
  }
}

CatalogueEntry catalogueFactoresLocalizacion() {
  return catalogued("localizacion-factores", factoresLocalizacionForm());
}

}  // namespace vorel::location_equipment
