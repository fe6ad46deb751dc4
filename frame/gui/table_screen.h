// Pieces of the entry screens that hold a table of cells: numbered selectors,
// the Rediseñar button, the panel of the table and its headings.
#pragma once

#include <QColor>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <functional>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"

namespace vorel::gui {

// Gives a chrome command the control name this screen knows it by ("Image5").
void renameChrome(QWidget& screen, const QString& from, const QString& to);
// The row of the fields' grid that holds `w`.
int gridRow(QGridLayout* grid, QWidget* w);
// A selector of the items "1" to `count` with its caption, on the fields'
// grid at `row`: the caption in `column`, the selector beside it.
QComboBox* addNumberSelector(EntryScreen& screen, int row, int column, const QString& objectName,
                             const QString& label, int count, const QString& toolTip = {});
// The command button that reshapes the table; its handler runs as a command.
QPushButton* redesignButton(QWidget& screen, std::function<void()> handler,
                            const QString& text = QStringLiteral("Rediseñar Tabla"),
                            const QString& objectName = QStringLiteral("RediseñarTabla"));
// The white panel that holds a table of cells, laid out on a grid.
QFrame* tableFrame(QWidget& screen);
QGridLayout* tableGrid(QFrame* table);
// The columns of cells "<prefix>1", "<prefix>2"..., each of `rows` elements,
// on the table's grid: column j+1 of the grid holds the array j, from grid row
// `top` down.
template <std::size_t N>
void createCells(QFrame* table, std::array<ControlArray<QLineEdit>, N>& columns,
                 const QString& prefix, int rows, int width, int top) {
  for (std::size_t j = 0; j < N; ++j) {
    columns[j].create(table, prefix + QString::number(j + 1), 0, rows - 1, [width](QWidget* p) {
      auto* cell = newCell(p);
      cell->setFixedWidth(width);
      return cell;
    });
    for (int i = 0; i < rows; ++i) tableGrid(table)->addWidget(columns[j](i), top + i, int(j) + 1);
  }
  tableGrid(table)->setColumnStretch(int(N) + 1, 1);
}
// The headings of the table's columns, across grid row `row` from column 1,
// on shaded tabs; and of its rows, right-aligned down column 0 from row `top`.
void createColumnHeads(QFrame* table, ControlArray<QLabel>& heads, const QString& name, int count,
                       int width, int row);
void createRowHeads(QFrame* table, ControlArray<QLabel>& heads, const QString& name, int count,
                    int top, int minimumWidth = 0);

// Puts the table panel below the fields' grid.
void placeTable(QVBoxLayout* body, QGridLayout* fieldGrid, QFrame* table);
// Fits the window to its table after the table changed shape.
void fitToTable(QWidget& screen);
// A column heading on a shaded tab, in `background` when given.
QLabel* newColumnHead(QWidget* parent);
void paintColumnHead(QLabel* head, const QColor& background);
// A colour as the platform stores it: a Long with red in the lowest byte.
QColor platformColor(long backColor);
// Marks a cell as data or as a total of the table (bold), both typed.
void markTotalCell(QLineEdit* cell, bool total);

}  // namespace vorel::gui
