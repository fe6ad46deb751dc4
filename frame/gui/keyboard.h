// The keyboard and screen readers on every screen, taken from what the screen
// already shows: Tab and Shift+Tab in reading order, arrows between the cells
// of a table, Enter on a command, and the accessible names of the controls.
#pragma once

#include <QList>
#include <QWidget>

namespace vorel::gui {

// The controls of a window that Tab reaches, in reading order: lines from top
// to bottom, left to right within a line; a table as one block, read row by
// row (a table whose rows wrap into side-by-side blocks, as the samples of the
// control charts, row index by row index); the window's own commands of the
// header band last.
QList<QWidget*> readingOrder(QWidget* window);
// Moves the focus of `window` one step in reading order, round at the ends;
// false when nothing on it takes focus.
bool stepFocus(QWidget* window, bool forward);
// The first cell of the first table of `window` in reading order, or null.
QWidget* firstCell(QWidget* window);
// The panel of the table that holds `w`, or null.
QWidget* tableOf(QWidget* w);

// Gives every control of `window` an accessible name and description from its
// caption, its label, its table's headings or its tool-tip, where the code set
// none of its own. Run again after a command, since headings change.
void nameControls(QWidget* window);

// Arrows between the cells of a table (Up and Down always, Left and Right at
// the start and end of the cell's text) and Enter on a command button or
// picture; installed once for the application.
void installKeyboard();

}  // namespace vorel::gui
