#include "location_equipment/selec_van_screens.h"

#include <QPushButton>

#include "frame/gui/table_screen.h"

namespace vorel::location_equipment {

namespace {

QComboBox* durationSelector(gui::EntryScreen& screen, int row, const QString& name,
                            const QString& label) {
  QStringList years;
  for (int n = 2; n <= kMaxAñosVan; ++n) years << QString::number(n);
  auto* combo = gui::newSelector(&screen, years);
  combo->setObjectName(name);
  combo->setEditable(true);  // its text is the duration, as typed or read from a file
  combo->setFixedWidth(64);
  auto* caption = new QLabel(label, &screen);
  caption->setStyleSheet("font-size: 10pt; color: #1A202C;");
  caption->setBuddy(combo);
  screen.fieldGrid()->addWidget(caption, row, 3);
  screen.fieldGrid()->addWidget(combo, row, 4, Qt::AlignLeft);
  return combo;
}

}  // namespace

VanEntry::VanEntry()
    : ModelEntry("Selec_Van", "Criterio del VAN",
                 "Compara dos inversiones por su valor actual neto (VAN) y, cuando sus "
                 "duraciones difieren, por el VAN corregido (VANC).",
                 "Titulo1", "Problema1") {
  bindings_.bind(&VanFields::Titulo1, titleField());
  QLineEdit* descuento = addField("txtDescuento", "Descuento", "Tipo de descuento en %");
  bindings_.bind(&VanFields::txtDescuento, descuento);
  bindings_.bind(&VanFields::InicialA, addField("InicialA", "Inversión Inicial A"));
  bindings_.bind(&VanFields::InicialB, addField("InicialB", "Inversión Inicial B"));

  const int top = gui::gridRow(fieldGrid(), descuento);
  auto* heading = new QLabel("Duración en Años", this);
  heading->setStyleSheet("font-weight: 600; color: #4A5568;");
  fieldGrid()->addWidget(heading, top, 3, 1, 2);
  NVarA_ = durationSelector(*this, top + 1, "NVarA", "Duración Inversión A");
  NVarB_ = durationSelector(*this, top + 2, "NVarB", "Duración Inversión B");
  auto* reshape = gui::redesignButton(
      *this, [this] { rediseñar(); }, "Rediseñar", "Rediseñar");
  reshape->setToolTip("Ajusta la tabla al número de años deseados");
  fieldGrid()->addWidget(reshape, top + 3, 3, 1, 2, Qt::AlignLeft);
  fieldGrid()->setColumnMinimumWidth(2, 24);

  // The table: the years down the rows, the flows of A and of B across.
  auto* frame = gui::tableFrame(*this);
  gui::ControlArray<QLabel> heads;
  gui::createColumnHeads(frame, heads, "LblInversion", 2, 110, 0);
  heads(0)->setText("Inversión A");
  heads(1)->setText("Inversión B");
  gui::createRowHeads(frame, LblAño_, "LblAño", kMaxAñosVan, 1);
  gui::createCells(frame, AX_, "AX", kMaxAñosVan, 110, 1);
  for (int i = 0; i < kMaxAñosVan; ++i)
    LblAño_(i)->setText("Flujo de Caja Año " + QString::number(i + 1));
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(VanFields{});
}

VanFields VanEntry::fields() const {
  VanFields f;
  bindings_.read(f);
  f.NVarA = NVarA_->currentText().toStdString();
  f.NVarB = NVarB_->currentText().toStdString();
  for (int i = 0; i < kMaxAñosVan; ++i) {
    f.AX1[i] = gui::readCell(AX_[0](i));
    f.AX2[i] = gui::readCell(AX_[1](i));
  }
  return f;
}

void VanEntry::setFields(const VanFields& f) {
  bindings_.write(f);
  NVarA_->setCurrentText(QString::fromStdString(f.NVarA));
  NVarB_->setCurrentText(QString::fromStdString(f.NVarB));
  for (int i = 0; i < kMaxAñosVan; ++i) {
    gui::writeCell(AX_[0](i), f.AX1[i]);
    gui::writeCell(AX_[1](i), f.AX2[i]);
    LblAño_(i)->setVisible(f.AX1[i].visible || f.AX2[i].visible);
  }
  gui::fitToTable(*this);
}

void VanEntry::rediseñar() {
  if (edit([](VanFields& f) { return location_equipment::rediseñar(f); })) AX_[0](0)->setFocus();
}

VanSolution::VanSolution() : SolutionScreen("Selec_Van_Solucion", "Criterio del VAN", 72, 26) {}

Pages VanSolution::compute() {
  VanFields f = entry<VanEntry>().fields();
  return solveAndReport(f);
}

std::string selecVanTitulo1() {
  auto* screen = dynamic_cast<VanEntry*>(gui::Screens::instance().load("Selec_Van"));
  return screen ? screen->fields().Titulo1 : std::string();
}

void registerVanScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Selec_Van", [] { return new VanEntry(); });
  screens.add("Selec_Van_Solucion", [] { return new VanSolution(); });
}

}  // namespace vorel::location_equipment
