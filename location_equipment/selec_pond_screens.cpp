#include "location_equipment/selec_pond_screens.h"

#include "frame/gui/table_screen.h"
#include "location_equipment/tabla_screens.h"

namespace vorel::location_equipment {

SelecPondEntry::SelecPondEntry()
    : ModelEntry("Selec_Pond", "Criterio de Ponderación de Factores",
                 "Cada proyecto o tecnología recibe una puntuación en cada factor; las "
                 "ponderaciones de los factores, que suman 1, dan la puntuación total de cada "
                 "opción, y se prefiere la mayor",
                 "Titulo1", "Problema 1") {
  bindings_.bind(&SelecPondFields::Titulo1, titleField());
  NFact_ = selectorDeNumero(*this, 0, "NFact", "Número de factores", 1, kMaxFactoresSP,
                            "Número de factores que se valoran");
  // Choosing a count shows that many rows at once.
  connect(NFact_, &QComboBox::activated, this, [this] {
    gui::Screen::run([this] {
      edit([](SelecPondFields& f) {
        rediseñar(f);
        return Messages{};
      });
    });
  });
  fieldGrid()->setColumnStretch(4, 1);

  auto* frame = gui::tableFrame(*this);
  cabecera(frame, "Factores", "Factor", 0, 0);
  cabecera(frame, "Ponderacion", "Ponderación", 0, 1);
  cabecera(frame, "ProyectoA", "Puntuación A", 0, 2);
  cabecera(frame, "ProyectoB", "Puntuación B", 0, 3);
  columnaDeCeldas(frame, factor_, "factor", kMaxFactoresSP, 0, 1, 170, true);
  columnaDeCeldas(frame, Ponderaciones_, "Ponderaciones", kMaxFactoresSP, 1, 1, 84);
  columnaDeCeldas(frame, PuntuaA_, "PuntuaA", kMaxFactoresSP, 2, 1, 84);
  columnaDeCeldas(frame, PuntuaB_, "PuntuaB", kMaxFactoresSP, 3, 1, 84);
  gui::tableGrid(frame)->setColumnStretch(4, 1);
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(SelecPondFields{});
}

SelecPondFields SelecPondEntry::fields() const {
  SelecPondFields f;
  bindings_.read(f);
  f.NFact = NFact_->currentIndex();
  leer(factor_, f.factor);
  leer(Ponderaciones_, f.Ponderaciones);
  leer(PuntuaA_, f.PuntuaA);
  leer(PuntuaB_, f.PuntuaB);
  return f;
}

void SelecPondEntry::setFields(const SelecPondFields& f) {
  bindings_.write(f);
  NFact_->setCurrentIndex(f.NFact);
  escribir(factor_, f.factor);
  escribir(Ponderaciones_, f.Ponderaciones);
  escribir(PuntuaA_, f.PuntuaA);
  escribir(PuntuaB_, f.PuntuaB);
  gui::fitToTable(*this);
}

SelecPondSolution::SelecPondSolution()
    : SolutionScreen("Selec_Pond_Solucion", "Criterio de Ponderación de Factores", 96, 30) {}

Pages SelecPondSolution::compute() {
  SelecPondFields f = entry<SelecPondEntry>().fields();
  return solveAndReport(f);
}

void registerSelecPondScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Selec_Pond", [] { return new SelecPondEntry(); });
  screens.add("Selec_Pond_Solucion", [] { return new SelecPondSolution(); });
}

}  // namespace vorel::location_equipment
