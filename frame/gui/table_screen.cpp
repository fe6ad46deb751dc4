#include "frame/gui/table_screen.h"

#include <QAbstractButton>

#include "frame/gui/control_array.h"
#include "frame/gui/keyboard.h"

namespace vorel::gui {

void renameChrome(QWidget& screen, const QString& from, const QString& to) {
  if (auto* button = screen.findChild<QAbstractButton*>(from)) button->setObjectName(to);
}

int gridRow(QGridLayout* grid, QWidget* w) {
  int row = 0, column = 0, rowSpan = 0, columnSpan = 0;
  grid->getItemPosition(grid->indexOf(w), &row, &column, &rowSpan, &columnSpan);
  return row;
}

QComboBox* addNumberSelector(EntryScreen& screen, int row, int column, const QString& objectName,
                             const QString& label, int count, const QString& toolTip) {
  QStringList items;
  for (int k = 1; k <= count; ++k) items << QString::number(k);
  auto* combo = newSelector(&screen, items);
  combo->setObjectName(objectName);
  combo->setToolTip(toolTip);
  combo->setFixedWidth(64);
  auto* caption = new QLabel(label, &screen);
  caption->setStyleSheet("font-size: 10pt; color: #1A202C;");
  caption->setBuddy(combo);
  screen.fieldGrid()->addWidget(caption, row, column);
  screen.fieldGrid()->addWidget(combo, row, column + 1, Qt::AlignLeft);
  return combo;
}

QPushButton* redesignButton(QWidget& screen, std::function<void()> handler, const QString& text,
                            const QString& objectName) {
  auto* button = new QPushButton(text, &screen);
  button->setObjectName(objectName);
  button->setCursor(Qt::PointingHandCursor);
  button->setStyleSheet(
      "QPushButton { padding: 5px 14px; border: 1px solid #9AA5B8; border-radius: 4px;"
      " background: #FFFFFF; color: #2D3748; font-weight: 600; }"
      "QPushButton:hover { background: #EDF2F7; }"
      "QPushButton:focus { border: 2px solid #1E5AD6; }");
  QObject::connect(button, &QPushButton::clicked, &screen, [&screen, handler = std::move(handler)] {
    auto* entry = dynamic_cast<EntryScreen*>(&screen);
    const int told = entry ? entry->told() : 0;
    Screen::run(handler);
    // A table reshaped without a message takes the keyboard
    // to its first cell, where the screen did not put it.
    if (entry && entry->told() == told && !tableOf(screen.focusWidget()))
      if (QWidget* cell = firstCell(&screen)) cell->setFocus(Qt::OtherFocusReason);
    nameControls(&screen);  // the headings changed
  });
  return button;
}

QFrame* tableFrame(QWidget& screen) {
  auto* frame = new QFrame(&screen);
  frame->setObjectName("tabla");
  frame->setStyleSheet(
      "QFrame#tabla { background: #FFFFFF; border: 1px solid #D5DAE3; border-radius: 6px; }");
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(14, 12, 14, 12);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(5);
  return frame;
}

QGridLayout* tableGrid(QFrame* table) { return static_cast<QGridLayout*>(table->layout()); }

void createColumnHeads(QFrame* table, ControlArray<QLabel>& heads, const QString& name, int count,
                       int width, int row) {
  heads.create(table, name, 0, count - 1, [width](QWidget* parent) {
    auto* head = newColumnHead(parent);
    head->setFixedWidth(width);
    return head;
  });
  for (int k = 0; k < count; ++k) tableGrid(table)->addWidget(heads(k), row, k + 1);
}

void createRowHeads(QFrame* table, ControlArray<QLabel>& heads, const QString& name, int count,
                    int top, int minimumWidth) {
  heads.create(table, name, 0, count - 1, newHeading);
  for (int k = 0; k < count; ++k) {
    heads(k)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    heads(k)->setMinimumWidth(minimumWidth);
    tableGrid(table)->addWidget(heads(k), top + k, 0);
  }
}

void placeTable(QVBoxLayout* body, QGridLayout* fieldGrid, QFrame* table) {
  body->insertWidget(body->indexOf(fieldGrid) + 1, table);
}

void fitToTable(QWidget& screen) { fitWindow(screen); }

QLabel* newColumnHead(QWidget* parent) {
  auto* head = newHeading(parent);
  paintColumnHead(head, QColor(0xE2, 0xE8, 0xF0));
  return head;
}

void paintColumnHead(QLabel* head, const QColor& background) {
  head->setStyleSheet(QStringLiteral("font-weight: 600; color: #2D3748; border-radius: 3px;"
                                     " padding: 3px 2px; background-color: %1;")
                          .arg(background.name()));
}

QColor platformColor(long backColor) {
  const auto bytes = static_cast<unsigned long>(backColor);
  return QColor(static_cast<int>(bytes & 0xFF), static_cast<int>((bytes >> 8) & 0xFF),
                static_cast<int>((bytes >> 16) & 0xFF));
}

void markTotalCell(QLineEdit* cell, bool total) {
  // The student types these cells as every other: they keep the white of an
  // input cell (a tinted ground reads as a disabled box) and stand apart by
  // their bold figures only.
  QFont font = cell->font();
  font.setBold(total);
  cell->setFont(font);
}

}  // namespace vorel::gui
