#include "location_equipment/factores_localizacion_screens.h"

#include "frame/gui/table_screen.h"
#include "location_equipment/tabla_screens.h"

namespace vorel::location_equipment {

FactoresLocalizacionEntry::FactoresLocalizacionEntry()
    : ModelEntry("Localizacion_PF", "Localización por Ponderación de Factores",
                 "Cada localización candidata recibe una puntuación en cada factor; la suma de "
                 "las puntuaciones ponderadas por la importancia de cada factor señala la "
                 "localización más adecuada",
                 "Titulo1", "Problema 1") {
  bindings_.bind(&FactoresLocalizacionFields::Titulo1, titleField());
  NFactL_ = selectorDeNumero(*this, 0, "NFactL", "Número de factores", 2, kMaxFactoresPF,
                             "Número de factores de localización");
  NLoc_ = selectorDeNumero(*this, 1, "NLoc", "Número de localizaciones", 2, kMaxLocalizacionesPF,
                           "Número de localizaciones candidatas");
  auto* reshape = gui::redesignButton(
      *this, [this] { rediseñarTabla(); }, "Rediseñar", "Rediseñar");
  fieldGrid()->addWidget(reshape, 0, 3, 2, 1, Qt::AlignVCenter);
  fieldGrid()->setColumnMinimumWidth(2, 24);
  fieldGrid()->setColumnStretch(4, 1);

  // The table: one factor per row with its name and weight, then its score
  // at each location across; the array fk is the row of factor k.
  auto* frame = gui::tableFrame(*this);
  cabecera(frame, "FactorLocalizacion", "Factor de localización", 0, 0);
  cabecera(frame, "Ponderacion", "Ponderación", 0, 1);
  cabecera(frame, "Puntuaciones", "Puntuación", 0, 2);
  for (int j = 1; j < kMaxLocalizacionesPF; ++j)
    Puntuaciones_[static_cast<std::size_t>(j - 1)] =
        cabecera(frame, "Puntuaciones" + QString::number(j + 1), "Puntuación", 0, j + 2);
  L_.create(frame, "L", 0, kMaxLocalizacionesPF - 1, gui::newHeading);
  for (int j = 0; j < kMaxLocalizacionesPF; ++j) {
    L_(j)->setText(QString::fromStdString(nombreLocalizacion(j)));
    gui::tableGrid(frame)->addWidget(L_(j), 1, j + 2);
  }
  columnaDeCeldas(frame, flocaliz_, "flocaliz", kMaxFactoresPF, 0, 2, 170, true);
  columnaDeCeldas(frame, Q1_, "Q1", kMaxFactoresPF, 1, 2, 84);
  for (int k = 0; k < kMaxFactoresPF; ++k) {
    auto& fila = f_[static_cast<std::size_t>(k)];
    fila.create(frame, "f" + QString::number(k + 1), 0, kMaxLocalizacionesPF - 1, [](QWidget* p) {
      auto* cell = gui::newCell(p);
      cell->setFixedWidth(76);
      return cell;
    });
    for (int j = 0; j < kMaxLocalizacionesPF; ++j)
      gui::tableGrid(frame)->addWidget(fila(j), k + 2, j + 2);
  }
  gui::tableGrid(frame)->setColumnStretch(kMaxLocalizacionesPF + 2, 1);
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(FactoresLocalizacionFields{});
}

FactoresLocalizacionFields FactoresLocalizacionEntry::fields() const {
  FactoresLocalizacionFields f;
  bindings_.read(f);
  f.NFactL = NFactL_->currentIndex();
  f.NLoc = NLoc_->currentIndex();
  for (std::size_t k = 0; k < Puntuaciones_.size(); ++k)
    f.Puntuaciones[k] = !Puntuaciones_[k]->isHidden();
  leer(flocaliz_, f.flocaliz);
  leer(Q1_, f.Q1);
  for (std::size_t k = 0; k < kMaxFactoresPF; ++k) leer(f_[k], f.f[k]);
  for (int j = 0; j < kMaxLocalizacionesPF; ++j)
    f.L[static_cast<std::size_t>(j)] = !L_(j)->isHidden();
  return f;
}

void FactoresLocalizacionEntry::setFields(const FactoresLocalizacionFields& f) {
  bindings_.write(f);
  NFactL_->setCurrentIndex(f.NFactL);
  NLoc_->setCurrentIndex(f.NLoc);
  for (std::size_t k = 0; k < Puntuaciones_.size(); ++k)
    Puntuaciones_[k]->setVisible(f.Puntuaciones[k]);
  escribir(flocaliz_, f.flocaliz);
  escribir(Q1_, f.Q1);
  for (std::size_t k = 0; k < kMaxFactoresPF; ++k) escribir(f_[k], f.f[k]);
  for (int j = 0; j < kMaxLocalizacionesPF; ++j)
    L_(j)->setVisible(f.L[static_cast<std::size_t>(j)]);
  gui::fitToTable(*this);
}

void FactoresLocalizacionEntry::rediseñarTabla() {
  edit([](FactoresLocalizacionFields& f) {
    rediseñar(f);
    return Messages{};
  });
  flocaliz_(0)->setFocus();
}

FactoresLocalizacionSolution::FactoresLocalizacionSolution()
    : SolutionScreen("Localizacion_PF_Solucion", "Localización por Ponderación de Factores", 96,
                     38) {}

Pages FactoresLocalizacionSolution::compute() {
  FactoresLocalizacionFields f = entry<FactoresLocalizacionEntry>().fields();
  return solveAndReport(f);
}

void registerFactoresLocalizacionScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Localizacion_PF", [] { return new FactoresLocalizacionEntry(); });
  screens.add("Localizacion_PF_Solucion", [] { return new FactoresLocalizacionSolution(); });
}

}  // namespace vorel::location_equipment
