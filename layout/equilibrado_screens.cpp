#include "layout/equilibrado_screens.h"

#include <QFrame>

#include "frame/gui/table_screen.h"

namespace vorel::facility {

EquilibradoEntry::EquilibradoEntry()
    : ModelEntry("Distribucion_Equlibrado", "Equilibrado de Líneas de Fabricación o Montaje",
                 "El equilibrado de líneas de fabricación y montaje es una técnica para las "
                 "distribuciones por productos. Consiste en realizar el diseño de los puestos de "
                 "trabajo en instalaciones que siguen este tipo de distribución, de forma que el "
                 "tiempo de permanencia del producto en cada uno de los puestos de trabajo sea el "
                 "mismo para todos ellos.",
                 "Título", "Problema 1") {
  bindings_.bind(&EquilibradoFields::Título, titleField());
  NumActividades_ = gui::addNumberSelector(*this, 0, 0, "NumActividades", "Número de Actividades",
                                           kMaxActividades);
  auto* reshape = gui::redesignButton(*this, [this] { rediseñarTabla(); });
  fieldGrid()->addWidget(reshape, 0, 2, Qt::AlignLeft);
  fieldGrid()->setColumnStretch(3, 1);

  // Two blocks of seven activities, one above the other: the head of each
  // activity, its time, and its five predecessors down its column.
  auto* frame = gui::tableFrame(*this);
  QGridLayout* grid = gui::tableGrid(frame);
  LblActividades_.create(frame, "LblActividades", 0, kMaxActividades - 1, gui::newColumnHead);
  TiempoOperacion_.create(frame, "TiempoOperacion", 0, kMaxActividades - 1, gui::newCell);
  for (int k = 1; k <= kColumnasAnteriores; ++k)
    C_[static_cast<std::size_t>(k - 1)].create(frame, "C" + QString::number(k), 0,
                                               kFilasAnteriores - 1, gui::newCell);
  constexpr int kFilasBloque = 3 + kAnterioresPorActividad;
  for (int bloque = 0; bloque < 2; ++bloque) {
    const int arriba = bloque * kFilasBloque;
    auto* tiempos = gui::newHeading(frame);
    tiempos->setText("Tiempos de Operación");
    tiempos->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(tiempos, arriba + 1, 0);
    auto* anteriores = gui::newHeading(frame);
    anteriores->setText("Actividades Inmediatamente\nAnteriores");
    anteriores->setAlignment(Qt::AlignRight | Qt::AlignTop);
    grid->addWidget(anteriores, arriba + 2, 0, kAnterioresPorActividad, 1);
    if (bloque == 1) rotulosBloque2_ = {tiempos, anteriores};
    for (int k = 1; k <= kColumnasAnteriores; ++k) {
      const int a = k + bloque * kColumnasAnteriores;
      LblActividades_(a - 1)->setText("Actividad " + QString::number(a));
      LblActividades_(a - 1)->setFixedWidth(84);
      grid->addWidget(LblActividades_(a - 1), arriba, k);
      grid->addWidget(TiempoOperacion_(a - 1), arriba + 1, k, Qt::AlignHCenter);
      for (int p = 0; p < kAnterioresPorActividad; ++p)
        grid->addWidget(C_[static_cast<std::size_t>(k - 1)](p + bloque * kAnterioresPorActividad),
                        arriba + 2 + p, k, Qt::AlignHCenter);
    }
    grid->setRowMinimumHeight(arriba + kFilasBloque - 1, 10);
  }
  grid->setColumnStretch(kColumnasAnteriores + 1, 1);
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(EquilibradoFields{});
}

EquilibradoFields EquilibradoEntry::fields() const {
  EquilibradoFields f;
  bindings_.read(f);
  f.NumActividades = NumActividades_->currentIndex();
  for (int k = 0; k < kColumnasAnteriores; ++k)
    for (int r = 0; r < kFilasAnteriores; ++r) item(item(f.C, k), r) = gui::readCell(C_[k](r));
  for (int i = 0; i < kMaxActividades; ++i) {
    item(f.TiempoOperacion, i) = gui::readCell(TiempoOperacion_(i));
    item(f.LblActividades, i) = !LblActividades_(i)->isHidden();
  }
  return f;
}

void EquilibradoEntry::setFields(const EquilibradoFields& f) {
  bindings_.write(f);
  NumActividades_->setCurrentIndex(f.NumActividades);
  for (int k = 0; k < kColumnasAnteriores; ++k)
    for (int r = 0; r < kFilasAnteriores; ++r) gui::writeCell(C_[k](r), item(item(f.C, k), r));
  for (int i = 0; i < kMaxActividades; ++i) {
    gui::writeCell(TiempoOperacion_(i), item(f.TiempoOperacion, i));
    LblActividades_(i)->setVisible(item(f.LblActividades, i));
  }
  // The captions of the lower block go with its first activity.
  for (QLabel* rotulo : rotulosBloque2_) rotulo->setVisible(item(f.LblActividades, 7));
  gui::fitToTable(*this);
}

void EquilibradoEntry::rediseñarTabla() {
  if (edit([](EquilibradoFields& f) {
        rediseñar(f);
        return Messages{};
      }))
    TiempoOperacion_(0)->setFocus();
}

EquilibradoSolution::EquilibradoSolution()
    : SolutionScreen("Distribucion_Equilibrado_Solucion",
                     "Equilibrado de Líneas de Fabricación y Montaje", 128, 30) {}

void EquilibradoSolution::formActivate() {
  bool ended = false;
  run([&] {
    Solucion1()->Cls();
    const EquilibradoFields f = entry<EquilibradoEntry>().fields();
    ended = solveInSlices([&](long budget) { results_ = solve(f, budget); }, 1L << 12, 1L << 21);
  });
  if (ended) SolutionScreen::formActivate();
}

Pages EquilibradoSolution::compute() {
  const EquilibradoFields f = entry<EquilibradoEntry>().fields();
  return {report(f, results_), printout(f, results_)};
}

void registerEquilibradoScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Distribucion_Equlibrado", [] { return new EquilibradoEntry(); });
  screens.add("Distribucion_Equilibrado_Solucion", [] { return new EquilibradoSolution(); });
}

}  // namespace vorel::facility
