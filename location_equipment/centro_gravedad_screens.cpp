#include "location_equipment/centro_gravedad_screens.h"

#include "frame/gui/table_screen.h"
#include "location_equipment/tabla_screens.h"

namespace vorel::location_equipment {

CentroGravedadEntry::CentroGravedadEntry()
    : ModelEntry("Localizacion_CG", "Localización por Centro de Gravedad",
                 "El método del centro de gravedad sitúa la instalación en el punto que "
                 "equilibra las localizaciones con las que se relaciona, cada una ponderada por "
                 "la cantidad que envía o recibe",
                 "Titulo1", "Problema 1") {
  bindings_.bind(&CentroGravedadFields::Titulo1, titleField());
  NLoc_ = selectorDeNumero(*this, 0, "NLoc", "Número de localizaciones", 2, kMaxLocalizacionesCG,
                           "Número de localizaciones");
  fieldGrid()->itemAtPosition(0, 0)->widget()->setObjectName("lblNumLoc");
  auto* reshape = gui::redesignButton(
      *this, [this] { rediseñarTabla(); }, "Rediseñar", "Rediseñar");
  fieldGrid()->addWidget(reshape, 0, 3, Qt::AlignLeft);
  fieldGrid()->setColumnMinimumWidth(2, 24);
  fieldGrid()->setColumnStretch(4, 1);

  // The table: one location per row, its name, its coordinates and its quantity.
  auto* frame = gui::tableFrame(*this);
  cabecera(frame, "Localizacion", "Localización", 0, 0);
  cabecera(frame, "Coordenadas", "Coordenadas", 0, 1, 2);
  cabecera(frame, "Cantidad", "Cantidad", 0, 3);
  cabecera(frame, "CoordenadaX", "X", 1, 1);
  cabecera(frame, "CoordenadaY", "Y", 1, 2);
  columnaDeCeldas(frame, localiz_, "localiz", kMaxLocalizacionesCG, 0, 2, 150, true);
  columnaDeCeldas(frame, X_, "X", kMaxLocalizacionesCG, 1, 2, 84);
  columnaDeCeldas(frame, Y_, "Y", kMaxLocalizacionesCG, 2, 2, 84);
  columnaDeCeldas(frame, Q_, "Q", kMaxLocalizacionesCG, 3, 2, 84);
  gui::tableGrid(frame)->setColumnStretch(4, 1);
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(CentroGravedadFields{});
}

CentroGravedadFields CentroGravedadEntry::fields() const {
  CentroGravedadFields f;
  bindings_.read(f);
  f.NLoc = NLoc_->currentIndex();
  leer(localiz_, f.localiz);
  leer(X_, f.X);
  leer(Y_, f.Y);
  leer(Q_, f.Q);
  return f;
}

void CentroGravedadEntry::setFields(const CentroGravedadFields& f) {
  bindings_.write(f);
  NLoc_->setCurrentIndex(f.NLoc);
  escribir(localiz_, f.localiz);
  escribir(X_, f.X);
  escribir(Y_, f.Y);
  escribir(Q_, f.Q);
  gui::fitToTable(*this);
}

void CentroGravedadEntry::rediseñarTabla() {
  edit([](CentroGravedadFields& f) {
    rediseñar(f);
    return Messages{};
  });
  localiz_(0)->setFocus();
}

CentroGravedadSolution::CentroGravedadSolution()
    : SolutionScreen("Localizacion_CG_Solucion", "Localización por Centro de Gravedad", 96, 28) {}

Pages CentroGravedadSolution::compute() {
  CentroGravedadFields f = entry<CentroGravedadEntry>().fields();
  return solveAndReport(f);
}

void registerCentroGravedadScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Localizacion_CG", [] { return new CentroGravedadEntry(); });
  screens.add("Localizacion_CG_Solucion", [] { return new CentroGravedadSolution(); });
}

}  // namespace vorel::location_equipment
