#include "quality/control_screens.h"

#include <QGridLayout>

#include "frame/gui/clipboard.h"
#include "frame/gui/picture_button.h"
#include "frame/gui/table_screen.h"
#include "location_equipment/selec_van_screens.h"

namespace vorel::quality {

void SampleTable::create(gui::EntryScreen& screen, QVBoxLayout* body, const QString& firstName,
                         const QString& secondName, const QString& headFirstName,
                         const QString& headFirstText, const QString& headSecondName,
                         const QString& headSecondText, const QString& otherName,
                         const QString& otherText) {
  frame = gui::tableFrame(screen);
  QGridLayout* grid = gui::tableGrid(frame);
  grid->setVerticalSpacing(2);
  auto cell = [](QWidget* p) {
    auto* c = gui::newCell(p);
    c->setFixedWidth(64);
    return c;
  };
  auto head = [&](gui::ControlArray<QLabel>& heads, const QString& name, const QString& text) {
    heads.create(frame, name, 0, 2, gui::newHeading);
    for (QLabel* h : heads) h->setText(text);
  };
  K.create(frame, "K", 0, kMaxMuestras - 1, gui::newHeading);
  first.create(frame, firstName, 0, kMaxMuestras - 1, cell);
  second.create(frame, secondName, 0, kMaxMuestras - 1, cell);
  head(Lblk, "Lblk", "k");
  head(headFirst, headFirstName, headFirstText);
  head(headSecond, headSecondName, headSecondText);
  if (!otherName.isEmpty()) head(headOther, otherName, otherText);
  for (int b = 0; b < 3; ++b) {
    const int column = b * 4;
    grid->addWidget(Lblk(b), 0, column);
    grid->addWidget(headFirst(b), 0, column + 1);
    // Where the column has two heads they share its place, one at each side,
    // so that both read when both are shown.
    grid->addWidget(headSecond(b), 0, column + 2,
                    otherName.isEmpty() ? Qt::Alignment() : Qt::AlignLeft);
    if (!otherName.isEmpty()) grid->addWidget(headOther(b), 0, column + 2, Qt::AlignRight);
    if (b < 2) grid->setColumnMinimumWidth(column + 3, 18);
  }
  for (int i = 0; i < kMaxMuestras; ++i) {
    K(i)->setText(QString::number(i + 1));
    const int column = (i / 15) * 4, row = 1 + i % 15;
    grid->addWidget(K(i), row, column);
    grid->addWidget(first(i), row, column + 1);
    grid->addWidget(second(i), row, column + 2);
  }
  grid->setColumnStretch(12, 1);
  // A block pasted runs down the samples, not down the blocks on screen.
  gui::setTableColumns(frame, {{first.begin(), first.end()}, {second.begin(), second.end()}});
  gui::placeTable(body, screen.fieldGrid(), frame);
}

void SampleTable::read(Rows& Kshown, Column& firstCells, Column& secondCells,
                       std::initializer_list<Heads*> heads) const {
  for (int i = 0; i < kMaxMuestras; ++i) {
    const auto at = std::size_t(i);
    Kshown[at] = !K(i)->isHidden();
    firstCells[at] = gui::readCell(first(i));
    secondCells[at] = gui::readCell(second(i));
  }
  const gui::ControlArray<QLabel>* labels[] = {&Lblk, &headFirst, &headSecond, &headOther};
  std::size_t l = 0;
  for (Heads* h : heads) readVisible(*labels[l++], h->data());
}

void SampleTable::write(const Rows& Kshown, const Column& firstCells, const Column& secondCells,
                        std::initializer_list<const Heads*> heads) {
  for (int i = 0; i < kMaxMuestras; ++i) {
    const auto at = std::size_t(i);
    K(i)->setVisible(Kshown[at]);
    gui::writeCell(first(i), firstCells[at]);
    gui::writeCell(second(i), secondCells[at]);
  }
  const gui::ControlArray<QLabel>* labels[] = {&Lblk, &headFirst, &headSecond, &headOther};
  std::size_t l = 0;
  for (const Heads* h : heads) writeVisible(*labels[l++], h->data());
}

void writeOptions(QRadioButton* Option1, QRadioButton* Option2, bool first, bool second) {
  Option1->setAutoExclusive(false);
  Option2->setAutoExclusive(false);
  Option1->setChecked(first);
  Option2->setChecked(second);
  Option1->setAutoExclusive(true);
  Option2->setAutoExclusive(true);
}

QLabel* legend(QWidget* screen, QVBoxLayout* body, QWidget* after, const QString& name,
               const QString& text) {
  auto* label = new QLabel(text, screen);
  label->setObjectName(name);
  label->setStyleSheet("color: #2D3748; font-size: 9pt;");
  body->insertWidget(body->indexOf(after) + 1, label);
  return label;
}

QRadioButton* option(gui::EntryScreen& screen, const QString& name, const QString& text) {
  auto* button = new QRadioButton(text, &screen);
  button->setObjectName(name);
  screen.fieldGrid()->addWidget(button, screen.fieldGrid()->rowCount(), 0, 1, 3);
  return button;
}

void readVisible(const gui::ControlArray<QLabel>& labels, bool* into) {
  for (int i = labels.first(); i <= labels.last(); ++i) into[i] = !labels(i)->isHidden();
}
void writeVisible(const gui::ControlArray<QLabel>& labels, const bool* from) {
  for (int i = labels.first(); i <= labels.last(); ++i) labels(i)->setVisible(from[i]);
}

std::string selecVanTitulo1() { return location_equipment::selecVanTitulo1(); }

ControlSolution::ControlSolution(const std::string& name, const QString& label2)
    : ChartSolutionScreen(name, "Control Estadístico de la Calidad", 64, 22, name + "_Imprimir") {
  auto* title = new QLabel(label2, this);
  title->setObjectName("Label2");
  title->setStyleSheet("font-size: 12pt; font-weight: 600; color: #2D3748;");
  body()->insertWidget(0, title);
  Recalcular_ = command(
      "Recalcular", "cmd-resolver", "Recalcular", [this] { recalcular(); }, 40);
  placeCommand(Recalcular_);
}

void ControlSolution::placeCommand(gui::PictureButton* button) {
  QVBoxLayout* column = gui::captioned(button);
  captions_[button] = column->itemAt(1)->widget();
  commandRow()->insertLayout(0, column);
}

void ControlSolution::setShown(gui::PictureButton* button, bool shown) {
  button->setVisible(shown);
  captions_.at(button)->setVisible(shown);
}

void ControlSolution::show(const Painted& painted, Report page) {
  Solucion1()->Cls();
  Solucion1()->setReport(painted.report);
  MSChart1()->setData(painted.chart);
  setPage(std::move(page));
  showCommands();
}

void ControlSolution::showCommands() { setShown(Recalcular_, state_ && state_->Recalcular); }

}  // namespace vorel::quality
