#include "inventory/cep_descuento_screens.h"

#include "frame/gui/table_screen.h"
#include "inventory/pedido_forms.h"

namespace vorel::inventory {

namespace {
QString text(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

DescuentoEntry::DescuentoEntry() : PedidoEntry(descuentoForm()) {
  const int top = fieldGrid()->rowCount();
  auto* frame = gui::tableFrame(*this);
  auto* grid = gui::tableGrid(frame);
  QLabel* above = nullptr;
  QComboBox* selector = nullptr;
  QLabel* question = nullptr;
  for (const ui::Control& c : form().entry.controls) {
    if (c.group == 0) {
      if (c.kind == ui::ControlKind::Selector) {
        QStringList items;
        for (const std::string& item : c.items) items << text(item);
        selector = gui::newSelector(this, items);
        selector->setObjectName(text(c.name));
        selector->setFixedWidth(c.width);
        // The click applies the chosen number of intervals, nothing else.
        connect(selector, &QComboBox::activated, this,
                [this, edit = c.edit] { gui::Screen::run([&] { runEdit(edit); }); });
      } else if (c.kind == ui::ControlKind::Label && !control(c.buddy)) {
        question = new QLabel(text(c.text), this);
        question->setStyleSheet("font-size: 10pt; color: #1A202C;");
      }
      continue;
    }
    if (c.row < 0) {
      above = new QLabel(text(c.text), this);
      above->setObjectName(text(c.name));
      above->setStyleSheet("font-size: 10pt; color: #2D3748;");
    } else if (c.kind == ui::ControlKind::Label && c.row == 0) {
      QLabel* head = gui::newColumnHead(frame);
      head->setText(text(c.text));
      head->setFixedWidth(c.width);
      grid->addWidget(head, 0, c.column);
    } else if (c.kind == ui::ControlKind::Label) {
      QLabel* head = gui::newHeading(frame);
      head->setObjectName(text(c.name));
      head->setText(text(c.text));
      grid->addWidget(head, c.row, 0);
    } else if (c.kind == ui::ControlKind::Cell) {
      QLineEdit* cell = gui::newCell(frame);
      cell->setObjectName(text(c.name));
      cell->setFixedWidth(c.width);
      grid->addWidget(cell, c.row, c.column);
    }
  }
  question->setBuddy(selector);
  fieldGrid()->addWidget(question, top, 0);
  fieldGrid()->addWidget(selector, top, 1, Qt::AlignLeft);
  grid->setColumnStretch(grid->columnCount(), 1);
  gui::placeTable(body(), fieldGrid(), frame);
  body()->insertLayout(body()->indexOf(frame), gui::paragraph(above, 560));
  setFields(DescuentoFields{});
}

void DescuentoEntry::setFields(const DescuentoFields& f) {
  PedidoEntry::setFields(f);
  gui::fitToTable(*this);
}

void registerDescuentoScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("GI_CEPDescuento", [] { return new DescuentoEntry(); });
  screens.add(descuentoForm().solution.name,
              [] { return new PedidoSolution<DescuentoFields>(descuentoForm()); });
}

}  // namespace vorel::inventory
