#include "linear_programming/transportes_screens.h"

#include <QApplication>
#include <QFrame>
#include <QPalette>

#include "decision/electra1_screens.h"  // the pieces of the table screens

namespace vorel::linear_programming {

namespace {

const std::string kEntry = "PL_Transportes";
const std::string kSolution = "PL_Transportes_Solución";
const QColor kTotalBase(0xEE, 0xF3, 0xFA);

}  // namespace

QComboBox* addTableSelector(gui::EntryScreen& screen, int row, const QString& objectName,
                            const QString& label, const QString& toolTip) {
  QStringList items;
  for (int k = 1; k <= kTransportesMax; ++k) items << QString::number(k);
  auto* combo = gui::newSelector(&screen, items);
  combo->setObjectName(objectName);
  combo->setToolTip(toolTip);
  combo->setFixedWidth(64);
  auto* caption = new QLabel(label, &screen);
  caption->setStyleSheet("font-size: 10pt; color: #1A202C;");
  caption->setBuddy(combo);
  screen.fieldGrid()->addWidget(caption, row, 0);
  screen.fieldGrid()->addWidget(combo, row, 1, Qt::AlignLeft);
  return combo;
}

void markTotalCell(QLineEdit* cell, bool total) {
  QPalette palette = cell->palette();
  palette.setColor(QPalette::Base,
                   total ? kTotalBase : QApplication::palette(cell).color(QPalette::Base));
  cell->setPalette(palette);
}

TransportesEntry::TransportesEntry()
    : ModelEntry(kEntry, "Problema del Transporte", kTransportesIntro, "Título", "Problema 1") {
  NumOrigen_ = addTableSelector(*this, 0, "NumOrigen", "Orígenes", "Número de Orígenes");
  NumDestino_ = addTableSelector(*this, 1, "NumDestino", "Destinos", "Número de Destinos");
  fieldGrid()->addWidget(decision::redesignButton(*this, [this] { rediseñarTabla(); }), 0, 3, 2, 1,
                         Qt::AlignVCenter);
  fieldGrid()->setColumnMinimumWidth(2, 24);
  fieldGrid()->setColumnStretch(4, 1);

  // The table: origins down the rows and the demands after them; destinations
  // across and the supplies after them.
  auto* frame = decision::tableFrame(*this);
  auto* grid = new QGridLayout(frame);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(5);
  LblDestino_.create(frame, "LblDestino", 0, kTransportesArrays - 1, [](QWidget* parent) {
    auto* head = gui::newHeading(parent);
    head->setFixedWidth(84);
    head->setStyleSheet(
        "font-weight: 600; color: #2D3748; border-radius: 3px; padding: 3px 2px;"
        " background-color: #E2E8F0;");
    return head;
  });
  LblOrigen_.create(frame, "LblOrigen", 0, kTransportesArrays - 1, gui::newHeading);
  for (int j = 1; j <= kTransportesArrays; ++j)
    columna(j).create(frame, "C" + QString::number(j), 0, kTransportesArrays - 1,
                      [](QWidget* parent) {
                        auto* cell = gui::newCell(parent);
                        cell->setFixedWidth(84);
                        return cell;
                      });
  for (int k = 0; k < kTransportesArrays; ++k) {
    grid->addWidget(LblDestino_(k), 0, k + 1);
    LblOrigen_(k)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    LblOrigen_(k)->setMinimumWidth(84);
    grid->addWidget(LblOrigen_(k), k + 1, 0);
    for (int j = 1; j <= kTransportesArrays; ++j) grid->addWidget(columna(j)(k), k + 1, j);
  }
  grid->setColumnStretch(kTransportesArrays + 1, 1);
  decision::placeTable(body(), fieldGrid(), frame);

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
      f.C[static_cast<std::size_t>(j - 1)][at] = {cell->text().toStdString(), !cell->isHidden()};
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
      const TransportesCell& c = f.C[static_cast<std::size_t>(j - 1)][static_cast<std::size_t>(i)];
      QLineEdit* cell = columna(j)(i);
      cell->setText(QString::fromStdString(c.text));
      cell->setVisible(c.visible);
      markTotalCell(cell, f.LblDestino[static_cast<std::size_t>(j - 1)].caption == "Existencias" ||
                              f.LblOrigen[static_cast<std::size_t>(i)].caption == "Demandas");
    }
  decision::fitToTable(*this);
}

void TransportesEntry::nuevo() {
  TransportesFields f = fields();
  linear_programming::nuevo(f);
  setFields(f);
}

void TransportesEntry::rediseñarTabla() {
  TransportesFields f = fields();
  if (!tell(rediseñar(f))) return;
  setFields(f);
  columna(1)(0)->setFocus();
}

TransportesSolution::TransportesSolution()
    : SolutionScreen(kSolution, "Problema del Transporte", 92, 40) {}

Pages TransportesSolution::compute() {
  const TransportesFields f = entry<TransportesEntry>().fields();
  results_ = solve(f);  // no bound: the desktop waits as long as the method runs
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
