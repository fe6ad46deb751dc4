#include "linear_programming/transportes_screens.h"

#include <QApplication>
#include <QFrame>
#include <QPalette>

#include "frame/gui/table_screen.h"

namespace vorel::linear_programming {

namespace {

const std::string kEntry = "PL_Transportes";
const std::string kSolution = "PL_Transportes_Solución";

}  // namespace

TransportesEntry::TransportesEntry()
    : ModelEntry(kEntry, "Problema del Transporte", kTransportesIntro, "Título", "Problema 1") {
  NumOrigen_ = gui::addNumberSelector(*this, 0, 0, "NumOrigen", "Orígenes", kTransportesMax, "Número de Orígenes");
  NumDestino_ = gui::addNumberSelector(*this, 1, 0, "NumDestino", "Destinos", kTransportesMax, "Número de Destinos");
  fieldGrid()->addWidget(gui::redesignButton(*this, [this] { rediseñarTabla(); }), 0, 3, 2, 1,
                         Qt::AlignVCenter);
  fieldGrid()->setColumnMinimumWidth(2, 24);
  fieldGrid()->setColumnStretch(4, 1);

  // The table: origins down the rows and the demands after them; destinations
  // across and the supplies after them.
  auto* frame = gui::tableFrame(*this);
  gui::createColumnHeads(frame, LblDestino_, "LblDestino", kTransportesArrays, 84, 0);
  gui::createRowHeads(frame, LblOrigen_, "LblOrigen", kTransportesArrays, 1, 84);
  gui::createCells(frame, C_, "C", kTransportesArrays, 84, 1);
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(TransportesFields{});
}

TransportesFields TransportesEntry::fields() const {
  TransportesFields f;
  f.Título = titleField()->text().toStdString();
  f.NumOrigen = NumOrigen_->currentIndex();
  f.NumDestino = NumDestino_->currentIndex();
  for (int k = 0; k < kTransportesArrays; ++k) {
    const auto at = static_cast<std::size_t>(k);
    for (int j = 1; j <= kTransportesArrays; ++j) {
      const QLineEdit* cell = columna(j)(k);
      f.C[static_cast<std::size_t>(j - 1)][at] = gui::readCell(cell);
    }
    f.LblOrigen[at] = {LblOrigen_(k)->text().toStdString(), !LblOrigen_(k)->isHidden()};
    f.LblDestino[at] = {LblDestino_(k)->text().toStdString(), !LblDestino_(k)->isHidden()};
  }
  return f;
}

void TransportesEntry::setFields(const TransportesFields& f) {
  titleField()->setText(QString::fromStdString(f.Título));
  NumOrigen_->setCurrentIndex(f.NumOrigen);
  NumDestino_->setCurrentIndex(f.NumDestino);
  for (int k = 0; k < kTransportesArrays; ++k) {
    const auto at = static_cast<std::size_t>(k);
    LblOrigen_(k)->setText(QString::fromStdString(f.LblOrigen[at].caption));
    LblOrigen_(k)->setVisible(f.LblOrigen[at].visible);
    LblDestino_(k)->setText(QString::fromStdString(f.LblDestino[at].caption));
    LblDestino_(k)->setVisible(f.LblDestino[at].visible);
  }
  // The demands' row and the supplies' column are the ones whose heads say so.
  for (int j = 1; j <= kTransportesArrays; ++j)
    for (int i = 0; i < kTransportesArrays; ++i) {
      const Cell& c = f.C[static_cast<std::size_t>(j - 1)][static_cast<std::size_t>(i)];
      QLineEdit* cell = columna(j)(i);
      gui::writeCell(cell, c);
      gui::markTotalCell(cell, f.LblDestino[static_cast<std::size_t>(j - 1)].caption == "Existencias" ||
                              f.LblOrigen[static_cast<std::size_t>(i)].caption == "Demandas");
    }
  gui::fitToTable(*this);
}

void TransportesEntry::rediseñarTabla() {
  if (edit([](TransportesFields& f) { return rediseñar(f); })) columna(1)(0)->setFocus();
}

TransportesSolution::TransportesSolution()
    : SolutionScreen(kSolution, "Problema del Transporte", 92, 40) {}

void TransportesSolution::formActivate() {
  bool ended = false;
  run([&] {
    Solucion1()->Cls();
    const TransportesFields f = entry<TransportesEntry>().fields();
    ended = solveInSlices([&](long budget) { results_ = solve(f, budget); }, 1L << 12, 1L << 21);
  });
  if (ended) SolutionScreen::formActivate();
}

Pages TransportesSolution::compute() {
  const TransportesFields f = entry<TransportesEntry>().fields();
  if (results_.degenerada) {
    gui::platform().errorBox(kTransportesDegenerada);
    gui::Screens::instance().show(kEntry);
    gui::Screens::instance().hide(name());
    return {};
  }
  return {report(f, results_), printout(f, results_)};
}

void TransportesSolution::imprimir() {
  gui::platform().printerDialog();
  gui::printReport(printout(entry<TransportesEntry>().fields(), results_));
}

void registerTransportesScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(kEntry, [] { return new TransportesEntry(); });
  screens.add(kSolution, [] { return new TransportesSolution(); });
}

}  // namespace vorel::linear_programming
