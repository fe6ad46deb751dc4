#include "linear_programming/asignacion_screens.h"

#include <QFrame>

#include "frame/gui/table_screen.h"
#include "frame/gui/picture_button.h"

namespace vorel::linear_programming {

namespace {
const std::string kEntry = "PL_Asignación";
const std::string kSolution = "PL_Asignación_Solución";
}  // namespace

AsignacionEntry::AsignacionEntry()
    : ModelEntry(kEntry, "Problemas de Asignación", {}, "Título", "Problema 1") {
  NumIndividuos_ = gui::addNumberSelector(*this, 0, 0, "NumIndividuos", "Individuos", kAsignacionMax, {});
  NumTareas_ = gui::addNumberSelector(*this, 1, 0, "NumTareas", "Tareas", kAsignacionMax, {});
  fieldGrid()->addWidget(gui::redesignButton(*this, [this] { rediseñarTabla(); }), 0, 3, 2, 1,
                         Qt::AlignVCenter);
  fieldGrid()->setColumnMinimumWidth(2, 24);
  fieldGrid()->setColumnStretch(4, 1);

  // The table: individuals down the rows, tasks across.
  auto* frame = gui::tableFrame(*this);
  gui::createColumnHeads(frame, LblTareas_, "LblTareas", kAsignacionMax, 84, 0);
  gui::createRowHeads(frame, LblIndividuos_, "LblIndividuos", kAsignacionMax, 1, 84);
  gui::createCells(frame, C_, "C", kAsignacionArrays, 84, 1);
  for (int k = 0; k < kAsignacionMax; ++k) {
    LblTareas_(k)->setText(QString::fromStdString(asignacionHeading(true, k)));
    LblIndividuos_(k)->setText(QString::fromStdString(asignacionHeading(false, k)));
  }
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(AsignacionFields{});
}

AsignacionFields AsignacionEntry::fields() const {
  AsignacionFields f;
  f.Título = titleField()->text().toStdString();
  f.NumIndividuos = NumIndividuos_->currentIndex();
  f.NumTareas = NumTareas_->currentIndex();
  for (int i = 0; i < kAsignacionArrays; ++i)
    for (int j = 1; j <= kAsignacionArrays; ++j) {
      const QLineEdit* cell = columna(j)(i);
      f.C[static_cast<std::size_t>(j - 1)][static_cast<std::size_t>(i)] = gui::readCell(cell);
    }
  for (int k = 0; k < kAsignacionMax; ++k) {
    f.LblIndividuos[static_cast<std::size_t>(k)] = !LblIndividuos_(k)->isHidden();
    f.LblTareas[static_cast<std::size_t>(k)] = !LblTareas_(k)->isHidden();
  }
  return f;
}

void AsignacionEntry::setFields(const AsignacionFields& f) {
  titleField()->setText(QString::fromStdString(f.Título));
  NumIndividuos_->setCurrentIndex(f.NumIndividuos);
  NumTareas_->setCurrentIndex(f.NumTareas);
  for (int i = 0; i < kAsignacionArrays; ++i)
    for (int j = 1; j <= kAsignacionArrays; ++j) {
      const Cell& c = f.C[static_cast<std::size_t>(j - 1)][static_cast<std::size_t>(i)];
      QLineEdit* cell = columna(j)(i);
      gui::writeCell(cell, c);
    }
  for (int k = 0; k < kAsignacionMax; ++k) {
    LblIndividuos_(k)->setVisible(f.LblIndividuos[static_cast<std::size_t>(k)]);
    LblTareas_(k)->setVisible(f.LblTareas[static_cast<std::size_t>(k)]);
  }
  gui::fitToTable(*this);
}

void AsignacionEntry::rediseñarTabla() {
  edit([](AsignacionFields& f) {
    rediseñar(f);
    return Messages{};
  });
  columna(1)(0)->setFocus();
}

AsignacionSolution::AsignacionSolution()
    : SolutionScreen(kSolution, "Problemas de Asignación", 92, 30) {
  struct Definicion {
    Browsing* at;
    const char* name;
    const char* picture;
    const char* toolTip;
    int pagina;
  };
  // Back steps first, then forward ones: one of each shows at most.
  const Definicion definiciones[] = {
      {&Back1_, "Back1", "cmd-back", "Solución 1", 1},
      {&back2_, "back2", "cmd-back", "Solución 2", 2},
      {&forward1_, "forward1", "cmd-forward", "Solución 2", 2},
      {&forward2_, "forward2", "cmd-forward", "Solución 3", 3},
  };
  int at = 0;
  for (const Definicion& d : definiciones) {
    const int pagina = d.pagina;
    auto* button = command(
        d.name, d.picture, d.toolTip, [this, pagina] { mostrar(pagina); }, 40);
    QVBoxLayout* column = gui::captioned(button);
    *d.at = {button, qobject_cast<QLabel*>(column->itemAt(1)->widget())};
    commandRow()->insertLayout(at++, column);
  }
  ofrecerComandos();
}

Pages AsignacionSolution::compute() {
  const AsignacionFields f = entry<AsignacionEntry>().fields();
  results_ = solve(f);
  pagina_ = 1;
  ofrecerComandos();
  return {report(f, results_, pagina_), printout(f, results_)};
}

void AsignacionSolution::mostrar(int pagina) {
  pagina_ = pagina;
  Solucion1()->Cls();
  Solucion1()->setReport(report(entry<AsignacionEntry>().fields(), results_, pagina_));
  ofrecerComandos();
}

void AsignacionSolution::ofrecerComandos() {
  const AsignacionComandos c = comandos(results_.numSoluciones, pagina_);
  for (auto [b, shown] : {std::pair{forward1_, c.forward1}, std::pair{forward2_, c.forward2},
                          std::pair{back2_, c.back2}, std::pair{Back1_, c.Back1}}) {
    b.button->setVisible(shown);
    b.caption->setVisible(shown);
  }
}

void AsignacionSolution::imprimir() {
  gui::platform().printerDialog();
  gui::printReport(printout(entry<AsignacionEntry>().fields(), results_));
}

void registerAsignacionScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(kEntry, [] { return new AsignacionEntry(); });
  screens.add(kSolution, [] { return new AsignacionSolution(); });
}

}  // namespace vorel::linear_programming
