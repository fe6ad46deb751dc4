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
#include <functional>

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
// Puts the table panel below the fields' grid.
void placeTable(QVBoxLayout* body, QGridLayout* fieldGrid, QFrame* table);
// Fits the window to its table after the table changed shape.
void fitToTable(QWidget& screen);
// A column heading on a shaded tab, in `background` when given.
QLabel* newColumnHead(QWidget* parent);
void paintColumnHead(QLabel* head, const QColor& background);
// A colour as the platform stores it: a Long with red in the lowest byte.
QColor platformColor(long backColor);
// Paints a cell as data (white) or as a total of the table (tinted).
void markTotalCell(QLineEdit* cell, bool total);

}  // namespace vorel::gui
