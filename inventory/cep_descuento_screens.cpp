#include "inventory/cep_descuento_screens.h"

#include "frame/gui/table_screen.h"
#include "inventory/pedido_forms.h"

namespace vorel::inventory {

DescuentoEntry::DescuentoEntry() : PedidoEntry(descuentoForm()) {
  const int top = fieldGrid()->rowCount();
  cmbIntervalos_ = gui::newSelector(this, {"2", "3", "4"});
  cmbIntervalos_->setObjectName("cmbIntervalos");
  cmbIntervalos_->setFixedWidth(64);
  auto* pregunta = new QLabel("¿Cuántos costes de adquisición diferentes existen?", this);
  pregunta->setStyleSheet("font-size: 10pt; color: #1A202C;");
  pregunta->setBuddy(cmbIntervalos_);
  fieldGrid()->addWidget(pregunta, top, 0);
  fieldGrid()->addWidget(cmbIntervalos_, top, 1, Qt::AlignLeft);
  // The click shows the rows of the chosen number of intervals, nothing else.
  connect(cmbIntervalos_, &QComboBox::activated, this, [this] {
    gui::Screen::run([this] {
      edit([](DescuentoFields& f) {
        cmbIntervalosClick(f);
        return Messages{};
      });
    });
  });

  auto* frame = gui::tableFrame(*this);
  auto* grid = gui::tableGrid(frame);
  auto* nota = new QLabel(
      "Introducir el límite inferior y superior para cada intervalo de coste y el coste de "
      "adquisición correspondiente (Nota: Si no existe límite superior introducir una cantidad lo "
      "suficientemente grande)",
      this);
  nota->setObjectName("Label2");
  nota->setWordWrap(true);
  nota->setMaximumWidth(560);
  nota->setStyleSheet("font-size: 10pt; color: #2D3748;");
  const char* cabeceras[] = {"Límite  Inferior", "Límite superior", "Coste"};
  for (int c = 0; c < 3; ++c) {
    QLabel* head = gui::newColumnHead(frame);
    head->setText(cabeceras[c]);
    head->setFixedWidth(110);
    grid->addWidget(head, 0, c + 1);
  }
  const char filas[] = {'A', 'B', 'C', 'D'};
  for (std::size_t r = 0; r < kMaxIntervalos; ++r) {
    const int row = static_cast<int>(r);
    Intervalo_[r] = gui::newHeading(frame);
    Intervalo_[r]->setObjectName(QString("Intervalo%1").arg(row + 1));
    Intervalo_[r]->setText(QString("Intervalo %1").arg(row + 1));
    grid->addWidget(Intervalo_[r], row + 1, 0);
    for (std::size_t c = 0; c < 3; ++c) {
      QLineEdit* cell = gui::newCell(frame);
      cell->setObjectName(QString("%1%2").arg(QChar(filas[r])).arg(c + 1));
      cell->setFixedWidth(110);
      grid->addWidget(cell, row + 1, static_cast<int>(c) + 1);
      Tabla_[r][c] = cell;
    }
  }
  grid->setColumnStretch(4, 1);
  gui::placeTable(body(), fieldGrid(), frame);
  body()->insertWidget(body()->indexOf(frame), nota);
  setFields(DescuentoFields{});
}

DescuentoFields DescuentoEntry::fields() const {
  DescuentoFields f = PedidoEntry::fields();
  f.cmbIntervalos = cmbIntervalos_->currentIndex();
  for (std::size_t r = 0; r < kMaxIntervalos; ++r) {
    f.Intervalo[r] = !Intervalo_[r]->isHidden();
    for (std::size_t c = 0; c < 3; ++c) f.Tabla[r][c] = gui::readCell(Tabla_[r][c]);
  }
  return f;
}

void DescuentoEntry::setFields(const DescuentoFields& f) {
  PedidoEntry::setFields(f);
  cmbIntervalos_->setCurrentIndex(f.cmbIntervalos);
  for (std::size_t r = 0; r < kMaxIntervalos; ++r) {
    Intervalo_[r]->setVisible(f.Intervalo[r]);
    for (std::size_t c = 0; c < 3; ++c) gui::writeCell(Tabla_[r][c], f.Tabla[r][c]);
  }
  gui::fitToTable(*this);
}

void registerDescuentoScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("GI_CEPDescuento", [] { return new DescuentoEntry(); });
  screens.add(descuentoForm().solution.name,
              [] { return new PedidoSolution<DescuentoFields>(descuentoForm()); });
}

}  // namespace vorel::inventory
