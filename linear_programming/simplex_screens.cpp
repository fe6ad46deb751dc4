#include "linear_programming/simplex_screens.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>

#include "frame/gui/picture_button.h"
#include "frame/gui/table_screen.h"

namespace vorel::linear_programming {

namespace {

// The method runs in slices of passes, the desktop's events handled between
// them. The core starts afresh at each call, so each slice solves from the
// fields again with a budget twice the last one, up to the longest slice.
// A run that ends visits each basis at most once (every pivot takes a
// positive ratio and a strictly better reduced cost), and a 7 by 7 tableau
// has at most C(21, 7) = 116280 bases: the longest slice is above that, so a
// problem still running at that length is cycling, and the screen goes on
// re-running that slice for as long as the screen stays open.
constexpr long kFirstSlice = 4096;
constexpr long kLongestSlice = 1L << 17;

QStringList oneToSeven() {
  QStringList items;
  for (int k = 1; k <= kSimplexMax; ++k) items << QString::number(k);
  return items;
}

QStringList itemsOf(const auto& list) {
  QStringList items;
  for (const char* text : list) items << QString::fromUtf8(text);
  return items;
}

QLabel* caption(QWidget* parent, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setStyleSheet("font-size: 10pt; color: #1A202C;");
  return label;
}

QLabel* fixedHeading(QWidget* parent, const QString& text) {
  auto* label = gui::newHeading(parent);
  label->setText(text);
  return label;
}

void setShown(QWidget* w, bool visible) { w->setVisible(visible); }

}  // namespace

SimplexEntry::SimplexEntry()
    : ModelEntry("PL_Simplex", QString::fromUtf8(kSimplexCaption), QString::fromUtf8(kSimplexIntro),
                 "Título", "Problema 1") {
  // The objective's sense and the size of the table, then the command that applies it.
  QGridLayout* top = fieldGrid();
  funcionObjetivo_ = gui::newSelector(this, itemsOf(kFuncionObjetivoItems));
  funcionObjetivo_->setObjectName("funcionObjetivo");
  funcionObjetivo_->setFixedWidth(140);
  NumFactores_ = gui::newSelector(this, oneToSeven());
  NumFactores_->setObjectName("NumFactores");
  NumFactores_->setToolTip(QString::fromUtf8(kNumFactoresToolTip));
  NumFactores_->setFixedWidth(64);
  Numrestricciones_ = gui::newSelector(this, oneToSeven());
  Numrestricciones_->setObjectName("Numrestricciones");
  Numrestricciones_->setToolTip(QString::fromUtf8(kNumrestriccionesToolTip));
  Numrestricciones_->setFixedWidth(64);
  const std::pair<QString, QComboBox*> selectors[] = {{"Función objetivo", funcionObjetivo_},
                                                      {"Variables", NumFactores_},
                                                      {"Restricciones", Numrestricciones_}};
  int row = 0;
  for (auto& [text, combo] : selectors) {
    QLabel* label = caption(this, text);
    label->setBuddy(combo);
    top->addWidget(label, row, 0);
    top->addWidget(combo, row, 1, Qt::AlignLeft);
    ++row;
  }
  auto* reshape = gui::redesignButton(*this, [this] { rediseñarTabla(); });
  top->addWidget(reshape, 1, 3, 2, 1, Qt::AlignLeft | Qt::AlignVCenter);
  top->setColumnMinimumWidth(2, 24);
  top->setColumnStretch(4, 1);

  // The table: the objective row and one row per constraint, the variables
  // across, then the relation and the right-hand side.
  auto* frame = gui::tableFrame(*this);
  auto* grid = gui::tableGrid(frame);
  const int tipoColumn = kSimplexMax + 1, existenciasColumn = kSimplexMax + 2;
  LblFactores_.create(frame, "LblFactores", 0, kSimplexMax - 1, gui::newHeading);
  Lblrestriccion_.create(frame, "Lblrestriccion", 0, kSimplexMax - 1, gui::newHeading);
  for (int j = 0; j < kSimplexMax; ++j)
    X_[std::size_t(j)].create(frame, "X" + QString::number(j + 1), 0, kSimplexRows - 1,
                              gui::newCell);
  restriccion_.create(frame, "restriccion", 0, kSimplexMax - 1, [](QWidget* parent) {
    auto* combo = gui::newSelector(parent, itemsOf(kRestriccionItems));
    combo->setFixedWidth(64);
    return combo;
  });
  existencias_.create(frame, "existencias", 1, kSimplexRows - 1, gui::newCell);

  grid->addWidget(fixedHeading(frame, "Tipo"), 0, tipoColumn);
  grid->addWidget(fixedHeading(frame, "Existencias"), 0, existenciasColumn);
  auto* objetivo = fixedHeading(frame, "Objetivo");
  objetivo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid->addWidget(objetivo, 1, 0);
  for (int j = 0; j < kSimplexMax; ++j) {
    LblFactores_(j)->setText("X" + QString::number(j + 1));
    grid->addWidget(LblFactores_(j), 0, j + 1);
    grid->addWidget(X_[std::size_t(j)](0), 1, j + 1);
  }
  // A little air between the objective and the constraints.
  grid->setRowMinimumHeight(2, 6);
  for (int r = 1; r < kSimplexRows; ++r) {
    QLabel* head = Lblrestriccion_(r - 1);
    head->setText("Restricción " + QString::number(r));
    head->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(head, r + 2, 0);
    for (int j = 0; j < kSimplexMax; ++j) grid->addWidget(X_[std::size_t(j)](r), r + 2, j + 1);
    grid->addWidget(restriccion_(r - 1), r + 2, tipoColumn);
    grid->addWidget(existencias_(r), r + 2, existenciasColumn);
  }
  grid->setColumnStretch(existenciasColumn + 1, 1);
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(SimplexFields{});  // Form_Load: the 2 by 2 table
}

SimplexFields SimplexEntry::fields() const {
  SimplexFields f;
  f.Título = titleField()->text().toStdString();
  f.funcionObjetivo = funcionObjetivo_->currentIndex();
  f.NumFactores = NumFactores_->currentIndex();
  f.Numrestricciones = Numrestricciones_->currentIndex();
  for (std::size_t j = 0; j < kSimplexMax; ++j)
    for (std::size_t i = 0; i < kSimplexRows; ++i) {
      QLineEdit* cell = X_[j](int(i));
      f.X[j][i] = gui::readCell(cell);
    }
  for (std::size_t i = 0; i < kSimplexMax; ++i) {
    QComboBox* relation = restriccion_(int(i));
    f.restriccion[i] = {relation->currentIndex(), !relation->isHidden()};
    f.LblFactores[i] = !LblFactores_(int(i))->isHidden();
    f.Lblrestriccion[i] = !Lblrestriccion_(int(i))->isHidden();
  }
  for (std::size_t i = 1; i < kSimplexRows; ++i) {
    QLineEdit* cell = existencias_(int(i));
    f.existencias[i] = gui::readCell(cell);
  }
  return f;
}

void SimplexEntry::setFields(const SimplexFields& f) {
  titleField()->setText(QString::fromStdString(f.Título));
  funcionObjetivo_->setCurrentIndex(f.funcionObjetivo);
  NumFactores_->setCurrentIndex(f.NumFactores);
  Numrestricciones_->setCurrentIndex(f.Numrestricciones);
  for (std::size_t j = 0; j < kSimplexMax; ++j)
    for (std::size_t i = 0; i < kSimplexRows; ++i) {
      QLineEdit* cell = X_[j](int(i));
      cell->setText(QString::fromStdString(f.X[j][i].text));
      setShown(cell, f.X[j][i].visible);
    }
  for (std::size_t i = 0; i < kSimplexMax; ++i) {
    QComboBox* relation = restriccion_(int(i));
    relation->setCurrentIndex(f.restriccion[i].ListIndex);
    setShown(relation, f.restriccion[i].visible);
    setShown(LblFactores_(int(i)), f.LblFactores[i]);
    setShown(Lblrestriccion_(int(i)), f.Lblrestriccion[i]);
  }
  for (std::size_t i = 1; i < kSimplexRows; ++i) {
    QLineEdit* cell = existencias_(int(i));
    cell->setText(QString::fromStdString(f.existencias[i].text));
    setShown(cell, f.existencias[i].visible);
  }
}

void SimplexEntry::rediseñarTabla() {
  SimplexFields f = fields();
  try {
    linear_programming::rediseñarTabla(f);
  } catch (const RuntimeError&) {
    setFields(f);  // the table is reshaped before the focus fails
    throw;
  }
  setFields(f);
  X_[0](0)->setFocus();
}

SimplexSolution::SimplexSolution()
    : SolutionScreen("PL_Simplex_Solucion", "Simplex", 112, 44, "SolucionF") {
  auto* back = command(
      "back", "cmd-back", "Solución 1", [this] { browse(false); }, 40);
  auto* forward = command(
      "forward", "cmd-forward", "Solución 2", [this] { browse(true); }, 40);
  commandRow()->insertLayout(0, gui::captioned(forward));
  commandRow()->insertLayout(0, gui::captioned(back));
  showAvailability();
}

void SimplexSolution::formActivate() {
  bool ended = false;
  run([&] {
    Solucion1()->Cls();
    const SimplexFields f = entry<SimplexEntry>().fields();
    ended = solveInSlices([&](long budget) { end_ = solve(f, results_, budget); }, kFirstSlice,
                          kLongestSlice);
  });
  if (ended) SolutionScreen::formActivate();
}

Pages SimplexSolution::compute() {
  const SimplexFields f = entry<SimplexEntry>().fields();
  Pages pages{report(f, results_, end_), printout(f, results_)};
  showAvailability();
  return pages;
}

void SimplexSolution::browse(bool second) {
  const SimplexFields f = entry<SimplexEntry>().fields();
  Solucion1()->setReport(second ? forward(f, results_) : back(f, results_));
  showAvailability();
}

void SimplexSolution::showAvailability() {
  const std::pair<const char*, bool> commands[] = {{"forward", results_.forwardAvailable},
                                                   {"back", results_.backAvailable},
                                                   {"volver", results_.volverAvailable}};
  for (auto& [name, available] : commands)
    if (auto* button = findChild<QAbstractButton*>(name)) button->setEnabled(available);
}

void registerSimplexScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("PL_Simplex", [] { return new SimplexEntry(); });
  screens.add("PL_Simplex_Solucion", [] { return new SimplexSolution(); });
}

}  // namespace vorel::linear_programming
