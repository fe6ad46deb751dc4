// The clipboard of the screens: a block copied from a spreadsheet pastes into
// an entry table from the current cell right and down; cells, reports and
// charts copy out as text a spreadsheet or a document takes (and a chart as a
// picture too). One event filter of the application does it for every screen,
// so no screen has code of its own for it.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "frame/chart.h"
#include "frame/report.h"
#include "frame/spreadsheet.h"

class QComboBox;
class QLineEdit;
class QMenu;
class QMimeData;
class QWidget;

namespace vorel::gui {

class ReportBox;
class ChartView;

// Installs the filter on the application; later calls do nothing.
void installClipboard();

// Spreadsheet text of the clipboard, read and written by the core's rules.
using vorel::Block;
Block parseBlock(const QString& text);
QString blockText(const Block& block);

// An entry table as the student sees it: the shown text boxes and selectors
// named as elements of control arrays ("C1(0)") that share a parent, in the
// rows and columns of their places on the screen (controls whose spans
// overlap share a row or a column). A table whose order on screen is not its order of rows (the
// control charts put 45 samples in three blocks of 15) declares its columns.
struct TableGrid {
  int rows = 0, columns = 0;
  // The control at a row and column, or null where no shown cell stands.
  QWidget* at(int row, int column) const;
  // Row and column of a control of the table; {-1, -1} when not in it.
  std::pair<int, int> find(const QWidget* w) const;
  std::vector<std::vector<QWidget*>> cells;  // cells[row][column]
};
// The table of `cell`; empty (no rows) when it is a plain text box.
TableGrid tableOf(QLineEdit* cell);
// Declares the columns of the table `table` top to bottom, each given in the
// order of its rows, hidden cells included (they keep their place, unwritten).
void setTableColumns(QWidget* table, const std::vector<std::vector<QWidget*>>& columns);

// Pastes `text` at `cell`: one value goes into the cell as a text box pastes
// it; a block goes into the shown cells from `cell` right and down (a value
// that falls on a selector, a read-only box or a gap of the table is passed
// over), or, where it does not fit, nothing moves and the message box says
// so. True when something was pasted.
bool pasteIntoTable(QLineEdit* cell, const QString& text);
// The text Ctrl+C copies from a cell: the cells chosen with Shift+click, or
// else the cell's selected text, or else its whole text.
QString cellCopyText(QLineEdit* cell);
// Every shown cell of the table of `cell`, as spreadsheet text.
QString tableText(QLineEdit* cell);

// What Copiar puts on the clipboard from a report box: its plain text, laid
// out in zones as the command-line program prints it.
QMimeData* reportMimeData(const ReportBox& box);
// A chart: its picture and its data as spreadsheet text (the header "Punto"
// and the series, then one row per point).
QMimeData* chartMimeData(const Chart& chart);
QString chartText(const Chart& chart);

// The context menus the filter opens (tests trigger their actions):
// a text box's menu in Spanish, its Copiar and Pegar acting on the table, and
// Copiar tabla; Copiar on a report box or a chart.
QMenu* cellMenu(QLineEdit* cell);
QMenu* reportMenu(ReportBox* box);
QMenu* chartMenu(ChartView* chart);

}  // namespace vorel::gui
