#include "location_equipment/centro_gravedad.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "location_equipment/location_forms.h"
#include "frame/checks.h"
#include "location_equipment/ponderacion.h"

namespace vorel::location_equipment {

namespace {

void mostrarFilas(CentroGravedadFields& f, double filas) {
  for (int i = 0; i < kMaxLocalizacionesCG; ++i)
    for (auto* columna : {&f.localiz, &f.X, &f.Y, &f.Q})
      (*columna)[static_cast<std::size_t>(i)].visible = i < filas;
}

Columna columna(const CentroGravedadFields::Celdas& celdas, const std::string& nombre) {
  Columna c;
  for (int i = 0; i < kMaxLocalizacionesCG; ++i)
    c.add(celdas[static_cast<std::size_t>(i)], element(nombre, i));
  return c;
}

// Lines from the title on: the same on screen and on paper.
void cuerpo(Report& out, const CentroGravedadFields& f, const CentroGravedadResults& r) {
  out.heading(f.Titulo1);
  out.line(Z, "Localización", Z, "Coordenadas", Z, " Cantidad");
  for (std::size_t i = 0; i < kMaxLocalizacionesCG; ++i) {
    if (!f.localiz[i].visible) continue;
    out.line(Z, f.localiz[i].text, Z, "(" + f.X[i].text + "," + f.Y[i].text + ")", Z, f.Q[i].text);
  }
  out.rule();
  out.line(Z, "La localización adecuada según este criterio contaría con las coordenadas:");
  out.line(Z, " ");
  out.line(Z, "Coordenada X del Centro de Gravedad: " + Str(r.Xc));
  out.line(Z, "Coordenada Y del Centro de Gravedad: " + Str(r.Yc));
}

}  // namespace

CentroGravedadFields::CentroGravedadFields() { rediseñar(*this); }

std::string textoNLoc(int listIndex) {
  if (listIndex < 0 || listIndex > kMaxLocalizacionesCG - 2) return "";
  return std::to_string(listIndex + 2);
}

void rediseñar(CentroGravedadFields& f) { mostrarFilas(f, Val(textoNLoc(f.NLoc))); }

void nuevo(CentroGravedadFields& f) {
  for (auto* c : {&f.localiz, &f.X, &f.Y, &f.Q})
    for (Cell& cell : *c) cell.text.clear();
  f.NLoc = 1;
  rediseñar(f);
}

Messages check(const CentroGravedadFields& f) {
  if (Messages m = sinNombre({columna(f.localiz, "localiz")},
                             "Todas las celdas correspondientes a las localizaciones deben "
                             "contener su nombre escrito");
      !m.empty())
    return m;
  if (Messages m = noNumerica({columna(f.Q, "Q")},
                              "Todas las celdas correspondientes a las cantidades deben contener "
                              "un valor numérico");
      !m.empty())
    return m;
  return noNumerica({columna(f.X, "X"), columna(f.Y, "Y")},
                    "Todas las celdas correspondientes a las coordenadas deben contener un valor "
                    "numérico");
}

CentroGravedadResults solve(const CentroGravedadFields& f) {
  // The rows shown are the locations; each quantity weighs its coordinates.
  const std::vector<double> Q = valores(columna(f.Q, "Q"));
  CentroGravedadResults r;
  r.SQ = sumaPonderada(Q, std::vector<double>(Q.size(), 1.0));
  r.Xc = Sng(divide(sumaPonderada(Q, valores(columna(f.X, "X"))), r.SQ));
  r.Yc = Sng(divide(sumaPonderada(Q, valores(columna(f.Y, "Y"))), r.SQ));
  return r;
}

Report report(const CentroGravedadFields& f, const CentroGravedadResults& r) {
  Report out;
  out.blankLines(4);
  cuerpo(out, f, r);
  return out;
}

Report printout(const CentroGravedadFields& f, const CentroGravedadResults& r) {
  Report out = pageHead("LOCALIZACIÓN POR CENTRO DE GRAVEDAD");
  cuerpo(out, f, r);
  return out;
}

Pages solveAndReport(CentroGravedadFields& f) {
  return solvedPages(f);
}

void exchange(ProblemFile& file, CentroGravedadFields& f) {
  file.text(f.Titulo1);
  file.listIndex(f.NLoc, kMaxLocalizacionesCG - 1);
  for (std::size_t i = 0; i < kMaxLocalizacionesCG; ++i)
    for (auto* c : {&f.localiz, &f.Q, &f.X, &f.Y}) {
      file.text((*c)[i].text);
      file.flag((*c)[i].visible);
    }
}

CatalogueEntry catalogueCentroGravedad() {
  return catalogued("centro-gravedad", centroGravedadForm());
}

}  // namespace vorel::location_equipment
