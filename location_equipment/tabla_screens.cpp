#include "location_equipment/tabla_screens.h"

#include "frame/gui/table_screen.h"

namespace vorel::location_equipment {

QComboBox* selectorDeNumero(gui::EntryScreen& screen, int row, const QString& objectName,
                            const QString& label, int first, int last, const QString& toolTip) {
  QStringList items;
  for (int k = first; k <= last; ++k) items << QString::number(k);
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

QLabel* cabecera(QFrame* table, const QString& objectName, const QString& text, int row, int column,
                 int columns) {
  auto* head = gui::newColumnHead(table);
  head->setObjectName(objectName);
  head->setText(text);
  gui::tableGrid(table)->addWidget(head, row, column, 1, columns);
  return head;
}

void columnaDeCeldas(QFrame* table, gui::ControlArray<QLineEdit>& cells, const QString& name,
                     int rows, int column, int top, int width, bool nombres) {
  cells.create(table, name, 0, rows - 1, [&](QWidget* parent) {
    auto* cell = gui::newCell(parent);
    cell->setFixedWidth(width);
    if (nombres) cell->setAlignment(Qt::AlignLeft);
    return cell;
  });
  for (int i = 0; i < rows; ++i) gui::tableGrid(table)->addWidget(cells(i), top + i, column);
}

}  // namespace vorel::location_equipment
